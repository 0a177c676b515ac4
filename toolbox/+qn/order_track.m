% QN.ORDER_TRACK  amplitudes of orders along a run-up
%
% Purpose
%   The order of a motion is its frequency over that of the rotation: unbalance has order 1 at every speed, a cracked shaft 2, a bearing
%   fractions. Each order is followed along the angle of the shaft, so that it does not smear while the speed changes.
%
% Calls
%   [AMPLITUDE, SPEED, MIDDLE] = qn.order_track (TIME, SIGNAL, ROTATION, ORDERS, ...)
%   [AMPLITUDE, SPEED, MIDDLE] = qn.order_track (RES, C, ROTATION, ORDERS, ...)
%
% Input
%   TIME       1 x k times, evenly spaced [s]
%   SIGNAL     1 x k
%   RES        from qn.run, and
%   C          one observation row, or the number of a degree of freedom
%   ROTATION   1 x k speeds of rotation, or one for all times, above 0 [Hz: turns a second]
%   ORDERS     list of n orders, above 0
%   Names and values
%     'turns'    length of a window in turns of the shaft; orders are told apart that differ by more than 2 / turns. Let it times
%                each order be whole, and at least 2 (8)
%     'overlap'  share of a window that the next one has too, from 0 to below 1 (0.5)
%
% Output
%   AMPLITUDE   n x p complex, one column per window: the motion is the real part of AMPLITUDE * exp (i order angle) summed over orders, the
%               angle being that since the first time [unit of the signal]
%   SPEED       1 x p speeds of rotation at the times MIDDLE [Hz]
%   MIDDLE      1 x p times at which half of a window's turns are done [s]
%
% Errors
%   qn:input  the lengths differ, a value is not finite, the times are not evenly spaced, the signal is shorter than a window, or
%             an order has fewer than four samples a period or fewer than two periods in a window
%
% Example
%   t = 0:1e-3:10;
%   rotation = 5 + 2 * t;
%   x = 3 * cos (2 * pi * (5 * t + t .^ 2));
%   [a, speed] = qn.order_track (t, x, rotation, [1 2]);
%   plot (speed, abs (a));
%
% See also qn.spectrogram, qn.spectrum, qn.plot.orders
function [amplitude, speed, middle] = order_track (time, signal, rotation, orders, varargin)
  who = 'qn.order_track';
  if nargin < 4, error ('qn:input', '%s: times, a signal, speeds and orders expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('turns', 8, 'overlap', 0.5), varargin);
  [time, signal, h] = qn.impl.signal_of (who, time, signal);
  k = numel (time);
  if isnumeric (rotation) && numel (rotation) == 1, rotation = rotation * ones (1, k); end
  rotation = reshape (qn.impl.numbers (who, 'ROTATION', rotation, k, 'above', 0, 'each', 'one a time'), 1, []);
  orders = reshape (qn.impl.numbers (who, 'ORDERS', orders, [], 'list', 'above', 0), [], 1);
  o.turns = qn.impl.scalar (who, 'turns', o.turns, realmin ());
  o.overlap = qn.impl.scalar (who, 'overlap', o.overlap, 0);
  if o.overlap >= 1, error ('qn:input', '%s: "overlap" must be from 0 to below 1, got %g', who, o.overlap); end
  if 4 * h * max (rotation) * max (orders) > 1
    error ('qn:input', '%s: order %g at %g Hz has %.2g samples a period; at least 4 are needed', who, max (orders), max (rotation), ...
           1 / (h * max (rotation) * max (orders)));
  end
  if min (orders) * o.turns < 2 * (1 - 1e-12)
    error ('qn:input', ['%s: order %g turns %.3g times in a window of "turns" %g; at least 2 are needed, or what stands still and what ' ...
                        'turns the other way counts as this order. Give "turns" of %g or more'], who, min (orders), ...
           min (orders) * o.turns, o.turns, 2 / min (orders));
  end
  turns = [0, cumsum((rotation(1:end - 1) + rotation(2:end)) / 2 * h)];
  if turns(end) < o.turns
    error ('qn:input', '%s: the signal has %g turns; a window of %g is expected to fit', who, turns(end), o.turns);
  end
  begins = 0:o.turns * (1 - o.overlap):turns(end) - o.turns;
  p = numel (begins);
  amplitude = zeros (numel (orders), p);
  for j = 1:p
    inside = turns >= begins(j) & turns <= begins(j) + o.turns;
    a = turns(inside);
    % Hann over the angle; each sample stands for the angle that passes during it.
    w = (1 - cos (2 * pi * (a - begins(j)) / o.turns)) .* rotation(inside);
    amplitude(:, j) = 2 * (exp (-2i * pi * orders * a) * (w .* signal(inside)).') / sum (w);
  end
  middle = interp1 (turns, time, begins + o.turns / 2);
  speed = interp1 (time, rotation, middle);
end
