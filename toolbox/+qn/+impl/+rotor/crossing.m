% [P, K] = CROSSING (S, A, I, B, J, MEASURE)  where MEASURE (pole, speed) of a mode is zero between two speeds
%
% Pole I of A and pole J of B are those of the mode; MEASURE has different signs there. P are the poles at that speed, K the number of the
% mode among them. The false position method of Illinois.
function [p, k] = crossing (s, a, i, b, j, measure)
  fa = measure (a.pole(i), a.speed);
  fb = measure (b.pole(j), b.speed);
  sa = a.shape(:, i);
  sb = b.shape(:, j);
  [low, high] = deal (a.speed, b.speed);
  side = 0;
  for round = 1:60
    at = (low * fb - high * fa) / (fb - fa);
    if round > 40, at = (low + high) / 2; end
    p = qn.impl.rotor.poles (s, at);
    part = (at - low) / (high - low);
    [unused, k] = max ((1 - part) * abs (sa' * p.shape) .^ 2 + part * abs (sb' * p.shape) .^ 2);
    f = measure (p.pole(k), at);
    if abs (f) <= 1e-11 * abs (p.pole(k)) || abs (high - low) <= 1e-12 * abs (at), return, end
    if sign (f) == sign (fb)
      [high, fb, sb] = deal (at, f, p.shape(:, k));
      if side == 1, fa = fa / 2; end
      side = 1;
    else
      [low, fa, sa] = deal (at, f, p.shape(:, k));
      if side == -1, fb = fb / 2; end
      side = -1;
    end
  end
end
