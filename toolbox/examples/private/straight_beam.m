% [K, M] = STRAIGHT_BEAM (N, L, EI, MU)  free Euler-Bernoulli beam of N equal elements, with consistent mass
%
% Input   L   length [m]
%         EI  bending stiffness [N m^2]
%         MU  mass per length [kg/m]
% Output  K, M   sparse, 2 (N + 1) degrees of freedom: deflection [m] and rotation [rad] of every node in turn
function [k, m] = straight_beam (n, l, ei, mu)
  a = l / n;
  ke = ei / a ^ 3 * [12, 6*a, -12, 6*a; 6*a, 4*a^2, -6*a, 2*a^2; -12, -6*a, 12, -6*a; 6*a, 2*a^2, -6*a, 4*a^2];
  me = mu * a / 420 * [156, 22*a, 54, -13*a; 22*a, 4*a^2, 13*a, -3*a^2; 54, 13*a, 156, -22*a; -13*a, -3*a^2, -22*a, 4*a^2];
  k = sparse (2 * n + 2, 2 * n + 2);
  m = k;
  for e = 1:n
    at = 2 * e - 1:2 * e + 2;
    k(at, at) = k(at, at) + ke;
    m(at, at) = m(at, at) + me;
  end
end
