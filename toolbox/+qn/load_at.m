% QN.LOAD_AT  load columns: from forces on the structure to modal forces
%
% Purpose
%   Says where a load acts. B * f is the modal force of the forces f.
%
% Calls
%   B = qn.load_at (MODEL, DOFS)
%   B = qn.load_at (MODEL, DOFS, WEIGHTS)
%   B = qn.load_at (MODEL, ROWS)
%
% Input
%   as for qn.observe: a unit force on each degree of freedom, or one force pattern with these weights
%
% Output
%   B        m x p, one column per force [1/sqrt(kg)]
%
% Errors
%   qn:input  as for qn.observe
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2));
%   b = qn.load_at (model, 2);
%   static = (b ./ model.stiffness).' * b;      % flexibility at degree of freedom 2 [m/N]
%
% See also qn.observe, qn.base, qn.simulation
function b = load_at (model, varargin)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.load_at', model, 'qn.modal');
  if nargin < 2, error ('qn:input', 'qn.load_at: degrees of freedom or rows expected; see help qn.load_at'); end
  b = qn.impl.observed ('qn.load_at', model, varargin{:}).';
end
