% Files of runs: what is in them, what they are called, and what happens when they cannot be written or are not what they seem.
function tests = suite_toolbox_saves ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

function sim = oscillator (steps, varargin)
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 2]), 'damping', 0.01);
  list = {qn.gap('gap', 0.001, 'stiffness', 1e5), qn.observe(model, 1); qn.slider('slip', 5, 'stiffness', 1e4), qn.observe(model, 2); ...
          qn.maxwell('springs', [1e3 500], 'dampers', [10 20]), qn.observe(model, 2)};
  sim = qn.simulation (model, 'step', 1e-3, 'steps', steps, 'elements', list, ...
                       'load', {qn.load_at(model, 2), @(t) 150 * sin(40 * t)}, varargin{:});
end

function folder = scratch ()
  folder = tempname ();
  mkdir (folder);
end

function gone (folder)
  confirm_recursive_rmdir (false, 'local');
  rmdir (folder, 's');
end

function names = inside (folder)
  names = setdiff (readdir (folder), {'.', '..'}).';
end

function same_end (got, wanted)
  expect_equal (got.q, wanted.q);
  expect_equal (got.force, wanted.force);
  expect_equal (got.state, wanted.state);
  expect_equal (got.final, wanted.final);
end

% A file of a run stopped half way, and what the whole gives.
function [file, whole] = half (folder)
  file = fullfile (folder, 'half.mat');
  sim = oscillator (400);
  if nargout > 1, whole = qn.run (sim, 'progress', false); end
  qn.run (sim, 'progress', false, 'piece', 50, 'save', file, 'stop', @(r) r.time_end > 0.18);
end

function test_a_file_has_no_tables_that_can_be_made_again ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'long.mat');
  res = qn.run (oscillator (5e5, 'every', 100), 'progress', false, 'save', file, 'interval', 1e9);
  expect_equal (numel (res.time), 5001);
  % Results, forces and states of 5,001 times, the times themselves, their steps, and the loads there with their steps.
  bytes = getfield (dir (file), 'bytes');
  least = 8 * (numel (res.q) + numel (res.force) + numel (res.state) + 4 * numel (res.time));
  if bytes > least + 3e4, error ('%d bytes, the results have %d', bytes, least); end
  same_end (qn.resume (file), res);
end

function test_any_name_of_a_file_is_taken_as_it_stands ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  other = fullfile (folder, 'run 1.mat');
  fclose (fopen (other, 'w'));
  names = {'run [1].mat', 'a''b.mat', '$(touch stolen).mat', 'x*.mat', '; touch stolen', 'back\slash.mat', 'run ?.mat'};
  before = cd (folder);
  back = onCleanup (@() cd (before));
  sim = oscillator (20);
  for name = names
    res = qn.run (sim, 'progress', false, 'save', name{1});
    same_end (qn.resume (name{1}), res);
  end
  expect_equal (inside (folder), sort ([names, {'run 1.mat'}]));
  clear back
end

function test_a_file_is_written_where_it_was_said_though_the_folder_changes ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  before = cd (folder);
  back = onCleanup (@() cd (before));
  qn.run (oscillator (20), 'progress', false, 'save', 'here.mat', 'piece', 10, 'stop', @(r) ~isempty (cd ('/')));
  expect_equal (inside (folder), {'here.mat'});
  clear back
end

function test_a_users_own_files_beside_it_stay ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'a.mat');
  target = fullfile (folder, 'precious');
  fclose (fopen (target, 'w'));
  symlink (target, [file '.part']);
  qn.run (oscillator (20), 'progress', false, 'save', file);
  expect_equal (getfield (stat (target), 'size'), 0);
  expect_equal (inside (folder), {'a.mat', 'a.mat.part', 'precious'});
end

function test_a_folder_of_that_name_is_refused_before_the_run ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  expect_error (@() qn.run (oscillator (20), 'save', folder, 'stop', @(r) error ('it ran')), 'qn:input', '~cannot write .*: it is a folder');
end

