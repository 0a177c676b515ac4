% QN.COMMAND  older name of qn.load_at
%
% Purpose
%   Keeps scripts of version 0.1 running. Its name was too close to quarn ('command', ...).
%
% Calls
%   B = qn.command (MODEL, DOFS)
%   B = qn.command (MODEL, DOFS, WEIGHTS)
%   B = qn.command (MODEL, ROWS)
%
% Input
%   as for qn.load_at
%
% Output
%   B        m x p, one column per force [1/sqrt(kg)]
%
% Errors
%   qn:input  as for qn.load_at
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2));
%   isequal (qn.command (model, 2), qn.load_at (model, 2))      % true
%
% See also qn.load_at
function b = command (model, varargin)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.command', model, 'qn.modal');
  b = qn.load_at (model, varargin{:});
end
