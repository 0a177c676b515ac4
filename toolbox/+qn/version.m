% QN.VERSION  version of the toolbox and of the compiled module that is loaded
%
% Purpose
%   To name in a report what computed a result, and to see whether toolbox and module belong together.
%
% Calls
%   V = qn.version ()
%   qn.version ()
%
% Input
%   none
%
% Output
%   V     struct of texts: toolbox   version of this toolbox
%                          module    version of the module; 'unknown' for one from before 0.2.0, 'none' where none is loaded
%                          compiler  what built the module, '' where it does not say
%                          built_for host that the module was built for, '' where it does not say
%                          cblas     BLAS in the module, '' where it does not say
%                          host      program that runs now
%                          file      file of the module, '' where there is none
%         Without an output argument it is printed.
%
% Errors
%   none: a module that is missing, or another one, is reported in the texts
%
% Example
%   v = qn.version ();
%   fprintf ('computed with quarn %s\n', v.module);
%
% See also qn.selftest, quarn
function v = version ()
  found = struct ('toolbox', qn.impl.release (), 'module', 'none', 'compiler', '', 'built_for', '', 'cblas', '', ...
                  'host', qn.impl.host_name (), 'file', '');
  try
    there = isequal (quarn (), 1.0001);
  catch
    there = false;
  end
  if there
    found.file = which ('quarn');
    found.module = 'unknown';
    try
      m = quarn ('version');
      found.module = m.version;
      found.compiler = m.compiler;
      found.built_for = m.host;
      found.cblas = m.cblas;
    catch
      % A module from before this command.
    end
  end
  if nargout > 0
    v = found;
    return
  end
  for name = fieldnames (found).', fprintf ('%-10s %s\n', name{1}, found.(name{1})); end
  if there && ~strcmp (found.module, found.toolbox)
    fprintf ('The module is of another version than the toolbox: build it again, or install both together.\n');
  end
end
