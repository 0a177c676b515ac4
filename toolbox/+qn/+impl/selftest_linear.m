% [GOOD, TEXT] = SELFTEST_LINEAR ()  the check of qn.selftest that runs a linear oscillator
%
% A free oscillation: average acceleration turns every step by the angle 2 atan (w h / 2) and keeps the amplitude.
function [good, text] = selftest_linear ()
  w = 2 * pi * 5;
  h = 1e-3;
  n = 2000;
  t = (0:n) * h;
  newmark = struct ('type', 2000, 'r', [0, 1 / (4 / h ^ 2 + w ^ 2)], 'tft', t, 'data', [h, h ^ 2 / 4, h / 2, 2 / h, 4 / h ^ 2, 0]);
  spring = struct ('type', 1, 'pr', w ^ 2, 'ir', int32 (0), 'jc', int32 ([0; 1]));
  out = struct ('data', t(2:end).', 'def', zeros (1, n));
  u = 0.01 + zeros (1, 1);
  v = zeros (1, 1);
  a = -w ^ 2 * u;
  quarn ('chandlediagnewmark', {newmark, spring}, struct (), u, v, a, [0 0], struct ('uva', struct ('uva', zeros (4, 1))), out);
  exact = 0.01 * cos (2 * atan (w * h / 2) * (1:n));
  difference = max (abs (out.def - exact)) / 0.01;
  good = all (abs (out.def - exact) <= 1e-11);
  text = sprintf ('%d steps, relative difference to the closed form %.1e (below 1e-9)', n, difference);
end
