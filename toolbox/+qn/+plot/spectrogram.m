% QN.PLOT.SPECTROGRAM  spectra along the time, in colours
%
% Purpose
%   The colours are decibels below the highest amplitude, dark for what is weak.
%
% Calls
%   qn.plot.spectrogram (HERTZ, MIDDLE, X, ...)
%
% Input
%   HERTZ     1 x n frequencies [Hz],
%   MIDDLE    1 x p times [s] and
%   X         n x p amplitudes, all from qn.spectrogram
%   Names and values
%     'hertz'   [low high] frequencies to show (all)
%     'range'   decibels that the colours cover (60)
%     'unit'    unit of the amplitudes ('m')
%
% Errors
%   qn:input  the lengths differ, a value is not finite, or 'hertz' leaves fewer than two frequencies
%
% Example
%   t = 0:1e-3:10;
%   [f, middle, x] = qn.spectrogram (t, sin (2 * pi * (5 + 4 * t) .* t), 'seconds', 0.5);
%   fig = qn.plot.page ();
%   qn.plot.spectrogram (f, middle, x, 'hertz', [0 120]);
%   close (fig);
%
% See also qn.spectrogram, qn.plot.waterfall
function spectrogram (hertz, middle, x, varargin)
  who = 'qn.plot.spectrogram';
  if nargin < 3, error ('qn:input', '%s: frequencies, times and amplitudes expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('hertz', [], 'range', 60, 'unit', 'm'), varargin);
  hertz = reshape (qn.impl.numbers (who, 'HERTZ', hertz, [], 'list', 'ascending'), 1, []);
  middle = reshape (qn.impl.numbers (who, 'MIDDLE', middle, [], 'list', 'ascending'), 1, []);
  x = abs (qn.impl.numbers (who, 'X', x, [numel(hertz), numel(middle)], 'complex', 'each', 'a row a frequency and a column a time'));
  o.range = qn.impl.scalar (who, 'range', o.range, realmin ());
  if isempty (o.hertz), o.hertz = hertz([1 end]); end
  o.hertz = reshape (qn.impl.numbers (who, 'hertz', o.hertz, 2, 'ascending', 'each', '[low high]'), 1, []);
  shown = hertz >= o.hertz(1) & hertz <= o.hertz(2);
  if sum (shown) < 2
    error ('qn:input', '%s: "hertz" from %g to %g shows %d of %d frequencies; at least two are needed', who, o.hertz, sum (shown), ...
           numel (hertz));
  end
  x = x(shown, :);
  top = max (x(:));
  [f, unit] = qn.impl.prefixed (top, o.unit);
  level = 20 * log10 (max (x / max (top, realmin ()), 10 ^ (-o.range / 20)));
  imagesc (middle, hertz(shown), level, [-o.range, 0]);
  axis ('xy');
  % From dark blue through green to yellow, lighter from step to step, also in grey.
  anchors = [68 1 84; 59 82 139; 33 145 140; 94 201 98; 253 231 37] / 255;
  colormap (gca (), interp1 (linspace (0, 1, 5), anchors, linspace (0, 1, 64)));
  colorbar ();
  qn.impl.style (sprintf ('Spectrogram, dB below %.3g %s', f * top, unit), 'Time [s]', 'Frequency [Hz]', {});
  set (gca (), 'layer', 'top', 'xgrid', 'off', 'ygrid', 'off');
end
