% QN.PLOT.ORDERS  amplitudes of orders against the speed of rotation
%
% Purpose
%   Draws what qn.order_track gives, one line per order, into the current axes.
%
% Calls
%   qn.plot.orders (SPEED, AMPLITUDE, ORDERS)
%
% Input
%   SPEED       1 x p speeds of rotation [Hz] and
%   AMPLITUDE   n x p amplitudes in m, both from qn.order_track
%   ORDERS      the n orders
%
% Errors
%   qn:input  the lengths differ, or a value is not finite
%
% Example
%   t = 0:1e-3:10;
%   [a, speed] = qn.order_track (t, 3e-5 * cos (2 * pi * (5 * t + t .^ 2)), 5 + 2 * t, [1 2]);
%   fig = qn.plot.page ();
%   qn.plot.orders (speed, a, [1 2]);
%   close (fig);
%
% See also qn.order_track, qn.plot.spectrogram
function orders (speed, amplitude, orders)
  who = 'qn.plot.orders';
  if nargin < 3, error ('qn:input', '%s: speeds, amplitudes and orders expected; see help %s', who, who); end
  speed = reshape (qn.impl.numbers (who, 'SPEED', speed, [], 'list'), 1, []);
  orders = reshape (qn.impl.numbers (who, 'ORDERS', orders, [], 'list'), 1, []);
  amplitude = abs (qn.impl.numbers (who, 'AMPLITUDE', amplitude, [numel(orders), numel(speed)], 'complex', 'each', ...
                                    'a row an order and a column a speed'));
  [f, unit] = qn.impl.prefixed (amplitude(:), 'm');
  names = cell (1, numel (orders));
  for k = 1:numel (orders)
    plot (speed, f * amplitude(k, :), '-', 'color', qn.impl.colours (k), 'linewidth', qn.impl.width ());
    hold on;
    names{k} = sprintf ('order %g', orders(k));
  end
  hold off;
  qn.impl.style ('Orders', 'Speed of rotation [Hz]', sprintf ('Amplitude [%s]', unit), names);
end
