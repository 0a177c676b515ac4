% X = MET (LAW, X, F)  displacements X of a result, 1 x k, and those where the law gives the least and the greatest of the forces F
%
% Forces act at the prediction: one that throws the structure back within a step shows in no displacement.
function x = met (law, x, f)
  l = qn.impl.law_of (law.kind);
  if isempty (l.at_force) || ~any (f(:)), return, end
  at = l.at_force (law.parameters, [min(f(:)), max(f(:))]);
  if ~isempty (at), x = [reshape(x(isfinite (x)), 1, []), at]; end
end
