% QN.CHECK  looks over a set-up before it runs, and says what to change
%
% Purpose
%   Finds what the module would refuse, and what it would run without a word although the result is wrong: too long a step, a law
%   outside its table, an element that works on nothing.
%
% Calls
%   qn.check (SIM)
%   qn.check (SIM, RES)
%   F = qn.check (...)
%
% Input
%   SIM   from qn.simulation
%   RES   result of a run of it: the displacements that occurred are compared with the tables
%
% Output
%   F     struct array: level ('error', 'warning', 'note') and text. Without an output argument it is printed.
%
% Errors
%   qn:input  SIM is not from qn.simulation. What was changed in it by hand is reported, not refused.
%
% Example
%   model = qn.modal (4e4, 1);
%   stop = {qn.gap('gap', 0.01, 'stiffness', 1e9), qn.observe(model, 1)};
%   qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'v0', 3, 'elements', stop));
%
% See also qn.simulation, qn.advise, qn.run
function found = check (sim, res)
  if nargin < 1, sim = []; end
  qn.impl.expect_result_of ('qn.check', sim, 'qn.simulation');
  found = struct ('level', {}, 'text', {});
  found = joined (found, qn.impl.check_arrays (sim));
  if ~any (strcmp ({found.level}, 'error'))
    found = joined (found, qn.impl.check_step (sim));
    for k = 1:numel (sim.elements)
      x = [];
      if nargin > 1, x = sim.elements(k).observe * res.q; end
      found = joined (found, qn.impl.check_law (sim, k, x));
    end
    for k = 1:numel (sim.notes), found(end + 1) = struct ('level', 'note', 'text', sim.notes{k}); end
  end
  if nargout > 0, return, end
  if isempty (found), fprintf ('nothing to change\n'); end
  for k = 1:numel (found), fprintf ('%-8s %s\n', [found(k).level ':'], found(k).text); end
  clear found
end

% Octave 7 loses the fields when it puts empty struct arrays behind one another.
function a = joined (a, b)
  for k = 1:numel (b), a(end + 1) = b(k); end
end
