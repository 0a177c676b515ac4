% [K, C] = EQUIVALENT (RES)  modal stiffness and damping of the elements in the motion of a result, m x m
%
% For each force the factors of displacement and velocity that come nearest to it, by least squares (equivalent linearisation). The force
% was evaluated at the prediction, beta h^2 times the acceleration before the displacement and gamma h times it before the velocity.
function [k, c] = equivalent (res)
  sim = res.sim;
  m = numel (sim.model.w);
  [k, c] = deal (zeros (m));
  if ~isfinite (sum (res.q(:)) + sum (res.force(:)))
    good = find (all (isfinite (res.q), 1) & all (isfinite (res.force), 1));
    if numel (good) < 3, return, end
    good = good(1):good(end);
    [res.q, res.force] = deal (res.q(:, good), res.force(:, good));
  end
  n = size (res.q, 2);
  if n < 3, return, end
  each = isequal (res.time, sim.time(1:numel (res.time)));
  for e = sim.elements(:).'
    x = e.observe * res.q;
    f = res.force(e.forces, :);
    if ~isequal (size (x), size (f)), continue, end
    for j = 1:size (x, 1)
      moves = [x(j, :); zeros(1, n)];
      if each
        slope = [x(j, 2) - x(j, 1), (x(j, 3:n) - x(j, 1:n - 2)) / 2, x(j, n) - x(j, n - 1)];
        bend = [slope(2) - slope(1), diff(x(j, :), 2), slope(n) - slope(n - 1)];
        moves = [x(j, :) - sim.scheme.beta * bend; (slope - sim.scheme.gamma * bend) / sim.step];
      end
      size_of = sqrt (sum (moves .^ 2, 2));
      if size_of(1) == 0, continue, end
      size_of(size_of == 0) = 1;
      % The triangle of a tall matrix has its singular values.
      [q, r] = qr (bsxfun (@rdivide, moves, size_of).', 0);
      factors = pinv (r, n * norm (r) * eps ()) * (q.' * f(j, :).') ./ size_of;
      k = k + e.command(j, :).' * factors(1) * e.observe(j, :);
      c = c + e.command(j, :).' * factors(2) * e.observe(j, :);
    end
  end
end
