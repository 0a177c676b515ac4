% QN.PROJECT  projects a sparse matrix onto bases, with the module's own products
%
% Purpose
%   P = A.' * K * B: modal masses, stiffnesses and dampings.
%
% Calls
%   P = qn.project (A, K)
%   P = qn.project (A, K, B)
%
% Input
%   A   basis, n x p, real or complex, one vector per column
%   K   matrix, n x n (sparse, full, or as qn.pack gives it, not transposed) [N/m, kg, N s/m]
%   B   basis, n x q; without it, A
%
% Output
%   P   p x q [unit of K times the units of the bases]
%
% Errors
%   qn:input  the sizes do not fit, a value is not finite, or bases of different width are complex
%
% Example
%   k = sparse ([2 -1; -1 2]);
%   [phi, lambda] = eig (full (k));
%   qn.project (phi, k)                  % diagonal: the eigenvalues
%
% See also qn.modal, qn.pack
function p = project (a, k, b)
  if nargin < 2, error ('qn:input', 'qn.project: a basis and a matrix expected; see help qn.project'); end
  if nargin < 3, b = a; end
  a = qn.impl.numbers ('qn.project', 'A', a, [NaN NaN], 'complex');
  b = qn.impl.numbers ('qn.project', 'B', b, [NaN NaN], 'complex');
  if ~isstruct (k), k = qn.impl.numbers ('qn.project', 'K', k, [NaN NaN]); end
  if isstruct (k), n = k.dims; else, n = size (k); end
  if size (a, 1) ~= n(1) || size (b, 1) ~= n(2) || n(1) ~= n(2)
    error ('qn:input', 'qn.project: "K" must be %d x %d between bases of %d and %d rows, got %d x %d', size (a, 1), ...
           size (b, 1), size (a, 1), size (b, 1), n(1), n(2));
  end
  % The module takes no matrix without entries.
  if ~isstruct (k) && nnz (k) == 0
    p = zeros (size (a, 2), size (b, 2));
    return
  end
  if ~isstruct (k), k = qn.pack (k); end
  if isempty (k.pr)
    p = zeros (size (a, 2), size (b, 2));  % the module's command needs an entry
  elseif size (a, 2) == size (b, 2)
    p = quarn ('abc', full (a), k, full (b), int32 ([1 0 0]));
  elseif isreal (a)
    p = quarn ('c<-a''*b', full (a), k) * b;
  else
    error ('qn:input', 'qn.project: complex bases must have the same width, got %d and %d', size (a, 2), size (b, 2));
  end
end
