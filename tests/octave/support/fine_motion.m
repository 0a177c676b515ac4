% X = FINE_MOTION (CASES, PARTS)  displacements of N set-ups of random_set_up at their time points, n x N x steps+1
%
% Runge and Kutta's rule of order 4 with PARTS steps in each step of the cases, all cases side by side. In physical coordinates, with the
% laws written out here once more: nothing of the toolbox or the module takes part.
function x = fine_motion (cases, parts)
  many = numel (cases);
  n = 4;
  p = 3;
  steps = cases(1).steps;
  [stiff, damp] = deal (zeros (n, n, many));
  push = zeros (n, many);
  rows = zeros (p, n, many);
  act = zeros (n, p, many);
  v = zeros (n, many);
  c = struct ('power', zeros (p, many), 'exponent', ones (p, many), 'scale', zeros (p, many), 'base', ones (p, many), ...
              'maxwell', zeros (p, many), 'rate', zeros (p, many), 'dahl', zeros (p, many), 'slip', ones (p, many), ...
              'slides', true (p, many), 'knots', Inf (26, p, many), 'forces', zeros (26, p, many), 'last', ones (p, many), ...
              'table', false (p, many));
  for k = 1:many
    s = cases(k);
    stiff(:, :, k) = s.M \ s.K;
    damp(:, :, k) = s.M \ s.C;
    push(:, k) = s.M \ s.push * s.force;
    v(:, k) = s.v0;
    for j = 1:numel (s.laws)
      rows(j, :, k) = s.rows(j, :);
      act(:, j, k) = s.M \ s.rows(j, :).';
      l = s.laws{j}.parameters;
      switch s.laws{j}.kind
        case 'power'
          c.power(j, k) = l.stiffness;
          c.exponent(j, k) = l.exponent;
        case 'exponential'
          c.scale(j, k) = l.scale;
          c.base(j, k) = l.base;
        case 'maxwell'
          c.maxwell(j, k) = l.springs;
          c.rate(j, k) = l.springs / l.dampers;
          c.power(j, k) = l.stiffness;
        case 'dahl'
          c.dahl(j, k) = l.stiffness;
          c.slip(j, k) = l.slip;
          c.slides(j, k) = l.exponent == 0;
        case 'table'
          last = numel (l.displacement);
          c.knots(1:last, j, k) = l.displacement;
          c.forces(1:last, j, k) = l.force;
          c.last(j, k) = last;
          c.table(j, k) = true;
      end
    end
  end
  about = [cases.about];
  h = [cases.step] / parts;
  u = zeros (n, many);
  z = zeros (p, many);
  t = zeros (1, many);
  x = zeros (n, many, steps + 1);
  half = bsxfun (@times, ones (n, 1), h / 2);
  short = bsxfun (@times, ones (p, 1), h / 2);
  for k = 1:steps
    for i = 1:parts
      [a1, z1] = rates (t, u, v, z);
      [a2, z2] = rates (t + h / 2, u + half .* v, v + half .* a1, z + short .* z1);
      v2 = v + half .* a1;
      v3 = v + half .* a2;
      [a3, z3] = rates (t + h / 2, u + half .* v2, v3, z + short .* z2);
      v4 = v + 2 * half .* a3;
      [a4, z4] = rates (t + h, u + 2 * half .* v3, v4, z + 2 * short .* z3);
      u = u + half / 3 .* (v + 2 * v2 + 2 * v3 + v4);
      v = v + half / 3 .* (a1 + 2 * a2 + 2 * a3 + a4);
      z = z + short / 3 .* (z1 + 2 * z2 + 2 * z3 + z4);
      % A slider holds no more than its limit.
      over = c.slides & c.dahl > 0;
      z(over) = min (max (z(over), -c.slip(over)), c.slip(over));
      t = t + h;
    end
    x(:, :, k + 1) = u;
  end

  function [a, dz] = rates (t, u, v, z)
    d = times (rows, u);
    dd = times (rows, v);
    f = c.power .* d .^ c.exponent + c.scale .* c.base .^ d + c.maxwell .* (d - z) + (c.dahl > 0) .* z;
    for j = find (any (c.table, 2)).'
      own = c.table(j, :);
      s = reshape (c.knots(:, j, own), 26, []);
      g = reshape (c.forces(:, j, own), 26, []);
      at = min (max (sum (bsxfun (@le, s, d(j, own)), 1), 1), c.last(j, own) - 1) + 26 * (0:sum (own) - 1);
      f(j, own) = g(at) + (g(at + 1) - g(at)) ./ (s(at + 1) - s(at)) .* (d(j, own) - s(at));
    end
    stuck = c.slides & abs (z) >= c.slip & z .* dd > 0;
    dz = c.rate .* (d - z) + c.dahl .* dd .* (~c.slides .* (1 - z ./ c.slip .* sign (dd)) + (c.slides & ~stuck));
    a = bsxfun (@times, push, sin (about .* t)) - times (stiff, u) - times (damp, v) - times (act, f);
  end
end

% A matrix a page times the column of the page.
function y = times (m, x)
  y = zeros (size (m, 1), size (x, 2));
  for j = 1:size (m, 2), y = y + bsxfun (@times, reshape (m(:, j, :), size (m, 1), []), x(j, :)); end
end
