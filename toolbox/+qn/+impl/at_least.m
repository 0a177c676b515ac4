% [K, C] = AT_LEAST (LAW, X, STATE)  least stiffness [N/m] and slope over the velocity [N s/m] of a law, whatever the velocity
%
% At the displacements X and the memory STATE, one column; [] for anywhere.
function [k, c] = at_least (law, x, state)
  l = qn.impl.law_of (law.kind);
  if ~isempty (l.at_least)
    [k, c] = l.at_least (law.parameters, x);
  else
    k = qn.impl.stiffest (law, x, state);
    c = qn.impl.viscous (law, [], []);
  end
end
