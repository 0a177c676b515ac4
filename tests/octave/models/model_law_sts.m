% [S, CTX] = MODEL_LAW_STS (S, T, CTX)  stick-slip in pairs (displacement, slider position)
%
% opt(3) increment, opt(4) parallel stiffness, opt(5) contact stiffness, opt(6) slip force, opt(7) stiffness of the slider to ground.
function [s, ctx] = model_law_sts (s, t, ctx)
  if s.opt(3) == 0, s.opt(3) = t; end
  kc = s.opt(5);
  kg = s.opt(7);
  i = 1;
  sticks = false;
  while i <= model_page (s) && ~sticks
    trial = (s.unl(i + 1) - s.unl(i)) * kc + s.unl(i + 1) * kg;
    % A trial that is no 32-bit integer counts as -2^31, whose absolute value does not fit in 32 bits and stays negative.
    if ~(abs (fix (trial)) < 2 ^ 31), whole = -2 ^ 31; else, whole = abs (fix (trial)); end
    sticks = s.opt(6) > whole;
    if ~sticks
      if trial > 0, slip = s.opt(6); else, slip = -s.opt(6); end
      s.unl(i + 1) = ((s.unl(i) + s.vnl(i) * s.opt(3)) * kc - slip) / (kc + kg);
    end
    i = i + 2;
  end
  force = (s.unl(1) - s.unl(2)) * kc + s.opt(4) * s.unl(1);
  s = model_set_forces (s, force);
  ctx = model_store_state (s, ctx);
end
