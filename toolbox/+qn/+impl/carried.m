% [Q, DQ, LINK] = CARRIED (MODEL, BEFORE, Q, DQ)  a modal state of the model BEFORE in the modes of another one
%
% u = S q of the old model is projected with the mass matrix of the new one, q = S' M u; LINK is the matrix that does it. What the new
% modes cannot represent is measured in the norm of M, against the state itself: displacements smaller than the velocities divided by
% the highest frequency, and velocities smaller than the displacements times the lowest, count as nothing.
function [q, dq, link] = carried (model, before, q, dq)
  who = 'qn.simulation';
  [n, nb] = deal (size (model.shapes, 1), size (before.shapes, 1));
  if n ~= nb
    error ('qn:input', ['%s: the earlier run had a structure of %d degrees of freedom and this one has %d; give its state with "u0" ' ...
                        'and "v0" instead of "start"'], who, nb, n);
  end
  link = model.shapes.' * (model.M * before.shapes);
  u = before.shapes * q;
  v = before.shapes * dq;
  q = link * q;
  dq = link * dq;
  length_of = @(x) sqrt (abs (sum (x .* (model.M * x))));
  moving = before.w(before.w > 1e-6 * max (before.w));
  [low, high] = deal (min ([moving(:); Inf]), max ([moving(:); 0]));
  if isinf (low), low = 0; end
  [size_u, size_v] = deal (length_of (u), length_of (v));
  lost = [share(length_of (u - model.shapes * q), max (size_u, (high > 0) * size_v / max (high, realmin ()))), ...
          share(length_of (v - model.shapes * dq), max (size_v, size_u * low))];
  text = sprintf (['the modes of this model cannot represent %.2g %% of the displacements and %.2g %% of the velocities at the end ' ...
                   'of the earlier run'], 100 * lost);
  if any (lost > 0.01)
    error ('qn:input', '%s: %s; at most 1 %% is let pass: keep more modes, or give "u0" and "v0"', who, text);
  end
  if any (lost > 1e-4), warning ('qn:start', '%s: %s', who, text); end
end

function x = share (part, whole)
  x = part / max (whole, realmin ());
end
