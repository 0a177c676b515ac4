% FOUND = CHECK_TOGETHER (SIM)  elements that are each soft enough for the step, but not all at their stiffest together
function found = check_together (sim)
  found = qn.impl.finding ();
  n = numel (sim.elements);
  if n < 2, return, end
  rows = zeros (0, numel (sim.model.w));
  for k = 1:n
    e = sim.elements(k);
    if isequal (e.observe, e.command), rows = [rows; sqrt(qn.impl.stiffest (e.law, [])) * e.observe]; end
  end
  if size (rows, 1) < 2, return, end
  alone = 2 * sim.scheme.gamma * sim.step ^ 2 * qn.impl.mobility (sim, rows, rows);
  all_of_them = max (eig ((alone + alone.') / 2));
  if all_of_them >= 4 && max (diag (alone)) < 4
    found = qn.impl.finding ('elements_together', 'warning', ...
      ['%d elements, each soft enough for the step of %g s, are too stiff for it when ' ...
      'they act together: the motion may then grow without bound; take at most %.2g s'], n, sim.step, ...
      sim.step * 0.3 / sqrt (all_of_them));
  end
end
