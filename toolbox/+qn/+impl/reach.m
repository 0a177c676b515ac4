% R = REACH (LAW)  distance from 0 to where a table first bends, or a round clearance ends [m]; Inf for laws without either
function r = reach (law)
  r = Inf;
  p = law.parameters;
  if strcmp (law.kind, 'radial'), r = max (0, p.gap - sqrt (p.x0 ^ 2 + p.y0 ^ 2)); end
  if ~strcmp (law.kind, 'table') || numel (p.displacement) < 3, return, end
  x = p.displacement(:);
  slope = diff (p.force(:)) ./ max (diff (x), realmin ());
  inner = x(2:end - 1);
  bends = abs (diff (slope)) > 1e-9 * max (abs (slope));
  if any (bends), r = min (abs (inner(bends))); end
end
