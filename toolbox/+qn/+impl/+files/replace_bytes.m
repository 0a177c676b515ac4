% WHY = REPLACE_BYTES (FILE, BYTES)  a file of these bytes, which replaces another as a whole or leaves it as it is; WHY: '' or what went wrong
function why = replace_bytes (file, bytes)
  why = qn.impl.files.replace_file (file, @(part) made (part, bytes));
end

function why = made (part, bytes)
  [id, why] = fopen (part, 'w');
  if id < 0, return, end
  fwrite (id, bytes, 'uint8');
  fclose (id);
  why = '';
  if ~isequal (qn.impl.files.bytes_of (part), bytes), why = 'is the disk full?'; end
end
