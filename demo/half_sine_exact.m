% Q = HALF_SINE_EXACT (W, ZETA, LOAD, AMP, TD, T)  modes under a half-sine pulse, closed form
%
% Solves  q'' + 2 ZETA W q' + W^2 q = LOAD * AMP * sin (pi t / TD)  for t <= TD,  = 0 afterwards, starting at rest.
%
% Input   W, LOAD  columns, one value a mode (W [rad/s])
%         ZETA     damping ratio, below 1
%         AMP, TD  amplitude and duration of the pulse [s]
%         T        row of times [s]
% Output  Q        one row a mode, one column a time
%
% While the pulse lasts: forced vibration Im (X e^(i pi t/TD)) plus the free vibration that makes it start at rest. Afterwards:
% the free vibration from the state that the pulse leaves behind.
function q = half_sine_exact (w, zeta, load, amp, td, t)
  n = numel (w);
  q = zeros (n, numel (t));
  during = t <= td * (1 + 1e-12);
  p = pi / td;
  for i = 1:n
    x = load(i) * amp / (w(i) ^ 2 - p ^ 2 + 2i * zeta * w(i) * p);
    forced = @(s) imag (x * exp (1i * p * s));
    forced_rate = @(s) imag (1i * p * x * exp (1i * p * s));
    [free, free_rate] = decay (w(i), zeta, -forced(0), -forced_rate(0), [t(during), td]);
    q(i, during) = forced (t(during)) + free(1:end - 1);
    q(i, ~during) = decay (w(i), zeta, forced (td) + free(end), forced_rate (td) + free_rate(end), t(~during) - td);
  end
end

% Free vibration from displacement x0 and velocity v0.
function [x, v] = decay (w, zeta, x0, v0, t)
  wd = w * sqrt (1 - zeta ^ 2);
  z = (x0 - 1i * (v0 + zeta * w * x0) / wd) * exp ((1i * wd - zeta * w) * t);
  x = real (z);
  v = real ((1i * wd - zeta * w) * z);
end
