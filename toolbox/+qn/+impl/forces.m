% [R, FORCES] = FORCES (SIM, VALUES, U, V)  residual of the handles at one state, and the elements' forces by slot
function [r, forces] = forces (sim, values, u, v)
  h = qn.impl.register (values);
  free = onCleanup (@() delete (h));
  r = zeros (numel (u), 1);
  try
    quarn ('residual', r, h, qn.impl.fresh (u), qn.impl.fresh (v), zeros (numel (u), 1), zeros (1, 2));
  catch err
    qn.impl.named_element ('qn.simulation', err, sim.elements);
  end
  forces = zeros (sim.slots, 1);
  for k = 1:numel (sim.elements)
    snl = getfield (quarn ('chandleget', remi (h, 2 + k)), 'snl');
    forces(sim.elements(k).slot - 1 + (1:numel (snl))) = snl;
  end
end
