% S = MATRIX_LINES (A)        int32 matrix structure of a sparse or full matrix A, stored column by column (trans = 0)
% S = MATRIX_LINES (A, true)  the transposed form: the lines of S are the rows of A, dims are those of A (trans = 1)
function s = matrix_lines (a, transposed)
  if nargin < 2, transposed = false; end
  stored = a;
  if transposed, stored = a.'; end
  stored = sparse (stored);
  [i, j, x] = find (stored);
  jc = cumsum ([0; accumarray(j(:), 1, [columns(stored), 1])]);
  s = struct ('ir', int32 (i(:) - 1), 'jc', int32 (jc(:)), 'pr', x(:), 'dims', [rows(a) columns(a)], 'trans', double (transposed));
end
