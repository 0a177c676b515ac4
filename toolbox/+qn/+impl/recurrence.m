% X = RECURRENCE (A, P, Z, N)  the first N values of the states z(1) = Z, z(k+1) = A z(k) + P(:,k), one a column, one more than P has
%
% In products of whole matrices: the steps are cut into as many blocks as a block has steps, and all blocks take their steps together.
% A first round, from zero, tells with A to the power of a block's length where each block really begins; a second one goes on from there.
function x = recurrence (a, p, z, n)
  steps = size (p, 2);
  rows = numel (z);
  long = 2 ^ ceil (log2 (max (steps, 1)) / 2);
  blocks = ceil (steps / long);
  p = reshape ([p, zeros(rows, long * blocks - steps)], rows, long, blocks);
  last = zeros (rows, blocks);
  for k = 1:long, last = a * last + reshape (p(:, k, :), rows, blocks); end
  power = a;
  for k = 1:round (log2 (long)), power = power * power; end
  if ~all (isfinite (power(:)))
    x = step_by_step (a, reshape (p, rows, []), z, n, steps);
    return
  end
  begin = zeros (rows, blocks);
  first = z(1:n);
  for k = 1:blocks
    begin(:, k) = z;
    z = power * z + last(:, k);
  end
  x = zeros (n, long, blocks);
  for k = 1:long
    begin = a * begin + reshape (p(:, k, :), rows, blocks);
    x(:, k, :) = begin(1:n, :);
  end
  x = [first, reshape(x(:, 1:steps), n, steps)];
end

% Where the power is no number: what does not move may still be zero.
function x = step_by_step (a, p, z, n, steps)
  x = [z(1:n), zeros(n, steps)];
  for k = 1:steps
    z = a * z + p(:, k);
    x(:, k + 1) = z(1:n);
  end
end
