% [TEXT, GOOD] = OUTCOME (RES)  how the run ended, one sentence; GOOD where it is complete
function [text, good] = outcome (res)
  last = res.sim.time(end);
  good = res.complete && ~res.diverged;
  if res.diverged
    text = sprintf ('The motion grew beyond all numbers: the run ended at %.6g s of %.6g s.', res.time_end, last);
  elseif ~res.complete
    text = sprintf ('Not complete: the run came to %.6g s of %.6g s.', res.time_end, last);
  else
    text = sprintf ('The run is complete: %.6g s in %.2g s of computing.', last - res.sim.time(1), res.seconds);
  end
end
