% FOUND = CHECK_ACTS (SIM, K, X, F)  whether element K did anything in a result: displacements X, forces F
function found = check_acts (sim, k, x, f)
  found = qn.impl.finding ();
  e = sim.elements(k);
  who = e.law.note;
  if isempty (who), who = e.law.kind; end
  if ~any (e.observe(:)) || ~any (e.command(:)) || numel (x) < 2, return, end
  most = max (abs (x(:)));
  kink = qn.impl.reach (e.law);
  if most > 10
    found(end + 1) = qn.impl.finding ('motion_large', 'warning', ['element %d (%s) moves by %.3g m: are the loads in N, lengths in m, ' ...
      'stiffnesses in N/m?'], e.item, who, most);
  end
  if any (f(:)), return, end
  if most == 0
    found(end + 1) = qn.impl.finding ('never_acts', 'warning', 'element %d (%s) never acts: nothing moves where it observes', ...
                                      e.item, who);
  elseif isfinite (kink)
    level = 'note';
    if most < 0.01 * kink, level = 'warning'; end
    found(end + 1) = qn.impl.finding ('never_closes', level, ...
      ['element %d (%s) never acts: the motion there goes from %.3g to %.3g m, and ' ...
      'its play ends at %.3g m. Lengths are in m'], e.item, who, min (x(:)), max (x(:)), kink);
  else
    found(end + 1) = qn.impl.finding ('never_acts', 'warning', ...
      ['element %d (%s) never acts: its force is zero at every time of the result, ' ...
      'though it moves by %.3g m'], e.item, who, most);
  end
end
