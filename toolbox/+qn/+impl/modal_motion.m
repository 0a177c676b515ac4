% [E, V, A] = MODAL_MOTION (RES, J, V, A)  energies, modal velocities and accelerations at the columns J of a result, by the module
%
% For modes that are not coupled. V, A: those at the first of the columns; energies that grow are counted from there.
function [e, v, a] = modal_motion (res, j, v, a)
  sim = res.sim;
  commands = arrayfun (@(x) -x.command.', sim.elements, 'UniformOutput', false);
  along = {res.q, sim.loads, res.force};
  if numel (j) < size (res.q, 2), along = cellfun (@(x) x(:, j), along, 'UniformOutput', false); end
  in = {along{1}, sim.model.stiffness, sim.model.damping, [sim.step, sim.scheme.gamma], v, a, sim.shapes, along{2}, [commands{:}], ...
        along{3}};
  in = cellfun (@(x) double (full (x)), in, 'UniformOutput', false);
  if nargout < 2, e = quarn ('energies', in{:}); else, [e, v, a] = quarn ('energies', in{:}); end
end
