% [S, CTX] = MODEL_LAW_DAHLC (S, T, CTX)  Dahl friction in pairs (displacement, force state)
%
% opt(3) increment, opt(4) stiffness, opt(5) exponent, opt(6)*opt(7) limit force.
function [s, ctx] = model_law_dahlc (s, t, ctx)
  if s.opt(3) == 0, s.opt(3) = t; end
  limit = s.opt(6) * s.opt(7);
  own = isfield (s, 'snl') && ~isempty (s.snl);
  for i = 1:2:model_page (s)
    f = s.unl(i + 1);
    v = s.vnl(i);
    if v > 0
      z = 1 - f / limit;
    else
      z = 1 - (-f) / limit;
    end
    if z > 0, f = f + v * s.opt(3) * s.opt(4) * z ^ s.opt(5); end
    if f > limit, f = limit; end
    if f < -limit, f = -limit; end
    if own, s.snl(i) = f; else, s.unl(i) = f; end
    s.unl(i + 1) = f;
  end
  ctx = model_store_state (s, ctx);
end
