% S = BEST_TIME (WORK, QUICK)            shortest processor time [s] of a call of the function WORK: best of up to nine rounds
% S = BEST_TIME (WORK, QUICK, THREADED)  the same by the clock, for work that uses several threads
%
% A round repeats the work until it takes 20 ms. Work of seconds is done three times.
function s = best_time (work, quick, threaded)
  if nargin < 3, threaded = false; end
  calls = 1;
  rounds = 9;
  least = 0.02;
  if quick, rounds = 1; least = 0; end
  s = Inf;
  spent = 0;
  for round = 1:rounds
    while true
      if threaded, start = tic; else, start = cputime; end
      for k = 1:calls, work (); end
      if threaded, took = toc (start); else, took = cputime - start; end
      spent = spent + took;
      if took >= least, break; end
      calls = ceil (calls * min (100, 1.5 * least / max (took, least / 100)));
    end
    s = min (s, took / calls);
    if round >= 3 && spent > 1, break; end
  end
end
