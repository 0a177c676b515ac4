% S = BEST_TIME (WORK, QUICK)  shortest time [s] of a call of the function WORK: best of several rounds
%
% A round repeats the work until it takes 20 ms of the processor's time, or, for THREADED work, of the clock's.
function s = best_time (work, quick, threaded)
  if nargin < 3, threaded = false; end
  calls = 1;
  rounds = 9;
  least = 0.02;
  if quick, rounds = 1; least = 0; end
  s = Inf;
  for round = 1:rounds
    while true
      if threaded, start = tic; else start = cputime; end
      for k = 1:calls, work (); end
      if threaded, took = toc (start); else took = cputime - start; end
      if took >= least, break; end
      calls = ceil (calls * min (100, 1.5 * least / max (took, least / 100)));
    end
    s = min (s, took / calls);
  end
end
