% DOFS = HB_MAPPING (WHO, FILE, N)  node and label of each of N equations, from the mapping file beside a Harwell-Boeing file
function dofs = hb_mapping (who, file, n)
  t = qn.impl.formats.open_text (who, file);
  text = qn.impl.formats.line_of (t, 1, 'the title');
  if isempty (regexpi (text, '^\s*matrix\s+eqn\s+node\s+dof\s*$', 'once'))
    qn.impl.formats.refuse (t, 1, '"%s"; the title "Matrix Eqn  Node  DOF" expected', qn.impl.formats.shown (text));
  end
  c = qn.impl.formats.block (t, 2, n, 36, 'equations');
  [x, good, unused, unused2, blank] = qn.impl.formats.parse (reshape (c(:, 1:28).', 14, []).');
  good = reshape (good & ~blank & x == fix (x), 2, []);
  k = find (~all (good, 1), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, k + 1, 'numbers of an equation and a node expected, got "%s"', qn.impl.formats.shown (c(k, 1:28)));
  end
  x = reshape (x, 2, []);
  k = find (x(1, :) ~= 1:n, 1);
  if ~isempty (k), qn.impl.formats.refuse (t, k + 1, 'equation %g; equation %d expected', x(1, k), k); end
  for k = n + 2:numel (t.first)
    if ~isempty (strtrim (t.text(t.first(k):t.last(k))))
      qn.impl.formats.refuse (t, k, 'more than the %d equations of the matrix', n);
    end
  end
  labels = cellstr (c(:, 29:36));
  dofs = struct ('node', x(2, :).', 'label', {strtrim(labels)});
  k = find (cellfun (@isempty, dofs.label), 1);
  if ~isempty (k), qn.impl.formats.refuse (t, k + 1, 'no label of a degree of freedom after column 32'); end
end
