% QN.PLOT.FULL_SPECTRUM  forward and backward parts of an orbit against the frequency
%
% Purpose
%   Backward parts are drawn left of 0, forward parts right of it.
%
% Calls
%   qn.plot.full_spectrum (HERTZ, FORWARD, BACKWARD)
%   qn.plot.full_spectrum (HERTZ, FORWARD, BACKWARD, LIMIT)
%
% Input
%   HERTZ               1 x n frequencies, and
%   FORWARD, BACKWARD   1 x n amplitudes, both from qn.full_spectrum, in m
%   LIMIT               highest frequency to show [Hz]
%
% Errors
%   qn:input  the lengths differ, a value is not finite, or LIMIT is not above 0
%
% Example
%   t = (0:999) * 1e-3;
%   [f, forward, backward] = qn.full_spectrum (t, 3e-5 * cos (2 * pi * 50 * t), 1e-5 * sin (2 * pi * 50 * t));
%   fig = qn.plot.page ();
%   qn.plot.full_spectrum (f, forward, backward, 200);
%   close (fig);
%
% See also qn.full_spectrum, qn.plot.orbit
function full_spectrum (hertz, forward, backward, limit)
  who = 'qn.plot.full_spectrum';
  if nargin < 3, error ('qn:input', '%s: frequencies, forward and backward amplitudes expected; see help %s', who, who); end
  hertz = reshape (qn.impl.numbers (who, 'HERTZ', hertz, [], 'list', 'ascending', 'from', 0), 1, []);
  n = numel (hertz);
  forward = reshape (qn.impl.numbers (who, 'FORWARD', forward, n, 'complex', 'each', 'one a frequency'), 1, []);
  backward = reshape (qn.impl.numbers (who, 'BACKWARD', backward, n, 'complex', 'each', 'one a frequency'), 1, []);
  if nargin < 4, limit = max (hertz(end), realmin ()); end
  limit = qn.impl.scalar (who, 'LIMIT', limit, realmin ());
  y = abs ([fliplr(backward), forward]);
  [f, unit] = qn.impl.prefixed (y, 'm');
  plot ([-fliplr(hertz), hertz], f * y, '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  set (gca (), 'xlim', [-limit, limit]);
  qn.impl.style ('Full spectrum', 'Frequency [Hz], backward below 0', sprintf ('Amplitude [%s]', unit), {});
end
