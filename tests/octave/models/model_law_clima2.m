% [S, CTX] = MODEL_LAW_CLIMA2 (S, T, CTX)  two Dahl branches scaled by a table over a third observed value
%
% Groups of five in unl: three displacements, two force states. opt(3) increment, opt(4) stiffness, opt(5) exponent, opt(6) friction
% coefficient, opt(7) offset, table and search record at iopt(6:9).
function [s, ctx] = model_law_clima2 (s, t, ctx)
  if s.opt(3) == 0, s.opt(3) = t; end
  k = s.opt(4);
  mu = s.opt(6);
  place = double (s.iopt(6:9));
  count = place(3) * (1 + place(4));
  for i = 0:5:model_page (s) - 1
    g = zeros (1, 2);
    table = s.opt(place(1) + (1:count));
    [got, s.opt(place(2) + (1:3))] = model_lin_interp (table(:), s.unl(i + 3), s.opt(place(2) + (1:3)), place(3), place(4));
    used = min (numel (got), 2);
    g(1:used) = got(1:used);
    limit = mu * g(1);
    f = s.unl(i + 4);
    s1 = branch (s, f, s.vnl(i + 1), f / limit, g(2), limit) - k * s.unl(1);
    f = s.unl(i + 5);
    s2 = branch (s, f, s.vnl(i + 2), f / mu / g(1), g(2), limit) - k * s.unl(2);
    s3 = g(1) - k * s.unl(3) - s.opt(7);
    s = model_set_forces (s, [s1; s2; s3]);
    s.unl(i + 4) = s1;
    s.unl(i + 5) = s2;
  end
  ctx = model_store_state (s, ctx);
end

function f = branch (s, f, v, ratio, growth, limit)
  if v > 0, z = 1 - ratio; else, z = 1 + ratio; end
  if z > 0, f = f + v * s.opt(3) * growth * z ^ s.opt(5); end
  if f > limit, f = limit; end
  if f < -limit, f = -limit; end
end
