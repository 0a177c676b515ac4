% FOUND = CHECK_LOADS (SIM)  loads that are not there, not resolved by the step, or records that do not fit the run
function found = check_loads (sim)
  found = qn.impl.finding ();
  if ~any (any (sim.loads, 2)) && ~any (sim.start.u) && ~any (sim.start.v) && size (sim.loads, 1) == 0
    found(end + 1) = qn.impl.finding ('at_rest', 'warning', 'there is neither a load nor an initial motion: give "load", "u0" or "v0"');
  end
  for k = 1:size (sim.loads, 1)
    f = sim.loads(k, :);
    if ~any (f)
      found(end + 1) = qn.impl.finding ('load_zero', 'warning', ...
        'load %d is zero at every time point; is the step longer than the pulse?', k);
    elseif numel (f) > 20
      % The second difference of a sine with n steps a period is (2 sin (pi/n))^2 of it.
      rough = norm (diff (f, 2)) / norm (f);
      if rough > 1
        found(end + 1) = qn.impl.finding ('load_coarse', 'note', ['load %d changes much from step to step, like a sine of %.1f steps a ' ...
          'period: if it is no noise, the step of %g s is too long for it'], k, pi / asin (min (sqrt (rough) / 2, 1)), sim.step);
      end
    end
  end
  top = qn.impl.highest_kept (sim.model);
  for k = 1:size (sim.loads, 1)
    if isfinite (top), fast (k, sim.loads(k, :)); end
  end
  for k = 1:numel (sim.notes)
    code = strtok (sim.notes{k}, ':');
    found(end + 1) = qn.impl.finding (code, 'note', '%s', sim.notes{k}(numel (code) + 3:end));
  end
  if ~isstruct (sim.options) || ~isfield (sim.options, 'load'), return, end
  given = sim.options.load;
  if isfield (sim.options, 'base') && ~isempty (sim.options.base)
    given = [reshape(given, [], 2); sim.options.base];
  end
  for k = 1:size (given, 1)
    signal = given{k, 2};
    if isnumeric (signal) && size (signal, 1) == 2 && size (signal, 2) > 1 && size (signal, 2) ~= numel (sim.time)
      record (k, double (signal));
    end
  end

  % Whether next to nothing of load K is slower than the highest mode that is kept: by the spectrum of its last steps, tapered.
  function fast (k, f)
    n = min (numel (f), 2 ^ 17);
    f = f(end - n + 1:end);
    if n < 20 || any (isnan (f)) || (isstruct (sim.options) && isfield (sim.options, 'load') && turned (k)), return, end
    f = (f - mean (f)) .* (1 - cos (2 * pi * (0:n - 1) / (n - 1)));
    power = abs (fft (f)) .^ 2;
    power = power(2:floor (n / 2));
    w = 2 * pi * (1:numel (power)) / (n * sim.step);
    if ~any (power) || sum (power(w <= top)) > 0.01 * sum (power), return, end
    [unused, at] = max (power);
    found(end + 1) = qn.impl.finding ('load_fast', 'warning', ...
      ['load %d oscillates with %.4g Hz, faster than all %d modes that are kept, of which the highest has %.4g Hz, and those left out ' ...
       'are rigid: keep more modes'], k, w(at) / (2 * pi), numel (sim.model.w), top / (2 * pi));
  end

  % Loads of qn.unbalance are looked at by their speed.
  function yes = turned (k)
    given = sim.options.load;
    yes = k <= size (given, 1) && ~isempty (qn.impl.rotor.unbalance_of (given{k, 2}));
  end

  % The table of load K: how much of it the run uses, how much of the run it covers, and what the steps see of it.
  function record (k, s)
    from = max (s(1, 1), sim.time(1));
    to = min (s(1, end), sim.time(end));
    span = s(1, end) - s(1, 1);
    used = max (0, to - from) / span;
    covered = max (0, to - from) / (sim.time(end) - sim.time(1));
    if used < 0.01 && size (s, 2) > 10
      found(end + 1) = qn.impl.finding ('record_unused', 'warning', ...
        ['the record of load %d lasts %g s (from %g to %g), and the run from %g ' ...
        'to %g s uses %.2g %% of it: are its times in seconds?'], k, span, s(1, [1 end]), sim.time([1 end]), 100 * used);
    elseif covered < 0.01 && size (s, 2) > 100
      found(end + 1) = qn.impl.finding ('record_short', 'warning', ...
        ['the record of load %d, %d values from %g to %g s, covers %.2g %% of the ' ...
        'run from %g to %g s: are its times in seconds?'], k, size (s, 2), s(1, [1 end]), 100 * covered, sim.time([1 end]));
    end
    inside = s(1, :) >= from & s(1, :) <= to;
    if sum (inside) < 3, return, end
    seen = interp1 (sim.time, sim.loads(k, :), s(1, inside), 'linear');
    missed = norm (seen - s(2, inside)) / max (norm (s(2, inside)), realmin ());
    if missed > 0.1
      found(end + 1) = qn.impl.finding ('record_skipped', 'warning', ...
        ['the steps of %g s miss %.0f %% of the record of load %d (rms), whose ' ...
        'values stand %.3g s apart: take a step of %.2g s or less'], sim.step, 100 * missed, k, median (diff (s(1, :))), ...
        median (diff (s(1, :))));
    end
  end
end
