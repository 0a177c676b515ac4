% [FOLDER, FILE, WHY] = BESIDE (FILE)  a new folder of an unguessable name in the folder of FILE, and FILE with its whole path
%
% The system makes it only where nothing has that name, so what is written into it follows no link and meets no file of the user.
% FOLDER is '' where it cannot be made; WHY says why.
function [folder, file, why] = beside (file)
  [parent, name, kind] = fileparts (file);
  if isempty (parent), parent = pwd (); end
  folder = '';
  [parent, why] = whole_path (parent);
  if isempty (parent), return, end
  file = fullfile (parent, [name kind]);
  if exist (file, 'dir')
    why = 'it is a folder';
    return
  end
  [folder, why] = qn.impl.files.private_folder (parent);
end

% A change of the folder makes Octave read its load path again, which takes 50 ms.
function [folder, why] = whole_path (folder)
  why = '';
  if exist ('OCTAVE_VERSION', 'builtin')
    [folder, failed, why] = canonicalize_file_name (folder);
    if failed, folder = ''; end
    return
  end
  try
    here = cd (folder);
    folder = pwd ();
    cd (here);
  catch err
    folder = '';
    why = err.message;
  end
end
