% C = LOOKED_AT (MODEL, C)  observation rows, from themselves or from the number of one degree of freedom
%
% With one mode and several degrees of freedom a number is taken as a row.
function c = looked_at (model, c)
  m = numel (model.w);
  n = size (model.shapes, 1);
  if isnumeric (c) && numel (c) == 1 && any (c == 1:n) && (m > 1 || n == 1)
    c = qn.observe (model, c);
  elseif size (c, 2) ~= m
    error ('qn:input', 'observation rows of %d modal values expected, or the number of one degree of freedom, got %s; see qn.observe', ...
           m, mat2str (size (c)));
  end
end
