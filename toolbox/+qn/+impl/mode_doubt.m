% TEXT = MODE_DOUBT (K, M, PHI, LAMBDA)  what speaks against PHI being the lowest modes of K and M, with LAMBDA = w^2; '' for nothing
%
% Residuals, orthogonality, and whether a mode was left out: subspace iteration among what is orthogonal to PHI must not find a
% vector whose Rayleigh quotient, an upper bound of the lowest mode there, is below the highest of LAMBDA (Bathe and Wilson 1972).
function text = mode_doubt (k, m, phi, lambda)
  text = '';
  lambda = lambda(:);
  off = norm (k * phi - m * phi * diag (lambda), 1) / (norm (k, 1) * norm (phi, 1));
  if ~(off <= 1e-8), text = sprintf ('residual of %.2g', off); end
  off = norm (phi.' * (m * phi) - eye (numel (lambda)), 1);
  if ~(off <= 1e-8), text = sprintf ('modes that are not orthogonal, by %.2g', off); end
  n = size (k, 1);
  if ~isempty (text) || n < numel (lambda) + 4, return, end
  [factor, bad, order] = chol (sparse (k - qn.impl.mode_shift (k, m) * m));
  if bad
    text = 'a stiffness that is not positive';
    return
  end
  x = cos ((1:n).' * [1.1 2.3 3.7 5.9]);
  for round = 1:12
    x = m * x;
    x = order * (factor \ (factor.' \ (order.' * x)));
    for again = 1:2, x = x - phi * (phi.' * (m * x)); end
    [x, unused] = qr (x, 0);
  end
  found = min (real (eig (full (x.' * (k * x)), full (x.' * (m * x)))));
  if found < lambda(end) - 1e-6 * abs (lambda(end))
    text = sprintf ('there is one more at or below %.4g Hz', sqrt (max (found, 0)) / (2 * pi));
  end
end
