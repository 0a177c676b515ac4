% V = STORED (LAW, X, F, STATE, H)  energy stored in an element of this law along a history, up to a constant [J]
%
% X displacements, F forces, STATE memory, one column a time; H the step.
function v = stored (law, x, f, state, h)
  p = law.parameters;
  switch law.kind
    case 'power'
      v = p.stiffness * x .^ (p.exponent + 1) / (p.exponent + 1);
    case 'exponential'
      if p.base == 1
        v = p.scale * x;
      else
        v = p.scale * p.base .^ x / log (p.base);
      end
    case 'table'
      v = table (p.displacement, p.force, x);
    case 'dahl'
      % What it gives back when it is unloaded along its first stiffness.
      v = f .^ 2 / (2 * p.stiffness);
    case 'stickslip'
      v = p.stiffness * x .^ 2 / 2 + p.contact * (x - state) .^ 2 / 2;
    case 'maxwell'
      v = p.stiffness * x .^ 2 / 2;
      for j = 1:numel (p.springs)
        r = h * p.springs(j) / p.dampers(j);
        s = filter ([0, r], [1, r - 1], x);
        v = v + p.springs(j) * (x - s) .^ 2 / 2;
      end
    otherwise
      v = zeros (1, size (x, 2));
  end
  v = sum (v, 1);
end

function v = table (knots, values, x)
  if numel (knots) == 1
    v = values * x;
    return
  end
  at_knot = [0; cumsum((values(1:end - 1) + values(2:end)) / 2 .* diff (knots))];
  q = x(:);
  k = ones (size (q));
  for j = 2:numel (knots) - 1, k = k + (q > knots(j)); end
  slope = (values(k + 1) - values(k)) ./ max (knots(k + 1) - knots(k), realmin ());
  force = values(k) + slope .* (q - knots(k));
  v = reshape (at_knot(k) + (values(k) + force) / 2 .* (q - knots(k)), size (x));
end
