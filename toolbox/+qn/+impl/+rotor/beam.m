% [K, M, R] = BEAM (L, OUTER, INNER, E, RHO, NU, SHEAR)  a round shaft element in one plane
%
% 4 x 4 over (displacement, slope) at both ends: stiffness [N/m, N, N m], mass of the translation and of the rotation of the sections.
% The static shape functions of a beam with shear (J. S. Przemieniecki, Theory of Matrix Structural Analysis, 1968; H. D. Nelson,
% J. Mechanical Design 102, 1980), with the shear coefficient of a hollow round section of G. R. Cowper (J. Applied Mechanics 33, 1966).
% Without SHEAR these are cubic (H. D. Nelson and J. M. McVaugh, J. Engineering for Industry 98, 1976).
function [k, m, r] = beam (l, outer, inner, e, rho, nu, shear)
  area = pi / 4 * (outer ^ 2 - inner ^ 2);
  second = pi / 64 * (outer ^ 4 - inner ^ 4);
  p = 0;
  if shear
    thin = (1 + (inner / outer) ^ 2) ^ 2;
    kappa = 6 * (1 + nu) * thin / ((7 + 6 * nu) * thin + (20 + 12 * nu) * (inner / outer) ^ 2);
    p = 24 * (1 + nu) * second / (kappa * area * l ^ 2);
  end
  scale = diag ([1 l 1 l]);
  k = [12 6 -12 6; 6 4+p -6 2-p; -12 -6 12 -6; 6 2-p -6 4+p];
  k = e * second / ((1 + p) * l ^ 3) * scale * k * scale;
  a = [312 + 588 * p + 280 * p ^ 2, 44 + 77 * p + 35 * p ^ 2, 108 + 252 * p + 140 * p ^ 2, -(26 + 63 * p + 35 * p ^ 2), ...
       8 + 14 * p + 7 * p ^ 2, -(6 + 14 * p + 7 * p ^ 2)];
  m = [a(1) a(2) a(3) a(4); a(2) a(5) -a(4) a(6); a(3) -a(4) a(1) -a(2); a(4) a(6) -a(2) a(5)];
  m = rho * area * l / (840 * (1 + p) ^ 2) * scale * m * scale;
  b = [36, 3 - 15 * p, 4 + 5 * p + 10 * p ^ 2, -1 - 5 * p + 5 * p ^ 2];
  r = [b(1) b(2) -b(1) b(2); b(2) b(3) -b(2) b(4); -b(1) -b(2) b(1) -b(2); b(2) b(4) -b(2) b(3)];
  r = rho * second / (30 * (1 + p) ^ 2 * l) * scale * r * scale;
end
