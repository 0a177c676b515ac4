% TELL (JOB)  says how far a sweep is, every second at most
function tell (job)
  persistent told
  day = 86400;
  if isempty (told) || told < job.begun, told = job.begun; end
  if ~job.progress || (now () - told) * day < 1, return, end
  told = now ();
  [done, failed] = qn.impl.sweep.state (job);
  ended = sum (done | failed);
  passed = (told - job.begun) * day;
  left = '';
  if ended > job.before
    left = sprintf (', %.0f s left', passed * (job.n - ended) / (ended - job.before));
  end
  if any (failed), left = sprintf ('%s; %d failed', left, sum (failed)); end
  fprintf ('  %3.0f %%  %d of %d cases, %.0f s%s\n', 100 * ended / job.n, ended, job.n, passed, left);
  if exist ('OCTAVE_VERSION', 'builtin'), fflush (stdout ()); end
end
