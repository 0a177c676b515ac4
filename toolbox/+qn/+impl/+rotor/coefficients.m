% [F, SPEEDS] = COEFFICIENTS (WHO, NAME, X)  a table by speed of a bearing as a function of the speed, and its speeds
%
% X has rows [speed xx yy] or [speed xx xy yx yy], ascending, two or more; anything else comes back as it is, without speeds. Linear in
% between; a speed beyond is refused.
function [f, speeds] = coefficients (who, name, x)
  f = x;
  speeds = zeros (1, 0);
  if ~isnumeric (x) || size (x, 1) < 2 || ~any (size (x, 2) == [3 5]), return, end
  x = qn.impl.numbers (who, name, x, [NaN NaN]);
  qn.impl.numbers (who, [name '(:, 1)'], x(:, 1), [], 'ascending');
  speeds = x(:, 1).';
  f = @(speed) at_speed (who, name, x, speed);
end

function k = at_speed (who, name, x, speed)
  w = x(:, 1);
  slack = 1e-9 * max (abs (w));
  if speed < w(1) - slack || speed > w(end) + slack
    error ('qn:input', '%s: the table "%s" has values from %.6g to %.6g rad/s, and is asked for at %.6g rad/s', who, name, ...
           w([1 end]), speed);
  end
  k = interp1 (w, x(:, 2:end), speed, 'linear', 'extrap');
  if numel (k) == 4, k = reshape (k, 2, 2).'; end
end
