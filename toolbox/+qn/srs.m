% QN.SRS  shock response spectrum of a base acceleration
%
% Purpose
%   Largest absolute acceleration of a one-degree-of-freedom oscillator on a base that moves so, against the oscillator's frequency,
%   during the shock and after it. Ramp-invariant filter (Smallwood, 1981): exact for a signal that is linear between samples.
%
% Calls
%   [A, POSITIVE, NEGATIVE] = qn.srs (TIME, ACC, HERTZ)
%   [...] = qn.srs (TIME, ACC, HERTZ, Q)
%
% Input
%   TIME    1 x k times, evenly spaced [s]
%   ACC     1 x k base acceleration [m/s^2]
%   HERTZ   frequencies of the oscillators [Hz]; a tenth of the sampling rate is a good upper end
%   Q       quality factor 1 / (2 zeta) (10); Inf is undamped
%
% Output
%   A         size of HERTZ: largest magnitude (maximax) [m/s^2]
%   POSITIVE, NEGATIVE   largest value of either sign, as magnitudes [m/s^2]
%
% Errors
%   qn:input  the lengths differ, a frequency or Q makes no sense
%
% Example
%   t = 0:1e-5:0.02;
%   acc = 100 * sin (pi * t / 0.011) .* (t < 0.011);
%   hertz = logspace (1, 3, 40);
%   loglog (hertz, qn.srs (t, acc, hertz));
%
% See also qn.spectrum, qn.base
function [a, positive, negative] = srs (time, acc, hertz, q)
  who = 'qn.srs';
  if nargin < 4, q = 10; end
  h = qn.impl.spacing (who, time);
  if numel (acc) ~= numel (time), error ('qn:input', '%s: %d accelerations expected, got %d', who, numel (time), numel (acc)); end
  if any (hertz(:) <= 0 | hertz(:) >= 0.5 / h), error ('qn:input', '%s: frequencies between 0 and %g Hz expected', who, 0.5 / h); end
  if ~(q > 0.5), error ('qn:input', '%s: a quality factor above 0.5 expected, got %g', who, q); end
  positive = zeros (size (hertz));
  negative = zeros (size (hertz));
  zeta = 1 / (2 * q);
  for k = 1:numel (hertz)
    w = 2 * pi * hertz(k);
    angle = w * sqrt (1 - zeta ^ 2) * h;
    e = exp (-zeta * w * h);
    c = e * cos (angle);
    s = e * sin (angle) / angle;
    after = zeros (1, ceil (1 / (hertz(k) * h)));
    x = filter ([1 - s, 2 * (s - c), e ^ 2 - s], [1, -2 * c, e ^ 2], [reshape(acc, 1, []), after]);
    positive(k) = max ([x, 0]);
    negative(k) = max ([-x, 0]);
  end
  a = max (positive, negative);
end
