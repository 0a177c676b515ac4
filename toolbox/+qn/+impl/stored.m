% V = STORED (LAW, X, F, STATE, H)  energy stored in an element of this law along a history, up to a constant [J]
%
% X displacements, F forces, STATE memory, one column a time; H the step.
function v = stored (law, x, f, state, h)
  l = qn.impl.law_of (law.kind);
  v = zeros (1, size (x, 2));
  if ~isempty (l.stored), v = sum (l.stored (law.parameters, x, f, state, h), 1); end
end
