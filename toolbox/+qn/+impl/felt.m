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
  y = [acc(1:end - 1) + real(c), real(free)];
  widest = (w * h) ^ 2 / 8 * max (abs (c));
  % In most intervals even the greatest vibration of all would not reach the extreme.
  positive = max ([0, y, after]);
  k = find (max (y(1:end - 1), y(2:end)) > positive - widest);
  [positive, above] = highest (acc(k), slope(k), c(k), y(k), y(k + 1), h, w, l, positive);
  negative = max ([0, -y, -after]);
  k = find (min (y(1:end - 1), y(2:end)) < widest - negative);
  [negative, below] = highest (-acc(k), -slope(k), -c(k), -y(k), -y(k + 1), h, w, l, negative);
  bound = max (above, below);
end

% Parts of the length H that begin with A, end LEFT and RIGHT, and may hold more than BEST: each becomes ten.
function [best, bound] = highest (a, slope, c, left, right, h, w, l, best)
  while true
    beyond = max (left, right) + (w * h) ^ 2 / 8 * abs (c) - best;
    bound = max ([0, beyond]);
    if bound <= 1e-6 * best, break, end
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
