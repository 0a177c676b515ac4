% STOP = SLOW_STOP (RES)  function for 'stop' of qn.run that never ends the run but makes every piece last
%
% The file that the environment names in SLOW_STOP_MARK is made when a tenth of a second is reached.
function stop = slow_stop (res)
  pause (0.05);
  stop = false;
  mark = getenv ('SLOW_STOP_MARK');
  if res.time_end > 0.1 && ~isempty (mark) && ~exist (mark, 'file'), fclose (fopen (mark, 'w')); end
end
