% TEXT = CONTENTS (FILE)  what a file of the folder /proc tells, '' where there is none
function text = contents (file)
  text = '';
  id = fopen (file);
  if id < 0, return, end
  text = fread (id, [1 Inf], '*char');
  fclose (id);
end
