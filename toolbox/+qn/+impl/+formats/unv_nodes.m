% N = UNV_NODES (T, FROM, TO, KIND)  nodes of dataset 15 or 2411 (781) in lines FROM to TO
function n = unv_nodes (t, from, to, kind)
  lines = to - from + 1;
  n = struct ('label', zeros (0, 1), 'place', zeros (0, 3), 'system', zeros (0, 2));
  if lines == 0, return, end
  whole = qn.impl.formats.fortran ('4I10');
  each = 1 + (kind ~= 15);
  if mod (lines, each), qn.impl.formats.refuse (t, to, 'a node of two lines expected; the last one is missing'); end
  c = qn.impl.formats.block (t, from, lines, 80, 'nodes');
  count = lines / each;
  first = 1:each:lines;
  % What stands right of the columns may be the end of a number that was shifted there.
  long = t.last(from:to) - t.first(from:to) + 1;
  ends = 79 * ones (1, lines);
  if each == 2, ends = repmat ([40 75], 1, count); end
  for k = find (long(:).' > ends)
    line = t.text(t.first(from + k - 1):t.last(from + k - 1));
    if ~isempty (strtrim (line(ends(k) + 1:end)))
      qn.impl.formats.refuse (t, from + k - 1, '"%s" right of column %d, where the numbers of a node end', ...
                              qn.impl.formats.shown (strtrim (line(ends(k) + 1:end))), ends(k));
    end
  end
  x = numbers (t, from, first, c(first, 1:40), 10, 'label, systems and colour of a node');
  bad = find (any (x(:, 1:3) ~= fix (x(:, 1:3)) | x(:, 1:3) < 0, 2) | x(:, 1) < 1, 1);
  if ~isempty (bad), qn.impl.formats.refuse (t, from + first(bad) - 1, 'node %g in the systems %g and %g', x(bad, 1:3)); end
  n.label = x(:, 1);
  n.system = x(:, 2:3);
  if kind == 15
    n.place = numbers (t, from, first, c(:, 41:79), 13, 'a coordinate');
  else
    n.place = numbers (t, from, first + 1, c(2:2:end, 1:75), 25, 'a coordinate');
  end
end

% Numbers in columns of one width; a line with as many numbers between blanks is taken too.
function x = numbers (t, from, lines, c, width, what)
  count = size (c, 2) / width;
  [x, good, unused, unused2, blank] = qn.impl.formats.parse (reshape (c.', width, []).');
  good = reshape (good & ~blank, count, []).';
  x = reshape (x, count, []).';
  for k = find (~all (good, 2)).'
    words = regexp (c(k, :), '\S+', 'match');
    fits = false;
    if numel (words) == count
      [y, fits] = qn.impl.formats.parse (char (words));
      if all (fits), x(k, :) = y.'; end
    end
    if ~all (fits)
      qn.impl.formats.refuse (t, from + lines(k) - 1, '%s is no finite number: "%s"', what, qn.impl.formats.shown (c(k, :)));
    end
  end
end
