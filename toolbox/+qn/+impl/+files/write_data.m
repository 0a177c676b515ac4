% WHY = WRITE_DATA (FILE, S)                  writes the fields of S to a file that read_data reads; FILE is replaced as a whole or stays as it is
% [WHY, DONE] = WRITE_DATA (FILE, S, false)   not in place of another: DONE is false where there is one, even if it came a moment ago
%
% What was written is read again before it takes the name: on a full disk the host's save says nothing. WHY: '' or what went wrong.
function [why, done] = write_data (file, s, replace)
  done = false;
  [folder, file, why] = qn.impl.files.beside (file);
  if isempty (folder), return, end
  part = fullfile (folder, 'part');
  tidy = onCleanup (@() clean (folder, part));
  try
    save (part, '-struct', 's', '-v6');
    good = isequaln (qn.impl.files.read_data (part), s);
    why = 'what was read again is not what was written';
  catch err
    good = false;
    why = err.message;
  end
  if ~good
    why = sprintf ('the file came out wrong, is the disk full? (%s)', why);
    return
  end
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
