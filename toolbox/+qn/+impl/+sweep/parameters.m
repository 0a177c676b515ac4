% P = PARAMETERS (JOB, K)  parameters of case K
function p = parameters (job, k)
  if isstruct (job.cases)
    p = job.cases(k);
  elseif iscell (job.cases)
    p = job.cases{k};
  else
    p = job.cases(:, k);
  end
end
