function tests = suite_toolbox_sweep ()
  use_toolbox ();
  tests = localfunctions ();
end

function cases = oscillators ()
  cases = qn.grid ('gap', [1e-3 2e-3 3e-3], 'stiffness', [1e5 1e6]);
end

function test_all_engines_give_the_same_bits_in_the_same_order ()
  serial = qn.sweep (@sweep_oscillator, oscillators (), 'engine', 'serial');
  expect_equal (size (serial), [3 2]);
  [together, report] = qn.sweep (@sweep_oscillator, oscillators (), 'engine', 'parallel', 'workers', 2, 'progress', false);
  expect_equal (report.engine, 'parallel');
  expect_equal (together, serial);
  expect_equal (report.done, true (3, 2));
  expect_equal (report.ran, 6);
  [folder, clean] = new_folder ();
  job = qn.impl.sweep.job (@sweep_oscillator, oscillators (), folder, struct ('progress', false, 'trust', false));
  job.clock = tic ();
  pool = qn.impl.sweep.pool_engine ();
  pool.run (job, 6:-1:1, 2, struct ());
  expect_equal (qn.impl.sweep.collect (job, false), serial);
  peaks = cellfun (@(r) r.peak, serial);
  if any (peaks(:) < 1e-3) || numel (unique (peaks)) < 6, error ('the cases do not differ'); end
end

function test_results_have_the_bits_that_the_function_gave ()
  values = {-zeros(3, 1), [NaN -Inf 1e-320], [1:9000, -0], single(pi), int64(2)^62, 'text', sparse([0 2]), true, {}, [], 1i, ...
            struct('a', {1, 2}), 0.1 + 0.2};
  for engine = {'serial', 'parallel'}
    got = qn.sweep (@(p) p, values, 'engine', engine{1});
    for k = 1:numel (values)
      expect_equal (class (got{k}), class (values{k}));
      if ~isequaln (got{k}, values{k}), error ('value %d differs', k); end
    end
    expect_equal (1 ./ got{1}, -Inf (3, 1));
    expect_equal (1 / got{3}(end), -Inf);
    expect_equal (typecast (got{2}, 'uint64'), typecast (values{2}, 'uint64'));
  end
end

