% U = EXACT_LINEAR (M, C, K, U0, V0, B, W, H, STEPS)  M u'' + C u' + K u = B cos (W t) at the times (0:STEPS)*H, by matrix exponentials
function u = exact_linear (m, c, k, u0, v0, b, w, h, steps)
  n = numel (u0);
  a = [zeros(n), eye(n), zeros(n, 2); -(m \ k), -(m \ c), m \ b, zeros(n, 1); zeros(2, 2 * n), [0 -w; w 0]];
  advance = expm (a * h);
  x = [u0; v0; 1; 0];
  u = [u0, zeros(n, steps)];
  for j = 1:steps
    x = advance * x;
    u(:, j + 1) = x(1:n);
  end
end
