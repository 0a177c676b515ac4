% QN.PACK  matrix in the form that the module reads: column-compressed, 32-bit indices from 0
%
% Purpose
%   The module's sparse kernels take 32-bit indices; the host's own sparse matrices are refused. This function converts.
%
% Calls
%   S = qn.pack (A)
%   S = qn.pack (A, 'transposed')
%
% Input
%   A   real sparse or full matrix, m x n
%   'transposed' stores the rows of A as lines and flags the structure so: the form in which observation and command matrices of
%       nonlinear elements are given
%
% Output
%   S   struct: ir    int32 column, position of every stored value in its line, from 0
%               jc    int32 column, first stored value of every line, and the number of stored values
%               pr    column of stored values [unit of A]
%               dims  [m n]
%               trans 0, or 1 for the transposed form
%
% Errors
%   qn:input  A is not a matrix of finite real numbers, or has more stored values than 32-bit indices can count
%
% Example
%   s = qn.pack (sparse ([4 0; 1 5]));
%   y = zeros (2, 1);
%   quarn ('tbbp', s, [1; 1], y);        % y = A.' * x
%
% See also qn.unpack, qn.mmread, v_handle
function s = pack (a, form)
  if nargin < 1, error ('qn:input', 'qn.pack: a matrix expected; see help qn.pack'); end
  if islogical (a), a = double (a); end
  a = qn.impl.numbers ('qn.pack', 'A', a, [NaN NaN], 'empty');
  transposed = nargin > 1;
  if transposed && ~strcmp (form, 'transposed')
    error ('qn:input', 'qn.pack: the second argument can only be ''transposed''');
  end
  stored = sparse (a);
  if transposed, stored = stored.'; end
  if nnz (stored) > double (intmax ('int32')), error ('qn:input', 'qn.pack: more stored values than 32-bit indices can count'); end
  [i, j, x] = find (stored);
  jc = cumsum ([0; accumarray(j(:), 1, [size(stored, 2), 1])]);
  s = struct ('ir', int32 (i(:) - 1), 'jc', int32 (jc(:)), 'pr', x(:), 'dims', size (a), 'trans', double (transposed));
end
