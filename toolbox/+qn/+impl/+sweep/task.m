% TASK (FOLDER, TASK)  the part of a sweep that task number TASK of a job array runs
function task (folder, task)
  list = load (fullfile (folder, 'slurm_tasks.mat'));
  job = load (fullfile (folder, 'sweep.mat'));
  if isstruct (job.f), job.f = qn.impl.sweep.carried (job.f); end
  job.folder = folder;
  job.mark = false;
  for k = list.pending(task:list.tasks:end)
    qn.impl.sweep.run_case (job, k);
  end
end
