% NAMES = NAMES_IN (FOLDER)  names of what is in a folder, as a column of texts; no character in its own name stands for others
function names = names_in (folder)
  if exist ('OCTAVE_VERSION', 'builtin')
    names = readdir (folder);
  else
    found = dir (folder);
    names = {found.name}.';
  end
  names = names(~strcmp (names, '.') & ~strcmp (names, '..'));
end
