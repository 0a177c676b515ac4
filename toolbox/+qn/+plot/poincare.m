% QN.PLOT.POINCARE  points of a Poincare section
%
% Purpose
%   Draws velocities against displacements, once in every period, into the current axes.
%
% Calls
%   qn.plot.poincare (POINTS)
%
% Input
%   POINTS   2 x n, displacements [m] and velocities [m/s], from qn.poincare
%
% Errors
%   qn:input  POINTS has other than two rows, or a value is not finite
%
% Example
%   t = 0:1e-3:20;
%   points = qn.poincare (t, [cos(2.1 * pi * t); sin(2.1 * pi * t)], 1);
%   fig = qn.plot.page ();
%   qn.plot.poincare (points);
%   close (fig);
%
% See also qn.poincare, qn.plot.phase, qn.plot.bifurcation
function poincare (points)
  who = 'qn.plot.poincare';
  if nargin < 1, error ('qn:input', '%s: points expected; see help %s', who, who); end
  points = qn.impl.numbers (who, 'POINTS', points, [2 NaN], 'each', 'displacements and velocities');
  [fx, ux] = qn.impl.prefixed (points(1, :), 'm');
  [fv, uv] = qn.impl.prefixed (points(2, :), 'm/s');
  plot (fx * points(1, :), fv * points(2, :), 'o', 'color', qn.impl.colours (1), 'markersize', 3, 'markerfacecolor', qn.impl.colours (1));
  qn.impl.style ('Poincare section', sprintf ('Displacement [%s]', ux), sprintf ('Velocity [%s]', uv), {});
end
