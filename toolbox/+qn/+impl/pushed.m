% I = PUSHED (SIM, FROM, TO)  sum over the steps from column FROM to TO of the norm of the modal loads, times the step [m/s sqrt(kg)]
function i = pushed (sim, from, to)
  i = 0;
  if isempty (sim.loads), return, end
  p = sim.loads(:, from:to);
  i = sim.step * sum (sqrt (max (sum (p .* ((sim.shapes.' * sim.shapes) * p), 1), 0)));
end
