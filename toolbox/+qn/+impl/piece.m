% RES = PIECE (RES, H, TO)  one call of the module: from the last state of RES to column TO of the time table
function res = piece (res, h, to)
  sim = res.sim;
  s = res.final;
  from = s.column;
  m = numel (sim.model.w);
  n = numel (s.u);
  newmark = chandle (quarn ('chandleset', 2000, qn.impl.integrator (sim, from, to)));
  free = onCleanup (@() delete (newmark));
  wanted = find (sim.saved > from & sim.saved <= to);
  times = reshape (sim.time(sim.saved(wanted)), [], 1);
  slots = numel (s.FNL);
  u = qn.impl.fresh (s.u);
  v = qn.impl.fresh (s.v);
  a = qn.impl.fresh (s.a);
  model = struct ('FNL', qn.impl.fresh (s.FNL));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1), 'FNL', zeros (slots, 1)));
  out = struct ('data', times, 'def', zeros (n, numel (times)), 'FNL', struct ('data', times, 'def', zeros (slots, numel (times))));
  quarn ('chandlediagnewmark', [newmark, h], model, u, v, a, zeros (1, 2), mem, out);
  res.q(:, wanted) = out.def(1:m, :);
  res.state(:, wanted) = out.def(m + 1:end, :);
  res.force(:, wanted) = out.FNL.def(qn.impl.meaningful (sim), :);
  s.u = u;
  s.v = v;
  s.a = a;
  s.FNL = model.FNL;
  s.column = to;
  res.final = s;
end
