function tests = suite_toolbox_sweep_resume ()
  use_toolbox ();
  tests = localfunctions ();
end

% Ten cases of 0.4 s, of which those after the sixth wait for a word; the process is killed after the third result.
function kill_and_resume (engine)
  [folder, clean] = new_folder ();
  inner = fullfile (folder, 'x');
  code = sprintf (['folder = ''%s''; qn.sweep (@(p) sweep_logged (p, folder, 6), 1:10, ''engine'', ''%s'', ''workers'', 2, ' ...
                   '''folder'', ''%s'');'], folder, engine, inner);
  [~, pid] = system (['TMPDIR=' folder ' ' octave_command(code) ' >/dev/null 2>&1 & echo $!']);
  waited = tic ();
  while numel (dir (fullfile (inner, 'results_*.mat'))) < 3
    if toc (waited) > 60, error ('the other process does not get on'); end
    pause (0.05);
  end
  kill (str2double (pid), 9);
  fclose (fopen (fullfile (folder, 'go_on'), 'w'));
  % Its workers end what they have begun.
  while workers_of (folder) > 0
    if toc (waited) > 90, error ('the workers do not end'); end
    pause (0.1);
  end
  finished = numel (dir (fullfile (inner, 'results_*.mat')));
  logged = numel (dir (fullfile (folder, 'ran_*')));
  if finished > 8, error ('%d cases were done: it was not killed', finished); end
  [got, report] = qn.sweep (@(p) sweep_logged (p, folder, 6), 1:10, 'engine', engine, 'workers', 2, 'folder', inner, 'progress', false);
  expect_equal (got, num2cell ((1:10) .^ 2));
  expect_equal (report.ran, 10 - finished);
  ran = dir (fullfile (folder, 'ran_*'));
  expect_equal (numel (ran), logged + 10 - finished);
  if logged - finished > 1, error ('%d cases ran and left no result', logged - finished); end
  [again, report] = qn.sweep (@(p) sweep_logged (p, folder, 6), 1:10, 'engine', engine, 'folder', inner);
  expect_equal (again, got);
  expect_equal (report.ran, 0);
  expect_equal (numel (dir (fullfile (folder, 'ran_*'))), numel (ran));
end

% Marks of processes at work, in temporary folders within FOLDER.
function n = workers_of (folder)
  n = 0;
  for name = names_like (folder, 'quarn-')
    n = n + numel (names_like (fullfile (folder, name{1}), 'begun_'));
  end
end

function names = names_like (folder, first)
  names = readdir (folder).';
  names = names(strncmp (names, first, numel (first)));
end

function test_a_killed_serial_sweep_goes_on_without_running_a_case_twice ()
  kill_and_resume ('serial');
end

function test_a_killed_parallel_sweep_goes_on_without_running_a_case_twice ()
  kill_and_resume ('parallel');
end

function test_half_files_count_as_nothing ()
  [folder, clean] = new_folder ();
  f = @(p) 7 * p;
  qn.sweep (f, 1:3, 'folder', folder, 'engine', 'serial');
  fclose (fopen (fullfile (folder, 'abc.part'), 'w'));
  % Each case a file, as long ones have.
  for k = 1:3
    one = struct ('cases', k, 'results', {{7 * k}}, 'seconds', 1);
    qn.impl.sweep.keep (fullfile (folder, sprintf ('results_%d.mat', k)), qn.impl.files.flatten (one));
  end
  delete (fullfile (folder, 'results_1-3.mat'));
  whole = fileread (fullfile (folder, 'results_2.mat'));
  fid = fopen (fullfile (folder, 'results_2.mat'), 'w');
  fwrite (fid, whole(1:end / 2));
  fclose (fid);
  [got, report] = qn.sweep (f, 1:3, 'folder', folder);
  expect_equal (got, {7, [], 21});
  expect_equal (report.failed.identifier, 'qn:lost');
  [got, report] = qn.sweep (f, 1:3, 'folder', folder);
  expect_equal (got, {7, 14, 21});
  expect_equal (report.ran, 1);
end

function test_a_folder_belongs_to_one_sweep ()
  [folder, clean] = new_folder ();
  model = struct ('k', 3, 'signal', @(t) t);
  qn.sweep (@(p) p * model.k, 1:2, 'folder', folder, 'engine', 'serial');
  [~, report] = qn.sweep (@(p) p * model.k, 1:2, 'folder', folder);
  expect_equal (report.ran, 0);
  expect_error (@() qn.sweep (@(p) p * model.k, 1:3, 'folder', folder), 'qn:input', '~belongs to a sweep with other cases');
  expect_error (@() qn.sweep (@(p) p + model.k, 1:2, 'folder', folder), 'qn:input', '~belongs to a sweep of another function');
  model.k = 4;
  expect_error (@() qn.sweep (@(p) p * model.k, 1:2, 'folder', folder), 'qn:input', '~or of one with other values in it');
  delete (fullfile (folder, 'sweep.mat'));
  expect_error (@() qn.sweep (@(p) p, 1:2, 'folder', folder), 'qn:input', '~but not the file sweep.mat');
end

