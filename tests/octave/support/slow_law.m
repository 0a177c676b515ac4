% F = SLOW_LAW (X, T)  force of a spring, for qn.law ('function', ...), that takes its time where the environment names a file in SLOW_STOP_MARK
%
% That file is made when a tenth of a second of the run is reached.
function f = slow_law (x, t)
  f = 50 * x;
  mark = getenv ('SLOW_STOP_MARK');
  if isempty (mark), return, end
  pause (0.005);
  if t > 0.1 && ~exist (mark, 'file'), fclose (fopen (mark, 'w')); end
end
