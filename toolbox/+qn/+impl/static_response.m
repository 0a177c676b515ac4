% [X, OFF] = STATIC_RESPONSE (K, M, PHI, W, F)  displacements under the loads F, one a column, of a structure with the modes PHI, W
%
% On a structure that is free to move those of the forces less the inertia forces of its rigid motions, without rigid motion themselves.
% OFF is the residual, relative to the loads: near 0, unless there is no such response.
function [x, off] = static_response (k, m, phi, w, f)
  r = phi(:, is_rigid (k, phi, w));
  load = f - m * (r * (r.' * f));
  a = k;
  if ~isempty (r)
    held = m * r;
    held = held * (mean (abs (diag (k))) / max (max (abs (held))));
    a = [k, held; held.', zeros(size (r, 2))];
  end
  before = warning ('off', 'all');
  back = onCleanup (@() warning (before));
  x = full (a \ [load; zeros(size (r, 2), size (load, 2))]);
  clear back
  x = x(1:size (k, 1), :);
  off = norm (k * x - load, 'fro') / norm (f, 'fro');
end

% A motion without strain, to rounding.
function yes = is_rigid (k, phi, w)
  [strain, terms] = qn.impl.strain_of (k, phi);
  yes = (w(:) == 0 | abs (strain) <= 1e-13 * terms).';
end
