% K = SLOPE (LAW, X, STATE, BY)  greatest slope of a user's law over its displacements (BY 'x') or velocities (BY 'v'), by central differences
%
% Of a law with r rows it is the norm of the r x r matrix of slopes; at 50 of the displacements X, r x k, and at their extremes ([]: at rest), with
% velocities of 0 and the STATE that belongs to each (0 where that is not known), at t = 0 and a time step of 1 s. Displacements of a law with states differ together with the
% velocities that lead there within the step, so that friction that grows by velocity times step is felt. 0 where the law gives no numbers.
function k = slope (law, x, state, by)
  t = qn.impl.traits (law, law.parameters.rows);
  r = law.parameters.rows;
  if isempty (x), x = zeros (r, 1); end
  if size (state, 2) ~= size (x, 2), state = zeros (t.states, size (x, 2)); end
  good = all (isfinite ([x; state]), 1);
  [x, state] = deal (x(:, good), state(:, good));
  width = max (1e-4 * max (abs (x(:))), 1e-7);
  if isempty (width), width = 1e-7; end
  [~, low] = min (x, [], 2);
  [~, high] = max (x, [], 2);
  seen = unique ([round(linspace (1, size (x, 2), min (size (x, 2), 50))), low(:).', high(:).']);
  e = qn.element (law, [eye(r), zeros(r, t.states)], 'step', 1, 'state', r + 1);
  h = chandle (quarn ('chandleset', 1003, e));
  free = onCleanup (@() delete (h));
  k = 0;
  try
    for j = seen
      slopes = zeros (r, r);
      for i = 1:r
        d = zeros (r, 1);
        d(i) = width;
        if by == 'v'
          slopes(:, i) = (at (h, x(:, j), d, state(:, j)) - at (h, x(:, j), -d, state(:, j))) / (2 * width);
        else
          v = d * (t.states > 0);
          slopes(:, i) = (at (h, x(:, j) + d, v, state(:, j)) - at (h, x(:, j) - d, -v, state(:, j))) / (2 * width);
        end
      end
      k = max (k, norm (slopes));
    end
  catch
    k = 0;
  end
end

function f = at (h, x, v, state)
  r = numel (x);
  none = zeros (r + numel (state), 1);
  f = zeros (r + numel (state), 1);
  quarn ('residual', f, h, qn.impl.fresh ([x; state]), [v; 0 * state], none);
  f = f(1:r);
end
