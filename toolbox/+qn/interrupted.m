% QN.INTERRUPTED  what the last run that Ctrl-C or an error ended had reached
%
% Purpose
%   A run that is ended from outside returns nothing to its caller. Where it was not saved in a file, its part is kept in memory, until
%   the next run that ends this way or the end of the session. Of a run that ended in its first piece it is the state that the run
%   began with; that is never written to a file, where it could take the place of a longer run.
%
% Calls
%   RES = qn.interrupted ()
%
% Input
%   none
%
% Output
%   RES   as for qn.run, with complete = false: results up to RES.time_end, at most a second or a piece before the end
%
% Errors
%   qn:input  no run was ended from outside in this session
%
% Example
%   model = qn.modal (4e4, 1);
%   sim = qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'q0', 0.01);
%   try
%     qn.run (sim, 'piece', 100, 'stop', @(r) r.time_end > 0.7 && error ('a mistake in this function'));
%   catch err
%     res = qn.resume (qn.interrupted ());
%   end
%
% See also qn.run, qn.resume
function res = interrupted ()
  res = qn.impl.interrupted ();
  if isempty (res), error ('qn:input', 'qn.interrupted: no run was ended by Ctrl-C or by an error in this session'); end
end
