% KEEP_OBJECTS (FILE, S)  writes the fields of S, functions and objects among them, in the form of the host's save, in place of such a file
%
% It is made and read again in a private folder, since reading it runs what it holds, and then copied byte by byte.
function keep_objects (file, s)
  private = qn.impl.files.private_folder ();
  made = fullfile (private, 'made.mat');  % MATLAB's save would add the end of the name
  tidy = onCleanup (@() qn.impl.sweep.remove (private));
  try
    if exist ('OCTAVE_VERSION', 'builtin')
      save ('-binary', made, '-struct', 's');
    else
      save (made, '-struct', 's', '-v7');
    end
    good = isequal (sort (fieldnames (load (made))), sort (fieldnames (s)));
    why = 'it ends early';
  catch err
    good = false;
    why = err.message;
  end
  if good, why = qn.impl.files.replace_bytes (file, qn.impl.files.bytes_of (made)); end
  if ~isempty (why), error ('qn:input', 'qn.sweep: cannot write %s: it came out wrong, is the disk full? (%s)', file, why); end
end
