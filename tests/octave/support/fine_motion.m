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
                  'step', 0, 'knots', [], 'forces', []);
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
      e = blank;
      e.step = s.step / parts;
      switch s.laws{j}.kind
        case 'power', e.power = l.stiffness; e.exponent = l.exponent;
        case 'exponential', e.scale = l.scale; e.base = l.base;
        case 'maxwell', e.maxwell = l.springs; e.rate = l.springs / l.dampers; e.power = l.stiffness;
        case 'dahl', e.dahl = l.stiffness; e.slip = l.slip; e.slides = l.exponent == 0;
        case 'table', e.knots = l.displacement; e.forces = l.force;
      end
      elements = [elements, e];
      rows(end + 1, at) = s.rows(j, :);
      act(at, end + 1) = s.M \ s.rows(j, :).';
    end
  end
  rows = sparse (rows);
  act = sparse (act);
  c = blank;
  for name = {'power', 'exponent', 'scale', 'base', 'maxwell', 'rate', 'dahl', 'slip', 'slides', 'step'}
    c.(name{1}) = [elements.(name{1})].';
  end
  tables = find (~cellfun (@isempty, {elements.knots}));
  most = max ([2, cellfun(@numel, {elements(tables).knots})]);
  [knots, forces] = deal (Inf (most, numel (tables)), zeros (most, numel (tables)));
  for j = 1:numel (tables)
    e = elements(tables(j));
    knots(1:numel (e.knots), j) = e.knots;
    forces(1:numel (e.knots), j) = e.forces;
  end
  last = sum (isfinite (knots), 1);
  first = most * (0:numel (tables) - 1);
  sliders = find (c.slides > 0 & c.dahl > 0);
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
      t = t + h;
    end
    x(:, k + 1) = u;
  end
  x = reshape (x, n, many, []);

  function [a, dz] = rates (t, u, v, z)
    s = rows * u;
    ds = rows * v;
    f = c.power .* s .^ c.exponent + c.scale .* c.base .^ s + c.maxwell .* (s - z) + (c.dahl > 0) .* z;
    if ~isempty (tables)
      own = s(tables).';
      at = min (max (sum (bsxfun (@le, knots, own), 1), 1), last - 1) + first;
      f(tables) = forces(at) + (forces(at + 1) - forces(at)) ./ (knots(at + 1) - knots(at)) .* (own - knots(at));
    end
    sliding = abs (z) >= c.slip & z .* ds > 0;
    share = (1 - c.slides) .* (1 - z ./ c.slip .* sign (ds)) + c.slides .* ~sliding;
    dz = c.rate .* (s - z) + c.dahl .* ds .* share;
    a = push .* sin (about .* t) - stiff * u - damp * v - act * f;
  end
end
