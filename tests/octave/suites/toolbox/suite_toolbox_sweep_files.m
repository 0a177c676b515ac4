% What lies in the folder of a sweep: bundles, folders of earlier versions, files that others may have written.
function tests = suite_toolbox_sweep_files ()
  use_toolbox ();
  tests = localfunctions ();
end

function names = named (folder, first)
  names = readdir (folder).';
  if ~isempty (first), names = names(strncmp (names, first, numel (first))); end
end

% A folder that is private, whatever the mask of the user is.
function [folder, clean] = own_folder ()
  folder = qn.impl.files.private_folder ();
  clean = onCleanup (@() removed (folder));
end

function removed (folder)
  confirm_recursive_rmdir (false);
  [~, ~] = rmdir (folder, 's');
end

function open_to_all (folder)
  expect_equal (system (['chmod 777 ''' folder '''']), 0);
end

function test_values_become_two_rows_and_back_with_every_bit ()
  values = {-zeros(3, 1), [NaN -Inf 1e-320], [1:9000, -0], single(pi), int64(2)^62, 'text', sparse([0 2]), true, {}, [], 1i, ...
            struct('a', {1, 2}), ['ab'; 'cd'], zeros(0, 3), cell(2, 0), struct(), struct('x', {}), repmat(struct(), 2, 2), sparse(3, 4), ...
            sparse([true false]), single([1 2i]), {1, 2; 3, 4}, {[1 2], [3 4]}, {eye(2), ones(2)}, ...
            {rand(2, 3, 2), rand(2, 3, 2)}, {sparse([1 2]), sparse([0 1])}, {1, sparse(2)}, 1:0, sparse([1+2i 0]), char([195 169]), '', ...
            {'a', 'bb'}, {'', []}, {zeros(1, 0), 'a'}, {true, false}, {1, 2i}, {'ab'; 'cd'}, {single(-0), single(1)}};
  values{end + 1} = values;
  for k = 1:numel (values)
    [flat, good] = qn.impl.files.flatten (values{k});
    again = qn.impl.files.unflatten (flat);
    if ~good || ~isequaln (again, values{k}) || ~strcmp (class (again), class (values{k})) || issparse (again) ~= issparse (values{k})
      error ('value %d differs', k);
    end
    expect_equal (size (again), size (values{k}));
    expect_equal (qn.impl.files.flatten (again), flat);
  end
  for x = {@sin, {1, struct('a', @(t) t)}}
    [~, good] = qn.impl.files.flatten (x{1});
    expect_equal (good, false);
  end
end

function test_damaged_rows_are_refused_in_words ()
  flat = qn.impl.files.flatten ({1, 'abc', struct('x', {{[], 2}})});
  refused = @(shape, bytes) expect_error (@() qn.impl.files.unflatten (struct ('shape', shape, 'bytes', bytes)), 'qn:input', '~damaged');
  for k = 1:numel (flat.shape) - 1, refused (flat.shape(1:k), flat.bytes); end
  for k = 1:numel (flat.bytes) - 1, refused (flat.shape, flat.bytes(1:k)); end
  refused ([99, flat.shape(2:end)], flat.bytes);
  refused ([1 2 -1 -1], flat.bytes);
  refused ([60 2 1e9 1e9], flat.bytes);
end

function test_names_of_files_spell_lists_of_cases ()
  expect_equal (qn.impl.sweep.spelt ([3 4 5 9]), '3-5,9');
  expect_equal (qn.impl.sweep.spelt (7), '7');
  rand ('twister', 11);
  for k = 1:50
    wanted = rand (1, 60) > rand ();
    if ~any (wanted), continue, end
    expect_equal (qn.impl.sweep.numbered (qn.impl.sweep.spelt (find (wanted)), 60), wanted);
  end
  expect_equal (find (qn.impl.sweep.numbered ('2,5-6,100,9-99,0,4-3', 8)), [2 5 6]);
  expect_equal (qn.impl.sweep.numbered ('', 3), false (1, 3));
end

% Short cases come together: far fewer files than cases, on the slowest machine too.
function test_many_short_cases_share_few_files ()
  [folder, clean] = own_folder ();
  [got, report] = qn.sweep (@(p) p ^ 2, 1:400, 'engine', 'serial', 'folder', folder, 'progress', false);
  expect_equal (got, num2cell ((1:400) .^ 2));
  expect_equal (report.ran, 400);
  files = numel (named (folder, 'results_'));
  if files < 1 || files > 200, error ('%d files', files); end
  expect_equal (numel (named (folder, '')), files + 3);
  [again, report] = qn.sweep (@(p) p ^ 2, 1:400, 'folder', folder);
  expect_equal (again, got);
  expect_equal (report.ran, 0);
  expect_equal (any (isnan (report.time)), false);
end

function test_many_short_cases_in_parallel_are_those_of_one_process ()
  f = @(p) p + randn ();
  [got, report] = qn.sweep (f, 1:120, 'engine', 'parallel', 'workers', 2, 'progress', false);
  expect_equal (report.engine, 'parallel');
  expect_equal (report.ran, 120);
  expect_equal (got, qn.sweep (f, 1:120, 'engine', 'serial'));
end

% Every other case fails: names of files stay within their length, and all come back, and run again when asked.
function test_failures_are_kept_in_bundles ()
  [folder, clean] = own_folder ();
  f = @(p) chol (p);
  cases = (-1) .^ (1:240);
  [~, report] = qn.sweep (f, cases, 'engine', 'serial', 'folder', folder, 'progress', false);
  expect_equal ([report.failed.number], 1:2:239);
  expect_equal (report.failed(2).parameters, -1);
  names = named (folder, '');
  if max (cellfun ('length', names)) > 255, error ('a name is too long'); end
  if numel (named (folder, 'errors_')) > 100, error ('%d files', numel (named (folder, 'errors_'))); end
  [~, report] = qn.sweep (f, cases, 'engine', 'serial', 'folder', folder, 'progress', false, 'again', true);
  expect_equal (report.ran, 120);
end

% A folder of the first release has no number and a file a case; its results go on, and the folder becomes one of this format.
function test_folders_of_earlier_versions_go_on ()
  g = @(p) 3 * p;
  for format = {1, 2}
    [folder, clean] = own_folder ();
    s = struct ('f', {g}, 'cases', 1:3);
    if format{1} == 2, s = struct ('f', struct ('anonymous', func2str (g), 'values', struct ()), 'cases', 1:3, 'format', 2); end
    save ('-binary', fullfile (folder, 'sweep.mat'), '-struct', 's');
    s = struct ('result', 3, 'seconds', 0.5);
    save ('-binary', fullfile (folder, 'case_000001.mat'), '-struct', 's');
    s = struct ('identifier', 'a:b', 'message', 'it broke');
    save ('-binary', fullfile (folder, 'failed_000002.mat'), '-struct', 's');
    [got, report] = qn.sweep (g, 1:3, 'folder', folder, 'engine', 'serial');
    expect_equal (got, {3, [], 9});
    expect_equal (report.ran, 1);
    expect_equal ({report.failed.number, report.failed.identifier, report.failed.message}, {2, 'a:b', 'it broke'});
    expect_equal (report.time(1), 0.5);
    now_there = qn.impl.files.read_data (fullfile (folder, 'sweep.mat'));
    expect_equal (now_there.format, 3);
    [got, report] = qn.sweep (g, 1:3, 'folder', folder, 'engine', 'serial', 'again', true);
    expect_equal (got, {3, 6, 9});
    expect_equal (report.ran, 1);
    expect_error (@() qn.sweep (@(p) 4 * p, 1:3, 'folder', folder), 'qn:input', '~another function');
    clear clean
  end
end

function test_folders_of_an_unknown_format_are_left_as_they_are ()
  [folder, clean] = own_folder ();
  f = @(p) 3 * p;
  qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial');
  file = fullfile (folder, 'sweep.mat');
  s = qn.impl.files.read_data (file);
  expect_equal (s.format, 3);
  before = named (folder, '');
  s.format = 7;
  expect_equal (qn.impl.files.write_data (file, s), '');
  expect_error (@() qn.sweep (f, 1:2, 'folder', folder), 'qn:input', '~has files of format 7, this version reads formats 1 to 3');
  s = rmfield (s, 'format');
  expect_equal (qn.impl.files.write_data (file, s), '');
  expect_error (@() qn.sweep (f, 1:2, 'folder', folder), 'qn:input', '~has files of format without a number');
  expect_equal (named (folder, ''), before);
end

function test_results_with_functions_come_back_from_ones_own_folder ()
  [folder, clean] = own_folder ();
  f = @(p) struct ('g', @(t) p * t);
  got = qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial');
  expect_equal (got{2}.g (5), 10);
  expect_equal (numel (named (folder, 'objects_')) > 0, true);
  got = qn.sweep (f, 1:2, 'folder', folder);
  expect_equal (got{2}.g (5), 10);
  got = qn.sweep (f, 1:2, 'engine', 'parallel', 'progress', false);
  expect_equal (got{1}.g (5), 5);
end

function test_functions_in_a_folder_that_others_can_write_are_not_read ()
  [folder, clean] = own_folder ();
  f = @(p) struct ('g', @(t) p * t);
  qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial');
  open_to_all (folder);
  expect_error (@() qn.sweep (f, 1:2, 'folder', folder), 'qn:input', '~others can write there; give ''trust'', true');
  got = qn.sweep (f, 1:2, 'folder', folder, 'trust', true);
  expect_equal (got{2}.g (5), 10);
  % Mere data is read from there, and goes on.
  [open, clean_open] = own_folder ();
  open_to_all (open);
  qn.sweep (@(p) 2 * p, 1:2, 'folder', open, 'engine', 'serial');
  [got, report] = qn.sweep (@(p) 2 * p, 1:2, 'folder', open, 'engine', 'serial');
  expect_equal (got, {2, 4});
  expect_equal (report.ran, 0);
  % The folder of an earlier version is refused there.
  s = struct ('f', @(p) 2 * p, 'cases', 1:2);
  save ('-binary', fullfile (open, 'sweep.mat'), '-struct', 's');
  expect_error (@() qn.sweep (@(p) 2 * p, 1:2, 'folder', open), 'qn:input', '~sweep.mat in the folder .* earlier version');
end

% Files whose functions run code when the host's load reads them, under every name that a sweep reads.
function test_what_a_strange_file_holds_is_not_run ()
  [folder, clean] = own_folder ();
  trap = fullfile (folder, 'trap');
  f = @(p) 2 * p;
  qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial');
  open_to_all (folder);
  s = struct ('cases', 1:2, 'f', @() 1234567);
  file = fullfile (folder, 'strange');
  save ('-text', file, '-struct', 's');
  bad = uint8 (strrep (fileread (file), '@() 1234567', sprintf ('fopen (''%s'', ''w'')', trap)));
  % This does run code where the host's load reads it.
  expect_equal (qn.impl.files.replace_bytes (file, bad), '');
  try
    load (file);
  catch
  end
  if ~exist (trap, 'file'), skip_test ('load of this host runs nothing that a function in a file holds'); end
  delete (trap);
  delete (file);
  name = named (folder, 'results_');
  expect_equal (qn.impl.files.replace_bytes (fullfile (folder, name{1}), bad), '');
  [~, report] = qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial');
  expect_equal ({report.failed.identifier}, {'qn:lost', 'qn:lost'});
  expect_equal (exist (trap, 'file'), 0);
  for strange = {'objects_1-2.mat', 'case_000001.mat', 'failed_000001.mat', 'sweep.mat'}
    strange = fullfile (folder, strange{1});
    kept = qn.impl.files.bytes_of (strange);
    expect_equal (qn.impl.files.replace_bytes (strange, bad), '');
    expect_error (@() qn.sweep (f, 1:2, 'folder', folder, 'engine', 'serial'), 'qn:input', '~others can write there');
    expect_equal (exist (trap, 'file'), 0);
    delete (strange);
    if ~isempty (kept), expect_equal (qn.impl.files.replace_bytes (strange, kept), ''); end
  end
end

% What other processes run is known by its digest, which does not lie in the folder.
function test_processes_run_no_other_file_than_the_one_that_the_sweep_wrote ()
  [folder, clean] = own_folder ();
  job = qn.impl.sweep.job (@(p) 2 * p, 1:3, folder, struct ('progress', false, 'trust', false));
  job.tasks = {[1 3], 2};
  file = fullfile (folder, 'work');
  digest = qn.impl.sweep.pack (job, file);
  other = job;
  other.f = @(p) error ('this is run');
  qn.impl.sweep.pack (other, file);
  expect_error (@() qn.impl.sweep.task (file, digest, 1), 'qn:input', '~is not the file that the sweep wrote; nothing in it is run');
  expect_equal (digest, qn.impl.sweep.pack (job, file));
  qn.impl.sweep.task (file, digest, 1);
  expect_equal (qn.impl.sweep.state (job), [true false true]);
  qn.impl.sweep.task (file, digest, 2);
  expect_equal (qn.impl.sweep.collect (job, false), {2, 4, 6});
end

% The signal of Ctrl-C after the third file of 25 cases, whose second half waits for a word: what is done is there, whole, and the same
% call goes on.
function test_ctrl_c_keeps_what_is_done ()
  for engine = {'serial', 'parallel'}
    [folder, clean] = own_folder ();
    inner = fullfile (folder, 'x');
    code = sprintf (['folder = ''%s''; qn.sweep (@(p) sweep_logged (p, folder, 12), 1:25, ''engine'', ''%s'', ''workers'', 2, ' ...
                     '''folder'', ''%s'');'], folder, engine{1}, inner);
    [~, pid] = system (['TMPDIR=' folder ' ' octave_command(code) ' >/dev/null 2>&1 & echo $!']);
    pid = str2double (pid);
    waited = tic ();
    while ~exist (inner, 'dir') || numel (named (inner, 'results_')) < 3
      if toc (waited) > 120, error ('the other process does not get on'); end
      pause (0.05);
    end
    % A signal that comes while Octave executes a cleanup action, as after each file, is lost, as Octave warns: then the key is pressed again.
    pressed = [];
    while kill (pid, 0) == 0
      if isempty (pressed) || toc (pressed) > 5
        kill (pid, 2);
        pressed = tic ();
      end
      if toc (waited) > 240, error ('the other process does not end'); end
      pause (0.05);
    end
    % Processes of the other engine may still write what they have done.
    if strcmp (engine{1}, 'serial'), expect_equal (numel (named (inner, 'quarn-')), 0); end
    finished = 0;
    for name = named (inner, 'results_')
      s = qn.impl.files.unflatten (qn.impl.files.read_data (fullfile (inner, name{1})));
      expect_equal (s.results, num2cell (s.cases .^ 2));
      finished = finished + numel (s.cases);
    end
    if finished > 24, error ('%d cases were done: it was not stopped', finished); end
    fclose (fopen (fullfile (folder, 'go_on'), 'w'));
    [got, report] = qn.sweep (@(p) sweep_logged (p, folder, 12), 1:25, 'engine', 'serial', 'folder', inner, 'progress', false);
    expect_equal (got, num2cell ((1:25) .^ 2));
    if report.ran > 25 - finished, error ('%d cases ran, %d were done', report.ran, finished); end
    clear clean
  end
end

% Cases that take their process with them, and sweeps after that: nothing stays open and no process behind.
function test_sweeps_leave_no_processes_and_no_temporary_files ()
  [folder, clean] = own_folder ();
  code = ['count = @() numel (readdir (''/proc/self/fd'')); one = @() qn.sweep (@(p) p, 1:4, ''engine'', ''parallel'', ''workers'', 2, ' ...
          '''progress'', false); one (); before = count (); for k = 1:2, one (); end, printf (''%d more;'', count () - before); ' ...
          'system (sprintf (''ps --no-headers --ppid %d -o comm | grep -c octave'', getpid ()));'];
  [status, text] = system (['TMPDIR=' folder ' ' octave_command(code) ' 2>&1']);
  if status ~= 0 || isempty (strfind (text, '0 more;0')), error ('it said "%s"', text); end
  expect_equal (numel (named (folder, '')), 2);
end
