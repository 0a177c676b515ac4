% QN.VELOCITY  velocities and accelerations of the structure from a result
%
% Purpose
%   The module saves displacements. Velocities and accelerations follow from them, from the loads and from the forces of the
%   elements by the equation of motion and the scheme's own rule, without differences: they are those of the run, to rounding.
%
% Calls
%   [V, A] = qn.velocity (RES, C)
%
% Input
%   RES   from qn.run, with every step kept
%   C     observation rows or numbers of degrees of freedom, as for qn.displacement
%
% Output
%   V, A  p x k velocities [m/s] and accelerations [m/s^2]
%
% Errors
%   qn:input  the result keeps only some of the steps, or the run was cut short; C as for qn.displacement
%
% Example
%   model = qn.modal (1e4, 1);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 500, 'v0', 1));
%   [v, a] = qn.velocity (res, 1);
%
% See also qn.displacement, qn.energies, qn.plot.phase
function [v, a] = velocity (res, c)
  if nargin < 1, res = []; end
  qn.impl.expect_result_of ('qn.velocity', res, 'qn.run');
  if nargin < 2, error ('qn:input', 'qn.velocity: observation rows or degrees of freedom expected; see help qn.velocity'); end
  c = qn.impl.observation_rows (res.sim.model, c, 'qn.velocity: ');
  if nargout < 2
    v = qn.impl.rates (res, 'qn.velocity', c);
  else
    [v, a] = qn.impl.rates (res, 'qn.velocity', c);
  end
end
