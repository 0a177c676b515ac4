% [LIST, BASE] = BASE_LOADS (MODEL, LIST, MOTION)  loads followed by those of the moving base
%
% MOTION is {PUSH, SIGNAL; ...}. BASE is [] without one, else a struct: push (n x b) and loads (their numbers among the loads).
function [list, base] = base_loads (model, list, motion)
  who = 'qn.simulation';
  base = [];
  if isempty (motion), return, end
  if ~iscell (motion) || size (motion, 2) ~= 2
    error ('qn:input', '%s: "base" is a cell {push, signal; ...} with two columns, got %s of class %s', who, mat2str (size (motion)), ...
           class (motion));
  end
  base = struct ('push', zeros (size (model.shapes, 1), size (motion, 1)), 'loads', size (list, 1) + (1:size (motion, 1)));
  for k = 1:size (motion, 1)
    push = qn.impl.numbers (who, sprintf ('base{%d, 1}', k), motion{k, 1}, size (model.shapes, 1), 'each', 'one a degree of freedom');
    base.push(:, k) = push(:);
    motion{k, 1} = qn.base (model, push);
  end
  if isempty (list), list = motion; end
  if base.loads(1) > 1 && iscell (list) && size (list, 2) == 2, list = [list; motion]; end
end
