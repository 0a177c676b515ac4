% [TABLE, MODEL] = RUN_UP (WHO, MODEL, TABLE, TIME, H)  table of speeds for a run at TIME with steps H, and the model at standstill
%
% Times that miss a step by rounding have the bits of that step: what changes there then changes in the mean of both sides. Where the
% run passes a speed of the model's table by speed the table gets a knot, so that all is linear in between.
function [table, model] = run_up (who, model, table, time, h)
  if ~isfield (model, 'rotation') || isempty (model.rotation)
    error ('qn:input', '%s: "speed" needs a model with a gyroscopic matrix: give qn.modal "G" and "speed", 0', who);
  end
  table = qn.impl.numbers (who, 'speed', table, [2 NaN], 'each', '[times; speeds]');
  table(1, :) = qn.impl.on_steps (table(1, :), h);
  qn.impl.numbers (who, 'speed(1, :)', table(1, :), [], 'ascending');
  if table(1, 1) > time(1) || table(1, end) < time(end)
    error ('qn:input', '%s: "speed" covers %g to %g s of a run from %g to %g s; give it for all of the run', who, table(1, [1 end]), ...
           time([1 end]));
  end
  r = model.rotation;
  if qn.impl.by_speed (r)
    within = interp1 (table(1, :), table(2, :), [time(1), table(1, table(1, :) > time(1) & table(1, :) < time(end)), time(end)]);
    qn.impl.within_table ([who ', "speed"'], r.table, within);
    table = with_knots (table, r.table.speed, h);
  end
  model.damping = r.damping;
  if isfield (r, 'stiffness'), model.stiffness = r.stiffness; end
  model.rotation.speed = 0;
end

function table = with_knots (table, speeds, h)
  new = zeros (2, 0);
  for k = 1:size (table, 2) - 1
    [low, high] = deal (table(2, k), table(2, k + 1));
    w = speeds(speeds > min (low, high) & speeds < max (low, high));
    t = table(1, k) + (table(1, k + 1) - table(1, k)) * (w - low) / (high - low);
    new = [new, [qn.impl.on_steps(t, h); w]];
  end
  far = arrayfun (@(t) min (abs (table(1, :) - t)) > 1e-6 * h, new(1, :));
  table = sortrows ([table, new(:, far)].', 1).';
end
