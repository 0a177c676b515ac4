% TEXT = PLACE (MODEL, ROWS)  what modal rows observe: degrees of freedom where they can be told
% [TEXT, NAME, FACTOR] = PLACE (MODEL, ROW)  also of a multiple of one degree of freedom that one and the factor; NAME is '' for others
%
% A row is that of a degree of freedom, a multiple of one, a difference of two, or, where there are as many modes as degrees of freedom,
% any sum. Several degrees of freedom that move alike in all modes are all named.
function [text, name, factor] = place (model, rows)
  most = 4;
  count = size (rows, 1);
  texts = cell (1, min (count, most));
  for k = 1:numel (texts), [texts{k}, name, factor] = of_row (model, full (rows(k, :))); end
  text = strjoin (texts, ', ');
  if count > most, text = sprintf ('%s and %d more', text, count - most); end
end

function [text, name, factor] = of_row (model, row)
  s = model.shapes;
  [name, factor] = deal ('', 1);
  if ~any (row)
    text = 'nothing (a row of zeros)';
    return
  end
  same = find (all (bsxfun (@eq, s, row), 2)).';
  if ~isempty (same)
    more = '';
    if numel (same) > 3, more = sprintf (' or %d more', numel (same) - 3); end
    names = arrayfun (@(k) qn.impl.words.freedom (model, k), same(1:min (3, end)), 'UniformOutput', false);
    text = [strjoin(names, ' or '), more];
    name = text;
    return
  end
  [at, weights] = found (s, row);
  if isempty (at)
    text = 'a row of its own';
  elseif numel (at) > 3
    text = sprintf ('%d degrees of freedom, weighted', numel (at));
  else
    text = summed (model, at, weights);
    if numel (at) == 1, [name, factor] = deal (qn.impl.words.freedom (model, at), weights); end
  end
end

function text = summed (model, at, weights)
  [weights, order] = sort (weights, 'descend');
  text = '';
  for k = 1:numel (at)
    name = qn.impl.words.freedom (model, at(order(k)));
    if abs (weights(k)) ~= 1, name = sprintf ('%.4g times %s', abs (weights(k)), name); end
    sign_of = {' plus ', ' minus '};
    text = [text, sign_of{1 + (weights(k) < 0)}, name];
  end
  text = regexprep (regexprep (text, '^ plus ', ''), '^ minus ', 'minus ');
end

% Degrees of freedom and weights whose sum is the row; none where they cannot be told.
function [at, weights] = found (s, row)
  at = [];
  weights = [];
  [n, m] = size (s);
  good = @(k, w) norm (w(:).' * s(k, :) - row) < 1e-9 * norm (row);
  if n == m
    w = s.' \ row.';
    k = find (abs (w) > 1e-9 * max (abs (w))).';
    if good (k, w(k)), [at, weights] = deal (k, rounded (w(k))); end
    return
  end
  if m == 1, return, end
  own = sum (s .^ 2, 2);
  w = (s * row.') ./ max (own, realmin ());
  [unused, k] = max (w .^ 2 .* own);
  if good (k, w(k)), [at, weights] = deal (k, rounded (w(k))); return, end
  % A difference: along any direction the two values of the shapes differ by that of the row.
  along = cos (1:m).';
  [x, order] = sort (s * along);
  [x, first] = unique (x);
  if numel (x) < 2, return, end
  partner = order(first(interp1 (x, 1:numel (x), s * along - row * along, 'nearest', 'extrap')));
  off = sum ((s - s(partner, :) - ones (n, 1) * row) .^ 2, 2);
  [unused, k] = min (off);
  if good ([k, partner(k)], [1 -1]), [at, weights] = deal ([k, partner(k)], [1 -1]); end
end

% Weights of the rounding of a projection are those that were meant.
function w = rounded (w)
  near = round (w);
  whole = abs (w - near) < 1e-9;
  w(whole) = near(whole);
end
