% I = FORCE_SLOTS (SIM)  slots of the module's force store that hold forces, in the order of the results' rows
function i = force_slots (sim)
  i = zeros (1, 0);
  for k = 1:numel (sim.elements)
    i = [i, sim.elements(k).slot - 1 + (1:numel (sim.elements(k).forces))];
  end
end
