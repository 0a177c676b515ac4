% QN.MMWRITE  writes a matrix to a Matrix Market file
%
% Purpose
%   The inverse of qn.mmread: every value survives to the last bit.
%
% Calls
%   qn.mmwrite (FILE, A)
%   qn.mmwrite (FILE, A, COMMENT)
%
% Input
%   FILE      name of the file; an existing one is replaced
%   A         real or complex matrix; sparse ones become "coordinate", full ones "array". Of a real symmetric matrix the lower
%             triangle is written.
%   COMMENT   line of text for the head of the file, such as the units
%
% Errors
%   qn:input  A is not a matrix of finite numbers, or the file cannot be written
%
% Example
%   file = [tempname() '.mtx'];
%   qn.mmwrite (file, sparse ([2 -1; -1 2]), 'stiffness [N/m]');
%   type (file);
%   delete (file);
%
% See also qn.mmread, qn.unpack
function mmwrite (file, a, comment)
  if nargin < 2, error ('qn:input', 'qn.mmwrite: a file name and a matrix expected; see help qn.mmwrite'); end
  file = qn.impl.chars (file);
  a = qn.impl.numbers ('qn.mmwrite', 'A', a, [NaN NaN], 'complex');
  form = {'array', 'coordinate'};
  field = {'complex', 'real'};
  symmetry = {'general', 'symmetric'};
  half = isreal (a) && size (a, 1) == size (a, 2) && isequal (a, a.');
  text = {sprintf('%%%%MatrixMarket matrix %s %s %s\n', form{1 + issparse(a)}, field{1 + isreal(a)}, symmetry{1 + half})};
  if nargin > 2, text{end + 1} = sprintf ('%% %s\n', strrep (qn.impl.chars (comment), sprintf ('\n'), ' ')); end
  inside = true (size (a));
  if issparse (a)
    stored = a;
    if half, stored = tril (a); end
    [i, j, x] = find (stored);
    text{end + 1} = sprintf ('%d %d %d\n', size (a), numel (x));
    if isreal (a)
      text{end + 1} = sprintf ('%d %d %.17g\n', [i(:), j(:), x(:)].');
    else
      text{end + 1} = sprintf ('%d %d %.17g %.17g\n', [i(:), j(:), real(x(:)), imag(x(:))].');
    end
  else
    if half, inside = tril (inside); end
    x = a(inside);
    text{end + 1} = sprintf ('%d %d\n', size (a));
    if isreal (a)
      text{end + 1} = sprintf ('%.17g\n', x);
    else
      text{end + 1} = sprintf ('%.17g %.17g\n', [real(x(:)), imag(x(:))].');
    end
  end
  qn.impl.files.write_text ('qn.mmwrite', file, [text{:}]);
end
