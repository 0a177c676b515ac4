% DOFS = DOF_LIST (WHO, FILE, N)  N lines "node.dof": read as text, as 5.1 and 5.10 are two degrees of freedom
function dofs = dof_list (who, file, n)
  t = qn.impl.formats.open_text (who, file);
  [first, last, lines] = qn.impl.formats.words_of (t, 1:numel (t.first), false);
  if numel (lines) ~= n
    qn.impl.formats.refuse (t, numel (t.first), '%d degrees of freedom; the matrix has %d rows', numel (lines), n);
  end
  words = cellstr (qn.impl.formats.gather (t, first(:, end), last(:, end), 60));
  k = find (cellfun (@isempty, regexp (words, '^\d+\.\d+$', 'once')), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, lines(k), '"%s"; a node, a point and a degree of freedom expected', qn.impl.formats.shown (words{k}));
  end
  [node, dof] = strtok (words, '.');
  dofs = struct ('node', str2double (node), 'dof', str2double (regexprep (dof, '^\.', '')));
end
