% [V, A] = RATES (RES, WHO)  modal velocities and accelerations at every step
%
% With g = loads - forces - K q, the run obeys a + C v = g at every step, and v' = v + h (1-gamma) a + h gamma a'.
function [v, a] = rates (res, who)
  sim = res.sim;
  qn.impl.every_step (who, res);
  if ~res.complete, error ('qn:input', '%s: the run is not complete: go on with qn.resume first', who); end
  m = numel (sim.model.w);
  g = sim.shapes * sim.loads - qn.impl.product (sim.model.stiffness, res.q);
  for e = sim.elements, g = g - e.command.' * res.force(e.forces, :); end
  h = sim.step;
  gamma = sim.scheme.gamma;
  c = sim.model.damping;
  start = sim.start;
  if qn.impl.varies (sim)
    [v, a] = while_turning (sim, res.q, g);
  elseif size (c, 2) == 1
    g(:, 1) = start.a(1:m) + c .* start.v(1:m);
    v = zeros (size (g));
    for i = 1:m
      below = 1 + h * gamma * c(i);
      push = h * ((1 - gamma) * g(i, 1:end - 1) + gamma * g(i, 2:end)) / below;
      v(i, :) = filter (1, [1, -(1 - h * (1 - gamma) * c(i)) / below], [start.v(i), push]);
    end
    a = g - bsxfun (@times, c, v);
  else
    v = [start.v(1:m), zeros(m, size (g, 2) - 1)];
    a = [start.a(1:m), zeros(m, size (g, 2) - 1)];
    implicit = inv (eye (m) + h * gamma * c);
    for j = 2:size (g, 2)
      v(:, j) = implicit * (v(:, j - 1) + h * ((1 - gamma) * a(:, j - 1) + gamma * g(:, j)));
      a(:, j) = g(:, j) - c * v(:, j);
    end
  end
end

% The same with the matrices of every step; Q are the displacements, G the forces without those that change with time.
function [v, a] = while_turning (sim, q, g)
  m = size (q, 1);
  h = sim.step;
  gamma = sim.scheme.gamma;
  rest = qn.impl.matrix (sim.model.damping);
  parts = qn.impl.varying (sim);
  g = g - qn.impl.turning_force (parts([parts.type] == 1), sim.time, q, []);
  parts = parts([parts.type] == 3);
  factors = zeros (numel (parts), numel (sim.time));
  for k = 1:numel (parts), factors(k, :) = qn.impl.factor_at (parts(k).factor, sim.time); end
  v = [sim.start.v(1:m), zeros(m, size (g, 2) - 1)];
  a = [sim.start.a(1:m), zeros(m, size (g, 2) - 1)];
  for j = 2:size (g, 2)
    c = rest;
    for k = 1:numel (parts), c = c + factors(k, j) * parts(k).matrix; end
    v(:, j) = (eye (m) + h * gamma * c) \ (v(:, j - 1) + h * ((1 - gamma) * a(:, j - 1) + gamma * g(:, j)));
    a(:, j) = g(:, j) - c * v(:, j);
  end
end
