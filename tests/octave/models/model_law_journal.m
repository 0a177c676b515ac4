% [S, CTX] = MODEL_LAW_OCVIRK (S, T, CTX)  half film of a short plain bearing, in pairs (x, y)
%
% opt(2) viscosity, opt(3) length, opt(4) radius, opt(5) clearance, opt(6) spin, opt(7) greatest eccentricity of the film, opt(8:9)
% centre, opt(10) greatest eccentricity met.
function [s, ctx] = model_law_journal (s, t, ctx)
  p = s.opt;
  n = model_page (s);
  force = zeros (n, 1);
  scale = p(2) * p(4) * p(3) * p(3) * p(3) / (2 * p(5) * p(5));
  for i = 1:2:n
    at = [(s.unl(i) - p(8)) / p(5), (s.unl(i + 1) - p(9)) / p(5)];
    v = [s.vnl(i), s.vnl(i + 1)] / p(5);
    e = sqrt (at(1) * at(1) + at(2) * at(2));
    if e > s.opt(10), s.opt(10) = e; end
    if e > p(7), at = at * (p(7) / e); end
    press = [at(2) * p(6) + 2 * v(1), at(1) * p(6) - 2 * v(2)];
    rate = sqrt (press(1) * press(1) + press(2) * press(2));
    if rate == 0, continue, end
    ahead = (at(1) * press(1) - at(2) * press(2)) / rate;
    aside = (at(1) * press(2) + at(2) * press(1)) / rate;
    gap = 1 - at(1) * at(1) - at(2) * at(2);
    if ahead < 0 && gap < 0.1 * ahead * ahead
      [first, second] = series (ahead, aside, gap);
    else
      turn = atan2 (sqrt (gap), -ahead) / sqrt (gap);
      first = (3 * ahead + turn * (gap + 3 * ahead * ahead)) / (gap * gap);
      second = aside * (2 + ahead * ahead / (1 - aside * aside) + 3 * ahead * turn) / (gap * gap);
    end
    force(i) = scale * (first * press(1) + second * press(2));
    force(i + 1) = scale * (second * press(1) - first * press(2));
  end
  s = model_set_forces (s, force);
  ctx = model_store_forces (s, ctx);
end

% Both integrals where their closed forms cancel: powers of gap / ahead^2.
function [first, second] = series (ahead, aside, gap)
  ratio = gap / (ahead * ahead);
  [first, second] = deal (0, 0);
  for n = 18:-1:2
    first = 4 * (n - 1) / ((2 * n) * (2 * n) - 1) - ratio * first;
    second = (2 * n - 2) / (2 * n + 1) - ratio * second;
  end
  first = first / (ahead * ahead * -ahead);
  second = aside * second / (ahead * ahead * (ahead * ahead));
end
