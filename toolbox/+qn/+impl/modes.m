% [PHI, W] = MODES (K, M, COUNT, METHOD)  lowest modes, PHI'*M*PHI = I, W ascending [rad/s]; largest entry of a shape positive
%
% Degrees of freedom without mass (rows of M that are zero) follow the others statically and add no modes. METHOD 'auto' takes eigs for
% sparse matrices where that is faster (from 250 degrees of freedom on, for up to a quarter of the modes), and eig where the result
% of eigs is in doubt.
function [phi, w] = modes (k, m, count, method)
  free = full (any (m, 2));
  if any (free) && ~all (free)
    follow = statically (k(~free, ~free), k(~free, free), find (~free));
    [some, w] = qn.impl.modes (k(free, free) + k(free, ~free) * follow, m(free, free), min (count, sum (free)), method);
    phi = zeros (numel (free), numel (w));
    phi(free, :) = some;
    phi(~free, :) = follow * some;
    phi = upright (phi);
    return
  end
  n = size (k, 1);
  own = full (abs (diag (k) ./ diag (m)));
  if any (diag (k)) && all (diag (m) > 0) && (max (own) > 1e300 || max (own) < 1e-300), beyond_numbers (k, m); end
  switch method
    case 'auto'
      small = ~issparse (k) || n <= 250 || count > n / 4;
      if ~small
        [phi, lambda] = sparse_modes (k, m, count);
        small = ~isempty (qn.impl.mode_doubt (k, m, phi, lambda));
      end
      if small, [phi, lambda] = dense_modes (k, m); end
    case 'eig'
      [phi, lambda] = dense_modes (k, m);
    case 'eigs'
      [phi, lambda] = sparse_modes (k, m, count);
      doubt = qn.impl.mode_doubt (k, m, phi, lambda);
      if ~isempty (doubt), error ('qn:eigs', 'qn.modal: eigs did not find the lowest modes: %s; take ''method'', ''eig''', doubt); end
    otherwise
      error ('qn:input', 'qn.modal: "method" is ''auto'', ''eig'' or ''eigs'', not ''%s''', method);
  end
  [phi, lambda] = small_ones (k, phi(:, 1:count), lambda(1:count));
  phi = upright (phi);
  no_push (k, phi, lambda);
  w = sqrt (max (lambda, 0));
end

% Eigenvalues below 1e-12 of the greatest are rounding of it. Where the shapes strain K by more than the rounding of its own entries they
% are found again from that, else they belong to rigid motions, of 0 Hz (qn.check notes what may be neither).
function [phi, lambda] = small_ones (k, phi, lambda)
  small = find (abs (lambda) < 1e-12 * max (abs (lambda)));
  if isempty (small), return, end
  [strain, terms] = qn.impl.strain_of (k, phi(:, small));
  if any (strain > 1e-13 * terms)
    own = phi(:, small).' * (k * phi(:, small));
    [turn, found] = eig ((own + own.') / 2);
    [unused, order] = sort (diag (found));
    phi(:, small) = phi(:, small) * turn(:, order);
    [strain, terms] = qn.impl.strain_of (k, phi(:, small));
  end
  lambda(small) = strain .* (abs (strain) > 1e-13 * terms);
end

function [phi, lambda] = dense_modes (k, m)
  [factor, bad] = chol (full ((m + m.') / 2));
  if bad
    error ('qn:input', ['qn.modal: the mass matrix is not positive definite. Degrees of freedom without mass are condensed where their ' ...
                        'rows of M are zero']);
  end
  a = (factor.' \ full (k)) / factor;
  if ~all (isfinite (a(:)) & abs (a(:)) < 1e300), beyond_numbers (k, m); end
  [x, lambda] = eig ((a + a.') / 2);
  [phi, lambda] = scaled (factor \ x, diag (lambda), m);
end

% A small negative shift keeps K - sigma*M regular for structures that are free to move. The start vector is fixed, so that the modes
% are the same on every run.
function [phi, lambda] = sparse_modes (k, m, count)
  sigma = qn.impl.mode_shift (k, m);
  start = cos ((1:size (k, 1)).');
  [phi, lambda] = eigs (sparse (k), sparse (m), count, sigma, struct ('v0', start, 'issym', true));
  [phi, lambda] = scaled (phi, diag (lambda), m);
end

function beyond_numbers (k, m)
  error ('qn:input', ['qn.modal: stiffness over mass is beyond all numbers: K has entries up to %.3g N/m, M has masses from %.3g to ' ...
                      '%.3g kg'], full (max (abs (k(:)))), full (min (diag (m))), full (max (diag (m))));
end

function [phi, lambda] = scaled (phi, lambda, m)
  [lambda, order] = sort (real (lambda));
  phi = real (phi(:, order));
  for j = 1:numel (lambda), phi(:, j) = phi(:, j) / sqrt (phi(:, j).' * m * phi(:, j)); end
end

% A negative eigenvalue of K and M is a motion that grows, which no mode can hold: it is refused, not taken for a rigid motion. What the
% rounding of K makes of a rigid motion is small beside what its entries do to the shape one by one.
function no_push (k, phi, lambda)
  for j = find (lambda(:).' < 0)
    [unused, terms] = qn.impl.strain_of (k, phi(:, j));
    share = -lambda(j) / terms;
    if share < 1e-10, continue, end
    text = sprintf (['K is not positive semidefinite: mode %d has a stiffness of %.3g 1/s^2, a motion that grows by a factor of e in ' ...
                     '%.3g s'], j, lambda(j), 1 / sqrt (-lambda(j)));
    if share > 1e-6
      error ('qn:input', ['qn.modal: %s. Look at its signs; forces that push away from rest by right (the weight of an upright ' ...
                          'pendulum, a load beyond buckling) belong into the option "K"'], text);
    end
    warning ('qn:modal', ['qn.modal: %s. It is %.1g of its entries and is taken for rounding of a rigid motion, 0; if it is meant, ' ...
                          'put what pushes into the option "K"'], text, share);
  end
end

function phi = upright (phi)
  for j = 1:size (phi, 2)
    [unused, at] = max (abs (phi(:, j)));
    phi(:, j) = phi(:, j) * sign (phi(at, j));
  end
end

% Displacements of degrees of freedom without mass, one row each, for unit displacements of the others.
function follow = statically (own, coupling, numbers)
  [factor, bad] = chol (own);
  if bad
    error ('qn:input', ['qn.modal: the degrees of freedom without mass (rows of M that are zero: %d of them, the first %d) are not ' ...
                        'held by the stiffness'], numel (numbers), numbers(1));
  end
  follow = full (-(factor \ (factor.' \ coupling)));
end