function test_cases_are_elements_or_columns ()
  expect_equal (qn.sweep (@(p) p.', [1 2; 3 4], 'engine', 'serial'), {[1 3], [2 4]});
  expect_equal (qn.sweep (@(p) numel (p), {1; [1 2]; 'abc'}, 'engine', 'serial'), {1; 2; 3});
  expect_equal (qn.sweep (@(p) p.b, struct ('b', {5, 6}), 'engine', 'serial'), {5, 6});
end

function test_no_case_and_one_case ()
  for engine = {'serial', 'parallel', 'auto'}
    [got, report] = qn.sweep (@(p) p, [], 'engine', engine{1});
    expect_equal (size (got), [1 0]);
    expect_equal (report.ran, 0);
    expect_equal (size (qn.sweep (@(p) p, {}, 'engine', engine{1})), [0 0]);
    [got, report] = qn.sweep (@(p) p + 1, 4, 'engine', engine{1});
    expect_equal (got, {5});
    expect_equal (report.ran, 1);
  end
end

function test_failed_cases_are_reported_and_run_again_when_asked ()
  [folder, clean] = new_folder ();
  f = @(p) sweep_trouble (p.number, folder);
  cases = struct ('number', {1, 2, 4});
  for engine = {'serial', 'parallel'}
    [got, report] = qn.sweep (f, cases, 'folder', fullfile (folder, engine{1}), 'engine', engine{1});
    expect_equal (got, {10, [], 40});
    expect_equal (report.done, [true false true]);
    expect_equal (numel (report.failed), 1);
    expect_equal (report.failed.number, 2);
    expect_equal (report.failed.identifier, 'sweep:trouble');
    expect_equal (report.failed.message, 'nothing for case 2');
    expect_equal (report.failed.parameters, cases(2));
    expect_equal (isnan (report.time), [false true false]);
  end
  fclose (fopen (fullfile (folder, 'mended'), 'w'));
  for engine = {'serial', 'parallel'}
    [got, report] = qn.sweep (f, cases, 'folder', fullfile (folder, engine{1}), 'engine', engine{1});
    expect_equal (report.ran, 0);
    expect_equal (report.failed.number, 2);
    [got, report] = qn.sweep (f, cases, 'folder', fullfile (folder, engine{1}), 'engine', engine{1}, 'again', true);
    expect_equal (report.ran, 1);
    expect_equal (got, {10, 20, 40});
    expect_equal (isempty (report.failed), true);
  end
end

function test_failures_are_said_where_nobody_asks_for_the_report ()
  warning ('error', 'qn:failed');
  back = onCleanup (@() warning ('on', 'qn:failed'));
  expect_error (@() qn.sweep (@(p) sweep_trouble (p, '/'), [1 2], 'engine', 'serial'), 'qn:failed', ...
                '~1 of 2 cases failed; case 2: nothing for case 2');
end

function test_a_case_that_ends_its_process_is_lost_alone ()
  [folder, clean] = new_folder ();
  % Case 3 dies while case 1 still runs.
  f = @(p) sweep_trouble (p, folder) + 0 * sweep_logged (p, folder);
  [got, report] = qn.sweep (f, 1:6, 'engine', 'parallel', 'workers', 2, 'folder', fullfile (folder, 'x'), 'progress', false);
  expect_equal (got, {10, [], [], 40, 50, 60});
  expect_equal ([report.failed.number], [2 3]);
  expect_equal (report.failed(2).identifier, 'qn:lost');
  fclose (fopen (fullfile (folder, 'mended'), 'w'));
  [got, report] = qn.sweep (f, 1:6, 'engine', 'parallel', 'workers', 2, 'folder', fullfile (folder, 'x'), 'progress', false);
  expect_equal (report.ran, 1);
  expect_equal (got{3}, 30);
end

function test_random_numbers_depend_on_the_case_alone ()
  rand ('twister', 5);
  wanted = rand (1, 3);
  rand ('twister', 5);
  draw = @(p) [rand(1, 2), randn(1, 2), rande(1, 2)];
  got = qn.sweep (draw, 1:4, 'engine', 'serial');
  expect_equal (rand (1, 3), wanted);
  expect_equal (qn.sweep (draw, 1:4, 'engine', 'parallel'), got);
  expect_equal (any (got{1} == got{2}), false);
end

function test_without_the_package_cases_run_one_after_another_and_this_is_said ()
  code = ['pkg (''global_list'', tempname ()); pkg (''local_list'', tempname ()); ' ...
          '[r, report] = qn.sweep (@(p) 2 * p, 1:3, ''engine'', ''parallel'', ''workers'', 2); disp (report.engine); disp ([r{:}]);'];
  [status, text] = system ([octave_command(code) ' 2>&1']);
  expect_equal (status, 0);
  for part = {'package parallel is not installed: the cases run one after another', 'octave-parallel', 'serial', '2   4   6'}
    if isempty (strfind (text, part{1})), error ('it said "%s"', text); end
  end
end

function test_a_long_sweep_says_how_far_it_is ()
  [folder, clean] = new_folder ();
  % The first case has no square.
  f = @(p) sweep_logged (p, folder);
  text = evalc ('[~, report] = qn.sweep (f, {''ab'', 1, 2, 3}, ''engine'', ''serial'');');
  said = regexp (text, '^  +(\d+) %  (\d) of 4 cases, \d+ s, \d+ s left; 1 failed', 'tokens', 'once');
  if isempty (said) || ~strcmp (said{1}, sprintf ('%d', 25 * str2double (said{2}))), error ('it said "%s"', text); end
  expect_equal (evalc ('qn.sweep (f, 1:3, ''engine'', ''serial'', ''progress'', false);'), '');
  code = sprintf ('folder = ''%s''; qn.sweep (@(p) sweep_logged (p, folder), 1:6, ''engine'', ''parallel'', ''workers'', 2);', folder);
  [~, text] = system ([octave_command(code) ' 2>&1']);
  if isempty (regexp (text, '% +\d of 6 cases, \d+ s, \d+ s left', 'once')), error ('it said "%s"', text); end
end

function test_a_temporary_folder_is_removed ()
  [folder, clean] = new_folder ();
  code = 'qn.sweep (@(p) p, 1:3, ''engine'', ''serial''); qn.sweep (@(p) p, 1:3, ''engine'', ''parallel'');';
  expect_equal (system (['TMPDIR=' folder ' ' octave_command(code)]), 0);
  expect_equal (numel (dir (folder)), 2);
end

function test_mistakes_in_sweeps_are_explained ()
  refused = @(text, varargin) expect_error (@() qn.sweep (varargin{:}), 'qn:input', text);
  refused ('~a function expected, got an array of class char', 'sin', 1:3);
  refused ('~struct array, a cell array or a matrix, got an array of class char', @sin, 'abc');
  refused ('~''auto'', ''serial''', @sin, 1, 'engine', 'cloud');
  refused ('~"workers" must be at least 1', @sin, 1, 'workers', 0);
  refused ('~needs the "folder"', @sin, 1, 'engine', 'slurm');
  refused ('~cannot make the folder', @sin, 1, 'folder', '/proc/nothing');
  [folder, clean] = new_folder ();
  before = getenv ('PATH');
  back = onCleanup (@() setenv ('PATH', before));
  setenv ('PATH', folder);
  expect_error (@() qn.sweep (@sin, 1, 'engine', 'slurm', 'folder', folder), 'qn:engine', '~the commands of Slurm do not run here');
end

function test_a_grid_has_all_combinations ()
  cases = qn.grid ('a', [1 2], 'b', {'x', 'y', 'z'}, 'c', 5);
  expect_equal (size (cases), [2 3]);
  expect_equal (cases(2, 3), struct ('a', 2, 'b', 'z', 'c', 5));
  expect_equal (reshape ([cases.a], 2, 3), [1 1 1; 2 2 2]);
  expect_equal (size (qn.grid ('a', 1:4)), [4 1]);
  deep = qn.grid ('a', 1:2, 'b', 1:3, 'c', 1:4);
  expect_equal (deep(2, 1, 3), struct ('a', 2, 'b', 1, 'c', 3));
  expect_equal (size (qn.grid ('a', [], 'b', 1:2)), [0 2]);
  expect_error (@() qn.grid ('a'), 'qn:input', '~in pairs');
  expect_error (@() qn.grid ('a b', 1), 'qn:input', '~no name of a field');
  expect_error (@() qn.grid ('a', 1, 'a', 2), 'qn:input', '~twice');
end

function test_any_name_of_a_folder_is_taken_as_it_stands ()
  [folder, clean] = new_folder ();
  before = cd (folder);
  back = onCleanup (@() cd (before));
  qn.sweep (@(p) p, 1:2, 'folder', 'study1', 'engine', 'serial');
  for name = {'study[1]', 'a*', 'x $(touch stolen)', 'it''s', 'back\slash'}
    for engine = {'serial', 'parallel'}
      f = @(p) p + numel (engine{1});
      inner = fullfile (name{1}, engine{1});
      mkdir (name{1});
      expect_equal (qn.sweep (f, 1:2, 'folder', inner, 'engine', engine{1}, 'progress', false), num2cell ((1:2) + numel (engine{1})));
      [~, report] = qn.sweep (f, 1:2, 'folder', inner, 'engine', engine{1});
      expect_equal (report.ran, 0);
      names = readdir (inner);
      expect_equal (sum (strncmp (names, 'results_', 8)) > 0, true);
      expect_equal (sum (strncmp (names, 'results_', 8)), numel (names) - 3);
    end
  end
  [~, report] = qn.sweep (@(p) p, 1:2, 'folder', 'study1');
  expect_equal (report.ran, 0);
  expect_equal (exist ('stolen', 'file'), 0);
  clear back
end

% In a process of its own: the package parallel keeps what earlier sweeps of this one left.
function test_a_function_with_an_empty_cell_runs_on_every_engine_and_goes_on ()
  [folder, clean] = new_folder ();
  code = sprintf (['kept = {@(x) x + numel({}), 3}; f = @(p) numel ({}) + kept{2} * p; ' ...
                   'for engine = {''serial'', ''parallel''}, ' ...
                   'inner = fullfile (''%s'', engine{1}); ' ...
                   'got = qn.sweep (f, 1:3, ''engine'', engine{1}, ''folder'', inner, ''progress'', false); ' ...
                   '[~, report] = qn.sweep (f, 1:3, ''engine'', engine{1}, ''folder'', inner); ' ...
                   'printf (''%%s %%s %%d;'', engine{1}, mat2str (cell2mat (got)), report.ran); end'], folder);
  [status, text] = system ([octave_command(code) ' 2>&1']);
  expect_equal (status, 0);
  if isempty (strfind (text, 'serial [3 6 9] 0;parallel [3 6 9] 0;')), error ('it said "%s"', text); end
end

% No file of the child may be longer than half of the second result: as on a disk with that much room.
function test_a_full_disk_ends_a_sweep_in_words_and_the_case_runs_again ()
  [folder, clean] = new_folder ();
  code = sprintf ('qn.sweep (@(p) zeros (1, 10 ^ (2 * p)), 1:3, ''engine'', ''serial'', ''folder'', ''%s'');', folder);
  [status, text] = system (sprintf ('ulimit -f 200; %s 2>&1', octave_command (code)));
  if status == 0 || isempty (strfind (text, 'cannot write')) || isempty (strfind (text, 'is the disk full?')), error ('it said "%s"', text); end
  expect_equal (sort (readdir (folder)).', {'.', '..', 'results_1.mat', 'results_2.mat', 'sweep.mat'});
  [got, report] = qn.sweep (@(p) zeros (1, 10 ^ (2 * p)), 1:3, 'engine', 'serial', 'folder', folder);
  expect_equal (report.ran, 1);
  expect_equal (cellfun (@numel, got), [1e2 1e4 1e6]);
end

function test_of_two_sweeps_that_begin_together_one_says_what_the_folder_is_for ()
  [folder, clean] = new_folder ();
  for k = 1:2
    inner = fullfile (folder, sprintf ('%d', k));
    code = sprintf ('folder = ''%s''; qn.sweep (@(p) sweep_logged (p, folder), %%s, ''engine'', ''serial'', ''folder'', ''%s'');', folder, inner);
    first = {'1:6', '1:6'};
    second = {'2:7', '1:6'};
    [~, text] = system (sprintf ('(%s) 2>&1 & (%s) 2>&1; wait', octave_command (sprintf (code, first{k})), octave_command (sprintf (code, second{k}))));
    others = numel (strfind (text, 'belongs to a sweep with other cases'));
    expect_equal (others, 2 - k);
  end
  ran = numel (dir (fullfile (folder, 'ran_*')));
  if ran < 12 || ran > 14, error ('%d cases ran, 6 in the first folder and 6 shared in the second', ran); end
end

function test_cases_whose_fields_are_in_another_order_are_the_same ()
  [folder, clean] = new_folder ();
  cases = qn.grid ('a', [1 2 NaN], 'b', {'x', [], {3}});
  f = @(p) numel (p.b);
  o = {'folder', folder, 'engine', 'serial', 'progress', false};
  first = qn.sweep (f, cases, o{:});
  [second, report] = qn.sweep (f, orderfields (cases, {'b', 'a'}), o{:});
  expect_equal (second, first);
  expect_equal (report.ran, 0);
  other = orderfields (cases, {'b', 'a'});
  other(9).b = {4};
  expect_error (@() qn.sweep (f, other, o{:}), 'qn:input', '~other cases');
  a = struct ('f', {@(x) x + 1, @(x) x + 2}, 'x', {1, 2});
  b = a;
  assert (qn.impl.alike (a, orderfields (b, {'x', 'f'})));
  b(2).f = @(x) x + 3;
  assert (~qn.impl.alike (a, b));
  assert (~qn.impl.alike (struct ('x', {1, 2}), struct ('x', {1, single(2)})) && qn.impl.alike ({0, NaN}, {-0, NaN}));
end

function test_a_case_may_run_a_sweep_itself ()
  o = {'engine', 'serial', 'progress', false};
  inner = @(p) sum (cell2mat (qn.sweep (@(x) x * p, 1:3, o{:})));
  expect_equal (qn.sweep (inner, 1:4, o{:}), {6, 12, 18, 24});
end
