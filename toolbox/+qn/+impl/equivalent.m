% [K, C] = EQUIVALENT (RES, X)  modal stiffness and damping of the elements in the motion of a result, m x m; X are the elements' displacements
%
% For each force the factors of displacement and velocity that come nearest to it, by least squares (equivalent linearisation). The force
% was evaluated at the prediction, beta h^2 times the acceleration before the displacement and gamma h times it before the velocity.
function [k, c] = equivalent (res, met)
  sim = res.sim;
  m = numel (sim.model.w);
  [k, c] = deal (zeros (m));
  force = res.force;
  if ~isfinite (sum (met(:)) + sum (force(:)))  % a sum that is a number has nothing in it that is none
    good = find (all (isfinite (met), 1) & all (isfinite (force), 1));
    if isempty (good), return, end
    [met, force] = deal (met(:, good(1):good(end)), force(:, good(1):good(end)));
  end
  n = size (met, 2);
  if n < 3, return, end
  each = isequal (res.time, sim.time(1:numel (res.time)));
  row = 0;
  for e = sim.elements(:).'
    rows = row + (1:size (e.observe, 1));
    row = rows(end);
    if numel (rows) ~= numel (e.forces), continue, end
    for j = 1:numel (rows)
      x = met(rows(j), :).';
      f = force(e.forces(j), :).';
      moves = [x, zeros(n, 1)];
      if each
        slope = [x(2) - x(1); (x(3:n) - x(1:n - 2)) / 2; x(n) - x(n - 1)];
        bend = [slope(2) - slope(1); diff(x, 2); slope(n) - slope(n - 1)];
        moves = [x - sim.scheme.beta * bend, (slope - sim.scheme.gamma * bend) / sim.step];
      end
      size_of = sqrt (sum (moves .^ 2, 1));
      if size_of(1) == 0, continue, end
      size_of(size_of == 0) = 1;
      % The triangle of a tall matrix has its singular values, its last column what the force has along the others. Octave leaves
      % other numbers below it.
      r = qr ([bsxfun(@rdivide, moves, size_of), f], 0);
      [r, along] = deal (triu (r(1:2, 1:2)), r(1:2, 3));
      factors = pinv (r, n * norm (r) * eps ()) * along ./ size_of.';
      k = k + e.command(j, :).' * factors(1) * e.observe(j, :);
      c = c + e.command(j, :).' * factors(2) * e.observe(j, :);
    end
  end
end
