% YES = REFUSED_STEP (SIM, STEP, SEEN)  whether qn.check has an error to name for SIM with this step, or an element above its limit
%
% SEEN is a result whose displacements laws are judged with, or [].
function yes = refused_step (sim, step, seen)
  was = warning ('off', 'all');
  back = onCleanup (@() warning (was));
  s = qn.impl.with_step (sim, step, 1, 1);
  if isempty (seen)
    found = qn.check (s);
  else
    found = qn.check (s, seen);
  end
  yes = any (strcmp ({found.level}, 'error') | strcmp ({found.code}, 'element_unstable'));
end
