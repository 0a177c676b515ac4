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
%   C        p x m, one row an observation [1/sqrt(kg)]
%
% Errors
%   qn:input  a number outside 1 ... n, or weights of another length
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2));
%   tip = qn.observe (model, 2);
%   stretch = qn.observe (model, [2 1], [1 -1]);
%
% See also qn.command, qn.modal, qn.simulation
function c = observe (model, dofs, weights)
  if nargin < 1, model = []; end
  qn.impl.made_by ('qn.observe', model, 'qn.modal');
  n = size (model.shapes, 1);
  if nargin < 2, error ('qn:input', 'qn.observe: numbers of degrees of freedom, from 1 to %d, expected; see help qn.observe', n); end
  if nargin < 3 && n > 1 && size (dofs, 2) == n && (size (dofs, 1) > 1 || issparse (dofs))
    c = full (dofs * model.shapes);
    return
  end
  if isempty (dofs) || any (dofs(:) < 1 | dofs(:) > n | dofs(:) ~= fix (dofs(:)))
    error ('qn:input', 'qn.observe: degrees of freedom are numbered from 1 to %d, got %s', n, mat2str (dofs));
  end
  c = model.shapes(dofs, :);
  if nargin > 2
    if numel (weights) ~= numel (dofs)
      error ('qn:input', 'qn.observe: %d weights expected, got %d', numel (dofs), numel (weights));
    end
    c = reshape (weights, 1, []) * c;
  end
end
