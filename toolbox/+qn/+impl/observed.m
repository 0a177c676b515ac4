% C = OBSERVED (WHO, MODEL, DOFS)           rows of the displacements of these degrees of freedom
% C = OBSERVED (WHO, MODEL, DOFS, WEIGHTS)  one row, their weighted sum; physical rows are taken as they are (see qn.observe)
function c = observed (who, model, dofs, weights)
  n = size (model.shapes, 1);
  rows = isnumeric (dofs) && nargin < 4 && size (dofs, 2) == n && (issparse (dofs) || (n > 1 && size (dofs, 1) > 1));
  if rows
    c = full (qn.impl.numbers (who, 'ROWS', dofs, [NaN n]) * model.shapes);
    return
  end
  if isnumeric (dofs) && min (size (dofs)) > 1
    qn.impl.numbers (who, 'ROWS', dofs, [NaN n], 'each', 'one column a degree of freedom');
  end
  dofs = qn.impl.numbers (who, 'DOFS', dofs, [], 'whole', 'list');
  bad = find (dofs < 1 | dofs > n, 1);
  if ~isempty (bad)
    hint = '';
    if size (dofs, 2) == n && n > 1 && any (dofs < 1), hint = sprintf ('. A row of %d weights is given as sparse ([...])', n); end
    error ('qn:input', '%s: "DOFS"(%d) is %g; degrees of freedom are numbered from 1 to %d%s', who, bad, dofs(bad), n, hint);
  end
  c = model.shapes(dofs, :);
  if nargin > 3
    weights = qn.impl.numbers (who, 'WEIGHTS', weights, numel (dofs), 'each', 'one a degree of freedom');
    c = reshape (weights, 1, []) * c;
  end
end
