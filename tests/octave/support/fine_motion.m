% X = FINE_MOTION (CASES, PARTS)  displacements of N set-ups of random_set_up at their time points, n x N x steps+1
%
% Runge and Kutta's rule of order 4 with PARTS steps in each step of the cases, all cases side by side, one below the other in one
% vector. In physical coordinates, with the laws written out here once more: nothing of the toolbox or the module takes part.
function x = fine_motion (cases, parts)
  many = numel (cases);
  n = size (cases(1).M, 1);
  elements = [];
  [stiff, damp] = deal (sparse (n * many, n * many));
  [push, v, h, about] = deal (zeros (n * many, 1));
  act = zeros (n * many, 0);
  rows = zeros (0, n * many);
  blank = struct ('power', 0, 'exponent', 1, 'scale', 0, 'base', 1, 'maxwell', 0, 'rate', 0, 'dahl', 0, 'slip', 1, 'slides', 0, ...
                  'contact', 0, 'ground', 0, 'hold', 0, 'part', 0, 'kind', 0, 'own', zeros (1, 7), 'step', 0, 'knots', [], 'forces', [], 'growth', [], ...
                  'grid', []);
  for k = 1:many
    s = cases(k);
    at = n * (k - 1) + (1:n);
    stiff(at, at) = s.M \ s.K;
    damp(at, at) = s.M \ s.C;
    push(at) = s.M \ s.push * s.force;
    v(at) = s.v0;
    h(at) = s.step / parts;
    about(at) = s.about;
    for j = 1:numel (s.laws)
      l = s.laws{j}.parameters;
      for i = 1:size (s.rows{j}, 1)
        e = blank;
        e.step = s.step / parts;
        switch s.laws{j}.kind
          case 'power', e.power = l.stiffness; e.exponent = l.exponent;
          case 'exponential', e.scale = l.scale; e.base = l.base;
          case 'maxwell', e.maxwell = l.springs; e.rate = l.springs / l.dampers; e.power = l.stiffness;
          case 'dahl', e.dahl = l.stiffness; e.slip = l.slip; e.slides = l.exponent == 0;
          case 'table', e.knots = l.displacement; e.forces = l.force;
          case 'stickslip', e.contact = l.contact; e.hold = l.slip; e.ground = l.ground; e.power = l.stiffness;
          case 'clima2'
            e.part = i; e.power = -l.stiffness; e.slides = l.exponent == 0;
            e.knots = l.displacement; e.forces = l.normal; e.growth = l.growth; e.slip = l.friction; e.hold = l.offset;
          case 'damper', e.kind = 1; e.own(1:2) = [l.damping, l.exponent];
          case 'contact', e.kind = 2; e.own(1:5) = [l.stiffness, l.exponent, l.damping, l.gap, l.side];
          case 'surface', e.kind = 6; e.grid = l;
          case 'boucwen'
            e.kind = 3; e.power = l.ratio * l.stiffness; e.own(1:5) = [(1 - l.ratio) * l.stiffness, l.A, l.beta, l.gamma, l.exponent];
          case 'radial'
            e.kind = 4 * (i == 1); e.own = [l.gap, l.stiffness, l.exponent, l.damping, l.friction, l.onset, l.radius * l.speed];
          case 'journal'
            e.kind = 5 * (i == 1); e.own(1:4) = [l.viscosity * l.radius * l.length ^ 3 / (4 * l.clearance ^ 2), l.clearance, l.speed, l.limit];
        end
        elements = [elements, e];
        rows(end + 1, at) = s.rows{j}(i, :);
        act(at, end + 1) = s.M \ s.rows{j}(i, :).';
      end
    end
  end
  rows = sparse (rows);
  act = sparse (act);
  c = blank;
  for name = {'power', 'exponent', 'scale', 'base', 'maxwell', 'rate', 'dahl', 'slip', 'slides', 'step', 'contact', ...
              'ground', 'hold', 'part', 'kind'}
    c.(name{1}) = [elements.(name{1})].';
  end
  given_to = cat (1, elements.own);
  of_rates = any (c.kind > 0 & c.kind < 6);
  tables = find (~cellfun (@isempty, {elements.knots})).';
  most = max ([2, cellfun(@numel, {elements(tables).knots})]);
  [knots, forces, growth] = deal (Inf (most, numel (tables)), zeros (most, numel (tables)), zeros (most, numel (tables)));
  for j = 1:numel (tables)
    e = elements(tables(j));
    knots(1:numel (e.knots), j) = e.knots;
    forces(1:numel (e.knots), j) = e.forces;
    growth(1:numel (e.growth), j) = e.growth;
  end
  last = sum (isfinite (knots), 1);
  first = most * (0:numel (tables) - 1);
  surfaces = find (c.kind == 6);
  grids = [];
  if ~isempty (surfaces), grids = together ([elements(surfaces).grid]); end
  sliders = find (c.slides > 0 & c.dahl > 0);
  sticks = find (c.contact > 0);
  % Of the three rows of a pad two rub; its third one presses.
  rubs = find (c.part == 1 | c.part == 2);
  third = rubs + 3 - c.part(rubs);
  read = tables + (3 - c.part(tables)) .* (c.part(tables) > 0);
  single = find (c.part(tables) == 0);
  pressed = find (c.part(tables) == 3);
  [~, of_pad] = ismember (third, tables);
  u = zeros (n * many, 1);
  z = zeros (numel (elements), 1);
  t = u;
  d = h / 2;
  e = c.step / 2;
  x = zeros (n * many, cases(1).steps + 1);
  for k = 1:cases(1).steps
    for i = 1:parts
      [a1, z1] = rates (t, u, v, z);
      v2 = v + d .* a1;
      [a2, z2] = rates (t + d, u + d .* v, v2, z + e .* z1);
      v3 = v + d .* a2;
      [a3, z3] = rates (t + d, u + d .* v2, v3, z + e .* z2);
      v4 = v + h .* a3;
      [a4, z4] = rates (t + h, u + h .* v3, v4, z + c.step .* z3);
      u = u + h / 6 .* (v + 2 * v2 + 2 * v3 + v4);
      v = v + h / 6 .* (a1 + 2 * a2 + 2 * a3 + a4);
      z = z + c.step / 6 .* (z1 + 2 * z2 + 2 * z3 + z4);
      % A slider holds no more than its limit.
      z(sliders) = min (max (z(sliders), -c.slip(sliders)), c.slip(sliders));
      [~, z] = held (rows * u, z);
      t = t + h;
    end
    x(:, k + 1) = u;
  end
  x = reshape (x, n, many, []);

  % What the tables give, and the memory of stick-slip contacts (the place of a slider that is drawn along at its slip force) and of pads
  % (no more than their limit) at the displacements s.
  function [given, z] = held (s, z)
    given = struct ('force', zeros (0, 1), 'stiff', zeros (0, 1), 'limit', zeros (0, 1));
    if ~isempty (tables)
      own = s(read).';
      at = min (max (sum (bsxfun (@le, knots, own), 1), 1), last - 1) + first;
      share = (own - knots(at)) ./ (knots(at + 1) - knots(at));
      given.force = (forces(at) + (forces(at + 1) - forces(at)) .* share).';
      given.stiff = (growth(at) + (growth(at + 1) - growth(at)) .* share).';
    end
    if ~isempty (sticks)
      pull = c.contact(sticks) .* s(sticks);
      both = c.contact(sticks) + c.ground(sticks);
      z(sticks) = min (max (z(sticks), (pull - c.hold(sticks)) ./ both), (pull + c.hold(sticks)) ./ both);
    end
    if ~isempty (rubs)
      given.limit = max (0, c.slip(rubs) .* given.force(of_pad));
      z(rubs) = min (max (z(rubs), -given.limit), given.limit);
    end
  end

  function [a, dz] = rates (t, u, v, z)
    s = rows * u;
    ds = rows * v;
    [given, z] = held (s, z);
    f = c.power .* s .^ c.exponent + c.scale .* c.base .^ s + c.maxwell .* (s - z) + (c.dahl > 0) .* z + c.contact .* (s - z);
    f(tables(single)) = given.force(single);
    f(rubs) = f(rubs) + z(rubs);
    f(tables(pressed)) = f(tables(pressed)) + given.force(pressed) - c.hold(tables(pressed));
    slip = c.slip;
    grows = c.dahl;
    slip(rubs) = max (given.limit, realmin ());
    grows(rubs) = given.stiff(of_pad);
    sliding = abs (z) >= slip & z .* ds > 0;
    share = (1 - c.slides) .* (1 - z ./ slip .* sign (ds)) + c.slides .* ~sliding;
    dz = c.rate .* (s - z) + grows .* ds .* share;
    if of_rates
      [force, moved] = forces_of_rates (c.kind, given_to, s, ds, z);
      f = f + force;
      dz = dz + moved;
    end
    if ~isempty (surfaces), f(surfaces) = of_grids (grids, [s(surfaces).', ds(surfaces).']); end
    a = push .* sin (about .* t) - stiff * u - damp * v - act * f;
  end
end

% Force surfaces with grids of N displacements and as many velocities side by side: knots of the displacements, then of the velocities.
function g = together (grids)
  knots = [grids.displacement, grids.velocity];
  n = size (knots, 1);
  columns = 0:size (knots, 2) - 1;
  g = struct ('inner', knots(2:n - 1, :), 'knots', knots, 'lengths', [diff(knots); ones(1, numel (columns))], 'first', n * columns, 'n', n, ...
              'pages', n ^ 2 * columns(1:numel (grids)), 'force', cat (3, grids.force));
end

% Their forces at Q, the displacements and then the velocities; the outer cells go on.
function f = of_grids (g, q)
  cell_of = 1 + sum (bsxfun (@le, g.inner, q), 1);
  k = cell_of + g.first;
  share = (q - g.knots(k)) ./ g.lengths(k);
  many = numel (q) / 2;
  [x, v] = deal (1:many, many + (1:many));
  at = cell_of(x) + g.n * (cell_of(v) - 1) + g.pages;
  slow = g.force(at) + share(x) .* (g.force(at + 1) - g.force(at));
  fast = g.force(at + g.n) + share(x) .* (g.force(at + g.n + 1) - g.force(at + g.n));
  f = (slow + share(v) .* (fast - slow)).';
end
