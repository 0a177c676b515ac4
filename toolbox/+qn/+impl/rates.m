% [V, A] = RATES (RES, WHO, C)  rows C times the modal velocities and accelerations at every step; all modes without C
function [v, a] = rates (res, who, c)
  qn.impl.every_step (who, res);
  if ~res.complete, error ('qn:input', '%s: the run is not complete: go on with qn.resume first', who); end
  few = nargin > 2 && size (c, 1) * max (nargout, 1) <= min (8, size (res.q, 1) / 4);
  if few && numel (res.q) > 1e6 && ~qn.impl.varies (res.sim)
    if nargout > 1, [v, a] = qn.impl.seen_rates (res, c); else, v = qn.impl.seen_rates (res, c); end
    return
  end
  [m, n] = size (res.q);
  rows = m;
  if nargin > 2, rows = size (c, 1); end
  v = zeros (rows, n);
  a = zeros (rows * (nargout > 1), n);
  at = [];
  coupled = qn.impl.coupled (res.sim);
  for columns = qn.impl.blocks ([m, n])
    j = columns(1):columns(2);
    if ~coupled
      [vj, at, aj] = of_modes (res, at, j);
    elseif nargout > 1
      [vj, at, aj] = qn.impl.next_rates (res, at, j);
    else
      [vj, at] = qn.impl.next_rates (res, at, j);
    end
    if nargin > 2, vj = c * vj; end
    v(:, j) = vj;
    if nargout < 2, continue, end
    if nargin > 2, aj = c * aj; end
    a(:, j) = aj;
  end
end

% The same as next_rates for modes that are not coupled.
function [v, at, a] = of_modes (res, at, j)
  first = isempty (at);
  m = size (res.q, 1);
  if first
    at = struct ('v', res.sim.start.v(1:m), 'a', res.sim.start.a(1:m));
  else
    j = [j(1) - 1, j];
  end
  [~, v, a] = qn.impl.modal_motion (res, j, at.v, at.a);
  [at.v, at.a] = deal (v(:, end), a(:, end));
  if ~first, [v, a] = deal (v(:, 2:end), a(:, 2:end)); end
end
