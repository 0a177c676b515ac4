% QN.SWEEP  runs one set-up over many sets of parameters
%
% Purpose
%   Calls a function for every set of parameters: on all cores of the machine, or on the nodes of a cluster. Results are
%   kept in files while it runs, half a second of short cases in one, so that a sweep that was killed goes on where it ended. They come
%   back in the order of the cases, and with the same bits whichever engine ran them.
%
% Calls
%   RESULTS = qn.sweep (F, CASES, ...)
%   [RESULTS, REPORT] = qn.sweep (F, CASES, ...)
%
% Input
%   F       function of one set of parameters with one output, which can be saved to a file. It runs in other processes: it is an
%           anonymous function or a function file on the path. It is always the caller's, never one that
%           a folder holds. Random numbers start anew in every case, from the case's number.
%   CASES   struct array (an element is a case; see qn.grid), cell array (an element), or numbers (a column)
%   Names and values
%     'folder'    folder of the result files; the same call with the same folder goes on ('': a temporary one, removed at the end)
%     'engine'    'serial'; 'parallel' for processes on this machine (Octave's package parallel) or the pool of MATLAB (parfor);
%                 'slurm' for a job array (Octave), or 'auto': parallel where it is there and pays ('auto')
%     'workers'   processes, or tasks of a job array, at one time; [] means as many as there are cores or nodes ([])
%     'again'     true: cases that failed before are run again (false)
%     'progress'  true: say every second how many cases are done and how long the rest will take (true)
%     'sbatch'    more options of the job array, such as '--time=1:00:00 --mem=2G' ('')
%     'trust'     true: read also files of results that hold functions or objects, or are of an earlier version, from a folder that others
%                 can write. Reading them runs what they hold (false)
%     'wait'      false: hand in the job array and come back with what is there; the same call later collects (true)
%
% Output
%   RESULTS   cell array of the size of CASES, 1 x k for numbers; [] where a case failed
%   REPORT    struct: done       logical, of the size of RESULTS
%                     failed     struct array with a case in each element: number, identifier, message, parameters
%                     ran        number of cases that ended during this call
%                     waiting    number of cases that a job array still has to run
%                     time       seconds that each case took, of the size of RESULTS; NaN where it is not done
%                     seconds    what this call took [s]
%                     engine     the one that was used
%                     folder     see above; '' for a temporary one
%
% Errors
%   qn:input   the cases are none of the above; the folder cannot be written, belongs to another sweep or is not trusted
%   qn:engine  there is no such engine here, or it stopped
%   Cases that fail do not end the sweep. Without the output REPORT they are said in the warning qn:failed. A case whose process
%   died before it wrote a result has the identifier qn:lost, and is run again by the next call. Where the package is missing, the
%   warning qn:serial says that cases run one after another.
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   row = qn.observe (model, 1);
%   sim = @(p) qn.simulation (model, 'step', 1e-3, 'steps', 500, 'load', {qn.load_at(model, 1), @(t) 100 * sin(150 * t)}, ...
%                             'elements', {qn.gap('gap', p.gap, 'stiffness', p.stiffness), row});
%   peak = @(p) max (qn.displacement (qn.run (sim (p), 'progress', false), row));
%   cases = qn.grid ('gap', [1e-3 2e-3 4e-3], 'stiffness', [1e5 1e6]);
%   peaks = cell2mat (qn.sweep (peak, cases, 'engine', 'serial'));
%
% See also qn.grid, qn.run, qn.simulation
function [results, report] = sweep (f, cases, varargin)
  who = 'qn.sweep';
  begun = tic ();
  if nargin < 2, error ('qn:input', '%s: a function and its cases expected; see help %s', who, who); end
  o = struct ('folder', '', 'engine', 'auto', 'workers', [], 'again', false, 'progress', true, 'sbatch', '', 'trust', false, ...
              'wait', true);
  o = qn.impl.options (who, o, varargin);
  if ~isempty (o.workers), o.workers = qn.impl.count (who, 'workers', o.workers); end
  for name = {'again', 'progress', 'trust', 'wait'}, o.(name{1}) = qn.impl.flag (who, name{1}, o.(name{1})); end
  if isempty (o.folder)
    if strcmp (o.engine, 'slurm')
      error ('qn:input', '%s: a job array needs the "folder", in a place that all nodes see', who);
    end
    temporary = qn.impl.files.private_folder ();
    clean = onCleanup (@() qn.impl.sweep.remove (temporary));
    job = qn.impl.sweep.job (f, cases, temporary, o);
  else
    job = qn.impl.sweep.job (f, cases, o.folder, o);
  end
  [done, failed, files] = qn.impl.sweep.state (job);
  if o.again
    for name = [files.errors, files.failed], qn.impl.files.remove_file (fullfile (job.folder, name{1})); end
    failed(:) = false;
  end
  finished = done | failed;
  job.before = sum (finished);
  job.failed_before = sum (failed);
  [job.ended, job.failed] = deal (0, 0);
  job.clock = tic ();
  [engine, workers] = qn.impl.sweep.choose_engine (o.engine, o.workers, sum (~finished));
  pending = find (~finished);
  if job.joined, pending = fliplr (pending); end          % one that works on it as well comes from the other end
  waiting = engine.run (job, pending, workers, o);
  [results, report] = qn.impl.sweep.collect (job, waiting);
  report.ran = sum (report.done(:)) + numel (report.failed) - job.before;
  report.seconds = toc (begun);
  report.engine = engine.name;
  report.folder = o.folder;
  if nargout < 2 && ~isempty (report.failed)
    first = report.failed(1);
    warning ('qn:failed', '%d of %d cases failed; case %d: %s', numel (report.failed), job.n, first.number, first.message);
  end
end
