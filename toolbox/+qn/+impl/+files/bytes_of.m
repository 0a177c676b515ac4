% [BYTES, WHY] = BYTES_OF (FILE)  the content of a file as a row of uint8; WHY says why there is none
function [bytes, why] = bytes_of (file)
  bytes = zeros (1, 0, 'uint8');
  [id, why] = fopen (file, 'r');
  if id < 0, return, end
  bytes = fread (id, [1, Inf], 'uint8=>uint8');
  fclose (id);
  why = '';
end
