% WORKER_PRODUCT ()  a product of the module that its worker threads share, checked
function worker_product ()
  persistent s n
  if isempty (s), [s, n] = long_lines (); end
  y = zeros (n, 1);
  quarn ('tbbp', s, ones (n, 1), y);
  expect_equal (y, 50 * ones (n, 1));
end
