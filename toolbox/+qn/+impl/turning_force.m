% F = TURNING_FORCE (PARTS, TIME, Q, V)  modal forces on the left side of what changes with time (qn.impl.varying), a column a time
function f = turning_force (parts, time, q, v)
  f = zeros (size (q));
  for p = parts
    x = q;
    if p.type == 3, x = v; end
    f = f + bsxfun (@times, qn.impl.factor_at (p.factor, time), p.matrix * x);
  end
end
