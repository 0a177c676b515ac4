% DIGEST = PACK (JOB, FILE)  stores what other processes need to run cases, and gives the SHA-256 of the file: they take no other
function digest = pack (job, file)
  s = struct ('f', {qn.impl.sweep.carried(job.f)}, 'cases', {job.cases}, 'n', job.n, 'shape', job.shape, ...
              'folder', job.folder, 'trust', job.trust);
  if isfield (job, 'tasks'), s.tasks = job.tasks; end
  qn.impl.sweep.keep_objects (file, s);
  digest = hash ('sha256', char (qn.impl.files.bytes_of (file)));
end
