% QN.SPECTROGRAM  spectra of a signal along its time
%
% Purpose
%   Shows the frequencies of a run-up as they change: amplitude spectra of windows that follow each other and overlap.
%
% Calls
%   [HERTZ, MIDDLE, X] = qn.spectrogram (TIME, SIGNAL, ...)
%   [HERTZ, MIDDLE, X] = qn.spectrogram (RES, C, ...)
%
% Input
%   TIME     1 x k times, evenly spaced [s]
%   SIGNAL   1 x k
%   RES      from qn.run, and
%   C        one observation row, or the number of a degree of freedom
%   Names and values
%     'seconds'  length of a window; its inverse is the distance of the frequencies (a sixteenth of the signal) [s]
%     'overlap'  share of a window that the next one has too, from 0 to below 1 (0.5)
%     'window'   'hann' or 'none' ('hann')
%     'mean'     'keep' or 'remove', of each window ('remove')
%
% Output
%   HERTZ    1 x n frequencies [Hz]
%   MIDDLE   1 x p times in the middle of the windows [s]
%   X        n x p complex amplitudes, one column per window, as from qn.spectrum [unit of the signal]
%
% Errors
%   qn:input  the lengths differ, a value is not finite, the times are not evenly spaced, a window is longer than the signal or
%             shorter than two samples, or a name is unknown
%
% Example
%   t = 0:1e-3:10;
%   [f, middle, x] = qn.spectrogram (t, sin (2 * pi * (5 + 4 * t) .* t), 'seconds', 0.5);
%
% See also qn.spectrum, qn.order_track, qn.plot.spectrogram, qn.plot.waterfall
function [hertz, middle, x] = spectrogram (time, signal, varargin)
  who = 'qn.spectrogram';
  if nargin < 2, error ('qn:input', '%s: times and a signal, or a result and a row expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('seconds', [], 'overlap', 0.5, 'window', 'hann', 'mean', 'remove'), varargin);
  [time, signal, h] = qn.impl.signal_of (who, time, signal);
  k = numel (time);
  if isempty (o.seconds), o.seconds = max (k / 16, 2) * h; end
  o.seconds = qn.impl.scalar (who, 'seconds', o.seconds, realmin ());
  o.overlap = qn.impl.scalar (who, 'overlap', o.overlap, 0);
  if o.overlap >= 1, error ('qn:input', '%s: "overlap" must be from 0 to below 1, got %g', who, o.overlap); end
  n = round (o.seconds / h);
  if n < 2 || n > k
    error ('qn:input', '%s: a window of %g s has %g samples; from 2 to the %d of the signal expected', who, o.seconds, n, k);
  end
  step = max (1, round (n * (1 - o.overlap)));
  first = 1:step:k - n + 1;
  pieces = signal(bsxfun (@plus, (0:n - 1), first.'));
  [hertz, x] = qn.spectrum ((0:n - 1) * h, reshape (pieces, numel (first), n), 'window', o.window, 'mean', o.mean);
  x = x.';
  middle = time(first) + (n - 1) / 2 * h;
end
