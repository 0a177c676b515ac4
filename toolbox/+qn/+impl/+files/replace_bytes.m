% WHY = REPLACE_BYTES (FILE, BYTES)  a file of these bytes, which replaces another as a whole or leaves it as it is; WHY: '' or what went wrong
function why = replace_bytes (file, bytes)
  [folder, file, why] = qn.impl.files.beside (file);
  if isempty (folder), return, end
  part = fullfile (folder, 'part');
  tidy = onCleanup (@() clean (folder, part));
  [id, why] = fopen (part, 'w');
  if id < 0, return, end
  fwrite (id, bytes, 'uint8');
  fclose (id);
  why = 'is the disk full?';
  if ~isequal (qn.impl.files.bytes_of (part), bytes), return, end
  [done, why] = qn.impl.files.rename_file (part, file);
  if done, why = ''; end
end

function clean (folder, part)
  qn.impl.files.remove_file (part);
  [~, ~] = rmdir (folder);
end
