% QN.SELFTEST  what works on this machine, in one page
%
% Purpose
%   Run it after installing. It looks for the compiled module, calls it, compares a linear run and every force law with their
%   formulas and a parallel product with the host's own, lets the module call back a function, and writes a picture. Each line says
%   ok or FAILED and the number that was seen. Nothing remains: no handle, no file, no figure.
%
% Calls
%   qn.selftest ()
%   OK = qn.selftest ()
%   [OK, LINES] = qn.selftest ()
%
% Input
%   None.
%
% Output
%   OK      true when every line is ok. Without this output, a failure ends in an error
%   LINES   struct array with a line in each element: name, status ('ok', 'FAILED' or 'not run') and text
%
% Errors
%   qn:selftest  something failed, and no output was asked for
%
% Example
%   qn.selftest ()
%
% See also install_quarn, qn.run
function [ok, lines] = selftest ()
  started = clock ();
  fprintf ('quarn self-test\n');
  module = run_checks (qn.impl.selftest_module ());
  if all (strcmp ({module.status}, 'ok'))
    rest = run_checks ([qn.impl.selftest_laws(); qn.impl.selftest_paths()]);
  else
    rest = struct ('name', 'all others', 'status', 'not run', 'text', 'they need the module');
    say (rest);
  end
  lines = [module, rest];
  bad = ~strcmp ({lines.status}, 'ok');
  passed = ~any (bad);
  fprintf ('%d of %d ok in %.1f s\n', sum (~bad), numel (lines), etime (clock (), started));
  if nargout > 0
    ok = passed;
  elseif ~passed
    error ('qn:selftest', 'qn.selftest: not everything works here: %s', strjoin ({lines(bad).name}, ', '));
  end
end

% CHECKS has rows {name, function}; a function gives whether all is well and a text with the number seen. An error is a failure.
function lines = run_checks (checks)
  lines = struct ('name', checks(:, 1).', 'status', 'FAILED', 'text', '');
  for k = 1:numel (lines)
    try
      [good, lines(k).text] = checks{k, 2} ();
      if good, lines(k).status = 'ok'; end
    catch err
      lines(k).text = regexprep (err.message, '\s+', ' ');
    end
    say (lines(k));
  end
end

function say (line)
  fprintf ('  %-8s%-16s%s\n', line.status, line.name, line.text);
end
