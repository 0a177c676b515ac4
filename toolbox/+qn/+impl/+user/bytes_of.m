% [BYTES, WHY] = BYTES_OF (FILE)  all bytes of a file, a row of doubles; WHY says why there are none, else it is ''
function [bytes, why] = bytes_of (file)
  bytes = [];
  [id, why] = fopen (file, 'r');
  if id < 0, return, end
  bytes = fread (id, [1, Inf], 'uint8');
  fclose (id);
  why = '';
  if isempty (bytes), why = 'it is empty'; end
end
