% QN.BASE  modal force of a base acceleration
%
% Purpose
%   A structure on a moving base, seen from the base, is loaded with -M * PUSH * acceleration.
%
% Calls
%   B = qn.base (MODEL, PUSH)
%
% Input
%   MODEL   from qn.modal, n degrees of freedom, m modes
%   PUSH    n x 1: displacement of every degree of freedom when the base moves by 1 (1 along the direction, 0 otherwise)
%
% Output
%   B       m x 1 [sqrt(kg)]: times the base acceleration [m/s^2] it is the modal force
%
% Errors
%   qn:input  PUSH has not n values, or one is not finite
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2), 'damping', 0.02);
%   b = qn.base (model, [1; 1]);
%   effective_mass = b .^ 2;
%
% See also qn.load_at, qn.simulation
function b = base (model, push)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.base', model, 'qn.modal');
  n = size (model.shapes, 1);
  if nargin < 2, push = []; end
  push = qn.impl.numbers ('qn.base', 'PUSH', push, n, 'each', 'one a degree of freedom');
  b = -(model.shapes.' * (model.M * push(:)));
end
