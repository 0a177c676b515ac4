% WRITE_TEXT (WHO, FILE, TEXT)  writes a row of characters as a file, and reads it again: of a full disk the host says nothing
%
% Errors (qn:input) name the function WHO.
function write_text (who, file, text)
  if ~ischar (file), error ('qn:input', '%s: "FILE" must be the name of a file, got an array of class %s', who, class (file)); end
  [id, why] = fopen (file, 'w', 'n', 'UTF-8');
  if id < 0, error ('qn:input', '%s: cannot write %s: %s', who, file, why); end
  fwrite (id, text, 'char');
  fclose (id);
  id = fopen (file, 'r', 'n', 'UTF-8');
  written = '';
  if id >= 0
    written = fread (id, [1, numel(text) + 1], 'char=>char');
    fclose (id);
  end
  if ~strcmp (written, text), error ('qn:input', '%s: %s could not be written as a whole; is the disk full?', who, file); end
end
