% GET  the matrix that a v_handle stands for
%
%   FILE = get (V, 'file')
function file = get (v, name)
  if nargin > 1 && ~strcmp (name, 'file'), error ('qn:input', 'v_handle: there is only the field "file", not "%s"', name); end
  file = v.file;
end
