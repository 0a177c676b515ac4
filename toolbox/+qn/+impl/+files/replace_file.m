% [WHY, DONE] = REPLACE_FILE (FILE, MAKE)         a file that MAKE writes; FILE is replaced as a whole or stays as it is
% [WHY, DONE] = REPLACE_FILE (FILE, MAKE, false)  not in place of another: DONE is false where there is one, even if it came a moment ago
%
% WHY = MAKE (PART) writes the file PART and reads it again, as on a full disk nothing may be said: '' or what went wrong. So is WHY.
function [why, done] = replace_file (file, make, replace)
  done = false;
  [folder, file, why] = qn.impl.files.beside (file);
  if isempty (folder), return, end
  part = fullfile (folder, 'part.mat');  % MATLAB's save would add the end of the name
  tidy = onCleanup (@() clean (folder, part));
  why = make (part);
  if ~isempty (why), return, end
  if nargin > 2 && ~replace
    [state, why] = qn.impl.files.new_name (part, file);
    done = strcmp (state, 'made');
    if ~isempty (state), why = ''; return, end
  end
  [done, why] = qn.impl.files.rename_file (part, file);
  if done, why = ''; end
end

function clean (folder, part)
  qn.impl.files.remove_file (part);
  [~, ~] = rmdir (folder);
end
