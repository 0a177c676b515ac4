% QN.PLOT.ORBIT  orbit of a point: one displacement against another
%
% Purpose
%   Path of a shaft in its bearing, on axes of equal scale, with the clearance around it where it is given.
%
% Calls
%   qn.plot.orbit (RES, CX, CY)
%   qn.plot.orbit (RES, CX, CY, CLEARANCE)
%
% Input
%   RES         from qn.run
%   CX, CY      observation rows, or numbers of degrees of freedom, across and up
%   CLEARANCE   radius of a circle to draw [m]
%
% Errors
%   qn:input  the rows do not fit the model, or are not one row each; CLEARANCE is negative or not finite
%
% Example
%   model = qn.modal (1e4 * eye (2), eye (2), 'damping', 0.02);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'u0', [1e-3; 0], 'v0', [0; 0.05]));
%   fig = qn.plot.page (600, 600);
%   qn.plot.orbit (res, 1, 2, 1.2e-3);
%   close (fig);
%
% See also qn.plot.phase, qn.bearing
function orbit (res, cx, cy, clearance)
  if nargin < 3, error ('qn:input', 'qn.plot.orbit: a result and two observation rows expected; see help qn.plot.orbit'); end
  if nargin < 4, clearance = 0; end
  qn.impl.expect_result_of ('qn.plot.orbit', res, 'qn.run');
  x = one_row (res, cx, 'CX');
  y = one_row (res, cy, 'CY');
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

function x = one_row (res, c, name)
  row = qn.impl.observation_rows (res.sim.model, c, 'qn.plot.orbit: ', name);
  if size (row, 1) ~= 1, error ('qn:input', 'qn.plot.orbit: "%s" must be one observation row, got %d', name, size (row, 1)); end
  x = row * res.q;
end
