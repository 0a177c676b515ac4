% SWEEP_POOL (JOB, PENDING, WORKERS)  cases PENDING on MATLAB's pool, at most WORKERS at a time
function sweep_pool (job, pending, workers)
  if exist ('OCTAVE_VERSION', 'builtin')
    tell = @() qn.impl.sweep_tell (job);
  else
    queue = parallel.pool.DataQueue ();
    afterEach (queue, @(k) qn.impl.sweep_tell (job));
    tell = @() send (queue, 0);
  end
  parfor (j = 1:numel (pending), workers)
    qn.impl.sweep_case (job, pending(j));
    tell ();
  end
end
