% QN.DISPLACEMENT  displacements of the structure from a result
%
% Purpose
%   C * q for every time of the result.
%
% Calls
%   U = qn.displacement (RES, C)
%   U = qn.displacement (RES, DOF)
%
% Input
%   RES    from qn.run
%   C      p x m observation rows, from qn.observe; m modes
%   DOF    number of one degree of freedom instead; in a model of one mode and several degrees of freedom it takes qn.observe
%
% Output
%   U      p x k, one row an observation, one column a time of RES.time [m]
%
% Errors
%   qn:input  C has another number of columns than there are modes
%
% Example
%   model = qn.modal (1e4 * [2 -1; -1 1], eye (2));
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 500, 'v0', [0; 1]));
%   tip = qn.displacement (res, 2);
%
% See also qn.velocity, qn.observe, qn.plot.series
function u = displacement (res, c)
  u = qn.impl.looked_at (res.sim.model, c) * res.q;
end
