% V = VALUES (SIM, STEP)  values of the force handles: {1, stiffness}, {3, damping}, {1003, element} ..., one row a handle
function v = values (sim, step)
  v = {1, qn.impl.modal_value(sim, sim.model.stiffness); 3, qn.impl.modal_value(sim, sim.model.damping)};
  for k = 1:numel (sim.elements)
    e = sim.elements(k);
    more = zeros (size (e.observe, 1), sim.states);
    state = e.state;
    if state == 0, state = []; end
    v(2 + k, :) = {1003, qn.element(e.law, [e.observe, more], 'command', [e.command, more], 'step', step, 'state', state, 'slot', e.slot)};
  end
end
