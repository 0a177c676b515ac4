% F = TURNING_FORCE (SIM, OMEGA, SLOPE, Q, V)  modal forces of a run-up on its left side, omega G v + slope KG q, a column a time
function f = turning_force (sim, omega, slope, q, v)
  r = sim.model.rotation;
  f = bsxfun (@times, omega, r.G * v);
  if ~isempty (r.K), f = f + bsxfun (@times, slope, r.K * q); end
end
