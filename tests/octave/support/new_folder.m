% [FOLDER, CLEAN] = NEW_FOLDER ()  an empty folder, removed with all that is in it when CLEAN goes
function [folder, clean] = new_folder ()
  folder = tempname ();
  mkdir (folder);
  clean = onCleanup (@() remove (folder));
end

function remove (folder)
  confirm_recursive_rmdir (false);
  rmdir (folder, 's');
end
