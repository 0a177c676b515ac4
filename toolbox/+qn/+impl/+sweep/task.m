% TASK (FILE, DIGEST, TASK)  the part of a sweep that task number TASK of a job array runs
function task (file, digest, task)
  job = qn.impl.sweep.unpack (file, digest);
  qn.impl.sweep.run_cases (job, job.tasks{task}, Inf, @(k) 0, @(ended, failed) 0);
end
