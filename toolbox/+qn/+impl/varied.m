% PARTS = VARIED (WHO, MODEL, ROWS, TIME, H)  the option "varying" of qn.simulation as qn.impl.varying gives it
%
% ROWS is {'K' or 'C', matrix of the structure, [times; factors]; ...}. Two equal times are a jump; those that miss a step by rounding
% are on it.
function parts = varied (who, model, rows, time, h)
  parts = struct ('type', {}, 'matrix', {}, 'factor', {});
  if isempty (rows) && iscell (rows), return, end
  if ~iscell (rows) || size (rows, 2) ~= 3
    error ('qn:input', '%s: "varying" must be a cell {''K'' or ''C'', matrix, [times; factors]; ...}, got %s of class %s', who, ...
           mat2str (size (rows)), class (rows));
  end
  n = size (model.shapes, 1);
  for k = 1:size (rows, 1)
    name = qn.impl.chars (rows{k, 1});
    if ~ischar (name) || ~any (strcmp (name, {'K', 'C'}))
      error ('qn:input', ['%s: "varying{%d, 1}" must be ''K'' or ''C'': stiffness and damping change with time, a mass stays (in the ' ...
                          'gain of the step)'], who, k);
    end
    x = qn.impl.numbers (who, sprintf ('varying{%d, 2}', k), rows{k, 2}, [n n]);
    label = sprintf ('varying{%d, 3}', k);
    t = qn.impl.numbers (who, label, rows{k, 3}, [2 NaN], 'each', '[times; factors]');
    t(1, :) = qn.impl.on_steps (t(1, :), h);
    early = find (diff (t(1, :)) < 0, 1);
    if ~isempty (early)
      error ('qn:input', '%s: the times of "%s" must ascend: value %d is %g, value %d is %g', who, label, early, t(1, early), early + 1, ...
             t(1, early + 1));
    end
    thrice = find (t(1, 3:end) == t(1, 1:end - 2), 1);
    if ~isempty (thrice), error ('qn:input', '%s: "%s" has the time %g three times; two are a jump', who, label, t(1, thrice)); end
    if t(1, 1) > time(1) || t(1, end) < time(end) || t(1, 1) == t(1, end)
      error ('qn:input', '%s: "%s" covers %g to %g s of a run from %g to %g s; give it for all of the run', who, label, t(1, [1 end]), ...
             time([1 end]));
    end
    parts(k) = struct ('type', 1 + 2 * (name == 'C'), 'matrix', qn.project (model.shapes, x), 'factor', t);
  end
end
