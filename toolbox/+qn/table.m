% QN.TABLE  table law from measured points: sorted, repeated ones averaged, smoothed on request
%
% Purpose
%   Measured force curves come unsorted, with points that repeat, and with noise whose slopes change their sign; qn.law ('table') takes knots
%   that ascend. This makes the one from the other, and says what it did.
%
% Calls
%   qn.table (X, F, ...)
%   LAW = qn.table (X, F, ...)
%   [LAW, REPORT] = qn.table (X, F, ...)
%
% Input
%   X   n displacements, in any order [m]
%   F   n forces [N]
%   Names and values
%     'merge'      points that follow each other at no more than this distance are averaged to one (0: equal displacements) [m]
%     'monotonic'  'none', 'rising' or 'falling': forces that never fall (or rise), with the least sum of squared changes, by pooling
%                  neighbours that are out of order (pool adjacent violators; Ayer et al., 1955) ('none')
%     'plot'       true: draws the points and the knots into the current axes (false)
%
% Output
%   LAW      a law of the kind 'table'; without an output argument the report is printed
%   REPORT   struct: points (n), sorted (points that came before a smaller one), averaged (points that were averaged with others), pooled
%            (knots whose force smoothing changed), change (largest change of a force by averaging or smoothing [N]), at (where it is
%            [m]), knots (of the law), text
%
% Errors
%   qn:input  the lengths differ, a value is not finite, 'merge' leaves one point of several, or an option has a value that makes no sense
%
% Example
%   x = [0 1 2 2 3 4] * 1e-3;
%   f = [0 10 21 19 18 40];
%   law = qn.table (x, f, 'monotonic', 'rising');
%   qn.describe (law)
%
% See also qn.law, qn.describe, qn.bearing, qn.check
function [law, report] = table (x, f, varargin)
  who = 'qn.table';
  if nargin < 2, error ('qn:input', '%s: displacements and forces expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('merge', 0, 'monotonic', 'none', 'plot', false), varargin);
  x = reshape (qn.impl.numbers (who, 'X', x, [], 'list'), [], 1);
  f = reshape (qn.impl.numbers (who, 'F', f, numel (x), 'each', 'one a displacement'), [], 1);
  o.merge = qn.impl.scalar (who, 'merge', o.merge, 0);
  o.plot = qn.impl.flag (who, 'plot', o.plot);
  sign_of = [];
  if ischar (o.monotonic), sign_of = find (strcmp (o.monotonic, {'falling', 'none', 'rising'})) - 2; end
  if isempty (sign_of), error ('qn:input', '%s: "monotonic" is ''none'', ''rising'' or ''falling''', who); end
  n = numel (x);
  report = struct ('points', n, 'sorted', sum (diff (x) < 0), 'averaged', 0, 'pooled', 0, 'change', 0, 'at', x(1), 'knots', 0, 'text', '');
  [xs, order] = sort (x);
  fs = f(order);
  group = cumsum ([1; diff(xs) > o.merge]);
  if group(end) == 1 && xs(1) < xs(n)
    error ('qn:input', '%s: "merge" of %g m takes all %d points, from %g to %g m, for one; give a shorter distance', who, o.merge, n, ...
           xs(1), xs(n));
  end
  weight = accumarray (group, 1);
  knots = accumarray (group, xs) ./ weight;
  % A mean of equal numbers is the number, to the last bit.
  lone = weight(group) == 1;
  knots(group(lone)) = xs(lone);
  same = accumarray (group, xs, [], @max) == accumarray (group, xs, [], @min);
  first = [1; find(diff (group) > 0) + 1];
  knots(same) = xs(first(same));
  forces = accumarray (group, fs) ./ weight;
  forces(group(lone)) = fs(lone);
  report.averaged = sum (~lone);
  if sign_of ~= 0
    smooth = sign_of * qn.impl.pooled (sign_of * forces, weight);
    report.pooled = sum (smooth ~= forces);
    forces = smooth;
  end
  [report.change, k] = max (abs (fs - forces(group)));
  report.at = xs(k);
  report.knots = numel (knots);
  report.text = in_words (report, o);
  law = qn.law ('table', 'displacement', knots, 'force', forces);
  if o.plot, draw (x, f, knots, forces); end
  if nargout == 0
    fprintf ('%s\n', report.text);
    clear law
  end
end

function text = in_words (r, o)
  text = sprintf ('%d points, %d knots', r.points, r.knots);
  if r.sorted > 0, text = sprintf ('%s; sorted: %d came before a smaller one', text, r.sorted); end
  if r.averaged > 0, text = sprintf ('%s; %d averaged with others at their place', text, r.averaged); end
  if ~strcmp (o.monotonic, 'none'), text = sprintf ('%s; made %s: %d forces changed', text, o.monotonic, r.pooled); end
  if r.change > 0, text = sprintf ('%s; largest change %.3g N, at %.4g m', text, r.change, r.at); end
end

function draw (x, f, knots, forces)
  [fx, ux] = qn.impl.prefixed (x, 'm');
  [ff, uf] = qn.impl.prefixed (f, 'N');
  plot (fx * x, ff * f, 'o', 'color', qn.impl.colours (2), 'markersize', 4);
  hold on;
  plot (fx * knots, ff * forces, '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  hold off;
  qn.impl.style ('Table from points', sprintf ('Displacement [%s]', ux), sprintf ('Force [%s]', uf), {'measured', 'table'});
end
