% ROWS = LOOKED_AT (MODEL, C, WHERE)  observation rows, from themselves or from the numbers of degrees of freedom
%
% A vector of distinct whole numbers from 1 to n is a list of degrees of freedom. Where it could as well be a row of modal values,
% and one a different one, it is refused: a wrong guess would give a wrong curve without a word. What is sparse is never a list.
% With a single degree of freedom 1 is its number.
% WHERE begins the texts of errors ('').
function rows = looked_at (model, c, where)
  if nargin < 3, where = ''; end
  m = numel (model.w);
  n = size (model.shapes, 1);
  if ~isnumeric (c) || ndims (c) > 2
    error ('qn:input', '%sobservation rows of %d modal values expected, got %s of class %s; see qn.observe', where, m, ...
           mat2str (size (c)), class (c));
  end
  rows = full (c);
  if ~issparse (c) && isreal (c) && isvector (c) && all (c(:) >= 1 & c(:) <= n & c(:) == fix (c(:))) && numel (unique (c)) == numel (c)
    rows = qn.observe (model, c);
    if n > 1 && size (c, 2) == m && ~isequal (rows, c)
      error ('qn:input', ['%sthese look like numbers of degrees of freedom; write qn.observe (model, %s). If they are modal values, ' ...
                          'give sparse (%s)'], where, mat2str (c), mat2str (c));
    end
  elseif size (c, 2) ~= m
    error ('qn:input', '%sobservation rows of %d modal values expected, or the numbers of degrees of freedom, got %s; see qn.observe', ...
           where, m, mat2str (size (c)));
  end
end
