% QN.CONTACTS  the contacts in a force history: when, how long, how hard
%
% Purpose
%   Lists every span in which the force is not zero.
%
% Calls
%   C = qn.contacts (RES, ROW)
%   C = qn.contacts (TIME, FORCE)
%
% Input
%   RES     from qn.run, with every step kept
%   ROW     row of RES.force (1)
%   TIME    1 x k times, evenly spaced [s]
%   FORCE   1 x k forces [N]; a force of the other sign is a contact on the other side, and is listed as one of its own
%
% Output
%   C       struct array, in order of time: start [s], duration [s], peak [N, with its sign], impulse [N s]. Without an
%           output argument a table is printed.
%   The warning qn:contacts says that the result keeps only some of the steps: contacts between them are missed.
%
% Errors
%   qn:input  there is no such row, the lengths differ, the times do not ascend in equal steps, or a value is not finite
%
% Example
%   t = 0:1e-3:1;
%   c = qn.contacts (t, max (0, 50 * sin (20 * t)));
%   [c.duration]                          % pi/20 each
%
% See also qn.gap, qn.stop, qn.energies
function c = contacts (what, force)
  if nargin < 1, what = []; end
  if isstruct (what) || nargin < 2
    qn.impl.expect_result_of ('qn.contacts', what, 'qn.run');
    time = what.time;
    row = 1;
    if nargin > 1, row = force; end
    if size (what.force, 1) == 0, error ('qn:input', 'qn.contacts: the result has no forces: the run had no elements'); end
    row = qn.impl.count ('qn.contacts', 'ROW', row, size (what.force, 1));
    force = what.force(row, :);
    [h, time] = qn.impl.spacing ('qn.contacts', time);
    if isstruct (what.sim) && numel (what.sim.saved) < numel (what.sim.time)
      warning ('qn:contacts', ['qn.contacts: the result keeps %d of %d steps: contacts between them are missed, and what is found of ' ...
                               'the others lasts whole parts of %g s'], numel (what.sim.saved), numel (what.sim.time), h);
    end
  else
    [h, time] = qn.impl.spacing ('qn.contacts', what);
    force = qn.impl.numbers ('qn.contacts', 'FORCE', force, numel (time), 'each', 'one a time');
  end
  side = sign (force(:).');
  c = struct ('start', {}, 'duration', {}, 'peak', {}, 'impulse', {});
  first = find (side ~= 0 & side ~= [0, side(1:end - 1)]);
  for k = first
    last = k - 1 + find ([side(k:end), 0] ~= side(k), 1) - 1;
    f = force(k:last);
    [unused, top] = max (abs (f));
    c(end + 1) = struct ('start', time(k), 'duration', numel (f) * h, 'peak', f(top), 'impulse', sum (f) * h);
  end
  if nargout > 0, return, end
  if isempty (c), fprintf ('no contact\n'); end
  if ~isempty (c), fprintf ('%12s %12s %12s %12s\n', 'start [s]', 'lasts [s]', 'peak [N]', 'impulse [Ns]'); end
  for k = 1:numel (c), fprintf ('%12.5g %12.4g %12.4g %12.4g\n', c(k).start, c(k).duration, c(k).peak, c(k).impulse); end
  clear c
end
