% [TABLE, MODEL] = RUN_UP (WHO, MODEL, TABLE, TIME, H)  table of speeds for a run at TIME with steps H, and the model at standstill
%
% Times that miss a step by rounding have the bits of that step: what changes there then changes in the mean of both sides.
function [table, model] = run_up (who, model, table, time, h)
  if ~isfield (model, 'rotation') || isempty (model.rotation)
    error ('qn:input', '%s: "speed" needs a model with a gyroscopic matrix: give qn.modal "G" and "speed", 0', who);
  end
  table = qn.impl.numbers (who, 'speed', table, [2 NaN], 'each', '[times; speeds]');
  near = round (table(1, :) / h);
  at = abs (near * h - table(1, :)) < 1e-6 * h;
  table(1, at) = near(at) * h;
  qn.impl.numbers (who, 'speed(1, :)', table(1, :), [], 'ascending');
  if table(1, 1) > time(1) || table(1, end) < time(end)
    error ('qn:input', '%s: "speed" covers %g to %g s of a run from %g to %g s; give it for all of the run', who, table(1, [1 end]), ...
           time([1 end]));
  end
  model.damping = model.rotation.damping;
  model.rotation.speed = 0;
end
