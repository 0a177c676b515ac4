% [GAIN, TIMES] = GAIN_PAGES (SIM, FROM, TO)  gains of a run-up, m x m x P, for the steps from column FROM to TO of the time table
%
% The module is linear between two pages, which leaves out s^2/4 of the inertia at most where the matrix of the step changes by a share
% s from one to the next (docs/commands/integrator.md). Each segment between knots of the factors is cut into equal parts of s = 1/1000
% or less, whatever part of it the run covers: however a run is cut, a step meets the same pages.
function [gain, times] = gain_pages (sim, from, to)
  parts = qn.impl.varying (sim);
  m = numel (sim.model.w);
  b = sim.scheme.beta;
  h = sim.step;
  large = zeros (size (parts));
  changing = zeros (m * m, numel (parts));
  for p = 1:numel (parts)
    weight = 1;
    if parts(p).type == 3, weight = sim.scheme.gamma / (b * h); end
    changing(:, p) = weight * parts(p).matrix(:);
    large(p) = b * h ^ 2 * weight * norm (parts(p).matrix);
  end
  still = eye (m) / (b * h ^ 2) + sim.scheme.gamma / (b * h) * qn.impl.matrix (sim.model.damping) + qn.impl.matrix (sim.model.stiffness);
  factors = {parts.factor};
  knots = unique (cell2mat (cellfun (@(f) f(1, :), factors, 'UniformOutput', false)));
  knots = knots(knots >= max (cellfun (@(f) f(1, 1), factors)) & knots <= min (cellfun (@(f) f(1, end), factors)));
  [first, last] = deal (sim.time(from + 1), sim.time(to));
  segments = find (knots(2:end) >= first & knots(1:end - 1) <= last);
  pages = cell (1, numel (segments));
  before = [];
  for j = 1:numel (segments)
    k = segments(j);
    [low, high] = deal (zeros (numel (parts), 1));
    for p = 1:numel (parts), [low(p), high(p)] = within (factors{p}, knots(k), knots(k + 1)); end
    count = max (1, ceil (1000 * share (low, high)));
    at = (0:count) / count;
    pages{j} = [knots(k) + (knots(k + 1) - knots(k)) * at; low * (1 - at) + high * at];
    pages{j}(:, end) = [knots(k + 1); high];
    % Without a jump the page of a knot is there once.
    if isequal (low, before), pages{j} = pages{j}(:, 2:end); end
    before = high;
  end
  pages = [pages{:}];
  % Those around the steps: both pages of a jump belong to it.
  low = find (pages(1, :) < first, 1, 'last');
  high = find (pages(1, :) > last, 1);
  if isempty (low), low = 1; end
  if isempty (high), high = size (pages, 2); end
  pages = pages(:, low:high);
  times = pages(1, :);
  gain = zeros (m, m, numel (times));
  for k = 1:numel (times), gain(:, :, k) = qn.impl.step_inverse (whole (pages(2:end, k)), h); end

  function s = whole (f)
    s = still + reshape (changing * f, m, m);
  end

  % Share of the matrix of the step that changes in a segment: against the inertia alone, or where that is coarse against all of it.
  function s = share (low, high)
    s = sum (abs (high - low).' .* large);
    if s <= 0.01 || (numel (parts) == 1 && parts.type == 3), return, end
    change = reshape (changing * (high - low), m, m);
    s = min (s, max (norm (whole (low) \ change), norm (whole (high) \ change)));
  end
end

% Values of a factor at the beginning and the end of a segment between two knots, on its side of jumps there.
function [low, high] = within (table, from, to)
  j = find (table(1, :) <= from, 1, 'last');
  at = @(t) table(2, j) + (table(2, j + 1) - table(2, j)) * (t - table(1, j)) / (table(1, j + 1) - table(1, j));
  if table(1, j) == from, low = table(2, j); else, low = at (from); end
  if table(1, j + 1) == to, high = table(2, j + 1); else, high = at (to); end
end
