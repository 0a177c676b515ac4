% [F, DZ] = FORCES_OF_RATES (KIND, P, S, V, Z)  forces of laws that look at velocities, and rates of their states, in plain Octave
%
% KIND is a column, one for each observed value: 1 Damper, 2 Contact, 3 BoucWen, 4 Radial, 5 Journal, 0 any other law, and the second of the
% two values of a Radial or Journal, which stands below the first. P holds their parameters in rows, S, V and Z displacements, velocities and
% states. Formulas as docs/laws.md has them, the film as its other published form with G, V and S.
function [f, dz] = forces_of_rates (kind, p, s, v, z)
  [f, dz] = deal (zeros (size (s)));
  i = find (kind == 1);
  f(i) = p(i, 1) .* abs (v(i)) .^ p(i, 2) .* sign (v(i));
  i = find (kind == 2);
  deep = max (0, p(i, 5) .* s(i) - p(i, 4));
  f(i) = p(i, 5) .* max (0, p(i, 1) .* deep .^ p(i, 2) .* (1 + p(i, 3) .* p(i, 5) .* v(i)));
  i = find (kind == 3);
  size_of = abs (z(i)) .^ p(i, 5);
  f(i) = p(i, 1) .* z(i);
  dz(i) = p(i, 2) .* v(i) - size_of .* (p(i, 3) .* abs (v(i)) .* sign (z(i)) + p(i, 4) .* v(i));
  i = find (kind == 4);
  if ~isempty (i), [f(i), f(i + 1)] = ring (p(i, :), s(i), s(i + 1), v(i), v(i + 1)); end
  i = find (kind == 5);
  if ~isempty (i), [f(i), f(i + 1)] = film (p(i, :), s(i), s(i + 1), v(i), v(i + 1)); end
end

% gap, k, p, chi, mu, onset, surface speed
function [fx, fy] = ring (p, x, y, vx, vy)
  r = max (hypot (x, y), realmin ());
  d = r - p(:, 1);
  [c, s] = deal (x ./ r, y ./ r);
  normal = max (0, p(:, 2) .* max (d, 0) .^ p(:, 3) .* (1 + p(:, 4) .* (c .* vx + s .* vy)));
  slides = c .* vy - s .* vx + p(:, 7);
  rubs = p(:, 5) .* normal .* slides ./ hypot (slides, p(:, 6));
  fx = c .* normal - s .* rubs;
  fy = s .* normal + c .* rubs;
end

% mu R L^3/(4 c^2), clearance, spin, limit
function [fx, fy] = film (p, x, y, vx, vy)
  [c, spin] = deal (p(:, 2), p(:, 3));
  inside = min (1, p(:, 4) ./ max (hypot (x, y) ./ c, realmin ()));
  [x, y] = deal (x ./ c .* inside, y ./ c .* inside);
  across = y .* spin + 2 * vx ./ c;
  along = x .* spin - 2 * vy ./ c;
  s = 1 - x .^ 2 - y .^ 2;
  turn = atan2 (across, along) - pi;
  a = y .* cos (turn) - x .* sin (turn);
  b = x .* cos (turn) + y .* sin (turn);
  g = 2 ./ sqrt (s) .* (pi / 2 + atan (a ./ sqrt (s)));
  v = (2 + a .* g) ./ s;
  w = b ./ (1 - b .^ 2);
  scale = p(:, 1) .* hypot (across, along) ./ s;
  fx = scale .* (3 * x .* v - sin (turn) .* g - 2 * cos (turn) .* w);
  fy = scale .* (3 * y .* v + cos (turn) .* g - 2 * sin (turn) .* w);
end
