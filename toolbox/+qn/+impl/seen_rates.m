% [V, A] = SEEN_RATES (RES, C)  velocities and accelerations of a few rows C at every step, without those of all modes; see next_rates
%
% With W, loads, forces and displacements one above the other, g is a matrix times W, and v - late g a state of linear steps.
function [v, a] = seen_rates (res, c)
  sim = res.sim;
  n = size (res.q, 2);
  [first, at, from] = qn.impl.next_rates (res, [], 1:1);
  [keeps, early, late, damping] = deal (at.keeps, at.early, at.late, at.damping);
  g = [at.pushes, -qn.impl.matrix(sim.model.stiffness)];
  [sees, feels] = deal (c, c * late * g);
  if nargout > 1, [sees, feels] = deal ([c; -c * damping], [feels; c * (g - damping * late * g)]); end
  s = qn.impl.block_form (keeps, (keeps * late + early) * g, sees, feels, n, [size(at.pushes, 2), numel(first)]);
  z = keeps * at.v + early * at.g;
  y = zeros (size (sees, 1), n);
  y(:, 1) = [c * first; c(1:end * (nargout > 1), :) * from];
  part = s.long * max (1, round (1e6 / numel (first) / s.long));
  for k = 2:part:n
    j = k:min (k + part - 1, n);
    [y(:, j), z] = qn.impl.in_blocks (s, {[sim.loads(:, j); res.force(:, j)], res.q(:, j)}, z);
  end
  v = y(1:size (c, 1), :);
  if nargout > 1, a = y(size (c, 1) + 1:end, :); end
end
