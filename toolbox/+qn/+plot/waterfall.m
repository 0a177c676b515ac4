% QN.PLOT.WATERFALL  spectra one behind another
%
% Purpose
%   Shows how the frequencies in a signal change: over the time of one run-up, or from run to run.
%
% Calls
%   qn.plot.waterfall (TIME, SIGNAL, ...)
%   qn.plot.waterfall (HERTZ, SPECTRA, 'along', VALUES, ...)
%
% Input
%   TIME      1 x k times, evenly spaced [s], and
%   SIGNAL    1 x k; it is cut into overlapping parts of one length, or
%   HERTZ     1 x n frequencies [Hz], and
%   SPECTRA   p x n amplitudes, one row per spectrum, with the VALUES (p) that belong to them: speeds, loads
%   Names and values
%     'parts'   number of parts of the signal (24)
%     'hertz'   [low high] frequencies to show (all)
%     'along'   values of the spectra
%     'label'   text for the axis along them ('Time [s]')
%     'unit'    unit of the signal ('m')
%
% Errors
%   qn:input  lengths differ, a value is not finite, times or frequencies do not ascend, or 'hertz' leaves fewer than two to show
%
% Example
%   t = 0:1e-3:10;
%   fig = qn.plot.page ();
%   qn.plot.waterfall (t, sin (2 * pi * (5 + 4 * t) .* t), 'hertz', [0 120]);
%   close (fig);
%
% See also qn.spectrum, qn.plot.series
function waterfall (x, y, varargin)
  who = 'qn.plot.waterfall';
  o = qn.impl.options (who, struct ('parts', 24, 'hertz', [], 'along', [], 'label', 'Time [s]', 'unit', 'm'), varargin);
  if nargin < 2, error ('qn:input', '%s: times and a signal, or frequencies and spectra expected; see help %s', who, who); end
  if isempty (o.along)
    [unused, x] = qn.impl.spacing (who, x);
    y = qn.impl.numbers (who, 'SIGNAL', y, numel (x), 'each', 'one a time');
    o.parts = qn.impl.count (who, 'parts', o.parts, floor (numel (x) / 2));
    [x, y, o.along] = parts (x, reshape (y, 1, []), o.parts);
  else
    x = reshape (qn.impl.numbers (who, 'HERTZ', x, [], 'list', 'ascending'), 1, []);
    o.along = qn.impl.numbers (who, 'along', o.along, [], 'list');
    y = qn.impl.numbers (who, 'SPECTRA', y, [numel(o.along), numel(x)], 'complex', 'each', 'one row for each of "along"');
  end
  if isempty (o.hertz), o.hertz = x([1 end]); end
  o.hertz = reshape (qn.impl.numbers (who, 'hertz', o.hertz, 2, 'ascending', 'each', '[low high]'), 1, []);
  shown = x >= o.hertz(1) & x <= o.hertz(2);
  if sum (shown) < 2
    error ('qn:input', '%s: "hertz" from %g to %g shows %d of %d frequencies from %g to %g Hz; at least two are needed', who, ...
           o.hertz, sum (shown), numel (x), x([1 end]));
  end
  [f, unit] = qn.impl.prefixed (y(:), o.unit);
  x = x(shown);
  y = f * abs (y(:, shown));
  % From the back to the front, each line hiding what is behind it; the lines are in a plane, so that it prints anywhere.
  [along, order] = sort (o.along(:), 'descend');
  top = max (y(:)) + (max (y(:)) == 0);
  rise = max (along(1) - along(end), eps) * 4 / max (numel (along) - 1, 4) / top;
  for k = 1:numel (along)
    z = along(k) + rise * y(order(k), :);
    patch ([x(1), x, x(end)], [along(k), z, along(k)], [1 1 1], 'edgecolor', 'none');
    hold on;
    plot (x, z, '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  end
  hold off;
  axis ([x([1 end]), along(end), along(1) + 1.05 * rise * top]);
  qn.impl.style (sprintf ('Waterfall, highest peak %.3g %s', top, unit), 'Frequency [Hz]', o.label, {});
end

function [hertz, spectra, along] = parts (time, signal, count)
  n = numel (signal);
  width = floor (2 * n / (count + 1));
  spectra = [];
  along = zeros (count, 1);
  for k = 1:count
    piece = round ((k - 1) * (n - width) / max (count - 1, 1)) + (1:width);
    [hertz, s] = qn.spectrum (time(piece), signal(piece));
    spectra(k, :) = abs (s);
    along(k) = mean (time(piece));
  end
end
