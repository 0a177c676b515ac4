% QN.UNPACK  host's sparse matrix from the module's structure
%
% Purpose
%   The inverse of qn.pack.
%
% Calls
%   A = qn.unpack (S)
%
% Input
%   S   structure as qn.pack gives it, flagged transposed or not; a structure without "ir" is a full matrix; a v_handle stands for
%       the matrix in its field "file"; a matrix is taken as it is. A first index of -1 marks a diagonal matrix, as the module
%       itself leaves it in the value of a matrix handle.
%
% Output
%   A   sparse matrix, m x n [unit of S.pr]
%
% Errors
%   qn:input  S has no field "pr", or its arrays do not fit together
%
% Example
%   s = qn.pack (sparse ([4 0; 1 5]), 'transposed');
%   full (qn.unpack (s))
%
% See also qn.pack, qn.describe
function a = unpack (s)
  if nargin < 1, error ('qn:input', 'qn.unpack: a matrix structure expected; see help qn.unpack'); end
  if isa (s, 'v_handle'), s = get (s, 'file'); end
  if isnumeric (s)
    a = sparse (qn.impl.numbers ('qn.unpack', 'S', s, [NaN NaN], 'complex', 'empty'));
    return
  end
  if ~isstruct (s) || ~isfield (s, 'pr')
    error ('qn:input', 'qn.unpack: a structure with the field "pr" expected, got an array of class %s', class (s));
  end
  if isfield (s, 'dims')
    dims = reshape (fix (s.dims(1:2)), 1, 2);
  else
    dims = (size (s.jc, 1) - 1) * [1 1];
  end
  transposed = isfield (s, 'trans') && ~isempty (s.trans) && s.trans(1) ~= 0;
  if ~isfield (s, 'ir') || isempty (s.ir) && numel (s.pr) == prod (dims)
    a = sparse (reshape (s.pr, dims));
    return
  end
  lines = dims(2);
  if transposed, lines = dims(1); end
  jc = double (s.jc(:));
  ir = double (s.ir(:));
  if numel (jc) < lines + 1 || jc(lines + 1) > min (numel (ir), numel (s.pr))
    error ('qn:input', 'qn.unpack: %d lines expected, "jc" has %d values and points to %d stored values of %d', lines, numel (jc), ...
           max ([jc; 0]), numel (s.pr));
  end
  n = jc(lines + 1);
  if n > 0 && ir(1) == -1, ir = (0:n - 1).'; end
  line = zeros (n, 1);
  for k = 1:lines, line(jc(k) + 1:jc(k + 1)) = k; end
  if transposed
    a = sparse (line, ir(1:n) + 1, s.pr(1:n), dims(1), dims(2));
  else
    a = sparse (ir(1:n) + 1, line, s.pr(1:n), dims(1), dims(2));
  end
end
