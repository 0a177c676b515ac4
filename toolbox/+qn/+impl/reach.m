% R = REACH (LAW)  distance from 0 to where a law first bends, such as a gap [m]; Inf for one that does not
function r = reach (law)
  l = qn.impl.law_of (law.kind);
  r = Inf;
  if ~isempty (l.reach), r = l.reach (law.parameters); end
end
