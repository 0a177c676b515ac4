% [FOLDER, FILE, WHY] = BESIDE (FILE)  a new folder of an unguessable name in the folder of FILE, and FILE with its whole path
%
% The system makes it only where nothing has that name, so what is written into it follows no link and meets no file of the user.
% FOLDER is '' where it cannot be made; WHY says why.
function [folder, file, why] = beside (file)
  [parent, name, kind] = fileparts (file);
  if isempty (parent), parent = pwd (); end
  folder = '';
  try
    here = cd (parent);
    parent = pwd ();
    cd (here);
  catch err
    why = err.message;
    return
  end
  file = fullfile (parent, [name kind]);
  if exist (file, 'dir')
    why = 'it is a folder';
    return
  end
  [~, random] = fileparts (tempname ());
  [made, why] = mkdir (parent, ['quarn-' random]);
  if made && isempty (why), folder = fullfile (parent, ['quarn-' random]); end
end
