% [V, AT, A] = NEXT_RATES (RES, AT, J)  modal velocities and accelerations at the columns J of a result, which follow those of the call before
%
% With any matrices; of modes that are not coupled modal_motion is quicker.
% AT is what that one handed back, [] for the first. With g = loads - forces - K q, the run obeys a + C v = g at every step, and
% v' = v + h (1-gamma) a + h gamma a'.
function [v, at, a] = next_rates (res, at, j)
  sim = res.sim;
  m = numel (sim.model.w);
  if isempty (at), at = start_of (sim, m); end
  g = at.pushes * [sim.loads(:, j); res.force(:, j)] - qn.impl.product (sim.model.stiffness, res.q(:, j));
  if qn.impl.varies (sim)
    [v, at, a] = while_turning (sim, at, res.q(:, j), g, j);
    return
  end
  if isempty (at.g)
    at.v = sim.start.v(1:m);
    at.g = sim.start.a(1:m) + at.damping * at.v;
    g(:, 1) = at.g;
    v = [at.v, along(at, g(:, 2:end))];
  else
    v = along (at, g);
  end
  [at.v, at.g] = deal (v(:, end), g(:, end));
  if nargout > 2, a = g - at.damping * v; end
end

% What does not change: v' = keeps v + early g + late g'. PUSHES makes modal forces of the loads and of the elements' forces.
function at = start_of (sim, m)
  h = sim.step;
  gamma = sim.scheme.gamma;
  c = qn.impl.matrix (sim.model.damping);
  implicit = inv (eye (m) + h * gamma * c);
  at = struct ('pushes', sim.shapes, 'damping', c, 'keeps', implicit * (eye (m) - h * (1 - gamma) * c), ...
               'early', h * (1 - gamma) * implicit, 'late', h * gamma * implicit, 'v', [], 'g', []);
  for e = sim.elements, at.pushes = [at.pushes, -e.command.']; end
  at.parts = qn.impl.varying (sim);
end

% The velocities at the columns of G, which follow AT.v and AT.g.
function v = along (at, g)
  v = qn.impl.recurrence (at.keeps, at.early * [at.g, g(:, 1:end - 1)] + at.late * g, at.v, size (g, 1));
  v = v(:, 2:end);
end

% The same with the matrices of every step; Q are the displacements, G the forces without those that change with time.
function [v, at, a] = while_turning (sim, at, q, g, j)
  m = size (q, 1);
  h = sim.step;
  gamma = sim.scheme.gamma;
  rest = qn.impl.matrix (sim.model.damping);
  parts = at.parts;
  g = g - qn.impl.turning_force (parts([parts.type] == 1), sim.time(j), q, []);
  parts = parts([parts.type] == 3);
  factors = zeros (numel (parts), numel (j));
  for k = 1:numel (parts), factors(k, :) = qn.impl.factor_at (parts(k).factor, sim.time(j)); end
  [v, a] = deal (zeros (size (g)));
  begin = 1;
  if isempty (at.g)
    [v(:, 1), a(:, 1)] = deal (sim.start.v(1:m), sim.start.a(1:m));
    [at.v, at.g, begin] = deal (v(:, 1), a(:, 1), 2);
  end
  for i = begin:numel (j)
    c = rest;
    for k = 1:numel (parts), c = c + factors(k, i) * parts(k).matrix; end
    at.v = (eye (m) + h * gamma * c) \ (at.v + h * ((1 - gamma) * at.g + gamma * g(:, i)));
    at.g = g(:, i) - c * at.v;
    v(:, i) = at.v;
    a(:, i) = at.g;
  end
end
