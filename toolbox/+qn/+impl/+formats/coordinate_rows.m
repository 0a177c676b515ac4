% [I, J, V, DIMS, AT] = COORDINATE_ROWS (T, LINES, WORDS, SIZED)  entries from lines of row, column and value
%
% With SIZED the first line is rows, columns and number of entries. AT are the lines of the entries.
function [i, j, v, dims, lines] = coordinate_rows (t, lines, first, last, sized)
  dims = [];
  if sized
    head = qn.impl.formats.column_of (t, lines([1 1 1]), first(1, :), last(1, :), 'the size', true);
    if any (head < [1; 1; 0]) || any (head(1:2) > qn.impl.formats.dimension_limit (t))
      qn.impl.formats.refuse (t, lines(1), 'a matrix of %.15g x %.15g, in a file of %d bytes', head(1:2), numel (t.text));
    end
    dims = head(1:2).';
    [first, last] = deal (first(2:end, :), last(2:end, :));
    if size (first, 1) ~= head(3)
      qn.impl.formats.refuse (t, lines(end), '%.15g entries announced, got %d', head(3), size (first, 1));
    end
    lines = lines(2:end);
  end
  [i, j, v] = deal (zeros (0, 1));
  if isempty (first), return, end
  i = qn.impl.formats.column_of (t, lines, first(:, 1), last(:, 1), 'the row', true);
  j = qn.impl.formats.column_of (t, lines, first(:, 2), last(:, 2), 'the column', true);
  v = qn.impl.formats.column_of (t, lines, first(:, 3), last(:, 3), 'the value', false);
  limits = dims;
  if ~sized
    limits = qn.impl.formats.dimension_limit (t) * [1 1];
    dims = [max(i), max(j)];
  end
  k = find (i < 1 | j < 1 | i > limits(1) | j > limits(2), 1);
  if ~isempty (k)
    hint = '';
    if any ([i; j] == 0), hint = '; was it written with numbers from 0?'; end
    qn.impl.formats.refuse (t, lines(k), 'row %.15g, column %.15g; rows from 1 to %d and columns from 1 to %d expected%s', i(k), j(k), ...
                            limits, hint);
  end
end
