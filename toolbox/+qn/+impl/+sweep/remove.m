% REMOVE (FOLDER)  a folder of files and all that is in it
function remove (folder)
  if ~exist (folder, 'dir'), return, end
  names = qn.impl.files.names_in (folder);
  for k = 1:numel (names), qn.impl.files.remove_file (fullfile (folder, names{k})); end
  [~, ~] = rmdir (folder);
end
