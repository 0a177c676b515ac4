% QN.PLOT.PHASE  phase plane: velocity against displacement
%
% Purpose
%   Draws into the current axes. With a period it also marks where the motion is once in every period (Poincare section).
%
% Calls
%   qn.plot.phase (RES, C)
%   qn.plot.phase (RES, C, PERIOD)
%
% Input
%   RES      from qn.run, with every step kept
%   C        observation row, or the number of a degree of freedom as for qn.displacement
%   PERIOD   period of the load [s]
%
% Errors
%   qn:input  C has more than one row, PERIOD is not above 0, or the result keeps only some of the steps
%
% Example
%   model = qn.modal (1e4, 1, 'damping', 0.02);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'v0', 1));
%   fig = qn.plot.page ();
%   qn.plot.phase (res, 1);
%   close (fig);
%
% See also qn.velocity, qn.plot.orbit, qn.plot.series
function phase (res, c, period)
  who = 'qn.plot.phase';
  if nargin < 2, error ('qn:input', '%s: a result and an observation row expected; see help %s', who, who); end
  qn.impl.expect_result_of (who, res, 'qn.run');
  c = qn.impl.observation_rows (res.sim.model, c, [who ': ']);
  if nargin > 2, period = qn.impl.scalar (who, 'PERIOD', period, realmin ()); end
  x = c * res.q;
  v = qn.impl.rates (res, 'qn.plot.phase', c);
  if size (x, 1) ~= 1, error ('qn:input', 'qn.plot.phase: one observation row expected, got %d', size (x, 1)); end
  [fx, ux] = qn.impl.prefixed (x, 'm');
  [fv, uv] = qn.impl.prefixed (v, 'm/s');
  k = qn.impl.thinned (numel (x), 20000);
  plot (fx * x(k), fv * v(k), '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  names = {};
  if nargin > 2
    at = res.time(1):period:res.time(end);
    hold on;
    plot (fx * interp1 (res.time, x, at), fv * interp1 (res.time, v, at), 'o', 'color', qn.impl.colours (2), 'markersize', 4, ...
          'markerfacecolor', qn.impl.colours (2));
    hold off;
    names = {'motion', 'once in a period'};
  end
  qn.impl.style ('Phase plane', sprintf ('Displacement [%s]', ux), sprintf ('Velocity [%s]', uv), names);
end
