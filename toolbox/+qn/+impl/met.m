% X = MET (LAW, X, F)  displacements X of a result, 1 x k, and those where a table gives the least and the greatest of the forces F
%
% Forces act at the prediction: one that throws the structure back within a step shows in no displacement.
function x = met (law, x, f)
  if ~strcmp (law.kind, 'table') || numel (law.parameters.displacement) < 2 || ~any (f(:)), return, end
  knots = law.parameters.displacement(:);
  force = law.parameters.force(:);
  x = x(isfinite (x)).';
  for value = [min(f(:)), max(f(:))]
    at = knots(1:end - 1) + (value - force(1:end - 1)) .* diff (knots) ./ diff (force);
    inside = at > [-Inf; knots(2:end - 1)] & at < [knots(2:end - 1); Inf];
    x = [x(:).', at(inside).'];
  end
end
