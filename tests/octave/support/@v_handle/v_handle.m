% V = V_HANDLE (FILE)  object whose field "file" holds a matrix
function v = v_handle (file)
  v = class (struct ('file', {file}), 'v_handle');
end
