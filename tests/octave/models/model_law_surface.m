% [S, CTX] = MODEL_LAW_SURFACE (S, T, CTX)  forces bilinear in a grid of iopt(6) displacements and iopt(7) velocities; the outer cells go on
%
% opt(2) and opt(3) keep the greatest distances from the grid; the knots and the forces follow.
function [s, ctx] = model_law_surface (s, t, ctx)
  n = model_page (s);
  nx = double (s.iopt(6));
  nv = double (s.iopt(7));
  x = s.opt(3 + (1:nx));
  v = s.opt(3 + nx + (1:nv));
  grid = reshape (s.opt(3 + nx + nv + (1:nx * nv)), nx, nv);
  force = zeros (n, 1);
  for i = 1:n
    s.opt(2) = max ([s.opt(2), x(1) - s.unl(i), s.unl(i) - x(nx)]);
    s.opt(3) = max ([s.opt(3), v(1) - s.vnl(i), s.vnl(i) - v(nv)]);
    [j, f] = cell_of (x, s.unl(i));
    [k, g] = cell_of (v, s.vnl(i));
    along = f * grid(j + 1, k:k + 1) + (1 - f) * grid(j, k:k + 1);
    force(i) = g * along(2) + (1 - g) * along(1);
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end

function [k, f] = cell_of (knots, q)
  k = min (max (sum (knots < q), 1), numel (knots) - 1);
  f = (q - knots(k)) / (knots(k + 1) - knots(k));
end
