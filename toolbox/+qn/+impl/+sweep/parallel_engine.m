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

% Many cases are sent in rounds, in parts of about half a second that the first round tells. A case may end its whole process, and the
% engine with it. Those that ran at that moment are then tried alone, so that only the one at fault is lost, and the rest goes on.
function waiting = run (job, pending, workers, o)
  waiting = false;
  if isempty (pending), return, end
  private = qn.impl.files.private_folder ();
  tidy = onCleanup (@() qn.impl.sweep.remove (private));
  % The package's processes do not outlive a sweep: they would not notice that a function was changed.
  finish = onCleanup (@() parcellfun_set_nproc (0));
  file = fullfile (private, 'sweep');
  sent = struct ('file', double (file), 'digest', double (qn.impl.sweep.pack (job, file)), 'limit', 2);
  lost = [];
  size = 1;
  rounds = 50 * workers;
  if numel (pending) > rounds, rounds = 2 * workers; end
  ended = 0;
  tries = 0;
  while ~isempty (pending)
    begun = tic ();
    marks (private);
    [why, counts] = started (job, sent, pending(1:min (end, size * rounds)), size, workers);
    passed = toc (begun);
    [suspects, worked] = marks (private);
    if ~isempty (why) && isempty (setdiff (suspects, lost)), tries = begun_anew (tries, worked, why); end
    for k = setdiff (suspects, lost)
      parcellfun_set_nproc (0);
      why = started (job, sent, k, 1, 1);
      if ~isempty (why)
        [again, worked] = marks (private);
        if isempty (again), tries = begun_anew (tries, worked, why); else lost(end + 1) = k; end
      end
    end
    [done, failed] = qn.impl.sweep.state (job);
    job.ended = sum (done | failed) - job.before;
    job.failed = sum (failed) - job.failed_before;
    pending = pending(~done(pending) & ~failed(pending) & ~ismember (pending, lost));
    if isempty (why)
      each = passed * workers / max (counts(1), 1);
      size = min (max (1, floor (0.5 / each)), max (1, ceil (numel (pending) / (4 * workers))));
      rounds = (40 + 160 * (each > 0.5)) * workers;
    end
  end
end

% Ctrl-C is an error of the package too, but no process ended by itself. What could not even be started is tried again.
function tries = begun_anew (tries, worked, why)
  if worked || tries == 3
    error ('qn:engine', ['qn.sweep: the processes were stopped, by Ctrl-C or because the package parallel failed (%s); the cases ' ...
                         'that are done are kept in the folder, if one was given, and the same call goes on'], why);
  end
  parcellfun_set_nproc (0);
  tries = tries + 1;
end

% Runs the cases in parts of COUNT. WHY says in words why the engine stopped, '' when it ended well; COUNTS: cases ended and failed.
function [why, counts] = started (job, sent, cases, count, workers)
  [why, counts] = deal ('', [0 0]);
  sent.cases = cases;
  sent.first = unique ([1:count:numel(cases), numel(cases) + 1]);
  try
    % Its value makes the package call told.
    counts = pararrayfun (workers, @(j) qn.impl.sweep.unit (sent, j), 1:numel (sent.first) - 1, 'CumFunc', @(a, b) told (job, a + b), ...
                          'UniformOutput', false);
    if iscell (counts), counts = counts{1}; end
  catch err
    why = err.message;
  end
end

function counts = told (job, counts)
  qn.impl.sweep.tell (job, job.ended + counts(1), job.failed + counts(2));
end

% The cases that processes were at that are gone, and whether any began to work at all; the marks of all go. A process that is killed closes
% its pipes a moment before it is gone.
function [cases, worked] = marks (private)
  [cases, worked] = deal ([], false);
  waited = tic ();
  names = qn.impl.files.names_in (private);
  for name = names(~cellfun (@isempty, regexp (names, '^(begun|ended)_', 'once'))).'
    worked = true;
    file = fullfile (private, name{1});
    begun = strncmp (name{1}, 'begun_', 6);
    while begun && exist (file, 'file') && ~gone (name{1}(7:end)) && toc (waited) < 3, pause (0.02); end
    if begun && gone (name{1}(7:end))
      cases = [cases, sscanf(char (qn.impl.files.bytes_of (file)), '%d', 1)];
    end
    qn.impl.files.remove_file (file);
  end
end

% A process that nobody has asked for its end yet is there by name (Z).
function is = gone (pid)
  text = char (qn.impl.files.bytes_of (['/proc/' pid '/stat']));
  is = isempty (regexp (text, '\) [^ZXx] ', 'once'));
end
