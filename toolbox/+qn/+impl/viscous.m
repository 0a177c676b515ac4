% C = VISCOUS (LAW, X, F)  greatest slope of a law's force over the velocity, among displacements X and forces F where they are known [N s/m]
function c = viscous (law, x, f)
  l = qn.impl.law_of (law.kind);
  c = 0;
  if ~isempty (l.viscous), c = l.viscous (law.parameters, x, f); end
end
