% YES = RUNS_UP (SIM)  whether the speed of rotation changes in a run; set-ups of older versions do not know of it
function yes = runs_up (sim)
  yes = isfield (sim, 'speed') && ~isempty (sim.speed);
end
