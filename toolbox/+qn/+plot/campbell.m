% QN.PLOT.CAMPBELL  Campbell diagram: whirl speeds over the speed of rotation
%
% Purpose
%   One line a mode: blue for forward whirl, orange for backward, grey where the direction is not known or the orbits are lines. Dashed
%   lines are the orders, circles the critical speeds, crosses the speeds where a mode loses its damping.
%
% Calls
%   qn.plot.campbell (D)
%   qn.plot.campbell (D, NAME, VALUE, ...)
%
% Input
%   D   from qn.campbell
%   Names and values
%     'show'   'whirl' frequencies in Hz or 'damping' ratios in percent ('whirl')
%     'modes'  rows to draw (all)
%     'top'    upper end of the axis, in Hz or percent (that of the lines); above it is room for the legend
%
% Errors
%   qn:input  D is no result of qn.campbell, a row is not there, or a value is not finite
%
% Example
%   r = qn.rotor ('nodes', 0:0.25:1.5, 'outer', 0.05, 'cylinders', [3 0.07 0.28 0.05 7810], 'bearings', {1, 1e6, 100; 7, 1e6, 100});
%   fig = qn.plot.page ();
%   qn.plot.campbell (qn.campbell (r, (0:500:4000) * pi / 30), 'top', 150);
%   close (fig);
%
% See also qn.campbell, qn.plot.waterfall
function campbell (d, varargin)
  who = 'qn.plot.campbell';
  if nargin < 1 || ~isstruct (d) || ~all (isfield (d, {'whirl', 'speed', 'critical', 'damping'}))
    error ('qn:input', '%s expects the result of qn.campbell; see help %s', who, who);
  end
  count = size (d.whirl, 1);
  o = qn.impl.options (who, struct ('show', 'whirl', 'modes', 1:count, 'top', []), varargin);
  o.modes = reshape (qn.impl.numbers (who, 'modes', o.modes, [], 'list', 'whole', 'from', 1, 'to', count), 1, []);
  switch o.show
    case 'whirl'
      y = d.whirl / (2 * pi);
      [heading, up] = deal ('Campbell diagram', 'Whirl frequency [Hz]');
    case 'damping'
      y = 100 * d.damping;
      [heading, up] = deal ('Damping of the modes', 'Damping ratio [%]');
    otherwise
      error ('qn:input', '%s: "show" is ''whirl'' or ''damping'', not ''%s''', who, o.show);
  end
  top = 1.05 * max (max (y(o.modes, :)));
  if ~isempty (o.top), top = qn.impl.scalar (who, 'top', o.top); end
  low = min (0, 1.05 * min (min (y(o.modes, :))));
  x = d.speed * 30 / pi;
  wide = qn.impl.width ();
  colour = {[0.5 0.5 0.5], qn.impl.colours(1), qn.impl.colours(2)};
  names = {'planar', 'forward', 'backward'};
  first = cell (1, 3);
  for mode = o.modes
    sense = d.direction(mode, :);
    kind = 1 + (sense > 0.02) + 2 * (sense < -0.02);
    for j = unique (kind)
      part = y(mode, :);
      % A line goes on to the next speed, where the sense may be another one.
      part(kind ~= j & [0, kind(1:end - 1)] ~= j) = NaN;
      h = plot (x, part, '-', 'color', colour{j}, 'linewidth', wide);
      if isempty (first{j}), first{j} = h; end
      hold on;
    end
  end
  if strcmp (o.show, 'whirl')
    orders = unique ([1, d.critical.order]);
    for order = orders, plot (x, order * abs (x) / 60, '--', 'color', [0 0 0]); end
    mark (d.critical, 'whirl', o.modes, 'o', top);
    mark (d.unstable, 'whirl', o.modes, 'x', top);
  else
    plot (x([1 end]), [0 0], '-', 'color', [0 0 0]);
    mark (d.unstable, 'none', o.modes, 'x', top);
  end
  hold off;
  if ~(top > low), top = low + 1; end
  axis ([x([1 end]), low, top]);
  there = ~cellfun (@isempty, first);
  qn.impl.style (heading, 'Speed of rotation [rpm]', up, {});
  if any (there(2:3))
    set (gca (), 'ylim', [low, top + 0.15 * (top - low)]);
    legend ([first{there}], names(there), 'location', 'north', 'orientation', 'horizontal');
    legend ('boxoff');
  end
end

function mark (list, what, modes, sign, top)
  for c = list
    if ~any (c.mode == modes), continue, end
    y = 0;
    if strcmp (what, 'whirl'), y = c.whirl / (2 * pi); end
    if y > top, continue, end
    plot (c.speed * 30 / pi, y, sign, 'color', [0 0 0], 'markersize', 8, 'linewidth', 2);
  end
end
