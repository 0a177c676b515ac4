% FOUND = CHECK_INITIAL (SIM)  initial displacements and velocities of the structure that the modes do not hold
%
% Modal coordinates are shapes' M x; what is lost is judged by mass, as the missing effective mass of a base motion is.
function found = check_initial (sim)
  found = qn.impl.finding ();
  if ~isstruct (sim.options) || ~isfield (sim.options, 'u0'), return, end
  units = {'u0', 'm'; 'v0', 'm/s'};
  for j = 1:2
    x = sim.options.(units{j, 1});
    x = double (x(:));
    if isempty (x), continue, end
    momentum = sim.model.M * x;
    mass = x.' * momentum;
    if mass <= 0, continue, end
    q = sim.model.shapes.' * momentum;
    held = (q.' * q) / mass;
    if held > 0.9, continue, end
    [unused, at] = max (abs (x));
    found(end + 1) = qn.impl.finding ('initial_lost', 'warning', ...
      ['the modes hold %.2g %% of the initial "%s" by mass: %g %s at degree of freedom %d begins as %.3g. Keep more modes, or give ' ...
      'what they can hold, such as a static deflection'], 100 * held, units{j, 1}, x(at), units{j, 2}, at, ...
      sim.model.shapes(at, :) * q);
  end
end
