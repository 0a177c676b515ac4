% QN.CHECK  looks over a set-up before it runs, and says what to change
%
% Purpose
%   Finds what the module would refuse, and what it would run without a word although the result is wrong: too long a step, growth
%   that only the scheme makes, modes that leave out the flexibility of a place where a stiff element acts, records and tables that
%   are not what they seem, elements that do nothing. docs/checks.md lists every finding. qn.run looks the same before it starts.
%
% Calls
%   qn.check (SIM)
%   qn.check (SIM, RES)
%   F = qn.check (...)
%
% Input
%   SIM   from qn.simulation
%   RES   result of a run of it: the displacements that occurred are compared with the tables, stiffnesses are those that were met,
%         and elements that never acted are named
%
% Output
%   F     struct array: code (a word, see docs/checks.md), level, text with numbers and a remedy. Level 'error': the result is or
%         will be useless; 'warning': it probably is wrong; 'note': perhaps not meant. Without an output argument it is printed.
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
  if nargin < 2
    res = [];
  else
    qn.impl.expect_result_of ('qn.check', res, 'qn.run');
  end
  found = qn.impl.findings (sim, res);
  if nargout > 0, return, end
  if isempty (found), fprintf ('nothing to change\n'); end
  for k = 1:numel (found), fprintf ('%-8s %s\n', [found(k).level ':'], found(k).text); end
  clear found
end
