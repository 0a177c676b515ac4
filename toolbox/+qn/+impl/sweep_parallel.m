% SWEEP_PARALLEL (JOB, PENDING, WORKERS)  cases PENDING in processes of their own, with Octave's package parallel
%
% A case may end its whole process, and the engine with it. Those that ran at that moment are then tried alone, so that only the
% one at fault is lost, and the rest goes on.
function sweep_parallel (job, pending, workers)
  job.mark = true;
  for k = pending, unmark (job, k); end
  lost = [];
  while ~isempty (pending)
    why = run (job, pending, workers);
    if isempty (why), return, end
    [~, ~, begun] = qn.impl.sweep_state (job);
    suspects = setdiff (find (begun), lost);
    if isempty (suspects), error ('qn:engine', 'qn.sweep: the package parallel stopped: %s', why); end
    for k = suspects
      unmark (job, k);
      if ~isempty (run (job, k, 1)), lost(end + 1) = k; end
    end
    [done, failed] = qn.impl.sweep_state (job);
    pending = setdiff (find (~done & ~failed), lost);
  end
end

% Says in words why the engine stopped, nothing when it ended well. Its processes do not outlive a sweep: they would not notice
% that a function was changed.
function why = run (job, cases, workers)
  why = '';
  finish = onCleanup (@() parcellfun_set_nproc (0));
  try
    n = pararrayfun (workers, @(k) qn.impl.sweep_one (job, k), cases, 'CumFunc', @(a, b) told (job, a + b)); % its value makes it call told
  catch err
    why = err.message;
  end
end

function n = told (job, n)
  qn.impl.sweep_tell (job);
end

function unmark (job, k)
  file = qn.impl.sweep_file (job, 'begun', k);
  if exist (file, 'file'), delete (file); end
end
