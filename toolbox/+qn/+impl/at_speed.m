% MODEL = AT_SPEED (MODEL, OMEGA, SLOPE)  the model of a run-up while it turns with OMEGA [rad/s] and the acceleration SLOPE [rad/s^2]
function model = at_speed (model, omega, slope)
  r = model.rotation;
  model.damping = qn.impl.matrix (r.damping) + omega * r.G;
  if ~isempty (r.K), model.stiffness = qn.impl.matrix (model.stiffness) + slope * r.K; end
end
