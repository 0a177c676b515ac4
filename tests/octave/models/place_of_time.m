% [AT, W] = PLACE_OF_TIME (TIMES, T)  T is the share W of the way from TIMES(AT) to the next one; midway at a jump, two equal times
function [at, w] = place_of_time (times, t)
  same = find (times == t);
  if ~isempty (same)
    at = same(1);
    w = 0.5 * (numel (same) - 1);
    return
  end
  at = sum (times < t);
  w = (t - times(at)) / (times(at + 1) - times(at));
end
