% [Z, F] = LED_BOUCWEN (PARAMETERS, X)  z and forces of a registered element of the law BoucWen at the displacements X, one call each
%
% PARAMETERS as for state_element. The states come back through rows 2 and 3 of u.
function [z, f] = led_boucwen (parameters, x)
  e = state_element ('BoucWen', parameters, [-1 1 1 2 1], 3);
  [h, index] = registered ({e});
  cleanup = onCleanup (@() quarn ('chandleclear', index));
  [z, f] = deal (zeros (size (x)));
  u = zeros (3, 1);
  for k = 1:numel (x)
    u = [x(k); u(2:3)] + zeros (3, 1);
    r = zeros (3, 1);
    quarn ('residual', r, h, u, zeros (3, 1), zeros (3, 1), zeros (1, 2));
    z(k) = u(2);
    f(k) = r(1);
  end
end
