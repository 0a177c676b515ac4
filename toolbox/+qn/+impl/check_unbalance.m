% FOUND = CHECK_UNBALANCE (SIM)  loads of qn.unbalance against the speed of the run, its length and the modes that are kept
%
% A run that continues another was looked at when it was made (sim.told).
function found = check_unbalance (sim)
  found = qn.impl.finding ();
  if isfield (sim, 'told'), found = sim.told; end
  if ~isstruct (sim.options) || ~isfield (sim.options, 'load'), return, end
  given = sim.options.load;
  top = qn.impl.highest_kept (sim.model);
  % Both loads of an unbalance, and those of others at the same speed, are one finding.
  seen = {};
  for k = 1:size (given, 1)
    what = qn.impl.rotor.unbalance_of (given{k, 2});
    if isempty (what) || any (cellfun (@(s) isequal (s, what), seen)), continue, end
    seen{end + 1} = what;
    m = what.motion (sim.time);
    [most, at] = max (abs (m(2, :)));
    if most > top
      found(end + 1) = qn.impl.finding ('load_fast', 'warning', ...
        ['the unbalance of load %d turns with %.4g rad/s (%.4g Hz) at %g s, faster than all %d modes that are kept, of which the ' ...
         'highest has %.4g rad/s, and those left out are rigid: keep more modes'], ...
        k, most, most / (2 * pi), sim.time(at), numel (sim.model.w), top);
    end
    if ~isempty (what.table), beyond (k, what.table); end
    beside (k, m(2, :));
  end

  % A table is constant before and after: a run-up that goes on is held.
  function beyond (k, table)
    slack = 0.01 * sim.step;
    if table(1, 1) <= sim.time(1) + slack && table(1, end) >= sim.time(end) - slack, return, end
    found(end + 1) = qn.impl.finding ('unbalance_ends', 'warning', ...
      ['the profile of the unbalance of load %d covers %g to %g s of a run from %g to %g s; outside it the speed stays %g and %g ' ...
       'rad/s. Give it for all of the run'], k, table(1, [1 end]), sim.time([1 end]), table(2, [1 end]));
  end

  % Gyroscopic forces of another speed than that of the unbalance.
  function beside (k, speed)
    r = [];
    if isfield (sim.model, 'rotation'), r = sim.model.rotation; end
    if ~qn.impl.turns (sim.model), return, end
    own = r.speed + 0 * speed;
    more = ': give qn.simulation the speeds of the profile as ''speed'', or qn.modal the speed of the unbalance';
    if qn.impl.runs_up (sim)
      own = qn.impl.speed_at (sim, sim.time);
      more = ': give both the same table';
    end
    [off, at] = max (abs (speed - own));
    if off <= 1e-3 * max (abs (speed)), return, end
    found(end + 1) = qn.impl.finding ('unbalance_speed', 'warning', ...
      ['the unbalance of load %d turns with %.5g rad/s at %g s, and the gyroscopic forces are those of %.5g rad/s%s'], k, speed(at), ...
      sim.time(at), own(at), more);
  end
end
