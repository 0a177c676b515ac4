% S = CONTINUED (SIM, O)  state at the first time, from the end of the earlier run O.start
%
% Displacements and velocities pass through those of the structure, memories from element to element. Where nothing changed that
% enters the equation of motion, accelerations and forces are kept to the bit, else they are computed again.
function s = continued (sim, o)
  who = 'qn.simulation';
  for name = {'u0', 'v0', 'q0', 'dq0'}
    if ~isempty (o.(name{1})), error ('qn:input', '%s: with "start" the earlier run gives the state; leave out "%s"', who, name{1}); end
  end
  before = o.start.sim;
  last = o.start.final;
  m = numel (sim.model.w);
  mb = numel (before.model.w);
  n = m + sim.states;
  [s.column, s.u, s.v, s.a, s.FNL] = deal (1, zeros (n, 1), zeros (n, 1), zeros (n, 1), []);
  if isequal (sim.model.shapes, before.model.shapes)
    link = [];
    s.u(1:m) = last.u(1:m);
    s.v(1:m) = last.v(1:m);
  else
    [s.u(1:m), s.v(1:m), link] = qn.impl.carried (sim.model, before.model, last.u(1:mb), last.v(1:mb));
  end
  from = qn.impl.matched (sim, before, link, o.fresh);
  s.values = qn.impl.values (sim, sim.step);
  s.FNL = zeros (max (sim.slots, 1), 1);
  for k = find (from > 0)
    e = sim.elements(k);
    b = before.elements(from(k));
    s.values{2 + k, 2} = qn.impl.remembered (s.values{2 + k, 2}, last.values{2 + from(k), 2}, e.law, b.law);
    t = qn.impl.traits (e.law, size (e.observe, 1));
    s.FNL(e.slot - 1 + (1:t.width)) = last.FNL(b.slot - 1 + (1:t.width));
    if t.states == 0, continue, end
    s.u(e.state - 1 + (1:t.states)) = last.u(b.state - 1 + (1:t.states));
  end
  same = @(x, y, name) isequal (x.(name), y.(name));
  unchanged = all (cellfun (@(name) same (sim.model, before.model, name), {'shapes', 'stiffness', 'damping'})) && ...
              isequal (sort (from), 1:numel (before.elements)) && ...
              isequal (sim.shapes * sim.loads(:, 1), before.shapes * before.loads(:, last.column)) && ...
              isequal (turning (sim, 1), turning (before, last.column));
  for name = {'law', 'observe', 'command'}
    unchanged = unchanged && isequal ({sim.elements.(name{1})}, {before.elements(from).(name{1})});
  end
  if unchanged && ischar (o.a0) && strcmp (o.a0, 'consistent')
    s.a(1:m) = last.a(1:m);
  else
    s = qn.impl.balanced (sim, s, o.a0);
  end
end

% What changes with time in a set-up, as it is at a column of its times.
function t = turning (sim, column)
  t = {};
  for p = qn.impl.varying (sim), t(end + 1, :) = {p.type, p.matrix, qn.impl.factor_at(p.factor, sim.time(column))}; end
end
