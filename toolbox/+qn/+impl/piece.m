% [S, OUT, WANTED] = PIECE (SIM, S, H, TO, KEPT)  one call of the module: from the state S to column TO of the time table
%
% OUT holds the results q, state and force for the columns WANTED of the whole, those after the first KEPT. They are handed back rather
% than put in place here, so that the host does not copy the whole for every piece.
function [s, out, wanted] = piece (sim, s, h, to, kept)
  from = s.column;
  m = numel (sim.model.w);
  n = numel (s.u);
  newmark = chandle (quarn ('chandleset', 2000, qn.impl.integrator (sim, from, to)));
  free = onCleanup (@() delete (newmark));
  wanted = kept + 1:min (kept + to - from, numel (sim.saved));  % a step may be kept once
  wanted = wanted(sim.saved(wanted) <= to);
  times = reshape (sim.time(sim.saved(wanted)), [], 1);
  slots = numel (s.FNL);
  u = qn.impl.fresh (s.u);
  v = qn.impl.fresh (s.v);
  a = qn.impl.fresh (s.a);
  model = struct ('FNL', qn.impl.fresh (s.FNL));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1), 'FNL', zeros (slots, 1)));
  out = struct ('data', times, 'def', zeros (n, numel (times)), 'FNL', struct ('data', times, 'def', zeros (slots, numel (times))));
  try
    quarn ('chandlediagnewmark', [newmark, h], model, u, v, a, zeros (1, 2), mem, out);
  catch err
    with_time (err, sim, newmark);
  end
  s.u = u;
  s.v = v;
  s.a = a;
  s.FNL = model.FNL;
  s.column = to;
  out = struct ('q', out.def(1:m, :), 'state', out.def(m + 1:end, :), 'force', out.FNL.def(qn.impl.force_slots (sim), :));
end

% An error of a law that is a function, with the time of the step that it ended.
function with_time (err, sim, newmark)
  calls = false;
  for e = reshape (sim.elements, 1, [])
    l = qn.impl.law_of (e.law.kind);
    calls = calls || any (strcmp (l.parameters(:, 3), 'function'));
  end
  if calls && isempty (strfind (err.message, 'quarn chandlediagnewmark : '))
    value = quarn ('chandleget', remi (newmark, 1));
    err = struct ('message', sprintf ('%s (in the run, at t = %.9g s)', err.message, value.data(6)), 'identifier', err.identifier, ...
                  'stack', err.stack);
  end
  rethrow (err);
end
