% [S, CTX] = MODEL_LAW_IMPACT (S, T, CTX)  a stop after Hunt and Crossley: k d^p (1 + chi d'), never below 0
%
% opt(2) k, opt(3) p, opt(4) chi, opt(5) the gap, opt(6) below 0: on the side of negative displacements.
function [s, ctx] = model_law_contact (s, t, ctx)
  n = model_page (s);
  force = zeros (n, 1);
  for i = 1:n
    if s.opt(6) < 0
      d = -s.unl(i) - s.opt(5);
      rate = -s.vnl(i);
    else
      d = s.unl(i) - s.opt(5);
      rate = s.vnl(i);
    end
    if d > 0
      force(i) = max (0, s.opt(2) * d ^ s.opt(3) * (1 + s.opt(4) * rate));
    elseif isnan (d)
      force(i) = NaN;
    end
    if s.opt(6) < 0 && force(i) > 0, force(i) = -force(i); end
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end
