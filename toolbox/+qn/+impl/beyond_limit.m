% A = BEYOND_LIMIT (A, SIM, GROWS, RUNS)  advice of qn.advise where runs grow: those marked in GROWS, with h, h/2, h/4
%
% The limit is asked of qn.check, with the displacements of a run that does not grow.
function a = beyond_limit (a, sim, grows, runs)
  h = sim.step;
  seen = [];
  if ~all (grows), seen = runs{find (~grows, 1, 'last')}; end
  names = {'h', 'h/2', 'h/4'};
  who = strjoin (names(grows), ', ');
  a.limit = limit_of (sim, seen);
  if ~isnan (a.limit) && a.limit <= h
    a.advised = a.limit / 6;
    a.text = sprintf (['step %.3g s is beyond the limit: the motion grows with %s. After qn.check it must stay below %.2g s; ' ...
                       'for accuracy begin with %.2g s and ask again'], h, who, a.limit, a.advised);
  elseif ~all (grows)
    a.advised = h / 2 ^ (find (~grows, 1) - 1) / 2;
    a.text = sprintf (['step %.3g s is beyond the limit: the motion grows with %s and not with %.3g s, a limit that qn.check does not ' ...
                       'know. Begin with %.2g s and ask again'], h, who, 2 * a.advised, a.advised);
  else
    a.advised = h / 16;
    a.text = sprintf (['step %.3g s: the motion grows with %s, and qn.check knows no limit of the step. Either the structure itself is ' ...
                       'unstable (negative damping, flutter), which no step mends, or the step is far too long: ask again from %.2g s'], ...
                      h, who, a.advised);
  end
end

% Longest step without an error of qn.check, to a percent; NaN when it has none for the step of SIM or one that no step mends.
function limit = limit_of (sim, seen)
  limit = NaN;
  good = sim.step;
  if ~qn.impl.refused_step (sim, good, seen), return, end
  for k = 1:20
    good = good / 2;
    if ~qn.impl.refused_step (sim, good, seen)
      bad = 2 * good;
      while bad > 1.01 * good
        middle = sqrt (bad * good);
        if qn.impl.refused_step (sim, middle, seen), bad = middle; else, good = middle; end
      end
      limit = good;
      return
    end
  end
end
