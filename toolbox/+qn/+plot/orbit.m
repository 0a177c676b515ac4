% QN.PLOT.ORBIT  orbit of a point: one displacement against another
%
% Purpose
%   Path of a shaft in its bearing, on axes of equal scale, with the clearance around it where it is given.
%
% Calls
%   qn.plot.orbit (RES, CX, CY)
%   qn.plot.orbit (RES, CX, CY, CLEARANCE)
%   qn.plot.orbit (X, Y)
%   qn.plot.orbit (X, Y, CLEARANCE)
%
% Input
%   RES         from qn.run
%   CX, CY      observation rows, or numbers of degrees of freedom, across and up
%   X, Y        1 x k displacements across and up instead [m]
%   CLEARANCE   radius of a circle to draw [m]
%
% Errors
%   qn:input  the rows do not fit the model, or are not one row each; the lengths differ; a value is not finite;
%             CLEARANCE is negative
%
% Example
%   model = qn.modal (1e4 * eye (2), eye (2), 'damping', 0.02);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'u0', [1e-3; 0], 'v0', [0; 0.05]));
%   fig = qn.plot.page (600, 600);
%   qn.plot.orbit (res, 1, 2, 1.2e-3);
%   close (fig);
%
% See also qn.full_spectrum, qn.plot.phase, qn.bearing
function orbit (res, cx, cy, clearance)
  if nargin < 2 || (isstruct (res) && nargin < 3)
    error ('qn:input', 'qn.plot.orbit: a result and two observation rows, or two displacements expected; see help qn.plot.orbit');
  end
  if nargin < 4, clearance = 0; end
  if isstruct (res)
    [unused, x, y] = qn.impl.across_and_up ('qn.plot.orbit', res, cx, cy);
  else
    if nargin > 2, clearance = cy; end
    x = qn.impl.numbers ('qn.plot.orbit', 'X', res, [], 'list');
    y = qn.impl.numbers ('qn.plot.orbit', 'Y', cx, numel (x), 'each', 'one for each of X');
  end
  clearance = qn.impl.scalar ('qn.plot.orbit', 'CLEARANCE', clearance, 0);
  [f, u] = qn.impl.prefixed ([x(:); y(:); clearance], 'm');
  k = qn.impl.thinned (numel (x), 20000);
  plot (f * x(k), f * y(k), '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  names = {};
  if clearance > 0
    a = linspace (0, 2 * pi, 200);
    hold on;
    plot (f * clearance * cos (a), f * clearance * sin (a), '-', 'color', qn.impl.colours (2), 'linewidth', qn.impl.width ());
    hold off;
    names = {'orbit', 'clearance'};
  end
  qn.impl.style ('Orbit', sprintf ('Displacement across [%s]', u), sprintf ('Displacement up [%s]', u), names);
  axis ('equal');
end
