% [S, CTX] = MODEL_LAW_RADIAL (S, T, CTX)  contact and friction of a round shaft in a round clearance, in pairs (x, y)
%
% opt(2) gap, opt(3) stiffness, opt(4) exponent, opt(5) Hunt-Crossley damping, opt(6) friction, opt(7) speed of its onset, opt(8) radius,
% opt(9) angular speed, opt(10:11) centre.
function [s, ctx] = model_law_radial (s, t, ctx)
  p = s.opt;
  n = model_page (s);
  force = zeros (n, 1);
  for i = 1:2:n
    at = [s.unl(i) - p(10), s.unl(i + 1) - p(11)];
    v = [s.vnl(i), s.vnl(i + 1)];
    r = sqrt (at(1) * at(1) + at(2) * at(2));
    if r <= p(2), continue, end
    along = at / r;
    press = p(3) * (r - p(2)) ^ p(4) * (1 + p(5) * (along(1) * v(1) + along(2) * v(2)));
    if press < 0, press = 0; end
    slide = along(1) * v(2) - along(2) * v(1) + p(8) * p(9);
    rub = 0;
    if slide ~= 0 || p(7) ~= 0, rub = p(6) * press * (slide / sqrt (slide * slide + p(7) * p(7))); end
    force(i) = press * along(1) - rub * along(2);
    force(i + 1) = press * along(2) + rub * along(1);
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end
