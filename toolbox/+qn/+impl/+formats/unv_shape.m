% S = UNV_SHAPE (T, FROM, TO)  data at nodes, dataset 55, in lines FROM to TO
function s = unv_shape (t, from, to)
  if to - from + 1 < 8, qn.impl.formats.refuse (t, to, 'the dataset ends early: eight lines before the nodes expected'); end
  ids = cell (1, 5);
  for k = 1:5, ids{k} = strtrim (t.text(t.first(from + k - 1):t.last(from + k - 1))); end
  x = qn.impl.formats.integers (t, from + 5, 0, 10 * ones (1, 6), {'model', 'analysis', 'characteristic', 'kind of data', ...
                                'type of data', 'values a node'});
  s = struct ('description', {ids}, 'analysis', x(2), 'characteristic', x(3), 'quantity', x(4), 'parameters', [], 'integers', [], ...
              'node', zeros (0, 1), 'values', zeros (0, x(6)));
  if ~any (x(5) == [2 4 5 6]), qn.impl.formats.refuse (t, from + 5, 'type of data %d; 2 or 4 (real), 5 or 6 (complex) expected', x(5)); end
  if x(6) < 1, qn.impl.formats.refuse (t, from + 5, 'no values a node'); end
  qn.impl.formats.fits (t, from + 5, x(6), {'the count of values a node'});
  parts = 1 + (x(5) > 4);
  heads = qn.impl.formats.integers (t, from + 6, 0, [10 10], {'count of whole numbers', 'count of real numbers'});
  qn.impl.formats.fits (t, from + 6, heads, {'the count of whole numbers', 'the count of real numbers'});
  [y, next] = part_of (t, from + 6, to, 2 + heads(1), '8I10', 'whole numbers of the dataset');
  s.integers = y(3:end).';
  [y, next] = part_of (t, next, to, heads(2), '6E13.5', 'parameters of the dataset');
  s.parameters = y.';
  each = 1 + ceil (parts * x(6) / 6);
  lines = to - next + 1;
  if mod (lines, each) ~= 0
    qn.impl.formats.refuse (t, to, '%d lines of data at nodes; a node takes %d', lines, each);
  end
  count = lines / each;
  if count == 0, return, end
  c = qn.impl.formats.block (t, next, lines, 80, 'data at nodes');
  heads = 1:each:lines;
  [node, good, point, exponent, blank] = qn.impl.formats.parse (c(heads, 1:10));
  k = find (~good | blank | point | exponent | node < 1 | any (c(heads, 11:end) ~= ' ', 2), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, next + heads(k) - 1, 'the number of a node expected, got "%s"', qn.impl.formats.shown (c(heads(k), :)));
  end
  [values, done] = in_columns (c, heads, each, parts * x(6));
  for k = find (~done)
    values(k, :) = part_of (t, next + heads(k), to, parts * x(6), '6E13.5', sprintf ('data at node %g', node(k))).';
  end
  if parts == 2, values = complex (values(:, 1:2:end), values(:, 2:2:end)); end
  [unique_nodes, k] = unique (node);
  if numel (unique_nodes) < count, qn.impl.formats.refuse (t, from, 'a node comes twice in this dataset'); end
  s.node = node;
  s.values = values;
end

% The values of all nodes at once; DONE is false for nodes whose lines are to be looked at one by one.
function [values, done] = in_columns (c, heads, each, count)
  c(heads, :) = [];
  [x, good, point, unused, blank] = qn.impl.formats.parse (reshape (c(:, 1:78).', 13, []).');
  good = reshape (good & ~blank & (point | x == 0), 6 * (each - 1), []);
  blank = reshape (blank, 6 * (each - 1), []);
  x = reshape (x, 6 * (each - 1), []);
  done = all ([good(1:count, :); blank(count + 1:end, :)], 1);
  values = x(1:count, :).';
end

function [x, next] = part_of (t, from, to, count, layout, what)
  f = qn.impl.formats.fortran (layout);
  if from + ceil (count / f.per) - 1 > to, qn.impl.formats.refuse (t, to, 'the dataset ends early: %d %s expected', count, what); end
  [x, next] = qn.impl.formats.items (t, from, count, f, what);
end
