% V = TURNING_VALUES (SIM)  values of the handles that change with time, {3, damping; 1, stiffness; ...}, see qn.impl.varying
function v = turning_values (sim)
  v = cell (0, 2);
  for p = qn.impl.varying (sim)
    x = qn.impl.modal_value (sim, p.matrix);
    x.factor = p.factor;
    v(end + 1, :) = {p.type, x};
  end
end
