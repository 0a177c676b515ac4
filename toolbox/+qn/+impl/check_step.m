% FOUND = CHECK_STEP (SIM)  the step against the highest mode, the end of the run, and a model that hardly is meant
function found = check_step (sim)
  found = qn.impl.finding ();
  h = sim.step;
  s = sim.scheme;
  last = sim.time(end) - sim.time(1);
  all_of = qn.impl.frequencies (fastest (sim));
  [w, top] = max (all_of);
  % Attached shapes represent statics; how well they swing does not matter. They are the highest.
  modes = all_of;
  if isfield (sim.model, 'attached') && sim.model.attached > 0
    modes = sort (all_of);
    modes = modes(1:max (1, numel (modes) - sim.model.attached));
  end
  [own, highest] = max (modes);
  [off, worst] = qn.impl.linear_error (sim);
  if w * h > s.limit
    found(end + 1) = qn.impl.finding ('step_unstable', 'error', ...
      ['the step of %g s is too long for mode %d (%g Hz): with %s it must stay ' ...
      'below %g s; shorten it, keep fewer modes or take the scheme ''average'''], h, top, w / (2 * pi), s.name, s.limit / w);
  elseif own * h > 2 * pi / 10
    level = 'warning';
    if ~reached (sim, highest), level = 'note'; end
    longer = elongation (own * h, s);
    sides = {'long', 'short'};
    found(end + 1) = qn.impl.finding ('step_coarse', level, ['mode %d (%g Hz) gets %.1f steps a period; its period will come out ' ...
      '%.0f %% too %s. Where it matters, take a step of %.2g s'], highest, own / (2 * pi), 2 * pi / (own * h), 100 * abs (longer), ...
      sides{1 + (longer < 0)}, 2 * pi / (20 * own));
  end
  if w * h <= s.limit && off > 0.04
    found(end + 1) = qn.impl.phase_finding (sim, off, worst, 'the linear model without elements', '');
  end
  low = all_of(all_of > 0);
  if ~isempty (low) && last * min (low) < 2 * pi
    found(end + 1) = qn.impl.finding ('run_short', 'note', 'the run of %g s is shorter than the period of the lowest mode, %g s', ...
                                      last, 2 * pi / min (low));
  end
  if ~isempty (low) && (min (low) > 2 * pi * 1e6 || max (low) < 2 * pi * 1e-4)
    found(end + 1) = qn.impl.finding ('frequencies', 'warning', ['the modes lie between %.3g and %.3g Hz: are K in N/m and M in kg?'], ...
                                      min (low) / (2 * pi), max (low) / (2 * pi));
  end
  c = sim.model.damping;
  if size (c, 2) > 1, c = diag (c); end
  ratio = c(:) ./ (2 * sim.model.w(:));
  k = find (sim.model.w(:) > 0 & ratio >= 0.5, 1);
  if ~isempty (k)
    found(end + 1) = qn.impl.finding ('damping_high', 'note', ['mode %d has %g of critical damping; 2 %% is 0.02, if a few percent are ' ...
      'meant'], k, ratio(k));
  end
end

% The model, in a run-up that at the highest speed: it whirls fastest there.
function model = fastest (sim)
  model = sim.model;
  if isfield (sim, 'varying') && ~isempty (sim.varying)
    top = 0;
    for t = linspace (sim.time(1), sim.time(end), 9)
      now = qn.impl.at_time (sim, t);
      w = max (qn.impl.frequencies (now));
      if w > top, [top, model] = deal (w, now); end
    end
    return
  end
  if ~qn.impl.runs_up (sim), return, end
  omega = qn.impl.speed_at (sim, sim.time);
  model = qn.impl.at_speed (model, max (abs (omega)), 0);
end

% Whether anything moves mode K: an initial value, a load or an element. Where modes are coupled they move one another.
function yes = reached (sim, k)
  m = numel (sim.model.w);
  yes = qn.impl.coupled (sim);
  pushes = sim.shapes;
  if ~isempty (pushes), pushes = pushes(:, any (sim.loads, 2)); end
  for e = sim.elements(:).', pushes = [pushes, e.command.']; end
  pushes = [pushes, sim.start.u(1:m), sim.start.v(1:m)];
  yes = yes || any (abs (pushes(k, :)) > 1e-9 * max (abs (pushes), [], 1));
end

% Relative growth of the period of an undamped mode with W*H = X: the step multiplies its state by numbers whose sum and product are
% those of the amplification matrix, and whose argument is what the phase gains in one step (docs/theory.md).
function longer = elongation (x, s)
  share = x ^ 2 / (1 + s.beta * x ^ 2);
  half_sum = 1 - (s.gamma + 0.5) * share / 2;
  product = 1 - (s.gamma - 0.5) * share;
  longer = x / atan2 (sqrt (max (product - half_sum ^ 2, 0)), half_sum) - 1;
end
