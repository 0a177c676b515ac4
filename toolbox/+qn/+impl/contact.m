% [X, F] = CONTACT (GAP, K, PADDING, SOFT)  knots of a one-sided contact that closes at X = GAP; end segments go on
function [x, f] = contact (gap, k, padding, soft)
  unit = max ([abs(gap), padding, 1e-3]);
  x = [gap - unit; gap];
  f = [0; 0];
  if padding > 0
    x = [x; gap + padding];
    f = [f; soft * padding];
  end
  x = [x; x(end) + unit];
  f = [f; f(end) + k * unit];
end
