% MODEL = AT_TIME (SIM, TIME)  the model of a set-up as it is at a time, with all that changes
function model = at_time (sim, time)
  model = sim.model;
  for p = qn.impl.varying (sim)
    x = qn.impl.factor_at (p.factor, time) * p.matrix;
    if p.type == 1
      model.stiffness = qn.impl.matrix (model.stiffness) + x;
    else
      model.damping = qn.impl.matrix (model.damping) + x;
    end
  end
end
