% K = SOFTEST (LAW)  stiffness that a law has wherever it is and whatever was before, at least [N/m]
function k = softest (law)
  k = 0;
  l = qn.impl.law_of (law.kind);
  if ~isempty (l.softest), k = l.softest (law.parameters); end
end
