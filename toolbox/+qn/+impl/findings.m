% FOUND = FINDINGS (SIM, RES)  everything that qn.check finds; RES is [] before the run
function found = findings (sim, res)
  found = qn.impl.check_arrays (sim);
  if any (strcmp ({found.level}, 'error')), return, end
  motion = qn.impl.motion_bound (sim);
  lists = {qn.impl.check_step(sim), qn.impl.check_speeds(sim, res), qn.impl.check_initial(sim), qn.impl.check_loads(sim), ...
           qn.impl.check_unbalance(sim), qn.impl.check_modes(sim), qn.impl.check_base(sim)};
  for k = 1:numel (sim.elements)
    x = [];
    if ~isempty (res), x = sim.elements(k).observe * res.q; end
    [seen, state, f, record] = deal (x, [], [], []);
    if ~isempty (res)
      f = res.force(sim.elements(k).forces, :);
      seen = qn.impl.met (sim.elements(k).law, x, f);
      state = qn.impl.memory_of (sim, k, res.state);
      record = qn.impl.record_of (res, k);
    end
    lists{end + 1} = qn.impl.check_law (sim, k, seen, motion, state, f, record);
    if ~isempty (res), lists{end + 1} = qn.impl.check_acts (sim, k, x, f); end
  end
  lists{end + 1} = qn.impl.check_together (sim);
  lists{end + 1} = qn.impl.check_flexibility (sim);
  if ~isempty (res), lists{end + 1} = qn.impl.check_phase (res); end
  % Octave 7 loses the fields when it puts empty struct arrays one after another.
  for k = 1:numel (lists)
    for j = 1:numel (lists{k}), found(end + 1) = lists{k}(j); end
  end
end
