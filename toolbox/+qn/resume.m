% QN.RESUME  goes on with a run that was stopped or cut short
%
% Purpose
%   Continues a run from where it ended. The results of the whole have the same bits as those of a run in one piece.
%
% Calls
%   RES = qn.resume (RES, ...)
%   RES = qn.resume (FILE, ...)
%
% Input
%   RES    result of qn.run with complete = false; a complete one is returned as it is
%   FILE   .mat file that qn.run wrote with 'save'. It is read as data, and nothing in it is executed; a file that was edited or cut
%          is refused in words, and so is one of version 0.1: give qn.resume (load (FILE)) instead if you trust it.
%   Names and values: as for qn.run; 'save' is FILE unless it is given ('': none)
%
% Output
%   RES    as for qn.run
%
% Errors
%   qn:input  there is no such file, or it holds no run; the run diverged
%
% Example
%   model = qn.modal (4e4, 1);
%   sim = qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'q0', 0.01);
%   part = qn.run (sim, 'piece', 100, 'stop', @(r) r.time_end > 0.25);
%   res = qn.resume (part);
%
% See also qn.run
function res = resume (what, varargin)
  if nargin < 1, what = []; end
  what = qn.impl.chars (what);
  file = '';
  if ischar (what)
    file = what;
    res = qn.impl.files.read_run ('qn.resume', file);
  else
    res = what;
  end
  if ~isstruct (res) || ~all (isfield (res, {'sim', 'final', 'q', 'complete'}))
    error ('qn:input', 'qn.resume expects the result of qn.run or its file; see help qn.resume');
  end
  qn.impl.not_diverged ('qn.resume', res);
  found = qn.impl.check_arrays (res.sim);
  % Loads of times that are past need not be there any more.
  bad = find (strcmp ({found.level}, 'error') & ~strcmp ({found.code}, 'load_values'), 1);
  if ~isempty (bad)
    error ('qn:input', ['qn.resume: %s. A set-up that was changed by hand does not fit together: make one with qn.simulation, ' ...
                        'and go on with its option "start"'], found(bad).text);
  end
  res = qn.impl.advance (res, qn.impl.run_options ('qn.resume', varargin, file));
end
