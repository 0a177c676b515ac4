% OUT = NEWMARK_OF_SPEEDS (S, P, H, OMEGA, CHANGING, DAMPING)  average acceleration in plain Octave, with the matrices of every step
%
% S has M, C, K and G; column j of P holds the loads and OMEGA(j) the speed at time (j - 1) H; CHANGING(:, :, j), or one matrix for all
% steps, is added to K, DAMPING (0 without it) to C in the same way. Starts at rest; OUT has the displacements at all times.
function out = newmark_of_speeds (s, p, h, omega, changing, damping)
  if nargin < 6, damping = 0; end
  n = size (p, 1);
  [u, v, out] = deal (zeros (n, 1), zeros (n, 1), zeros (n, numel (omega)));
  a = s.M \ p(:, 1);
  for j = 2:numel (omega)
    c = s.C + omega(j) * s.G + damping(:, :, min (j, end));
    k = s.K + changing(:, :, min (j, end));
    u = u + h * v + h ^ 2 / 4 * a;
    v = v + h / 2 * a;
    a = (s.M + h / 2 * c + h ^ 2 / 4 * k) \ (p(:, j) - c * v - k * u);
    u = u + h ^ 2 / 4 * a;
    v = v + h / 2 * a;
    out(:, j) = u;
  end
end
