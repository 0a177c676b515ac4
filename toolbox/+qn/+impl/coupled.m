% YES = COUPLED (SIM)  whether the structure of a set-up couples its modes, or changes with time
function yes = coupled (sim)
  yes = size (sim.model.stiffness, 2) > 1 || size (sim.model.damping, 2) > 1 || qn.impl.varies (sim);
end
