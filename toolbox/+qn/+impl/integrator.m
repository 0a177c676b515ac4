% V = INTEGRATOR (SIM, FROM, TO)  value of the integrator handle for the time points FROM ... TO
%
% The module subtracts loads; its step to a time point reads the loads one column earlier in the table; and the second
% load column is also the gain of the corrector, unless that is a matrix. So shapes change sign, loads move one column to the left, and
% the second load is zero beside a gain per mode.
function v = integrator (sim, from, to)
  m = numel (sim.model.w);
  h = sim.step;
  b = sim.scheme.beta;
  g = sim.scheme.gamma;
  n = m + sim.states;
  pages = [];
  if qn.impl.varies (sim)
    [gain, pages] = qn.impl.gain_pages (sim, from, to);
  else
    gain = qn.impl.gain (sim.model, sim.scheme, h);
  end
  shapes = [-sim.shapes; zeros(sim.states, size (sim.shapes, 2))];
  time = sim.time(from:to);
  loads = [sim.loads(:, from + 1:to), sim.loads(:, to)];
  none = zeros (n, 1);
  coupled = size (gain, 2) > 1 || ~isempty (pages);
  padded = zeros (n, size (gain, 2) + coupled * sim.states, size (gain, 3));
  padded(1:m, 1:size (gain, 2), :) = gain;
  if coupled
    r = [none, shapes, none];
    tft = [time; loads];
  else
    switch size (shapes, 2)
      case 0
        r = [none, none, padded];
        tft = [time; zeros(1, numel (time))];
      case 1
        r = [none, shapes, padded];
        tft = [time; loads];
      otherwise
        r = [none, shapes(:, 1), padded, shapes(:, 2:end), none];
        tft = [time; loads(1, :); zeros(1, numel (time)); loads(2:end, :)];
    end
  end
  v = struct ('r', r, 'tft', tft, 'data', [h, (1 / 2 - b) * h ^ 2, (1 - g) * h, g / (b * h), 1 / (b * h ^ 2), 0]);
  if coupled, v.gain = padded; end
  if ~isempty (pages), v.gaint = pages; end
end
