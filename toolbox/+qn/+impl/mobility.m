% MU = MOBILITY (SIM, OBSERVE, COMMAND)  what an explicit force meets [1/kg]
%
% OBSERVE * inv (1 + (gamma-1/2) h C + (beta-gamma/2) h^2 K) * COMMAND'. A spring kn at the prediction
% is stable while kn h^2 gamma/2 times that is below 1 (docs/theory.md).
function mu = mobility (sim, observe, command)
  h = sim.step;
  s = sim.scheme;
  k = sim.model.stiffness;
  c = sim.model.damping;
  if size (c, 2) == 1 && size (k, 2) == 1
    yielding = bsxfun (@rdivide, command.', max (eps (), 1 + (s.beta - s.gamma / 2) * h ^ 2 * k + (s.gamma - 0.5) * h * c));
  else
    yielding = (eye (numel (sim.model.w)) + (s.beta - s.gamma / 2) * h ^ 2 * qn.impl.matrix (k) + ...
                (s.gamma - 0.5) * h * qn.impl.matrix (c)) \ command.';
  end
  mu = observe * yielding;
end
