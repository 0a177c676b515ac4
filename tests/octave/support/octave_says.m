% [STATUS, TEXT] = OCTAVE_SAYS (CODE, ENVIRONMENT)  runs CODE in an Octave of its own, in an empty folder; TEXT is all that it prints
%
% ENVIRONMENT, optional, is put in front of the command: 'NAME=value'. Without it, start-up files are not read.
function [status, text] = octave_says (code, environment)
  folder = tempname ();
  mkdir (folder);
  away = onCleanup (@() confirmed_removal (folder));
  file = fullfile (folder, 'script.m');
  id = fopen (file, 'w');
  fprintf (id, '%s\n', code);
  fclose (id);
  options = '--no-history -q';
  if nargin < 2
    environment = '';
    options = [options 'f'];
  end
  [status, text] = system (sprintf ('cd %s && %s octave-cli %s %s 2>&1', folder, environment, options, file));
end

function confirmed_removal (folder)
  confirm_recursive_rmdir (false, 'local');
  rmdir (folder, 's');
end
