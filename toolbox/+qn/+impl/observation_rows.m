% ROWS = OBSERVATION_ROWS (MODEL, C, WHERE, NAME)  observation rows, from themselves or from the numbers of degrees of freedom
%
% A vector of distinct whole numbers from 1 to n is a list of degrees of freedom. Where it could as well be a row of modal values,
% and one a different one, it is refused: a wrong guess would give a wrong curve without a word. What is sparse is never a list.
% With a single degree of freedom 1 is its number. With one mode any number could be a row: one that no degree of freedom has is taken
% for a row where it is a whole multiple of what one has, as qn.observe gives them.
% WHERE begins the texts of errors ('qn.displacement: '), NAME is the argument ('C').
function rows = observation_rows (model, c, where, name)
  if nargin < 4, name = 'C'; end
  m = numel (model.w);
  n = size (model.shapes, 1);
  c = qn.impl.numbers (regexprep (where, ': $', ''), name, c, [NaN NaN]);
  rows = full (c);
  listed = ~issparse (c) && any (size (c) == 1) && all (c(:) == fix (c(:)));
  if listed && all (c(:) >= 1 & c(:) <= n) && numel (unique (c)) == numel (c)
    rows = qn.observe (model, c);
    if n > 1 && size (c, 2) == m && ~isequal (rows, c)
      error ('qn:input', ['%sthese look like numbers of degrees of freedom; write qn.observe (model, %s). If they are modal values, ' ...
                          'give sparse (%s)'], where, mat2str (c), mat2str (c));
    end
  elseif size (c, 2) ~= m || (listed && m == 1 && no_multiple (c, model.shapes))
    bad = find (c < 1 | c > n, 1);
    if listed && ~isempty (bad)
      error ('qn:input', '%s"%s"(%d) is %g; degrees of freedom are numbered from 1 to %d%s', where, name, bad, c(bad), n, ...
             repmat ('. If it is a modal value, give it sparse', 1, m == 1));
    elseif listed
      error ('qn:input', '%s"%s" names a degree of freedom twice: %s; write qn.observe (model, %s) where that is meant', where, name, ...
             mat2str (c), mat2str (c));
    end
    turned = '';
    if size (c, 1) == m, turned = '. They look transposed: give C.'' instead of C'; end
    error ('qn:input', ['%s"%s" must be observation rows of %d modal values, or the numbers of degrees of freedom, got %d x %d; see ' ...
                        'qn.observe%s'], where, name, m, size (c), turned);
  end
end

% Whether one of the numbers is no whole multiple of any value of a single mode.
function yes = no_multiple (c, shapes)
  times = bsxfun (@rdivide, c(:), shapes(shapes ~= 0).');
  yes = any (c(:) ~= 0 & all (abs (times - round (times)) > 1e-9 * abs (times), 2));
end
