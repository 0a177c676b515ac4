% [Q, F] = MODEL_PREDICTOR_CORRECTOR (K, C, P, H, BETA, GAMMA, Q, V, A, FORCE)  Newmark steps in modal coordinates, plainly
%
% K stiffnesses and C dampings (column or matrix), P modal loads at every time; FORCE (q, v) modal
% force of the elements at the predictor. Q has one column a time; F the forces.
function [q, f] = model_predictor_corrector (k, c, p, h, beta, gamma, q, v, a, force)
  if size (c, 2) == 1, c = diag (c); end
  if size (k, 2) == 1, k = diag (k); end
  n = size (p, 2);
  q = [q, zeros(numel (q), n - 1)];
  f = zeros (size (q));
  effective = eye (size (c)) + gamma * h * c + beta * h ^ 2 * k;
  for j = 2:n
    x = q(:, j - 1) + h * v + h ^ 2 * (1 / 2 - beta) * a;
    y = v + h * (1 - gamma) * a;
    f(:, j) = force (x, y);
    a = effective \ (p(:, j) - c * y - k * x - f(:, j));
    q(:, j) = x + beta * h ^ 2 * a;
    v = y + gamma * h * a;
  end
end
