% SIM = WITH_STEP (SIM, STEP, STEPS, EVERY)  the same set-up with another step, STEPS of them, and results at every EVERY-th
function sim = with_step (sim, step, steps, every)
  o = sim.options;
  o.step = step;
  o.steps = steps;
  o.until = [];
  o.times = [];
  o.every = every;
  args = [fieldnames(o), struct2cell(o)].';
  sim = qn.simulation (sim.model, args{:});
end
