% REMOVE_FILE (FILE)  removes one file, by its name, taken literally; nothing happens where there is none
function remove_file (file)
  if exist ('OCTAVE_VERSION', 'builtin')
    [~, ~] = unlink (file);
  elseif usejava ('jvm')
    target = java.io.File (file);
    target.delete ();
  else
    delete (file);
  end
end