function test_a_full_disk_leaves_the_last_good_file_and_is_said ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  [file, whole] = half (folder);
  % No file of the child may be longer than what the results of the whole need: as on a disk with that much room.
  code = sprintf ('r = qn.resume (''%s'', ''progress'', false); disp (r.complete)', file);
  [status, text] = system (sprintf ('ulimit -f 30; %s 2>&1', octave_command (code)));
  expect_equal (status, 0);
  said = 'could not be saved in .*half.mat: the file came out wrong, is the disk full\?.*the earlier one stays as it was';
  if isempty (regexp (text, said, 'once')) || isempty (regexp (text, '^1$', 'once', 'lineanchors'))
    error ('it said "%s"', text);
  end
  expect_equal (inside (folder), {'half.mat'});
  same_end (qn.resume (file), whole);
end

function s = half_contents ()
  persistent contents
  if isempty (contents)
    folder = scratch ();
    clean = onCleanup (@() gone (folder));
    contents = load (half (folder));
  end
  s = contents;
end

% What a file holds, changed by CHANGE and written again.
function refused_after (change, text, form)
  if nargin < 3, form = '-v6'; end
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'half.mat');
  s = change (half_contents ());
  save (form, file, '-struct', 's');
  expect_error (@() qn.resume (file), 'qn:input', ['~half.mat is no run that can be gone on with: ' text]);
end

function s = put (s, value, varargin)
  s = setfield (s, varargin{:}, value);
end

function test_edited_and_foreign_files_are_refused_in_words ()
  refused_after (@(s) put (s, 1e9, 'final', 'column'), 'the column that it came to is not among the 401 times');
  refused_after (@(s) put (s, NaN (1, size (s.q, 2)), 'time'), 'the times of the results do not fit the steps');
  refused_after (@(s) put (s, NaN, 'sim', 'step'), '"step" is no length of time');
  refused_after (@(s) put (s, s.sim.elements(1:2), 'sim', 'elements'), 'the places of the elements do not fit together');
  refused_after (@(s) put (s, rmfield (s.sim, 'elements'), 'sim'), '"elements" is missing');
  refused_after (@(s) put (s, 'dahlia', 'sim', 'elements', {2}, 'law', 'kind'), 'qn.law: no law called "dahlia"');
  refused_after (@(s) put (s, -1, 'sim', 'elements', {2}, 'law', 'parameters', 'slip'), 'qn.law.*"slip"');
  refused_after (@(s) put (s, s.q(:, 1:3), 'q'), 'it holds 3 columns of results');
  refused_after (@(s) put (s, Inf (size (s.force)), 'force'), '"force" must be 3 x 201 finite numbers');
  refused_after (@(s) put (s, NaN (4, 1), 'final', 'u'), 'the state "u" must be');
  refused_after (@(s) put (s, {}, 'final', 'memory'), 'what the elements remember does not fit them');
  refused_after (@(s) put (s, [NaN; 1], 'sim', 'model', 'stiffness'), '.*stiffness');
  refused_after (@(s) put (s, 7, 'format'), 'its format is 7, this version reads 2');
  refused_after (@(s) put (s, 'so', 'final'), 'a structure in it is none');
  refused_after (@(s) struct ('x', 1), '"format", "sim", .* is missing');
  refused_after (@(s) s, 'it is compressed, as files of version 0.1 are.*qn.resume \(load \(FILE\)\)', '-v7');
  refused_after (@(s) s, 'it is no .mat file of this form', '-text');
end

function test_a_file_cut_anywhere_or_with_a_changed_byte_is_refused_or_read_and_never_fails_otherwise ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = half (folder);
  id = fopen (file);
  bytes = fread (id, Inf, '*uint8');
  fclose (id);
  rand ('twister', 7);
  refusals = 0;
  count = rounds (60);
  for k = 1:count
    changed = bytes;
    if mod (k, 2) == 1
      changed = bytes(1:floor (rand () * (numel (bytes) - 1)));
    else
      at = 128 + ceil (rand () * 3000);
      changed(at) = bitxor (changed(at), uint8 (2 ^ floor (8 * rand ())));
    end
    id = fopen (file, 'w');
    fwrite (id, changed);
    fclose (id);
    try
      qn.resume (file, 'save', '', 'progress', false);
    catch err
      expect_equal (err.identifier, 'qn:input');
      refusals = refusals + 1;
    end
  end
  if refusals < count / 2, error ('only %d of %d were refused', refusals, count); end
end

