% FOUND = GRID_USE (SIM, E, X, BEYOND)  what the motion has to do with the grid of a force surface, as rows {code, level, text}
%
% E is an element, X are its displacements in a result at the times that it keeps, [] before the run, BEYOND the greatest distances from
% the grid at any step (qn.impl.record_of). Before the run only the state at the start is known.
function found = grid_use (sim, e, x, beyond)
  found = cell (0, 3);
  if ~strcmp (e.law.kind, 'surface'), return, end
  p = e.law.parameters;
  ends = [p.displacement([1 end]), p.velocity([1 end])];
  grid = sprintf ('from %g to %g m and from %g to %g m/s', ends);
  range = diff (ends);
  if isempty (x)
    at = e.observe * [sim.start.u(1:size (e.observe, 2)), sim.start.v(1:size (e.observe, 2))];
    out = bsxfun (@max, bsxfun (@minus, ends(1, :), at), bsxfun (@minus, at, ends(2, :)));
    [most, row] = max (max (bsxfun (@rdivide, out, range), [], 2));
    if most > 1e-9
      found = {'table_left', level_of(most), ...
               sprintf(['it starts at %g m and %g m/s, outside of its grid, %s; there the outer cells go on, with forces that nobody ' ...
                        'measured: add knots, or is a unit wrong?'], at(row, :), grid)};
    end
    return
  end
  if any (beyond(:).' > 1e6 * range)
    found = {'table_left', 'warning', ...
             sprintf(['the motion grew without bound beyond its grid, %s. There the outer cells go on with their stiffness and ' ...
                      'damping, which may grow or turn negative: add knots as far as the motion may go, or take a shorter step'], grid)};
  elseif any (beyond > 0)
    found = {'table_left', level_of(max (beyond(:).' ./ range)), ...
             sprintf(['the motion leaves its grid, %s, by up to %s; beyond it the outer cells go on, with forces that nobody measured: ' ...
                      'add knots there'], grid, distances (beyond))};
  end
  found = [found; covered(ends, parts (sim, x, range))];
end

function level = level_of (part)
  level = 'note';
  if part > 0.1, level = 'warning'; end
end

function text = distances (beyond)
  each = {sprintf('%g m', beyond(1)), sprintf('%g m/s', beyond(2))};
  text = strjoin (each(beyond(:).' > 0), ' and ');
end

% The parts of both axes. Where so few steps are kept that the structure turns between them, a small part of the velocities is not known:
% NaN.
function part = parts (sim, x, range)
  k = min (size (x, 2), numel (sim.saved));
  at = sim.saved(1:k);
  v = bsxfun (@rdivide, diff (x(:, 1:k), 1, 2), diff (sim.time(at)));
  part = [max(x(:)) - min(x(:)), max([v(:); -Inf]) - min([v(:); Inf])] ./ range;
  few = any (diff (at) > 1) && max (diff (sim.time(at))) * max (sim.model.w) > 1;
  if k < 2 || (part(2) < 0.01 && few), part(2) = NaN; end
end

% An axis in the wrong unit is hardly used while the other is; a small motion uses as little of both.
function found = covered (ends, part)
  found = cell (0, 3);
  units = {'displacements', 'm', '20 mm are 0.02'; 'velocities', 'm/s', '200 mm/s are 0.2'};
  [least, axis] = min (part);
  if ~(least > 0 && least < 0.01), return, end
  other = part(3 - axis);
  if other >= 30 * least
    found = {'surface_unused', 'warning', ...
             sprintf(['the motion covers %.2g %% of its %s, from %g to %g %s, and %.2g %% of its %s: are the %s in %s? %s'], ...
                     100 * least, units{axis, 1}, ends(:, axis), units{axis, 2}, 100 * other, units{3 - axis, 1}, units{axis, :})};
  elseif ~(other >= 0.01)
    share = sprintf ('%.2g %% of its displacements', 100 * part(1));
    if ~isnan (part(2)), share = sprintf ('%s and %.2g %% of its velocities', share, 100 * part(2)); end
    found = {'surface_unused', 'note', ...
             sprintf(['the motion covers only %s, %s: a small motion, or a grid that is in mm and mm/s? 20 mm are 0.02'], share, ...
                     sprintf ('from %g to %g m and from %g to %g m/s', ends))};
  end
end
