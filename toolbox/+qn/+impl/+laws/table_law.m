% L = TABLE_LAW ()  force between knots, the end segments go on; the fields are those of qn.impl.law_list
function l = table_law ()
  parameters = {'displacement', '<required>', 'ascending list'
                'force', '<required>', 'list'};
  l = struct ('kind', 'table', 'keyword', 'Table', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'softest', @softest, 'traits', [], 'stored', @stored, 'reserve', @reserve, 'check', @check, ...
              'reach', @reach, 'at_force', @at_force);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Table'); zeros(3, 1); p.displacement; p.force];
  own = [4; 1; numel(p.displacement); 1];
end

function p = unpack (opt, iopt)
  t = qn.impl.table_of (opt, iopt, 1);
  p = struct ('displacement', t(:, 1), 'force', t(:, 2));
end

function text = words (p)
  if numel (p.displacement) == 1
    text = sprintf ('constant force of %g N', p.force);
  else
    slope = diff (p.force) ./ diff (p.displacement);
    text = sprintf ('table of %d knots from %g to %g m, forces from %g to %g N; goes on with %g N/m below and %g N/m above', ...
                    numel (p.displacement), p.displacement([1 end]), min (p.force), max (p.force), slope([1 end]));
  end
end

function k = stiffest (p, x, state)
  slope = abs (diff (p.force)) ./ max (diff (p.displacement), realmin ());
  slope(diff (p.displacement) == 0) = 0;
  if ~isempty (x) && numel (slope) > 1
    % Only the segments that were met; the end segments go on.
    below = [-Inf; p.displacement(2:end - 1)];
    above = [p.displacement(2:end - 1); Inf];
    slope = slope(above >= min (x(:)) & below <= max (x(:)));
  end
  k = max ([0; slope]);
end

function k = softest (p)
  k = min ([abs(diff (p.force)) ./ max(diff (p.displacement), realmin ()); Inf]);
  if numel (p.displacement) < 2, k = 0; end
end

% The integral of the force from the first knot.
function v = stored (p, x, f, state, h)
  knots = p.displacement;
  values = p.force;
  if numel (knots) == 1
    v = values * x;
    return
  end
  at_knot = [0; cumsum((values(1:end - 1) + values(2:end)) / 2 .* diff (knots))];
  q = x(:);
  k = ones (size (q));
  for j = 2:numel (knots) - 1, k = k + (q > knots(j)); end
  slope = (values(k + 1) - values(k)) ./ max (knots(k + 1) - knots(k), realmin ());
  force = values(k) + slope .* (q - knots(k));
  v = reshape (at_knot(k) + (values(k) + force) / 2 .* (q - knots(k)), size (x));
end

function found = check (law, x, h, state)
  found = qn.impl.beyond_table (law, x);
  p = law.parameters;
  slope = diff (p.force) ./ max (diff (p.displacement), realmin ());
  slope = slope(abs (slope) > 1e-12 * max (abs (slope)));
  turns = sum (diff (sign (slope)) ~= 0);
  if turns >= 6
    found(end + 1, :) = {'table_alternates', 'warning', ...
                         sprintf(['the slope of its table of %d knots changes its sign %d times: a measured curve with noise, or knots ' ...
                                  'that are not in their order? Smooth it; stiffness and stored energy are those of the noise'], ...
                                 numel (p.displacement), turns)};
  end
  x = p.displacement;
  n = numel (x);
  if n > 1 && (x(1) == x(2) || x(n - 1) == x(n))
    [at, side] = deal (x(n), 'above');
    f = (p.force(n - 1) + p.force(n)) / 2;
    if x(1) == x(2), [at, side, f] = deal (x(1), 'below', (p.force(1) + p.force(2)) / 2); end
    found(end + 1, :) = {'table_jump', 'warning', ...
                         sprintf(['its table of %d knots ends with a jump at %g m: %s it the force stays midway, at %g N. Give a knot ' ...
                                  'beyond the jump'], n, at, side, f)};
  end
  if strncmp (law.note, 'stop, preloaded', 15)
    text = sprintf (['it pushes with %g N at zero displacement: a negative gap is a preload. A run that starts at 0 starts with that ' ...
                     'force; for a start at rest give ''q0'' from qn.static'], qn.force (law, 0));
    found(end + 1, :) = {'preload', 'note', text};
  end
end

% The energy has its least value at a knot or where the force is zero. It has one if the end segments push back.
function v = reserve (p, x, state)
  v = Inf;
  [knots, force] = deal (p.displacement, p.force);
  if numel (knots) < 2 || knots(1) == knots(2) || knots(end - 1) == knots(end), return, end
  slope = diff (force) ./ diff (knots);
  ends = [slope(1), -force(1); slope(end), force(end)];
  if any (ends(:, 1) < 0 | (ends(:, 1) == 0 & ends(:, 2) < 0)), return, end
  sloped = isfinite (slope) & slope ~= 0;
  zero = knots([sloped; false]) - force([sloped; false]) ./ slope(sloped);
  least = min (stored (p, [knots; zero].', [], [], []));
  v = sum (stored (p, x(:).', [], [], []) - least);
end

function r = reach (p)
  r = Inf;
  if numel (p.displacement) < 3, return, end
  slope = diff (p.force) ./ max (diff (p.displacement), realmin ());
  inner = p.displacement(2:end - 1);
  bends = abs (diff (slope)) > 1e-9 * max (abs (slope));
  if any (bends), r = min (abs (inner(bends))); end
end

function x = at_force (p, f)
  x = zeros (1, 0);
  [knots, force] = deal (p.displacement(:), p.force(:));
  if numel (knots) < 2, return, end
  for value = f
    at = knots(1:end - 1) + (value - force(1:end - 1)) .* diff (knots) ./ diff (force);
    inside = at > [-Inf; knots(2:end - 1)] & at < [knots(2:end - 1); Inf];
    x = [x, at(inside).'];
  end
end
