% MODEL = AT_SPEED (MODEL, OMEGA, SLOPE)  the model of a run-up while it turns with OMEGA [rad/s] and the acceleration SLOPE [rad/s^2]
function model = at_speed (model, omega, slope)
  r = model.rotation;
  model.damping = qn.impl.matrix (r.damping) + omega * r.G;
  if ~isempty (r.K), model.stiffness = qn.impl.matrix (model.stiffness) + slope * r.K; end
  if qn.impl.circulates (r), model.stiffness = qn.impl.matrix (model.stiffness) + omega * r.N; end
  if ~qn.impl.by_speed (r), return, end
  [k, c] = qn.impl.bearings_at (r.table, omega);
  model.stiffness = qn.impl.matrix (model.stiffness) + k;
  model.damping = model.damping + c;
end
