% QN.SPECTRUM  amplitude spectrum of a signal
%
% Purpose
%   Amplitudes of the harmonics in a signal: a sine of amplitude 2 shows as 2, whatever the window, where its frequency is one of
%   those returned, that is where the signal holds whole periods. Between two of them it shows in both, and too small: halfway as
%   85 % with 'hann' and as 64 % with 'none'.
%
% Calls
%   [HERTZ, X] = qn.spectrum (TIME, SIGNAL, ...)
%
% Input
%   TIME     1 x k times, evenly spaced [s]
%   SIGNAL   p x k, one row per signal
%   Names and values
%     'window'  'hann' or 'none' ('hann')
%     'mean'    'keep' or 'remove' ('remove')
%
% Output
%   HERTZ    1 x n frequencies, from 0 to half the sampling rate [Hz]
%   X        p x n complex amplitudes [unit of the signal]; abs (X) is what to plot
%
% Errors
%   qn:input  the lengths differ, a value is not finite, the times are not evenly spaced, or a name is unknown
%
% Example
%   t = (0:999) * 1e-3;
%   [f, x] = qn.spectrum (t, 2 * sin (2 * pi * 50 * t));
%   plot (f, abs (x));
%
% See also qn.srs, qn.plot.waterfall
function [hertz, x] = spectrum (time, signal, varargin)
  who = 'qn.spectrum';
  if nargin < 2, error ('qn:input', '%s: times and signals expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('window', 'hann', 'mean', 'remove'), varargin);
  [h, time] = qn.impl.spacing (who, time);
  n = numel (time);
  signal = qn.impl.numbers (who, 'SIGNAL', signal, [NaN n], 'each', 'one column a time');
  switch o.window
    case 'hann', w = 0.5 - 0.5 * cos (2 * pi * (0:n - 1) / n);
    case 'none', w = ones (1, n);
    otherwise, error ('qn:input', '%s: the window is ''hann'' or ''none'', not ''%s''', who, o.window);
  end
  switch o.mean
    case 'remove', signal = bsxfun (@minus, signal, mean (signal, 2));
    case 'keep'
    otherwise, error ('qn:input', '%s: the mean is ''keep'' or ''remove'', not ''%s''', who, o.mean);
  end
  x = fft (bsxfun (@times, signal, w), [], 2) / sum (w);
  half = floor (n / 2) + 1;
  x = x(:, 1:half);
  doubled = 2:half;
  if mod (n, 2) == 0, doubled = 2:half - 1; end
  x(:, doubled) = 2 * x(:, doubled);
  hertz = (0:half - 1) / (n * h);
end
