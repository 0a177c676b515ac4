% QN.COMMAND  command columns: from forces on the structure to modal forces
%
% Purpose
%   Says where a load acts. B * f is the modal force of the forces f.
%
% Calls
%   B = qn.command (MODEL, DOFS)
%   B = qn.command (MODEL, DOFS, WEIGHTS)
%   B = qn.command (MODEL, ROWS)
%
% Input
%   as for qn.observe: a unit force on each degree of freedom, or one force pattern with these weights
%
% Output
%   B        m x p, one column a force [1/sqrt(kg)]
%
% Errors
%   qn:input  as for qn.observe
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2));
%   b = qn.command (model, 2);
%   static = (b ./ model.stiffness).' * b;      % flexibility at degree of freedom 2 [m/N]
%
% See also qn.observe, qn.base, qn.simulation
function b = command (model, varargin)
  if nargin < 1, model = []; end
  qn.impl.made_by ('qn.command', model, 'qn.modal');
  if nargin < 2, error ('qn:input', 'qn.command: degrees of freedom or rows expected; see help qn.command'); end
  b = qn.impl.observed ('qn.command', model, varargin{:}).';
end
