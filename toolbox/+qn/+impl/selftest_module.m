% CHECKS = SELFTEST_MODULE ()  the checks of qn.selftest that tell whether the compiled module is there and answers
function checks = selftest_module ()
  checks = {'host', @host; 'module', @module; 'presence call', @presence};
end

function [good, text] = host ()
  good = true;
  text = sprintf ('%s on %s', qn.impl.host_name (), computer ());
end

% Where the module is on the path, whatever is before it.
function [good, text] = module ()
  name = ['quarn.' mexext()];
  folders = [{pwd()}, strsplit(path (), pathsep ())];
  here = folders(cellfun (@(folder) exist (fullfile (folder, name), 'file') > 0, folders));
  good = ~isempty (here);
  if ~good
    text = sprintf ('no folder on the path holds the compiled module %s: build it, then name its folder to addpath', name);
    return
  end
  text = fullfile (here{1}, name);
  [~, place] = fileattrib (text);
  try
    in_front = which ('quarn');
  catch
    in_front = text;      % it cannot be loaded; the next check says why
  end
  [found, front] = fileattrib (in_front);
  if ~found || ~strcmp (front.Name, place.Name), text = sprintf ('%s (behind %s)', text, in_front); end
end

function [good, text] = presence ()
  try
    x = quarn ();
  catch err
    error ('the module was not found or cannot be loaded into this host: %s', err.message);
  end
  good = isequal (x, 1.0001) && isequal (quarn ('ismex'), 1);
  if good
    text = sprintf ('%.4f, compiled, %s', x, quarn ('cvs'));
  else
    text = sprintf ('%s instead of 1.0001: another function of this name is in front', num2str (x));
  end
end
