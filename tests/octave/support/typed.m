% H = TYPED (CODE, S)  the structure S as an element of a handle list, a matrix being put into its structure form first
function h = typed (code, s)
  if ~isstruct (s), s = matrix_lines (s); end
  h = s;
  h.type = code;
end
