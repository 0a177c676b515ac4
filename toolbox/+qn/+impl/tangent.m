% [K, C] = TANGENT (LAW, X)  slopes of the forces of a law without memory at the displacements X, n x 1, at rest: n x n, by central differences
function [k, c] = tangent (law, x)
  n = numel (x);
  p = law.parameters;
  width = 1e-7 * max (max (abs (x)), 1e-6);
  speed = 1e-6;
  if isfield (p, 'clearance')
    width = 1e-5 * p.clearance * (1 - min (p.limit, norm (x - [p.x0; p.y0]) / p.clearance));
    speed = width * max (abs (p.speed), 1);
  end
  t = qn.impl.traits (law, n);
  [k, c] = deal (zeros (n));
  for j = 1:n
    d = double ((1:n).' == j);
    k(:, j) = (qn.force (law, x + width * d, 0 * x) - qn.force (law, x - width * d, 0 * x)) / (2 * width);
    if t.rates, c(:, j) = (qn.force (law, x, speed * d) - qn.force (law, x, -speed * d)) / (2 * speed); end
  end
end
