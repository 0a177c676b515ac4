% V = TABLE_ENERGY (X, F, U)  energy stored at displacements U by a spring with the tabulated law F(X), zero where F starts
%
% The law is linear between knots, so its integral is the trapezoid sum up to the knot below and a trapezoid from there.
function v = table_energy (x, f, u)
  x = x(:).';
  f = f(:).';
  at_knot = [0, cumsum((f(1:end - 1) + f(2:end)) / 2 .* diff(x))];
  below = lookup_segment (x, u);
  force = f(below) + (f(below + 1) - f(below)) ./ (x(below + 1) - x(below)) .* (u - x(below));
  v = at_knot(below) + (f(below) + force) / 2 .* (u - x(below));
end

% Segment of every u; outside the table the first and the last one, as the law extrapolates.
function s = lookup_segment (x, u)
  s = ones (size (u));
  for k = 2:numel (x) - 1
    s = s + (u > x(k));
  end
end
