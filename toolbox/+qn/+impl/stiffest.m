% K = STIFFEST (LAW, X)         greatest stiffness of a law, within the displacements X where they are known [N/m]
% K = STIFFEST (LAW, X, STATE)  with a memory within STATE, one row each, where it is known
function k = stiffest (law, x, state)
  if nargin < 3, state = []; end
  l = qn.impl.law_of (law.kind);
  k = l.stiffest (law.parameters, x, state);
end
