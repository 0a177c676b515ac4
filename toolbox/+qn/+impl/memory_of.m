% S = MEMORY_OF (SIM, K, STATE)  those rows of STATE, the memory of all laws, that belong to element K
function s = memory_of (sim, k, state)
  e = sim.elements(k);
  t = qn.impl.traits (e.law, size (e.observe, 1));
  s = state((e.state - numel (sim.model.w)) * (t.states > 0) + (0:t.states - 1), :);
end
