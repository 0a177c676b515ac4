% [E, R, U] = EVALUATE_LAW (E, U, V)  evaluates the element E once through "residual", as a registered handle
%
% E comes back as the element's structure after the call, R is the residual that it added to zeros, U the displacements after it.
function [e, r, u] = evaluate_law (e, u, v)
  u = fresh (u(:));
  v = fresh (v(:));
  a = zeros (numel (u), 1);
  r = zeros (numel (u), 1);
  [h, index] = registered ({e});
  cleanup = onCleanup (@() quarn ('chandleclear', index));
  quarn ('residual', r, h, u, v, a, zeros (1, 2));
  e = quarn ('chandleget', index);
end
