% S = INITIAL (SIM, O)  state at the first time: u, v, a (modes, then states), FNL, and the values of the elements
function s = initial (sim, o)
  who = 'qn.simulation';
  if ~isempty (o.start)
    s = qn.impl.continued (sim, o);
    return
  end
  if ~isempty (o.fresh), error ('qn:input', '%s: "fresh" says which elements forget an earlier run; there is no "start"', who); end
  m = numel (sim.model.w);
  n = m + sim.states;
  s = struct ('column', 1, 'u', zeros (n, 1), 'v', zeros (n, 1), 'a', zeros (n, 1), 'FNL', []);
  s.u(1:m) = modal (who, sim.model, 'u0', o.u0, 'q0', o.q0);
  s.v(1:m) = modal (who, sim.model, 'v0', o.v0, 'dq0', o.dq0);
  s.values = qn.impl.values (sim, sim.step);
  s = qn.impl.balanced (sim, s, o.a0);
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
