% N = ONE (JOB, K)  runs case K where an engine wants a value to come back: 1
function n = one (job, k)
  qn.impl.sweep.run_case (job, k);
  n = 1;
end
