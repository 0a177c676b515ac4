% L = SURFACE_LAW ()  force bilinear in a grid of displacements and velocities; the fields are those of qn.impl.law_list
%
% At rest it is a table over the displacements; what it adds in motion dissipates or feeds.
function l = surface_law ()
  parameters = {'displacement', '<required>', 'knots'
                'velocity', '<required>', 'knots'
                'force', '<required>', 'grid'};
  l = struct ('kind', 'surface', 'keyword', 'Surface', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'softest', @(p) at_least (p, []), 'viscous', @viscous, 'at_least', @at_least, ...
              'traits', @traits, 'stored', @stored, 'reserve', @reserve, 'check', @check, 'reach', @reach, 'prepare', @prepare);
end

function p = prepare (who, p)
  of = {'displacement', 'rows'; 'velocity', 'columns'};
  for k = 1:2
    x = p.(of{k, 1});
    j = find (diff (x) <= 0, 1);
    if ~isempty (j)
      error ('qn:input', ['%s: "%s" must ascend: value %d is %.15g, value %d is %.15g; sort it, and the %s of "force" with it, ' ...
                          'and merge equal values'], who, of{k, 1}, j, x(j), j + 1, x(j + 1), of{k, 2});
    end
  end
  shape = [numel(p.displacement), numel(p.velocity)];
  if isnumeric (p.force) && isequal (size (p.force), shape), no_gaps (who, p); end
  p.force = qn.impl.numbers (who, 'force', p.force, shape, 'each', ...
                             'numel (displacement) x numel (velocity), a row for each displacement and a column for each velocity');
end

function no_gaps (who, p)
  [i, j] = find (isnan (p.force));
  if isempty (i), return, end
  error ('qn:input', ['%s: "force" has %d NaN among its %d values, the first at (%d, %d), %g m and %g m/s. griddata leaves points ' ...
                      'empty that lie outside of the measured ones: cut the grid to what was measured, or fill them'], who, numel (i), ...
         numel (p.force), i(1), j(1), p.displacement(i(1)), p.velocity(j(1)));
end

% After the code, the module's record of the greatest distances from the grid.
function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Surface'); 0; 0; p.displacement; p.velocity; p.force(:)];
  own = [numel(p.displacement); numel(p.velocity)];
end

function p = unpack (opt, iopt)
  [nx, nv] = deal (iopt(6), iopt(7));
  p = struct ('displacement', opt(3 + (1:nx)), 'velocity', opt(3 + nx + (1:nv)), 'force', reshape (opt(3 + nx + nv + (1:nx * nv)), nx, nv));
end

function text = words (p)
  text = sprintf (['surface of %d displacements from %g to %g m and %d velocities from %g to %g m/s, forces from %g to %g N; its outer ' ...
                   'cells go on'], numel (p.displacement), p.displacement([1 end]), numel (p.velocity), p.velocity([1 end]), ...
                  min (p.force(:)), max (p.force(:)));
end

function t = traits (p)
  t = struct ('rates', true, 'record', [2 3]);
end

% The table over the displacements at each of the velocities V, one struct a velocity.
function tables = at_velocities (p, v)
  force = interp1 (p.velocity, p.force.', v(:), 'linear', 'extrap').';
  tables = struct ('displacement', p.displacement, 'force', num2cell (force, 1));
end

function l = of_table ()
  l = qn.impl.law_of ('table');
end

% Between two velocities the stiffness is between theirs; rest may be beyond them.
function k = stiffest (p, x, state)
  l = of_table ();
  k = max (arrayfun (@(t) l.stiffest (t, x, state), at_velocities (p, [p.velocity; 0])));
end

% In the cells of the grid, at the one of the displacements X where it is stiffest.
function [k, c] = at_least (p, x)
  slope = bsxfun (@rdivide, diff (p.force, 1, 1), diff (p.displacement));
  if isempty (x)
    k = least_size (slope);
  else
    k = max (arrayfun (@(x) least_size (slope(max (1, sum (p.displacement(1:end - 1) <= x)), :)), x(:)));
  end
  c = least_size (bsxfun (@rdivide, diff (p.force, 1, 2), diff (p.velocity).'));
end

function least = least_size (x)
  least = min (abs (x(:)));
  if any (x(:) < 0) && any (x(:) > 0), least = 0; end
end

% The slopes over the velocity at knots and ends of the displacements; those of a motion that has grown without bound say nothing.
function c = viscous (p, x, f)
  at = p.displacement;
  if any (abs (x(:)) > 1e6 * max (abs (at))), x = []; end
  if ~isempty (x), at = [min(x(:)); at(at > min (x(:)) & at < max (x(:))); max(x(:))]; end
  slope = bsxfun (@rdivide, diff (p.force, 1, 2), diff (p.velocity).');
  slope = interp1 (p.displacement, slope, at, 'linear', 'extrap');
  c = max ([0; abs(slope(:))]);
end

function v = stored (p, x, f, state, h)
  l = of_table ();
  v = l.stored (at_velocities (p, 0), x, f, state, h);
end

% It only dissipates where the force grows with the velocity, beyond the grid as well.
function v = reserve (p, x, state)
  v = Inf;
  grows = diff (p.force, 1, 2);
  falls = any (grows(1, :) < grows(2, :)) || any (grows(end, :) < grows(end - 1, :));
  if falls || any (grows(:) < 0), return, end
  l = of_table ();
  v = l.reserve (at_velocities (p, 0), x, state);
end

function r = reach (p)
  l = of_table ();
  r = l.reach (at_velocities (p, 0));
end

% What the motion has to do with the grid: qn.impl.grid_use.
function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  ends = p.velocity([1 end]);
  if ends(1) >= 0 || ends(2) <= 0
    found(end + 1, :) = {'surface_one_way', 'warning', ...
                         sprintf(['its velocities go from %g to %g m/s, one way only: the forces of the way back are those of the ' ...
                                  'outer cells, which go on. Add the velocities of the other sign'], ends)};
    return
  end
  rest = at_velocities (p, 0);
  added = bsxfun (@minus, p.force, rest.force);
  [least, k] = min (added(:) .* reshape (sign (ones (numel (p.displacement), 1) * p.velocity.'), [], 1));
  if least < -0.01 * max (abs (added(:)))
    [i, j] = ind2sub (size (added), k);
    found(end + 1, :) = {'damper_feeds', 'warning', ...
                         sprintf(['its force of %g N at %g m and %g m/s pushes along the motion, as it is %g N at rest there: it feeds ' ...
                                  'the motion. A sign of velocities or forces, or forces that are transposed?'], ...
                                 p.force(i, j), p.displacement(i), p.velocity(j), rest.force(i))};
  end
end
