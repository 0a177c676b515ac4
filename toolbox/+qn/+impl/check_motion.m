% FOUND = CHECK_MOTION (RES, BEFORE)  what the motion that occurred shows of the elements, with codes that BEFORE did not warn of
function found = check_motion (res, before)
  found = qn.impl.finding ();
  seen = res;
  m = numel (res.sim.model.w);
  % All elements in one pass, and in the last row a sum that is no number where one of its terms is none.
  met = [cat(1, zeros (0, m), res.sim.elements.observe); ones(1, m)] * res.q;
  good = isfinite (met(end, :));
  if ~all (good)
    if ~any (good), return, end
    met = met(:, good);
    for name = {'force', 'state'}
      x = res.(name{1});
      seen.(name{1}) = x(:, good);
    end
  end
  said = {before(~strcmp ({before.level}, 'note')).code};
  none = inf (m, 1);
  row = 0;
  for k = 1:numel (res.sim.elements)
    e = res.sim.elements(k);
    f = seen.force(e.forces, :);
    at = row + (1:size (e.observe, 1));
    row = at(end);
    most = max (abs (met(at, end)));
    if most > 1e6  % no structure: what feeds a motion has its greatest value at the end
      found(end + 1) = qn.impl.finding ('motion_large', 'warning', ['element %d moves by %.3g m at the end: a force of the wrong sign ' ...
        'feeds the motion (the force of a spring has the sign of its displacement here), or the units are wrong'], e.item, most);
    end
    x = qn.impl.met (e.law, met(at, :), f);
    one = qn.impl.check_law (res.sim, k, x, none, qn.impl.memory_of (res.sim, k, seen.state), f, qn.impl.record_of (res, k));
    for j = 1:numel (one)
      if ~any (strcmp (one(j).code, said)), found(end + 1) = one(j); end
    end
  end
  if ~any (strcmp ('phase', said))
    for one = qn.impl.check_phase (res, met(1:end - 1, :)), found(end + 1) = one; end
  end
end
