% [PHI, W] = MODES (K, M, COUNT, METHOD)  lowest modes, PHI'*M*PHI = I, W ascending [rad/s]; largest entry of a shape positive
function [phi, w] = modes (k, m, count, method)
  switch method
    case 'eig'
      [factor, bad] = chol (full ((m + m.') / 2));
      if bad, error ('qn:input', 'qn.modal: the mass matrix is not positive definite'); end
      a = (factor.' \ full (k)) / factor;
      [x, lambda] = eig ((a + a.') / 2);
      phi = factor \ x;
    case 'eigs'
      % A small negative shift keeps K - sigma*M regular for structures that are free to move. The start vector is fixed, so
      % that the modes are the same on every run.
      sigma = -1e-6 * full (sum (abs (diag (k)))) / full (sum (abs (diag (m))));
      start = cos ((1:size (k, 1)).');
      [phi, lambda] = eigs (sparse (k), sparse (m), count, sigma, struct ('v0', start, 'issym', true));
    otherwise
      error ('qn:input', 'qn.modal: the method is ''auto'', ''eig'' or ''eigs'', not ''%s''', method);
  end
  [lambda, order] = sort (real (diag (lambda)));
  lambda = lambda(1:count);
  phi = real (phi(:, order(1:count)));
  w = sqrt (max (lambda, 0));
  w(lambda < 1e-12 * max (abs (lambda))) = 0;
  for j = 1:count
    x = phi(:, j);
    [unused, at] = max (abs (x));
    phi(:, j) = x * (sign (x(at)) / sqrt (x.' * m * x));
  end
end
