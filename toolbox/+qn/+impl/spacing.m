% [H, TIME] = SPACING (WHO, TIME)  step of evenly spaced times; they ascend in equal steps to a millionth of one
function [h, time] = spacing (who, time)
  time = qn.impl.numbers (who, 'TIME', time, [], 'list', 'ascending');
  n = numel (time);
  if n < 2, error ('qn:input', '%s: "TIME" needs at least two times, got %d', who, n); end
  h = (time(n) - time(1)) / (n - 1);
  [uneven, k] = max (abs (diff (time(:)) - h));
  if uneven > 1e-6 * h
    error ('qn:input', '%s: "TIME" must ascend in equal steps: step %d is %g s, %g s on average; see interp1', who, k, ...
           time(k + 1) - time(k), h);
  end
end
