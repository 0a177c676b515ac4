% V = TURNING_VALUES (SIM)  values of the handles that change with the speed: {3, G with the speed; 1, KG with the angular acceleration}
%
% Nothing for a run at constant speed.
function v = turning_values (sim)
  v = cell (0, 2);
  if ~qn.impl.runs_up (sim), return, end
  r = sim.model.rotation;
  g = qn.impl.modal_value (sim, r.G);
  g.factor = sim.speed;
  v = {3, g};
  if isempty (r.K), return, end
  k = qn.impl.modal_value (sim, r.K);
  % The slope jumps at every knot between two segments.
  n = size (sim.speed, 2) - 1;
  slopes = diff (sim.speed(2, :)) ./ diff (sim.speed(1, :));
  k.factor = [sim.speed(1, floor((1:2 * n) / 2) + 1); slopes(ceil ((1:2 * n) / 2))];
  v = [v; {1, k}];
end
