% [S, CTX] = MODEL_LAW_DAMPER (S, T, CTX)  forces opt(2) * |vnl| ^ opt(3) with the sign of vnl, 0 at rest
function [s, ctx] = model_law_damper (s, t, ctx)
  n = model_page (s);
  force = zeros (n, 1);
  for i = 1:n
    if s.vnl(i) > 0
      force(i) = s.opt(2) * s.vnl(i) ^ s.opt(3);
    elseif s.vnl(i) < 0
      force(i) = -(s.opt(2) * (-s.vnl(i)) ^ s.opt(3));
    elseif isnan (s.vnl(i))
      force(i) = NaN;
    end
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end
