% [K, C] = TANGENT (LAW, X)  slopes of the forces of a law without memory at the displacements X, n x 1, at rest: n x n
%
% Central differences, all in one evaluation.
function [k, c] = tangent (law, x)
  n = numel (x);
  p = law.parameters;
  width = 1e-7 * max (max (abs (x)), 1e-6);
  speed = 1e-6;
  if isfield (p, 'clearance')
    width = 1e-5 * p.clearance * (1 - min (p.limit, norm (x - [p.x0; p.y0]) / p.clearance));
    speed = width * max (abs (p.speed), 1);
  end
  none = zeros (n);
  one = eye (n);
  f = qn.force (law, bsxfun (@plus, x, [width * one, -width * one, none, none]), [none, none, speed * one, -speed * one]);
  k = (f(:, 1:n) - f(:, n + 1:2 * n)) / (2 * width);
  c = (f(:, 2 * n + 1:3 * n) - f(:, 3 * n + 1:end)) / (2 * speed);
end
