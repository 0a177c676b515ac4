% F = TURNING (WHO, P)  function of a row of times that gives angle, speed and angular acceleration of a shaft, three rows
%
% P is such a function, or a 2 x k table [times; speeds]: the speed is linear in between and constant before and after, its angle 0 at
% time 0. At a corner of the table the acceleration is the one after it.
function f = turning (who, p)
  if isa (p, 'function_handle')
    f = @(t) looked_at (who, p (t), t);
    f ([0 1e-3]);
    return
  end
  p = qn.impl.numbers (who, 'profile', p, [2 NaN], 'each', '[times; speeds]');
  qn.impl.numbers (who, 'profile(1, :)', p(1, :), [], 'ascending');
  f = @(t) from_table (p(1, :), p(2, :), t);
end

function m = looked_at (who, m, t)
  m = qn.impl.numbers (who, 'profile', m, [3 numel(t)], 'each', 'angle, speed and angular acceleration for a row of times');
end

function m = from_table (time, speed, t)
  slope = [0, diff(speed) ./ diff(time), 0];
  angle = [0, cumsum(diff (time) .* (speed(1:end - 1) + speed(2:end)) / 2)];
  start = [1, 1:numel(time)];
  turned = @(t, j) angle(start(j)) + speed(start(j)) .* (t - time(start(j))) + slope(j) .* (t - time(start(j))) .^ 2 / 2;
  row = reshape (t, 1, []);
  j = 1 + interval (time, row);
  m = [turned(row, j) - turned(0, 1 + interval (time, 0)); speed(start(j)) + slope(j) .* (row - time(start(j))); slope(j)];
end

% How many knots are at or before each time.
function j = interval (time, t)
  j = zeros (size (t));
  for k = 1:numel (time), j = j + (t >= time(k)); end
end
