% QN.OBSERVE  observation rows: from modal coordinates to displacements of the structure
%
% Purpose
%   Says what a nonlinear element or a plot looks at. C * q is the observed displacement when q are the modal coordinates. The
%   force of an element acts back through the same rows.
%
% Calls
%   C = qn.observe (MODEL, DOFS)
%   C = qn.observe (MODEL, DOFS, WEIGHTS)
%   C = qn.observe (MODEL, ROWS)
%
% Input
%   MODEL    from qn.modal, n degrees of freedom, m modes
%   DOFS     numbers of degrees of freedom, from 1
%   WEIGHTS  as many weights: one row, the weighted sum. [1 -1] gives a relative displacement.
%   ROWS     p x n observation matrix of the physical model instead of the numbers: sparse, or with p > 1
%
% Output
%   C        p x m, one row per observation [1/sqrt(kg)]
%
% Errors
%   qn:input  a number outside 1 ... n, weights of another length, or a value that is not finite
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2));
%   tip = qn.observe (model, 2);
%   stretch = qn.observe (model, [2 1], [1 -1]);
%
% See also qn.load_at, qn.modal, qn.simulation
function c = observe (model, varargin)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.observe', model, 'qn.modal');
  n = size (model.shapes, 1);
  if nargin < 2, error ('qn:input', 'qn.observe: numbers of degrees of freedom, from 1 to %d, expected; see help qn.observe', n); end
  c = qn.impl.observed ('qn.observe', model, varargin{:});
end
