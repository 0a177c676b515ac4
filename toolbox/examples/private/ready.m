% READY (FOLDER)  makes the folder of the picture, or says why not, before anything is computed
function ready (folder)
  if isempty (folder), return, end
  if ~ischar (folder), error ('qn:input', 'the folder of the picture expected, got class %s', class (folder)); end
  if ~exist (folder, 'dir')
    [made, why] = mkdir (folder);
    if ~made, error ('qn:input', 'cannot make the folder %s: %s', folder, why); end
  end
  probe = tempname (folder);
  [id, why] = fopen (probe, 'w');
  if id < 0, error ('qn:input', 'cannot write into the folder %s: %s', folder, why); end
  fclose (id);
  delete (probe);
end
