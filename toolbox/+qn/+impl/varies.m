% YES = VARIES (SIM)  whether a matrix of a set-up changes with time: by the speed of a run-up, or by "varying" of qn.simulation
function yes = varies (sim)
  yes = qn.impl.runs_up (sim) || (isfield (sim, 'varying') && ~isempty (sim.varying));
end
