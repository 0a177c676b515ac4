% V = INTEGRATOR (SIM, FROM, TO)  value of the integrator handle for the time points FROM ... TO
%
% The module subtracts loads; its step to a time point reads the loads that stand one column earlier in the table; and the second
% load column is also the gain of the corrector. So shapes change sign, loads move one column to the left, and the second load is
% always zero.
function v = integrator (sim, from, to)
  m = numel (sim.model.w);
  h = sim.step;
  b = sim.scheme.beta;
  g = sim.scheme.gamma;
  c = sim.model.damping;
  if size (c, 2) > 1, c = diag (c); end
  gain = zeros (m + sim.states, 1);
  gain(1:m) = 1 ./ (1 / (b * h ^ 2) + g * c / (b * h) + sim.model.stiffness);
  shapes = [-sim.shapes; zeros(sim.states, size (sim.shapes, 2))];
  time = sim.time(from:to);
  loads = [sim.loads(:, from + 1:to), sim.loads(:, to)];
  none = zeros (size (gain));
  switch size (shapes, 2)
    case 0
      r = [none, none, gain];
      tft = [time; zeros(1, numel (time))];
    case 1
      r = [none, shapes, gain];
      tft = [time; loads];
    otherwise
      r = [none, shapes(:, 1), gain, shapes(:, 2:end), none];
      tft = [time; loads(1, :); zeros(1, numel (time)); loads(2:end, :)];
  end
  v = struct ('r', r, 'tft', tft, 'data', [h, (1 / 2 - b) * h ^ 2, (1 - g) * h, g / (b * h), 1 / (b * h ^ 2), 0]);
end
