% FOUND = CHECK_SPEEDS (SIM, RES)  qn.impl.check_growth, in a run-up at nine speeds from the lowest to the highest
%
% At each speed over the time that the run spends about it, with the least and the greatest slope there. Of a finding that several
% speeds have, the first is named, or the first that is an error.
function found = check_speeds (sim, res)
  if isfield (sim, 'varying') && ~isempty (sim.varying)
    found = at_times (sim, res);
    return
  end
  if ~qn.impl.runs_up (sim)
    found = qn.impl.check_growth (sim, res);
    return
  end
  found = qn.impl.finding ();
  [omega, slope] = qn.impl.speed_at (sim, sim.time);
  speeds = linspace (min (omega), max (omega), 9);
  near = ones (size (omega));
  if speeds(1) < speeds(end), near = 1 + round (8 * (omega - speeds(1)) / (speeds(end) - speeds(1))); end
  for k = reshape (unique (near), 1, [])
    columns = near == k;
    now = sim;
    now.speed = [];
    now.time(end) = now.time(1) + sum (columns) * sim.step;
    for extreme = unique ([min(slope(columns)), max(slope(columns))])
      now.model = qn.impl.at_speed (sim.model, speeds(k), extreme);
      for one = qn.impl.check_growth (now, res)
        one.text = sprintf ('at %.4g rad/s %s', speeds(k), one.text);
        found = with_first (found, one);
      end
    end
  end
end

% The same for matrices that vary: at nine times, as if the set-up stayed so for a ninth of the run.
function found = at_times (sim, res)
  found = qn.impl.finding ();
  for t = linspace (sim.time(1), sim.time(end), 9)
    now = sim;
    now.model = qn.impl.at_time (sim, t);
    [now.speed, now.varying] = deal ([]);
    now.time(end) = now.time(1) + (sim.time(end) - sim.time(1)) / 9;
    for one = qn.impl.check_growth (now, res)
      one.text = sprintf ('at %.4g s %s', t, one.text);
      found = with_first (found, one);
    end
  end
end

function found = with_first (found, one)
  same = find (strcmp ({found.code}, one.code), 1);
  if isempty (same)
    found(end + 1) = one;
  elseif strcmp (one.level, 'error') && ~strcmp (found(same).level, 'error')
    found(same) = one;
  end
end
