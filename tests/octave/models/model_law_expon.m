% [S, CTX] = MODEL_LAW_EXPON (S, T, CTX)  forces opt(2) * opt(3) ^ unl
function [s, ctx] = model_law_expon (s, t, ctx)
  n = model_page (s);
  force = zeros (n, 1);
  for i = 1:n
    if s.opt(3) < 0 && s.unl(i) ~= fix (s.unl(i))
      force(i) = NaN;
    else
      force(i) = s.opt(2) * s.opt(3) ^ s.unl(i);
    end
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end
