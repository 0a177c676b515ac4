% K = STIFFEST (LAW, X)  greatest stiffness of a law, within the displacements X where they are known [N/m]
function k = stiffest (law, x)
  p = law.parameters;
  k = 0;
  switch law.kind
    case 'table'
      slope = abs (diff (p.force)) ./ max (diff (p.displacement), realmin ());
      slope(diff (p.displacement) == 0) = 0;
      k = max ([0; slope]);
    case 'power'
      if p.exponent == 1
        k = abs (p.stiffness);
      elseif ~isempty (x)
        k = abs (p.stiffness * p.exponent) * max (abs (x(:))) ^ (p.exponent - 1);
      end
    case 'exponential'
      if ~isempty (x) && p.base > 0, k = max (abs (p.scale * log (p.base) * p.base .^ x(:))); end
    case 'maxwell'
      k = p.stiffness + sum (p.springs);
    case 'dahl'
      k = p.stiffness * 2 ^ max (p.exponent, 0);
    case 'stickslip'
      k = p.stiffness + p.contact;
    case 'clima2'
      k = abs (p.stiffness) + max (abs (p.growth)) * 2 ^ max (p.exponent, 0);
  end
end
