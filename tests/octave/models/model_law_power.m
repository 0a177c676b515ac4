% [S, CTX] = MODEL_LAW_POWER (S, T, CTX)  forces opt(2) * unl ^ opt(3)
function [s, ctx] = model_law_power (s, t, ctx)
  n = model_page (s);
  force = zeros (n, 1);
  for i = 1:n
    if s.unl(i) < 0 && s.opt(3) ~= fix (s.opt(3))
      force(i) = NaN;
    else
      force(i) = s.opt(2) * s.unl(i) ^ s.opt(3);
    end
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end
