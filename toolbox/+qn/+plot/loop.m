% QN.PLOT.LOOP  force of an element against its displacement
%
% Purpose
%   Shows the law at work: a line for springs and stops, loops for what dissipates. The area of a loop is the energy of a cycle.
%
% Calls
%   qn.plot.loop (RES, K)
%   qn.plot.loop (X, F)
%
% Input
%   RES   from qn.run
%   K     which element, as listed in 'elements' of qn.simulation; the forces of a bank add up
%   X, F  1 x k displacements [m] and forces [N] instead
%
% Errors
%   qn:input  there is no such element, it observes several displacements, the lengths differ, or a value is not finite
%
% Example
%   t = (0:2000) * 1e-3;
%   x = 1e-3 * sin (2 * pi * t);
%   fig = qn.plot.page ();
%   qn.plot.loop (x, qn.force (qn.iwan ('slip', 10, 'stiffness', 5e4), x, gradient (x, 1e-3), 1e-3));
%   close (fig);
%
% See also qn.force, qn.dissipated, qn.plot.series
function loop (what, force)
  name = 'Force loop';
  if nargin < 2, error ('qn:input', 'qn.plot.loop: a result and an element, or displacements and forces expected'); end
  if isstruct (what)
    qn.impl.expect_result_of ('qn.plot.loop', what, 'qn.run');
    force = qn.impl.count ('qn.plot.loop', 'K', force);
    members = what.sim.elements([what.sim.elements.item] == force);
    if isempty (members) || size (members(1).observe, 1) ~= 1
      error ('qn:input', 'qn.plot.loop: element %g is not there, or observes more than one displacement', force);
    end
    x = members(1).observe * what.q;
    name = sprintf ('Element %d', force);
    if numel (members) > 1
      name = sprintf ('%s: bank of %d laws', name, numel (members));
    elseif ~isempty (members.law.note)
      name = sprintf ('%s: %s', name, members.law.note);
    end
    force = sum (what.force([members.forces], :), 1);
  else
    x = qn.impl.numbers ('qn.plot.loop', 'X', what, [], 'list');
    force = qn.impl.numbers ('qn.plot.loop', 'F', force, numel (x), 'each', 'one a displacement');
  end
  [fx, ux] = qn.impl.prefixed (x(:), 'm');
  [ff, uf] = qn.impl.prefixed (force(:), 'N');
  k = qn.impl.thinned (numel (x), 20000);
  plot (fx * x(k), ff * force(k), '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  axis ([around(fx * x(:)), around(ff * force(:))]);
  qn.impl.style (name, sprintf ('Displacement [%s]', ux), sprintf ('Force [%s]', uf), {});
end

% Limits with a twentieth of the range to spare on either side, so that no part of the line is on the frame.
function limits = around (x)
  x = x(isfinite (x));
  if isempty (x), x = 0; end
  spare = 0.05 * (max (x) - min (x));
  if spare == 0, spare = max (abs (x(1)), 1) / 10; end
  limits = [min(x) - spare, max(x) + spare];
end
