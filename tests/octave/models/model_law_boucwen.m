% [S, CTX] = MODEL_LAW_BOUCWEN (S, T, CTX)  Bouc-Wen hysteresis in groups of three (displacement, z, displacement before)
%
% opt(4) stiffness, opt(5) share of the spring, opt(6:9) A, beta, gamma, n. Along the way dz/dx = A - |z|^n (gamma + beta sign (z dx)) is
% integrated by the Runge-Kutta rule of fourth order in at most 32 parts.
function [s, ctx] = model_law_boucwen (s, t, ctx)
  own = isfield (s, 'snl') && ~isempty (s.snl);
  [a, beta, gamma, n] = deal (s.opt(6), s.opt(7), s.opt(8), s.opt(9));
  limit = Inf;
  if a / (beta + gamma) > 0, limit = (a / (beta + gamma)) ^ (1 / n); end
  for i = 1:3:model_page (s)
    x = s.unl(i);
    way = x - s.unl(i + 2);
    side = 1;
    if way < 0, side = -1; end
    way = side * way;
    y = side * s.unl(i + 1);
    below = ~(y > limit);
    if limit < Inf
      most = max (abs (y), limit);
    else
      most = abs (y) + abs (a) * way;
    end
    wanted = 4 * way * (n * (abs (beta) + abs (gamma)) * most ^ (n - 1));
    parts = 1;
    if wanted > 1, parts = min (32, ceil (wanted)); end
    h = way / parts;
    slope = @(y) slope_at (y, a, beta + gamma, gamma - beta, n);
    for k = 1:parts
      k1 = slope (y);
      k2 = slope (held (y + 0.5 * h * k1, limit, below));
      k3 = slope (held (y + 0.5 * h * k2, limit, below));
      k4 = slope (held (y + h * k3, limit, below));
      y = held (y + h / 6 * (k1 + 2 * k2 + 2 * k3 + k4), limit, below);
    end
    z = side * y;
    f = s.opt(4) * (s.opt(5) * x + (1 - s.opt(5)) * z);
    if own, s.snl(i) = f; else, s.unl(i) = f; end
    s.unl(i + 1) = z;
    s.unl(i + 2) = x;
  end
  ctx = model_store_state (s, ctx);
end

function d = slope_at (y, a, rise, fall, n)
  if y < 0, rise = fall; end
  d = a - rise * abs (y) ^ n;
end

function y = held (y, limit, below)
  if below && y > limit, y = limit; end
  if ~below && y < limit, y = limit; end
end
