% QN.DISPLACEMENT  displacements of the structure from a result
%
% Purpose
%   C * q for every time of the result.
%
% Calls
%   U = qn.displacement (RES, C)
%   U = qn.displacement (RES, DOFS)
%
% Input
%   RES    from qn.run
%   C      p x m observation rows, from qn.observe; m modes
%   DOFS   distinct numbers of degrees of freedom instead: the same as qn.observe (MODEL, DOFS). As many of them as modes could be
%          a row of modal values too and are refused; write qn.observe. Give sparse (C) for a row that is meant.
%
% Output
%   U      p x k, one row per observation, one column per time of RES.time [m]
%
% Errors
%   qn:input  C has another number of columns than there are modes, a value that is not finite or a number outside 1 ... n, or may be
%             a row or a list of numbers
%
% Example
%   model = qn.modal (1e4 * [2 -1; -1 1], eye (2));
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 500, 'v0', [0; 1]));
%   tip = qn.displacement (res, 2);
%
% See also qn.velocity, qn.observe, qn.plot.series
function u = displacement (res, c)
  if nargin < 1, res = []; end
  qn.impl.expect_result_of ('qn.displacement', res, 'qn.run');
  if nargin < 2, error ('qn:input', 'qn.displacement: observation rows or degrees of freedom expected; see help qn.displacement'); end
  u = qn.impl.observation_rows (res.sim.model, c, 'qn.displacement: ') * res.q;
end
