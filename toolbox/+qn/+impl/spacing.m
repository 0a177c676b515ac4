% H = SPACING (WHO, TIME)  step of evenly spaced times
function h = spacing (who, time)
  if numel (time) < 2, error ('qn:input', '%s: at least two times expected', who); end
  h = (time(end) - time(1)) / (numel (time) - 1);
  if ~(h > 0) || max (abs (diff (time) - h)) > 1e-6 * h, error ('qn:input', '%s: the times must ascend in equal steps', who); end
end
