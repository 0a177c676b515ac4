% E = REMEMBERED (E, BEFORE, LAW, OLD)  the value E of an element of LAW with the memory in BEFORE, of an element of the law OLD
function e = remembered (e, before, law, old)
  for name = {'unl', 'vnl', 'snl'}
    if isfield (e, name{1}) && isfield (before, name{1}) && isequal (size (e.(name{1})), size (before.(name{1})))
      e.(name{1}) = before.(name{1});
    end
  end
  t = qn.impl.traits (law, 1);
  if isequal (law, old)
    % The place of the last search in a table. Where a law knows the step, its own value stays.
    step = e.opt(3:min (3, end));
    e.opt = before.opt;
    e.opt(3:min (3, end)) = step;
  elseif t.inner > 0
    % The rates that belong to the states kept and the weights of now: y' = B u + A y.
    m = t.inner;
    q = double (e.iopt(3));
    weights = e.opt(5 + 2 * (q + m) * q + (1:(q + m) * m));
    rows = 1 + (1:m);
    e.vnl(rows, 1, 3) = weights(1:m) * e.unl(1, 1, 1) + reshape (weights(q * m + (1:m * m)), m, m) * e.unl(rows, 1, 3);
  end
end
