% WRITE_BYTES (WHO, FILE, BYTES)  writes a column of uint8 as a file, and reads it again: of a full disk the host says nothing
%
% Errors (qn:input) name the function WHO.
function write_bytes (who, file, bytes)
  [id, why] = fopen (file, 'w');
  if id < 0, error ('qn:input', '%s: cannot write %s: %s', who, file, why); end
  fwrite (id, bytes, 'uint8');
  fclose (id);
  id = fopen (file);
  written = [];
  if id >= 0
    written = fread (id, Inf, '*uint8');
    fclose (id);
  end
  if ~isequal (written, bytes), error ('qn:input', '%s: %s could not be written as a whole; is the disk full?', who, file); end
end
