% QN.SRS  shock response spectrum of a base acceleration, or of a floor in a result
%
% Purpose
%   Largest absolute acceleration of a one-degree-of-freedom oscillator on that base, against the oscillator's frequency,
%   during the shock and after it. The motion of the oscillator is the exact one for a record that is linear between its samples and
%   goes to zero within one sample before and after (Nigam and Jennings 1969; as a digital filter it is the ramp-invariant one of
%   Smallwood 1981), and its extremes are looked for between the samples as well: what the search may have missed is bounded, by less
%   than 1e-6 of the value. What linear interpolation does to the record itself is not in that bound: of a smooth signal it takes
%   (pi f h)^2 / 3 off the part of frequency f, h being the time between samples, 0.8 % at a twentieth of the sampling rate, 3 % at a
%   tenth, 12 % at a fifth.
%
% Calls
%   [A, POSITIVE, NEGATIVE, BOUND] = qn.srs (TIME, ACC, HERTZ)
%   [...] = qn.srs (TIME, ACC, HERTZ, Q)
%   [...] = qn.srs (RES, C, HERTZ)
%   [...] = qn.srs (RES, C, HERTZ, Q)
%
% Input
%   TIME    1 x k times, evenly spaced [s]
%   ACC     p x k base accelerations, one record per row [m/s^2]; a column of k values is one record too
%   HERTZ   frequencies of the oscillators [Hz], below half the sampling rate
%   Q       quality factor 1 / (2 zeta) (10); Inf is undamped
%   RES     from qn.run, with every step kept: the spectrum of what an oscillator mounted on the structure feels. Accelerations
%           are absolute, with the motion of the base that 'base' of qn.simulation gave.
%   C       where it is mounted, p places: as for qn.acceleration
%
% Output
%   A         size of HERTZ, with several records p rows: largest magnitude (maximax) [m/s^2]
%   POSITIVE, NEGATIVE   largest value of either sign, as magnitudes [m/s^2]
%   BOUND     of the same size: A is too low by at most this, for a record that is linear between its samples [m/s^2]
%
% Errors
%   qn:input  the lengths differ, a value is not finite, a frequency or Q makes no sense
%
% Example
%   t = 0:1e-5:0.02;
%   acc = 100 * sin (pi * t / 0.011) .* (t < 0.011);
%   hertz = logspace (1, 3, 40);
%   loglog (hertz, qn.srs (t, acc, hertz));
%
% See also qn.acceleration, qn.spectrum, qn.base
function [a, positive, negative, bound] = srs (time, acc, hertz, q)
  who = 'qn.srs';
  if nargin < 3, error ('qn:input', '%s: times, accelerations and frequencies expected; see help qn.srs', who); end
  if nargin < 4, q = 10; end
  if isstruct (time)
    res = time;
    qn.impl.expect_result_of (who, res, 'qn.run');
    acc = qn.acceleration (res, acc, 'absolute', isfield (res.sim, 'base') && ~isempty (res.sim.base));
    time = res.time;
  end
  [h, time] = qn.impl.spacing (who, time);
  if isnumeric (acc) && numel (acc) == numel (time), acc = reshape (acc, 1, []); end
  acc = qn.impl.numbers (who, 'ACC', acc, [NaN numel(time)], 'each', 'one column a time');
  hertz = qn.impl.numbers (who, 'HERTZ', hertz, [], 'above', 0);
  if any (hertz(:) >= 0.5 / h)
    error ('qn:input', '%s: "HERTZ" has %g; below %g Hz, half the sampling rate, is expected', who, max (hertz(:)), 0.5 / h);
  end
  q = qn.impl.numbers (who, 'Q', q, [1 1], 'above', 0.5, 'infinite');
  p = size (acc, 1);
  positive = zeros (p, numel (hertz));
  negative = positive;
  bound = positive;
  for j = 1:p
    for k = 1:numel (hertz)
      [negative(j, k), positive(j, k), bound(j, k)] = qn.impl.felt (double (acc(j, :)), h, 2 * pi * hertz(k), 1 / (2 * q));
    end
  end
  if p == 1
    positive = reshape (positive, size (hertz));
    negative = reshape (negative, size (hertz));
    bound = reshape (bound, size (hertz));
  end
  a = max (positive, negative);
end
