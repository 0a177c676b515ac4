% K = STIFFEST (LAW, X)  greatest stiffness of a law, within the displacements X where they are known [N/m]
function k = stiffest (law, x)
  l = qn.impl.law_of (law.kind);
  k = l.stiffest (law.parameters, x);
end
