% H = REGISTER (VALUES)  handles of the rows {type, value}, as a chandle vector
function h = register (values)
  index = zeros (1, size (values, 1));
  for k = 1:size (values, 1), index(k) = quarn ('chandleset', values{k, 1}, values{k, 2}); end
  h = chandle (index);
end
