% E = PARALLEL_ENGINE ()  cases in processes of their own, with Octave's package parallel; the fields are those of engine_list
function e = parallel_engine ()
  e = struct ('name', 'parallel', 'word', 'parallel', 'host', 'octave', 'lacking', @lacking, 'instead', 'serial', 'run', @run);
end

function why = lacking ()
  why = '';
  try
    pkg ('load', 'parallel');
  catch
    why = ['Octave''s package parallel is not installed: the cases run one after another; on Debian it is the package ' ...
           'octave-parallel, elsewhere "pkg install -forge parallel" gets it'];
  end
end

% A case may end its whole process, and the engine with it. Those that ran at that moment are then tried alone, so that only the
% one at fault is lost, and the rest goes on.
function waiting = run (job, pending, workers, o)
  waiting = false;
  job.mark = true;
  for k = pending, unmark (job, k); end
  lost = [];
  while ~isempty (pending)
    why = started (job, pending, workers);
    if isempty (why), return, end
    [~, ~, begun] = qn.impl.sweep.state (job);
    suspects = setdiff (find (begun), lost);
    if isempty (suspects), error ('qn:engine', 'qn.sweep: the package parallel stopped: %s', why); end
    for k = suspects
      unmark (job, k);
      if ~isempty (started (job, k, 1)), lost(end + 1) = k; end
    end
    [done, failed] = qn.impl.sweep.state (job);
    pending = setdiff (find (~done & ~failed), lost);
  end
end

% Says in words why the engine stopped, nothing when it ended well. Its processes do not outlive a sweep: they would not notice
% that a function was changed.
function why = started (job, cases, workers)
  why = '';
  finish = onCleanup (@() parcellfun_set_nproc (0));
  try
    sent = job;
    sent.f = qn.impl.sweep.carried (job.f);
    sent.folder = double (job.folder);                     % a backslash in a text does not arrive
    n = pararrayfun (workers, @(k) qn.impl.sweep.one (sent, k), cases, 'CumFunc', @(a, b) told (job, a + b)); % its value makes it call told
  catch err
    why = err.message;
  end
end

function n = told (job, n)
  qn.impl.sweep.tell (job);
end

function unmark (job, k)
  file = qn.impl.sweep.file (job, 'begun', k);
  qn.impl.files.remove_file (file);
end
