% [NEGATIVE, POSITIVE, BOUND] = FELT (ACC, H, W, ZETA)  extremes of the absolute acceleration of an oscillator on a moving base
%
% ACC is the base acceleration at samples H apart, linear in between, W [rad/s] and ZETA are the oscillator's. Within an interval it
% feels y = a + Re (c exp (l t)), l = -zeta w + i wd: the base's own acceleration and a free vibration, which takes up a kink of the
% record, ds in its slope, with i ds / wd. Between two points that are d apart y rises above the higher one by at most
% (w d)^2 |c| / 8. So intervals that may hold the extreme are divided until nothing more than 1e-6 can be gained; BOUND is what is
% left. After the record the free vibration has its extremes half a turn apart.
function [negative, positive, bound] = felt (acc, h, w, zeta)
  wd = w * sqrt (1 - zeta ^ 2);
  l = -zeta * w + 1i * wd;
  acc = [0, acc, 0];
  slope = diff (acc) / h;
  c = filter (1, [1, -exp(l * h)], 1i * diff ([0, slope]) / wd);
  free = (c(end) * exp (l * h)) - 1i * slope(end) / wd;
  turn = mod (pi / 2 - angle (l * free), pi) / wd + [0, pi / wd];
  after = real (free * exp (l * turn));
  [positive, above] = highest (acc, slope, c, h, w, l, max ([0, after]));
  [negative, below] = highest (-acc, -slope, -c, h, w, l, max ([0, -after]));
  bound = max (above, below);
end

function [best, bound] = highest (acc, slope, c, h, w, l, best)
  left = acc(1:end - 1) + real (c);
  right = acc(2:end) + real (c * exp (l * h));
  best = max ([best, left, right]);
  a = acc(1:end - 1);
  while true
    rise = (w * h) ^ 2 / 8 * abs (c);
    beyond = max (left, right) + rise - best;
    bound = max ([0, beyond]);
    if bound <= 1e-6 * best, break, end
    % Parts that may hold more: each becomes ten.
    k = find (beyond > 0);
    h = h / 10;
    at = (0:9).' * h;
    a = reshape (bsxfun (@plus, a(k), at * slope(k)), 1, []);
    c = reshape (exp (l * at) * c(k), 1, []);
    slope = reshape (repmat (slope(k), 10, 1), 1, []);
    left = a + real (c);
    right = a + h * slope + real (c * exp (l * h));
    best = max ([best, left, right]);
  end
end