function test_nothing_in_a_file_is_executed ()
  % A function handle in a file: its text would be evaluated by the host's load. Class 16 in place of that of a number.
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'f.mat');
  x = uint8 (1:100);
  save ('-v6', file, 'x');
  id = fopen (file, 'r+');
  fseek (id, 144, 'bof');
  expect_equal (fread (id, 1), 9);
  fseek (id, 144, 'bof');
  fwrite (id, 16);
  fclose (id);
  expect_error (@() qn.resume (file), 'qn:input', '~it holds a function or an object, which could run code');
end

function test_what_could_not_be_read_as_data_is_not_taken_for_saved ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'x.mat');
  write = @(x) qn.impl.files.write_data (file, struct ('x', {{1, x}}));
  if isempty (regexp (write (1i), 'the file came out wrong.*or is complex', 'once')), error ('a complex number was taken'); end
  expect_equal (exist (file, 'file'), 0);
  for x = {'Brücke', '', zeros(0, 3), single(pi), int8([1 -2]), true, {[], 'a'}, sparse([0 2; 0 0]), [NaN -Inf 0], struct('a', {1, 2})}
    expect_equal (write (x{1}), '');
    expect_equal (qn.impl.files.read_data (file), struct ('x', {{1, x{1}}}));
  end
end

function test_long_arrays_come_back_whole ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'x.mat');
  randn ('twister', 5);
  for n = [199999, 200000, 200001, 450001]
    long = struct ('x', randn (1, n), 'column', single (randn (n, 1)), 'bytes', uint8 (mod (1:n, 251)), 'yes', randn (3, n) > 0, ...
                   'wide', int64 (1e6 * randn (2, n)));
    expect_equal (qn.impl.files.write_data (file, long), '');
    expect_equal (qn.impl.files.read_data (file), long);
  end
end

% A count of bytes that is no multiple of what a number takes was an error of the host's, without an identifier, in a long array.
function test_a_damaged_count_of_bytes_is_said_whatever_the_length ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = fullfile (folder, 'x.mat');
  for n = [5, 300000]
    x = pi * ones (1, n);
    save ('-v6', file, 'x');
    id = fopen (file, 'r+');
    fseek (id, 128 + 8 + 16 + 16 + 8 + 4, 'bof');   % the head, the array's tag, flags, extents, name, the type of its numbers
    expect_equal (fread (id, 1, 'uint32'), 8 * n);
    fseek (id, -4, 'cof');
    fwrite (id, 8 * n - 3, 'uint32');
    fclose (id);
    expect_error (@() qn.impl.files.read_data (file), 'qn:input', 'it is damaged');
  end
end

function test_numbers_whose_sum_is_none_are_finite ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  file = half (folder);
  s = load (file);
  s.q(:) = 1e308;
  save ('-v6', file, '-struct', 's');
  res = qn.impl.files.read_run ('qn.resume', file);
  expect_equal (res.q, s.q);
end

% MATLAB's save adds ".mat" to a name without an end, and what it had written was not found again.
function test_what_is_written_has_a_name_that_every_host_keeps ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  why = qn.impl.files.replace_file (fullfile (folder, 'x'), @(part) ['it is ' part]);
  if isempty (regexp (why, '^it is .*\.mat$', 'once')), error ('it said "%s"', why); end
end

function test_a_file_of_version_01_goes_on_when_its_user_loads_it ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  part = qn.run (oscillator (400), 'progress', false, 'piece', 50, 'stop', @(r) r.time_end > 0.18);
  part.sim.options = [];
  part = rmfield (part, 'diverged');
  file = fullfile (folder, 'old.mat');
  save ('-v7', file, '-struct', 'part');
  expect_error (@() qn.resume (file), 'qn:input', '~it is compressed');
  same_end (qn.resume (load (file), 'progress', false), qn.run (oscillator (400), 'progress', false));
end

function test_a_long_save_is_said ()
  folder = scratch ();
  clean = onCleanup (@() gone (folder));
  res = qn.run (oscillator (10), 'progress', false);
  res.force = zeros (3, 2.2e6);
  file = fullfile (folder, 'big.mat');
  text = evalc ('qn.impl.files.save_run (res, file, true);');
  expect_equal (text, sprintf ('  saving 53 MB in %s\n', file));
  expect_equal (evalc ('qn.impl.files.save_run (res, file, false);'), '');
end
