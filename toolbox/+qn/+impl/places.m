% [P, GOOD] = PLACES (SHAPES, ROWS)  weights of degrees of freedom, n x p, sparse, that give the modal rows: ROWS = P.' * SHAPES
%
% A row is that of one degree of freedom, of two with weights that are near one another in the numbering, or of few: those are
% looked for by least squares that are weighted anew with their own result. What is found must give the row to rounding,
% with no more than half as many degrees of freedom as there are modes; then no other so small set does. GOOD says which were found.
function [p, good] = places (shapes, rows)
  [n, m] = size (shapes);
  count = size (rows, 1);
  p = sparse (n, count);
  good = false (1, count);
  size_of = max (max (abs (shapes)));
  for j = 1:count
    row = rows(j, :);
    if j > 1
      [same, at] = ismember (row, rows(1:j - 1, :), 'rows');
      if same, p(:, j) = p(:, at); good(j) = good(at); continue, end
    end
    [one, at] = ismember (row, shapes, 'rows');
    if one
      p(at, j) = 1;
      good(j) = true;
      continue
    end
    for way = {@pair, @few}
      weights = way{1}(shapes, row);
      off = norm (weights.' * shapes - row);
      good(j) = off < 1e-9 * max (norm (row), 1e-6 * size_of) && nnz (weights) <= m / 2;
      if good(j)
        p(:, j) = sparse (weights);
        break
      end
    end
  end
end

% The two whose numbers differ by the least, up to some hundreds, and that come nearest to the row.
function weights = pair (shapes, row)
  n = size (shapes, 1);
  weights = zeros (n, 1);
  own = sum (shapes .^ 2, 2);
  along = shapes * row.';
  best = Inf;
  at = [1 1];
  for lag = 1:min (n - 1, max (20, round (2e5 / n)))
    i = (1:n - lag).';
    j = i + lag;
    both = sum (shapes(i, :) .* shapes(j, :), 2);
    d = own(i) .* own(j) - both .^ 2;
    a = (own(j) .* along(i) - both .* along(j)) ./ d;
    b = (own(i) .* along(j) - both .* along(i)) ./ d;
    left = norm (row) ^ 2 - a .* along(i) - b .* along(j);
    [least, k] = min (left);
    if least < best
      best = least;
      at = [i(k), j(k)];
    end
  end
  if best < 1e-4 * norm (row) ^ 2, weights(at) = shapes(at, :).' \ row.'; end
end

function weights = few (shapes, row)
  n = size (shapes, 1);
  weights = zeros (n, 1);
  size_of = ones (n, 1);
  for round = 1:60
    s = bsxfun (@times, shapes, size_of);
    x = size_of .* (s * (pinv (s.' * s) * row.'));
    change = max (abs (abs (x) - size_of));
    size_of = abs (x);
    size_of(size_of < 1e-9 * max (size_of)) = 0;
    if change < 1e-9 * max (size_of), break, end
  end
  at = find (size_of > 1e-4 * max (size_of));
  if numel (at) > 0 && numel (at) <= size (shapes, 2), weights(at) = shapes(at, :).' \ row.'; end
end
