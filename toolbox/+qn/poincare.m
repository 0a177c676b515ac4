% QN.POINCARE  a motion once in every period (Poincare section)
%
% Purpose
%   A motion with the period of its load has one point, one that repeats after n periods has n, chaos a cloud. Values between the samples
%   are those of a cubic spline.
%
% Calls
%   [POINTS, AT] = qn.poincare (TIME, SIGNALS, PERIOD, ...)
%   [POINTS, AT] = qn.poincare (RES, C, PERIOD, ...)
%
% Input
%   TIME      1 x k times, evenly spaced [s]
%   SIGNALS   p x k, one row per signal, such as displacement and velocity
%   RES       from qn.run, with every step kept, and
%   C         p observation rows, or numbers of degrees of freedom
%   PERIOD    of the load [s]
%   Names and values
%     'phase'   part of the period at which to look, from 0 to below 1, counted from the first of the times (0)
%     'skip'    periods at the beginning to leave out, until the motion has settled (0)
%
% Output
%   POINTS    p x n, one column per period; from a result 2 p x n: displacements, then velocities
%   AT        1 x n times [s]
%
% Errors
%   qn:input  the lengths differ, a value is not finite, the times are not evenly spaced, the period has fewer than four samples, or
%             'skip' leaves nothing
%
% Example
%   t = 0:1e-3:10;
%   points = qn.poincare (t, cos (2 * pi * t) + 0.2 * cos (pi * t), 1);
%   unique (round (1e6 * points) / 1e6)
%
% See also qn.plot.phase, qn.plot.poincare, qn.plot.bifurcation, qn.sweep
function [points, at] = poincare (time, signals, period, varargin)
  who = 'qn.poincare';
  if nargin < 3, error ('qn:input', '%s: times, signals and a period, or a result, rows and a period expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('phase', 0, 'skip', 0), varargin);
  if isstruct (time)
    res = time;
    qn.impl.expect_result_of (who, res, 'qn.run');
    c = qn.impl.observation_rows (res.sim.model, signals, [who ': ']);
    signals = [c * res.q; qn.impl.rates(res, who, c)];
    time = res.time;
  end
  [h, time] = qn.impl.spacing (who, time);
  signals = qn.impl.numbers (who, 'SIGNALS', signals, [NaN numel(time)], 'each', 'one column a time');
  period = qn.impl.scalar (who, 'PERIOD', period, realmin ());
  if period < 4 * h
    error ('qn:input', '%s: a period of %g s has %.2g samples; at least 4 are needed', who, period, period / h);
  end
  o.phase = qn.impl.scalar (who, 'phase', o.phase, 0);
  if o.phase >= 1, error ('qn:input', '%s: "phase" must be from 0 to below 1, got %g', who, o.phase); end
  o.skip = qn.impl.numbers (who, 'skip', o.skip, [1 1], 'from', 0, 'whole');
  at = time(1) + (o.skip + o.phase) * period:period:time(end) + 1e-9 * h;
  at = min (at, time(end));
  if isempty (at)
    error ('qn:input', '%s: %g periods of %g s are left out of %g s; nothing remains', who, o.skip + o.phase, period, time(end) - time(1));
  end
  points = zeros (size (signals, 1), numel (at));
  for k = 1:size (signals, 1), points(k, :) = interp1 (time(:).', signals(k, :), at, 'spline'); end
end
