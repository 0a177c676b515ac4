% M = OP4_MATRIX (REFUSE, H, I, J, V)  a matrix of an OUTPUT4 file from its head H and the entries of its columns
%
% H: name, columns, rows, form, type. REFUSE (FORMAT, ...) raises an error at the head. Of a symmetric matrix the file normally holds
% both triangles; where only one has entries, it stands for both.
function m = op4_matrix (say, h, i, j, v)
  forms = {'square', 'rectangular', '', 'lower', 'upper', 'symmetric'};
  a = sparse (i, j, v, h.rows, h.columns);
  if h.form ~= 2 && h.rows ~= h.columns, say ('a matrix of %d x %d is said to be %s', h.rows, h.columns, forms{h.form}); end
  if h.form == 6 && ~isequal (a, a.')
    if nnz (triu (a, 1)) > 0 && nnz (tril (a, -1)) > 0, say ('a matrix that is said to be symmetric and is not'); end
    a = a + a.' - sparse (1:h.rows, 1:h.rows, diag (a), h.rows, h.rows);
  end
  m = struct ('name', h.name, 'matrix', a, 'form', forms{h.form}, 'precision', 1 + (mod (h.type, 2) == 0));
end
