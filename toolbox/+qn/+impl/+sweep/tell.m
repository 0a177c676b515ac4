% TELL (JOB, ENDED, FAILED)  says how far a sweep is, every second at most: counts of cases that ended, or failed, since it was called
% TELL (JOB)                 counts them in the folder
function tell (job, ended, failed)
  persistent told
  if isempty (told) || told < job.clock, told = job.clock; end
  if ~job.progress || toc (told) < 1, return, end
  if nargin < 2
    [done, not_done] = qn.impl.sweep.state (job);
    ended = sum (done | not_done) - job.before;
    failed = sum (not_done) - job.failed_before;
  end
  told = tic ();
  passed = toc (job.clock);
  all_ended = min (job.before + ended, job.n);
  left = '';
  if ended > 0, left = sprintf (', %.0f s left', passed * (job.n - all_ended) / ended); end
  failed = job.failed_before + failed;
  if failed > 0, left = sprintf ('%s; %d failed', left, failed); end
  fprintf ('  %3.0f %%  %d of %d cases, %.0f s%s\n', 100 * all_ended / job.n, all_ended, job.n, passed, left);
  if exist ('OCTAVE_VERSION', 'builtin'), fflush (stdout ()); end
end
