% F = FACTOR_AT (TABLE, TIME)  a factor of time at a row of times; at a jump (two equal times of the table) the mean of both sides
function f = factor_at (table, time)
  t = table(1, :);
  left = [true, diff(t) > 0];
  right = [diff(t) > 0, true];
  [t, low, high] = deal (t(left), table(2, left), table(2, right));
  at = min (interp1 (t, 1:numel (t), time, 'previous'), numel (t) - 1);
  part = (time - t(at)) ./ (t(at + 1) - t(at));
  f = (1 - part) .* high(at) + part .* low(at + 1);
  f(part == 0) = (low(at(part == 0)) + high(at(part == 0))) / 2;
  last = time == t(end);
  f(last) = (low(end) + high(end)) / 2;
end
