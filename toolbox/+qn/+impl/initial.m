% S = INITIAL (SIM, O)  state at the first time: u, v, a (modes, then states), FNL, and the values of the elements
function s = initial (sim, o)
  who = 'qn.simulation';
  m = numel (sim.model.w);
  n = m + sim.states;
  if ~isempty (o.start)
    if numel (o.start.final.u) ~= n || numel (o.start.final.FNL) ~= max (sim.slots, 1)
      error ('qn:input', '%s: the earlier run had other modes or elements', who);
    end
    s = o.start.final;
    s.column = 1;
    return
  end
  s = struct ('column', 1, 'u', zeros (n, 1), 'v', zeros (n, 1), 'a', zeros (n, 1), 'FNL', zeros (max (sim.slots, 1), 1));
  s.u(1:m) = modal (who, sim.model, 'u0', o.u0, 'q0', o.q0);
  s.v(1:m) = modal (who, sim.model, 'v0', o.v0, 'dq0', o.dq0);
  s.values = qn.impl.values (sim, sim.step);
  % Forces at the initial state: elements of a vanishing step, so that laws with memory stay where they are.
  still = qn.impl.values (sim, realmin ());
  [r, forces] = qn.impl.forces (sim, still, s.u, s.v);
  s.FNL(1:numel (forces)) = forces;
  if ischar (o.a0)
    if ~strcmp (o.a0, 'consistent'), error ('qn:input', '%s: "a0" is ''consistent'' or modal values', who); end
    s.a(1:m) = sim.shapes * sim.loads(:, 1) - r(1:m);
  else
    s.a(1:m) = qn.impl.numbers (who, 'a0', o.a0, m, 'each', 'one a mode');
  end
end

function q = modal (who, model, name, x, modal_name, q)
  m = numel (model.w);
  n = size (model.shapes, 1);
  if ~isempty (x) && ~isempty (q), error ('qn:input', '%s: give "%s" or "%s", one of them', who, name, modal_name); end
  if ~isempty (x)
    x = qn.impl.numbers (who, name, x, n, 'each', 'one a degree of freedom');
    q = model.shapes.' * (model.M * x(:));
  elseif isempty (q)
    q = zeros (m, 1);
  else
    q = qn.impl.numbers (who, modal_name, q, m, 'each', 'one a mode');
  end
  q = q(:);
end
