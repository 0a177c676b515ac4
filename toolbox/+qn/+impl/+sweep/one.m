% N = ONE (JOB, K)  runs case K where an engine wants a value to come back: 1. The function of JOB is in the form of carried
function n = one (job, k)
  job.f = qn.impl.sweep.carried (job.f);
  job.folder = char (job.folder);
  qn.impl.sweep.run_case (job, k);
  n = 1;
end
