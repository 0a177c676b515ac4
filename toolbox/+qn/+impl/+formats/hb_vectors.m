% [RIGHT, GUESS, SOLUTION] = HB_VECTORS (T, H, FROM)  the full right-hand sides of a Harwell-Boeing file, and what belongs to them
function [right, guess, solution] = hb_vectors (t, h, from)
  [right, guess, solution] = deal ([]);
  if h.blocks(4) == 0, return, end
  if isempty (regexp (h.right, '^F[G ][X ]$', 'once'))
    why = '';
    if h.right(1) == 'M', why = ': right-hand sides in the form of the matrix are not read'; end
    qn.impl.formats.refuse (t, 5, 'the type of the right-hand sides is "%s"; F expected, perhaps with G and X%s', ...
                            qn.impl.formats.shown (h.right), why);
  end
  groups = 1 + (h.right(2) == 'G') + (h.right(3) == 'X');
  parts = 1 + (h.type(1) == 'C');
  n = h.rows * parts;
  if n * h.vectors * groups > numel (t.text)
    qn.impl.formats.refuse (t, 5, '%d vectors of %d numbers, in a file of %d bytes', h.vectors * groups, n, numel (t.text));
  end
  % All vectors of a group one behind the other, or each on lines of its own: the count of lines tells.
  joined = groups * ceil (n * h.vectors / h.loads.per);
  apart = groups * h.vectors * ceil (n / h.loads.per);
  if ~any (h.blocks(4) == [joined, apart])
    qn.impl.formats.refuse (t, 2, '%d lines of right-hand sides; %d vectors of %d numbers in the format of line 4 take %d', h.blocks(4), ...
                            h.vectors * groups, n, joined);
  end
  [pieces, each] = deal (groups, n * h.vectors);
  if h.blocks(4) ~= joined, [pieces, each] = deal (groups * h.vectors, n); end
  x = cell (pieces, 1);
  for k = 1:pieces
    [x{k}, from] = qn.impl.formats.items (t, from, each, h.loads, 'right-hand sides');
  end
  x = cat (1, x{:});
  if parts == 2, x = complex (x(1:2:end), x(2:2:end)); end
  x = reshape (x, h.rows, h.vectors, groups);
  right = x(:, :, 1);
  if h.right(2) == 'G', guess = x(:, :, 2); end
  if h.right(3) == 'X', solution = x(:, :, groups); end
end
