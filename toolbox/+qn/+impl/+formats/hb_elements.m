% [A, NEXT] = HB_ELEMENTS (T, H)  the sum of the element matrices of a Harwell-Boeing file whose type ends with E
%
% Symmetric ones are stored as lower triangles, column by column, others as a whole.
function [a, next] = hb_elements (t, h)
  if ~any (h.type(2) == 'SU') || h.type(1) == 'P'
    qn.impl.formats.refuse (t, 3, 'element matrices of the type "%s"; RSE, RUE, CSE or CUE expected', h.type);
  end
  from = h.next;
  [p, next] = qn.impl.formats.hb_block (t, from, h.columns + 1, h.pointers, h.blocks(1), 'pointers', 1, h.count + 1);
  bad = find ([p(1) ~= 1; diff(p) < 0], 1);
  if ~isempty (bad) || p(end) ~= h.count + 1
    qn.impl.formats.refuse (t, from, 'the pointers of the elements do not go from 1 to NNZERO + 1 = %d without falling', h.count + 1);
  end
  [list, next] = qn.impl.formats.hb_block (t, next, h.count, h.indices, h.blocks(2), 'variables of elements', 1, h.rows);
  m = diff (p);
  each = m .^ 2;
  if h.type(2) == 'S', each = m .* (m + 1) / 2; end
  if sum (each) ~= h.values
    qn.impl.formats.refuse (t, 3, 'NELTVL is %d; the element matrices have %d values', h.values, sum (each));
  end
  parts = 1 + (h.type(1) == 'C');
  [x, next] = qn.impl.formats.hb_block (t, next, parts * h.values, h.numbers, h.blocks(3), 'values');
  if parts == 2, x = complex (x(1:2:end), x(2:2:end)); end
  i = zeros (h.values, 1);
  j = i;
  last = 0;
  for k = 1:h.columns
    rows = list(p(k):p(k + 1) - 1);
    if numel (unique (rows)) < numel (rows)
      qn.impl.formats.refuse (t, from, 'element %d names a variable twice', k);
    end
    inside = true (m(k));
    if h.type(2) == 'S', inside = tril (inside); end
    [r, c] = find (inside);
    i(last + (1:each(k))) = rows(r);
    j(last + (1:each(k))) = rows(c);
    last = last + each(k);
  end
  if h.type(2) == 'S'
    off = i ~= j;
    [i, j, x] = deal ([i; j(off)], [j; i(off)], [x; x(off)]);
  end
  a = sparse (i, j, x, h.rows, h.rows);
end
