% E = SPRING_ELEMENT (ROWS, WEIGHTS, OPT)  nonlinear element between the DOFs ROWS with the observation WEIGHTS * u(ROWS)
%
% One observed value, the force goes back to the same DOFs with the same weights. NDOF is the length of u.
function e = spring_element (rows, weights, ndof, opt, iopt)
  line = zeros (1, ndof);
  line(rows) = weights;
  e = struct ('type', 1003, 'c', matrix_lines (line, true), 'b', matrix_lines (line, true), 'opt', opt(:));
  e.unl = zeros (1, 1);
  e.vnl = zeros (1, 1);
  e.snl = zeros (1, 1);
  if nargin > 4, e.iopt = iopt; end
  e = fresh (e);
end
