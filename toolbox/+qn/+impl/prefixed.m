% [FACTOR, NAME] = PREFIXED (X, UNIT)  multiplier and unit in which the greatest of X is between 1 and 1000
function [factor, name] = prefixed (x, unit)
  top = max (abs (x(isfinite (x))));
  if isempty (top) || top == 0, top = 1; end
  k = min (max (floor (log10 (top * 1.0001) / 3), -4), 3);
  names = {'p', 'n', 'u', 'm', '', 'k', 'M', 'G'};
  factor = 10 ^ (-3 * k);
  name = [names{k + 5} unit];
end
