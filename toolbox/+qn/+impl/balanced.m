% S = BALANCED (SIM, S, A0)  forces of the elements at the state S, and the acceleration that satisfies the equation of motion, or A0
function s = balanced (sim, s, a0)
  who = 'qn.simulation';
  m = numel (sim.model.w);
  % Elements of a vanishing step, so that laws with memory stay where they are.
  still = qn.impl.values (sim, realmin ());
  for k = 3:size (still, 1)
    now = s.values{k, 2};
    for name = {'unl', 'vnl', 'snl'}
      if isfield (now, name{1}), still{k, 2}.(name{1}) = now.(name{1}); end
    end
  end
  [r, forces] = qn.impl.forces (sim, still, s.u, s.v);
  s.FNL = zeros (max (sim.slots, 1), 1);
  s.FNL(1:numel (forces)) = forces;
  if qn.impl.varies (sim)
    r(1:m) = r(1:m) + qn.impl.turning_force (qn.impl.varying (sim), sim.time(1), s.u(1:m), s.v(1:m));
  end
  if ischar (a0)
    if ~strcmp (a0, 'consistent'), error ('qn:input', '%s: "a0" is ''consistent'' or modal values', who); end
    s.a(1:m) = sim.shapes * sim.loads(:, 1) - r(1:m);
  else
    s.a(1:m) = qn.impl.numbers (who, 'a0', a0, m, 'each', 'one a mode');
  end
end
