% N = SWEEP_ONE (JOB, K)  runs case K where an engine wants a value to come back: 1
function n = sweep_one (job, k)
  qn.impl.sweep_case (job, k);
  n = 1;
end
