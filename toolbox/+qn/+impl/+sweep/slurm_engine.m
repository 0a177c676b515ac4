% E = SLURM_ENGINE ()  what is left of a sweep as a job array of Slurm; the fields are those of engine_list
function e = slurm_engine ()
  e = struct ('name', 'slurm', 'word', 'slurm', 'host', '', 'lacking', @lacking, 'instead', '', 'run', @run);
end

function why = lacking ()
  why = '';
  if ~exist ('OCTAVE_VERSION', 'builtin')
    why = 'job arrays run Octave; on MATLAB open a pool on the cluster (parpool) and use ''parallel''';
    return
  end
  [status, text] = system ('sbatch --version 2>&1');
  if status ~= 0, why = ['the commands of Slurm do not run here: ' strtrim(text)]; end
end

% One array of a sweep is in the queue at a time; its number is in the folder, so that a sweep whose first process was killed
% finds it again. The option "wait" waits until no case is in the queue.
function waiting = run (job, pending, workers, o)
  file = fullfile (job.folder, 'slurm_job.txt');
  if exist (file, 'file')
    id = strtrim (fileread (file));
    if isempty (regexp (id, '^\d{1,18}$', 'once'))
      error ('qn:input', 'qn.sweep: %s must hold the number of a job and nothing else; remove it if no job is in the queue', file);
    end
    waiting = queued (job, id, o.wait);
    if waiting, return, end
  end
  [done, failed] = qn.impl.sweep.state (job);
  pending = find (~done & ~failed);
  waiting = ~isempty (pending);
  if waiting
    id = hand_in (job, pending, workers, o.sbatch);
    write (file, id);
    if job.progress, fprintf ('  %d cases in job %s; scancel %s ends it\n', numel (pending), id, id); end
    waiting = queued (job, id, o.wait);
  end
end

% Clusters take about a thousand tasks an array: more cases share a task. What a task runs is in the script, which Slurm keeps, with the
% digest of the file that holds function and cases: whoever changes that file changes nothing that is run.
function id = hand_in (job, pending, workers, options)
  tasks = min (numel (pending), 1000);
  job.tasks = arrayfun (@(k) pending(k:tasks:end), 1:tasks, 'UniformOutput', false);
  file = fullfile (job.folder, 'slurm_work.bin');
  digest = qn.impl.sweep.pack (job, file);
  code = sprintf ('cd (%s); path (%s); qn.impl.sweep.task (%s, %s, str2double (getenv (''SLURM_ARRAY_TASK_ID'')));', ...
                  text (pwd ()), text (path ()), text (file), text (digest));
  if numel (code) > 1e5, error ('qn:engine', 'qn.sweep: the path of %d characters is too long for a job', numel (path ())); end
  program = fullfile (OCTAVE_EXEC_HOME (), 'bin', 'octave-cli');
  start = fullfile (job.folder, 'slurm_task.sh');
  write (start, sprintf ('#!/bin/sh\nexec %s --no-history -qf --eval %s\n', shell (program), shell (code)));
  array = sprintf ('1-%d', tasks);
  if ~isempty (workers), array = sprintf ('%s%%%d', array, workers); end
  command = sprintf ('sbatch --parsable --job-name=qn.sweep --array=%s --output=%s %s %s', array, ...
                     shell (fullfile (job.folder, 'slurm_%A_%a.txt')), options, shell (start));
  [status, said] = system ([command ' 2>&1']);
  id = regexp (said, '^\d+', 'match', 'once', 'lineanchors');
  if status ~= 0 || isempty (id), error ('qn:engine', 'qn.sweep: sbatch did not take the job array: %s', strtrim (said)); end
end

% A queue that does not answer for a while is asked again; the array is not lost by that.
function is = queued (job, id, patient)
  begun = tic ();
  silent = tic ();
  while true
    [status, said] = system (sprintf ('squeue --noheader --jobs=%s --format=%%i 2>&1', id));
    gone = ~isempty (strfind (said, 'Invalid job id'));
    is = ~gone && (status ~= 0 || ~isempty (strtrim (said)));
    if status == 0 || gone
      silent = tic ();
    elseif ~patient || toc (silent) > 300
      error ('qn:engine', 'qn.sweep: the queue does not answer: %s; call again later to collect job %s', strtrim (said), id);
    end
    if ~is || ~patient, return, end
    pause (min (10, 0.5 + toc (begun) / 20));
    qn.impl.sweep.tell (job);
  end
end

function write (file, content)
  [id, why] = fopen (file, 'w');
  if id < 0, error ('qn:input', 'qn.sweep: cannot write %s: %s', file, why); end
  fprintf (id, '%s', content);
  fclose (id);
end

% As a text of Octave, and as a word of the shell.
function t = text (t)
  t = ['''' strrep(t, '''', '''''') ''''];
end

function t = shell (t)
  t = ['''' strrep(t, '''', '''\''''') ''''];
end
