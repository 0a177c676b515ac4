% DONE = KEEP (FILE, S)         writes the fields of S as a whole or not at all, in place of a file of that name
% DONE = KEEP (FILE, S, false)  not in place of another: DONE is false where there is one, even if it came a moment ago
%
% The file is made in a folder of its own and read again before it takes the name: on a full disk the host's save says nothing.
function done = keep (file, s, replace)
  [folder, file, why] = qn.impl.files.beside (file);
  if isempty (folder), fail (file, why); end
  part = fullfile (folder, 'part');
  tidy = onCleanup (@() clean (folder, part));
  try
    if exist ('OCTAVE_VERSION', 'builtin')
      % This form keeps functions, classes and every bit of a number.
      save ('-binary', part, '-struct', 's');
    else
      save (part, '-struct', 's', '-v7');
    end
    again = load (part);
    good = isequal (sort (fieldnames (again)), sort (fieldnames (s)));
    why = 'it ends early';
  catch err
    good = false;
    why = err.message;
  end
  if ~good, fail (file, sprintf ('it came out wrong, is the disk full? (%s)', why)); end
  if nargin > 2 && ~replace
    [state, why] = qn.impl.files.new_name (part, file);
    done = strcmp (state, 'made');
    if ~isempty (state), return, end
  end
  [done, why] = qn.impl.files.rename_file (part, file);
  if ~done, fail (file, why); end
end

function fail (file, why)
  error ('qn:input', 'qn.sweep: cannot write %s: %s', file, why);
end

function clean (folder, part)
  qn.impl.files.remove_file (part);
  [~, ~] = rmdir (folder);
end
