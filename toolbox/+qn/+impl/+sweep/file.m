% FILE = FILE (JOB, KIND, K)  file of case K: its result (KIND 'case'), its error ('failed') or the mark of its start ('begun')
function file = file (job, kind, k)
  file = fullfile (job.folder, sprintf ('%s_%06d.mat', kind, k));
end
