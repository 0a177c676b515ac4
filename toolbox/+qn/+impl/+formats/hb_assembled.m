% [A, NEXT] = HB_ASSEMBLED (T, H)  the matrix of a Harwell-Boeing file whose type ends with A
function [a, next] = hb_assembled (t, h)
  if any (h.type(2) == 'SHZ') && h.rows ~= h.columns
    qn.impl.formats.refuse (t, 3, 'a matrix of %d x %d, of the type "%s" of square ones', h.rows, h.columns, h.type);
  end
  from = h.next;
  [p, next] = qn.impl.formats.hb_block (t, from, h.columns + 1, h.pointers, h.blocks(1), 'pointers', 1, h.count + 1);
  bad = find ([p(1) ~= 1; diff(p) < 0], 1);
  if ~isempty (bad) || p(end) ~= h.count + 1
    if isempty (bad), bad = numel (p); end
    line = from + floor ((bad - 1) / h.pointers.per);
    qn.impl.formats.refuse (t, line, 'pointer %d is %d; pointers go from 1 to NNZERO + 1 = %d and do not fall', bad, p(bad), h.count + 1);
  end
  at = next;
  [i, next] = qn.impl.formats.hb_block (t, at, h.count, h.indices, h.blocks(2), 'row indices', 1, h.rows);
  parts = find (h.type(1) == 'PRC') - 1;
  [x, next] = qn.impl.formats.hb_block (t, next, parts * h.count, h.numbers, h.blocks(3), 'values');
  v = ones (h.count, 1);
  if parts == 1, v = x; end
  if parts == 2, v = complex (x(1:2:end), x(2:2:end)); end
  j = cumsum (accumarray (p(1:end - 1), 1, [h.count + 1, 1]));
  j = j(1:h.count);
  kinds = {'symmetric', 'hermitian', 'skew', 'general', 'general'};
  say = @(k, varargin) qn.impl.formats.refuse (t, at + floor ((k - 1) / max ([h.indices.per, 1])), varargin{:});
  a = qn.impl.formats.entries (say, i, j, v, [h.rows, h.columns], kinds{h.type(2) == 'SHZUR'}, 'refuse');
  if any (h.type(2) == 'SHZ') && any (i > j) && any (i < j)
    stored = sparse (i, j, 1, h.rows, h.columns) > 0;
    if ~isequal (stored, stored.')
      k = find (i < j, 1);
      say (k, 'the entry (%d, %d) is above the diagonal, others of the symmetric matrix are below it, and these are not the same', ...
           i(k), j(k));
    end
  end
end
