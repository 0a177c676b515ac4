% [FILE, CLEAN] = PUT_BYTES (BYTES)  a new file with the characters of BYTES, removed when CLEAN goes
function [file, clean] = put_bytes (bytes)
  file = tempname ();
  id = fopen (file, 'w');
  fwrite (id, uint8 (bytes));
  fclose (id);
  clean = onCleanup (@() delete (file));
end
