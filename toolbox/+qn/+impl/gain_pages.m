% [GAIN, TIMES] = GAIN_PAGES (SIM, FROM, TO)  gains of a run-up, m x m x P, for the steps from column FROM to TO of the time table
%
% The module is linear between two pages, which leaves out s^2/4 of the inertia at most where the matrix of the step changes by a share
% s from one to the next (docs/commands/integrator.md). Each segment of the table of speeds is cut into equal parts of s = 1/1000 or
% less, whatever part of it the run covers: however a run is cut, a step meets the same pages.
function [gain, times] = gain_pages (sim, from, to)
  t = sim.speed(1, :);
  w = sim.speed(2, :);
  share = sim.scheme.gamma * sim.step * norm (sim.model.rotation.G);
  [first, last] = deal (sim.time(from + 1), sim.time(to));
  segments = find (t(2:end) >= first & t(1:end - 1) <= last);
  pages = cell (1, numel (segments));
  for j = 1:numel (segments)
    k = segments(j);
    parts = max (1, ceil (1000 * share * abs (w(k + 1) - w(k))));
    at = (0:parts) / parts;
    slope = (w(k + 1) - w(k)) / (t(k + 1) - t(k));
    pages{j} = [t(k) + (t(k + 1) - t(k)) * at; w(k) + (w(k + 1) - w(k)) * at; slope * ones(1, parts + 1)];
    pages{j}(1:2, end) = [t(k + 1); w(k + 1)];
    % Without a jump of the stiffness the page of a knot is there once.
    if j > 1 && isempty (sim.model.rotation.K), pages{j} = pages{j}(:, 2:end); end
  end
  pages = [pages{:}];
  % Those around the steps: both pages of a jump belong to it.
  low = find (pages(1, :) < first, 1, 'last');
  high = find (pages(1, :) > last, 1);
  if isempty (low), low = 1; end
  if isempty (high), high = size (pages, 2); end
  pages = pages(:, low:high);
  times = pages(1, :);
  m = numel (sim.model.w);
  gain = zeros (m, m, numel (times));
  b = sim.scheme.beta;
  h = sim.step;
  r = sim.model.rotation;
  still = eye (m) / (b * h ^ 2) + sim.scheme.gamma / (b * h) * qn.impl.matrix (r.damping) + qn.impl.matrix (sim.model.stiffness);
  turning = sim.scheme.gamma / (b * h) * r.G;
  for k = 1:numel (times)
    s = still + pages(2, k) * turning;
    if ~isempty (r.K), s = s + pages(3, k) * r.K; end
    gain(:, :, k) = qn.impl.step_inverse (s, h);
  end
end
