% PUT_FILE (FILE, TEXT)  writes TEXT to FILE
function put_file (file, text)
  id = fopen (file, 'w');
  fprintf (id, '%s', text);
  fclose (id);
end
