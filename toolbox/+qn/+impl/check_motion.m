% FOUND = CHECK_MOTION (RES, BEFORE)  what the motion that occurred shows of the elements, with codes that BEFORE did not warn of
function found = check_motion (res, before)
  found = qn.impl.finding ();
  seen = res;
  if ~isfinite (sum (res.q(:)))  % a sum that is a number has nothing in it that is none
    good = all (isfinite (res.q), 1);
    if ~any (good), return, end
    for name = {'q', 'force', 'state'}
      x = res.(name{1});
      seen.(name{1}) = x(:, good);
    end
  end
  said = {before(~strcmp ({before.level}, 'note')).code};
  none = inf (numel (res.sim.model.w), 1);
  for k = 1:numel (res.sim.elements)
    e = res.sim.elements(k);
    f = seen.force(e.forces, :);
    x = qn.impl.met (e.law, e.observe * seen.q, f);
    one = qn.impl.check_law (res.sim, k, x, none, qn.impl.memory_of (res.sim, k, seen.state), f, qn.impl.record_of (res, k));
    for j = 1:numel (one)
      if ~any (strcmp (one(j).code, said)), found(end + 1) = one(j); end
    end
  end
  if ~any (strcmp ('phase', said))
    for one = qn.impl.check_phase (res), found(end + 1) = one; end
  end
end
