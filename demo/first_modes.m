% [PHI, W] = FIRST_MODES (K, M, N)  the N lowest modes of K x = w^2 M x
%
% Output  PHI  mode shapes, one column a mode, scaled to a modal mass of 1 (PHI'*M*PHI = I)
%         W    angular frequencies [rad/s], ascending, column
%
% A few hundred degrees of freedom: the dense symmetric solver is quick, and gives the same modes on every run.
function [phi, w] = first_modes (k, m, n)
  factor = chol (full (m));
  a = (factor.' \ full (k)) / factor;
  [x, lambda] = eig ((a + a.') / 2);
  [lambda, order] = sort (diag (lambda));
  w = sqrt (lambda(1:n));
  phi = factor \ x(:, order(1:n));
end
