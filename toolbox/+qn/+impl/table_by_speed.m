% T = TABLE_BY_SPEED (WHO, PHI, ROWS)  the option "by_speed" of qn.modal, {SPEED, K, C; ...}, in modal coordinates: speed (1 x s), K and C (m x m x s)
function t = table_by_speed (who, phi, rows)
  if ~iscell (rows) || size (rows, 1) < 2 || size (rows, 2) ~= 3
    error ('qn:input', '%s: "by_speed" must be a cell {speed, K, C; ...} of two rows or more, got %s of class %s', who, ...
           mat2str (size (rows)), class (rows));
  end
  [n, m] = size (phi);
  s = size (rows, 1);
  t = struct ('speed', zeros (1, s), 'K', zeros (m, m, s), 'C', zeros (m, m, s));
  for j = 1:s
    label = @(k) sprintf ('by_speed{%d, %d}', j, k);
    t.speed(j) = qn.impl.scalar (who, label (1), rows{j, 1});
    for k = 1:2
      if isempty (rows{j, k + 1}) && isnumeric (rows{j, k + 1}), continue, end
      x = qn.impl.numbers (who, label (k + 1), rows{j, k + 1}, [n n]);
      if k == 1, t.K(:, :, j) = qn.project (phi, x); else, t.C(:, :, j) = qn.project (phi, x); end
    end
  end
  qn.impl.numbers (who, 'by_speed{:, 1}', t.speed, [], 'ascending');
end
