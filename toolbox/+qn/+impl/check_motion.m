% FOUND = CHECK_MOTION (RES, BEFORE)  elements that are too stiff for the step in the motion that occurred, with codes not in BEFORE
function found = check_motion (res, before)
  found = qn.impl.finding ();
  good = all (isfinite (res.q), 1);
  if ~any (good), return, end
  none = inf (numel (res.sim.model.w), 1);
  for k = 1:numel (res.sim.elements)
    e = res.sim.elements(k);
    x = qn.impl.met (e.law, e.observe * res.q(:, good), res.force(e.forces, good));
    one = qn.impl.check_law (res.sim, k, x, none);
    for j = 1:numel (one)
      if ~any (strcmp (one(j).code, {before.code})), found(end + 1) = one(j); end
    end
  end
end
