% [Q, F] = MODEL_PREDICTOR_CORRECTOR (W2, C, P, H, BETA, GAMMA, Q, V, A, FORCE)  Newmark steps in modal coordinates, plainly
%
% W2 stiffnesses, C dampings (column or matrix, the corrector knows its diagonal), P modal loads at every time; FORCE (q, v) modal
% force of the elements at the predictor. Q has one column a time; F the forces.
function [q, f] = model_predictor_corrector (w2, c, p, h, beta, gamma, q, v, a, force)
  if size (c, 2) == 1, c = diag (c); end
  n = size (p, 2);
  q = [q, zeros(numel (q), n - 1)];
  f = zeros (size (q));
  effective = 1 + gamma * h * diag (c) + beta * h ^ 2 * w2;
  for j = 2:n
    x = q(:, j - 1) + h * v + h ^ 2 * (1 / 2 - beta) * a;
    y = v + h * (1 - gamma) * a;
    f(:, j) = force (x, y);
    a = (p(:, j) - c * y - w2 .* x - f(:, j)) ./ effective;
    q(:, j) = x + beta * h ^ 2 * a;
    v = y + gamma * h * a;
  end
end
