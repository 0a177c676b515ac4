% REFUSED_CLEANLY (LIST, ARGS, ID, TEXT)  the integrator must refuse a call with an error and write nothing
%
% ARGS is a cell {model, u, v, a, opt, mem, out}. After the error u, v, a, the work memory and the outputs are as before, and a handle
% registered beforehand still answers.
function refused_cleanly (list, args, id, text)
  witness = quarn ('chandleset', 1, matrix_lines (sparse ([1 2 2], [1 1 2], [4 3 7], 2, 2)));
  before = fresh (args);
  expect_error (@() quarn ('chandlediagnewmark', list, args{:}), id, text);
  if ~same_bits (args, before), error ('something was written before the error "%s"', text); end
  r = zeros (2, 1);
  quarn ('residual', r, chandle (witness), ones (2, 1), zeros (2, 1), zeros (2, 1), zeros (1, 2));
  quarn ('chandleclear', witness);
  expect_equal (r, [7; 7]);
end
