% [OFF, WORST] = LINEAR_ERROR (SIM)        error of the time integration of the linear model, of its greatest displacement, before it runs
% [OFF, WORST, UNLIKE] = LINEAR_ERROR (SIM, K, C, RES)  with the modal stiffness and damping of elements, m x m, which act at the prediction;
%                                                       UNLIKE is the part of the motion in the result RES that such a model misses
%
% The modes without elements, by the scheme and exactly for loads that are linear between the time points: mostly a phase that falls behind,
% by (w h)^2/12 of what has passed. At up to ten places, those where each mode moves most, and as many steps as take half a second.
% WORST is the mode with the greatest part. What changes with time is not looked at.
function [off, worst, unlike] = linear_error (sim, more_k, more_c, res)
  [off, worst, unlike] = deal (0, 1, 0);
  m = numel (sim.model.w);
  if qn.impl.varies (sim) || (nargin > 1 && m > 60), return, end
  [k, c, h] = deal (sim.model.stiffness, sim.model.damping, sim.step);
  last = min (numel (sim.time), max (1000, ceil (2e6 / m)));
  [u, v] = deal (sim.start.u(1:m), sim.start.v(1:m));
  if nargin > 1 || (m <= 60 && (size (k, 2) > 1 || size (c, 2) > 1))
    if nargin < 2, [more_k, more_c] = deal (zeros (m)); end
    last = min (last, 1e4);
    seen = places (sim.model.shapes);
    [push, f] = deal (sim.shapes, sim.loads(:, 1:last * (numel (sim.loads) > 0)));
    if isempty (f), [push, f] = deal (zeros (m, 1), zeros (1, last)); end
    if size (push, 2) > m, [push, f] = deal (eye (m), push * f); end
    [a, b1] = qn.impl.step_matrix (sim, more_k, more_c);
    x = march (a, 0 * b1 * push, b1 * push, [u; h * v; h ^ 2 * sim.start.a(1:m)], f, m);
    [a, b0, b1] = exact_step (qn.impl.matrix (k) + more_k, qn.impl.matrix (c) + more_c, h);
    y = march (a, b0 * push, b1 * push, [u; v], f, m);
    part = max (abs (x - y), [], 2);
    if nargin > 3
      kept = sim.saved(sim.saved <= last);
      unlike = norm (seen * (x(:, kept) - res.q(:, 1:numel (kept))), 'fro') / norm (seen * res.q(:, 1:numel (kept)), 'fro');
    end
    x = seen * (x - y);
    y = seen * y;
  else
    if size (k, 2) > 1, k = diag (k); end
    if size (c, 2) > 1, c = diag (c); end
    can = max (abs (sim.model.shapes), [], 1).' .* qn.impl.motion_bound (sim);
    matter = find (can > 1e-4 * max (can));
    seen = places (sim.model.shapes(:, matter));
    [x, y] = deal (zeros (last, numel (matter)));
    part = zeros (m, 1);
    for j = 1:numel (matter)
      at = matter(j);
      f = zeros (1, last);
      if ~isempty (sim.loads), f = sim.shapes(at, :) * sim.loads(:, 1:last); end
      [a, b0, b1] = scheme_step (k(at), c(at), h, sim.scheme);
      one = filtered (a, b0, b1, [u(at); v(at)], f);
      [a, b0, b1] = exact_step (k(at), c(at), h);
      other = filtered (a, b0, b1, [u(at); v(at)], f);
      part(at) = max (abs (one - other));
      x(:, j) = one - other;
      y(:, j) = other;
    end
    x = seen * x.';
    y = seen * y.';
  end
  top = max (abs (y(:)));
  if ~(top > 0) || ~isfinite (top) || ~all (isfinite (x(:))), return, end
  off = max (abs (x(:))) / top;
  [unused, worst] = max (part .* max (abs (sim.model.shapes), [], 1).');
end

% Rows of the shapes where the first ten of them are greatest; all, where these are ten or less.
function seen = places (shapes)
  at = 1:size (shapes, 1);
  if numel (at) > 10
    [unused, at] = max (abs (shapes(:, 1:min (10, size (shapes, 2)))), [], 1);
    at = unique (at);
  end
  seen = shapes(at, :);
end

% One step [u; v] -> A [u; v] + B0 f + B1 f_next of the scheme for one mode, in which the equation of motion holds at each time point.
function [a, b0, b1] = scheme_step (k, c, h, s)
  late = [s.beta * h ^ 2; s.gamma * h];
  early = [(1 / 2 - s.beta) * h ^ 2; (1 - s.gamma) * h];
  after = eye (2) + late * [k, c];
  a = after \ ([1, h; 0, 1] - early * [k, c]);
  b0 = after \ early;
  b1 = after \ late;
end

% The same of the equation itself: the load and its slope are further states.
function [a, b0, b1] = exact_step (k, c, h)
  n = size (k, 1);
  [one, none] = deal (eye (n), zeros (n));
  e = expm (h * [none, one, none, none; -k, -c, one, none; none, none, none, one / h; none, none, none, none]);
  a = e(1:2 * n, 1:2 * n);
  b1 = e(1:2 * n, 3 * n + 1:4 * n);
  b0 = e(1:2 * n, 2 * n + 1:3 * n) - b1;
end

% The displacements are the first M values of the state x' = A x + B0 f + B1 f'. Of x - B1 f the next one needs f only, not f'.
function x = march (a, b0, b1, x, f, m)
  s = qn.impl.block_form (a, a * b1 + b0, eye (m, size (a, 1)), b1(1:m, :), size (f, 2));
  x = qn.impl.in_blocks (s, {f}, x - b1 * f(:, 1));
end

% The displacements of one mode are a recurrence of second order.
function x = filtered (a, b0, b1, z, f)
  s = trace (a);
  d = det (a);
  rest = a - s * eye (2);
  numerator = [b1(1), b0(1) + rest(1, :) * b1, rest(1, :) * b0];
  next = a(1, :) * z + b0(1) * f(1) + b1(1) * f(2);
  begin = z(1) - numerator(1) * f(1);
  then = next - numerator(1) * f(2) - numerator(2) * f(1) - s * z(1);
  x = filter (numerator, [1, -s, d], f, [begin; then]);
end
