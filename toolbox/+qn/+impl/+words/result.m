% FACTS = RESULT (RES)  what happened in a run, rows of a name and what is said: its end, the largest motion, forces of elements, findings
function facts = result (res)
  facts = {'Outcome', qn.impl.words.outcome(res); 'Largest motion', largest(res)};
  for e = res.sim.elements
    for row = e.forces
      facts(end + 1, :) = {sprintf('Force %d', row), sprintf('of element %d: %s', e.item, forces_of (res, row))};
    end
  end
  try
    found = qn.check (res.sim, res);
    for f = found, facts(end + 1, :) = {'Finding', sprintf('%s %s: %s', f.level, f.code, f.text)}; end
    if isempty (found), facts(end + 1, :) = {'Findings', 'none'}; end
  catch err
    facts(end + 1, :) = {'Findings', sprintf('not known: %s', err.message)};
  end
end

function text = forces_of (res, row)
  text = 'no force was kept';
  f = res.force(row, :);
  good = find (isfinite (f));
  if isempty (good), return, end
  [most, k] = max (abs (f(good)));
  if most == 0
    text = 'none at the times that were kept';
    return
  end
  text = sprintf ('%s, the greatest amount at %.6g s', qn.impl.words.span ('%.5g', f(good), 'N'), res.time(good(k)));
end

% The degree of freedom that moves farthest of all, rotations of a rotor's nodes left out, at the times that were kept.
function text = largest (res)
  text = 'no time was kept';
  k = find (all (isfinite (res.q), 1));
  if isempty (k), return, end
  model = res.sim.model;
  [n, unit] = deal (size (model.shapes, 1), 'm');
  dofs = 1:n;
  if isfield (model, 'rotation') && isfield (model.rotation, 'places')
    places = model.rotation.places;
    if size (places, 2) > 2, dofs = setdiff (dofs, places(:, 3:end)); end
  elseif n > 1
    unit = 'm (rad, if that is a rotation)';
  end
  [u, dof, at] = farthest (model.shapes(dofs, :), res.q(:, k));
  text = sprintf ('%.5g %s at %s, at %.6g s', u, unit, qn.impl.words.freedom (model, dofs(dof)), res.time(k(at)));
  if u == 0, text = 'nothing moved at the times that were kept'; end
end

% The entry of S * Q with the greatest amount, its row and its column. Rows and columns that cannot have it are not multiplied.
function [u, row, column] = farthest (s, q)
  some = qn.impl.thinned (size (q, 2), 200);
  least = max (max (abs (s * q(:, some)))) * (1 - 1e-12);
  rows = find (abs (s) * max (abs (q), [], 2) >= least);
  columns = find (max (abs (s), [], 1) * abs (q) >= least);
  [u, row, column] = deal (0, rows(1), columns(1));
  for b = qn.impl.blocks ([numel(rows), numel(columns)])
    x = s(rows, :) * q(:, columns(b(1):b(2)));
    [most, k] = max (abs (x(:)));
    if most <= abs (u), continue, end
    [i, j] = ind2sub (size (x), k);
    [u, row, column] = deal (x(k), rows(i), columns(b(1) + j - 1));
  end
end
