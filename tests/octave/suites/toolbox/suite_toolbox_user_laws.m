% Laws of the user's in the toolbox: compiled ones, kept by their content, and functions.
function tests = suite_toolbox_user_laws ()
  use_toolbox ();
  tests = localfunctions ();
end

% A folder for sources, and one for what is compiled from them instead of the user's own.
function [folder, clean] = workshop ()
  [folder, gone] = new_folder ();
  before = {getenv('XDG_CACHE_HOME'), getenv('CC')};
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'cache'));
  setenv ('CC', 'cc');
  clean = onCleanup (@() leave (before, gone));
end

function leave (before, gone)
  setenv ('XDG_CACHE_HOME', before{1});
  setenv ('CC', before{2});
  clear ('gone');
end

function names = kept (folder)
  names = setdiff (readdir (fullfile (folder, 'cache', 'quarn', 'laws')), {'.', '..'}).';
end

function file = source (folder, name, body, counts)
  if nargin < 4, counts = '1, QUARN_ANY, 0'; end
  file = fullfile (folder, name);
  put_file (file, sprintf ('%s\n', '#include "quarn_law.h"', '', 'static void law(const quarn_step* now, double* force, double* state) {', ...
                           ['  ' body], '}', ['QUARN_LAW(law, ' counts ')']));
end

function file = cubic_source (folder)
  file = source (folder, 'cubic.c', 'force[0] = now->p[0] * (now->x[0] * now->x[0] * now->x[0]);');
end

% Elastic and perfectly plastic: the state is where the slider is.
function file = plastic (folder)
  file = source (folder, 'plastic.c', ['const double d = now->p[1] / now->p[0]; double y = state[0]; ' ...
    'if (now->x[0] - y > d) y = now->x[0] - d; if (now->x[0] - y < -d) y = now->x[0] + d; ' ...
    'force[0] = now->p[0] * (now->x[0] - y); state[0] = y;'], '1, 2, 1');
end

function [f, y] = plastic_function (x, y, k, slip)
  d = slip / k;
  if x - y > d, y = x - d; end
  if x - y < -d, y = x + d; end
  f = k * (x - y);
end

function sim = oscillator (list, varargin)
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 2]), 'damping', 0.01);
  for k = 1:size (list, 1), list{k, 2} = qn.observe (model, list{k, 2}); end
  if ~any (strcmp (varargin, 'steps')), varargin = [{'steps', 400}, varargin]; end
  sim = qn.simulation (model, 'step', 1e-3, 'elements', list, 'load', {qn.load_at(model, 2), @(t) 150 * sin(40 * t)}, varargin{:});
end

function res = run_of (sim, varargin)
  res = qn.run (sim, 'progress', false, 'check', false, varargin{:});
end

function test_compiled_and_function_laws_have_the_same_bits_in_runs_and_at_rest ()
  [folder, clean] = workshop ();
  compiled = {qn.law('compiled', cubic_source (folder), 'parameters', 1e7); ...
              qn.law('compiled', plastic (folder), 'parameters', [1e4 5], 'states', 1)};
  functions = {qn.law('function', @(x, v, s, t) 1e7 * (x * x * x)); ...
               qn.law('function', @(x, v, s, t) plastic_function (x, s, 1e4, 5), 'states', 1)};
  a = run_of (oscillator ([compiled, {1; 2}]));
  b = run_of (oscillator ([functions, {1; 2}]));
  expect_equal (a.q, b.q);
  expect_equal (a.force, b.force);
  expect_equal (a.state, b.state);
  if max (abs (a.state)) < 1e-3, error ('the slider hardly moved'); end
  built_in = run_of (oscillator ({qn.cubic('stiffness', 1e7), 1}));
  once = run_of (oscillator ({compiled{1}, 1}));
  expect_equal (once.q, built_in.q, 1e-12);
  model = once.sim.model;
  load = qn.load_at (model, 2) * 50;
  [q, info] = qn.static (model, load, {compiled{1}, qn.observe(model, 1)});
  expect_equal (q, qn.static (model, load, {qn.cubic('stiffness', 1e7), qn.observe(model, 1)}), 1e-10);
  expect_equal (info.forces, 1e7 * (qn.observe (model, 1) * q) ^ 3, 1e-9);
  expect_error (@() qn.static (model, load, {compiled{2}, 1}), 'qn:input', '~element 1 has a memory \(compiled\)');
  expect_equal (qn.force (compiled{1}, [0.1 -0.2], [0 0]), 1e7 * [0.1 -0.2] .^ 3, 1e-9);
  x = [0 1e-3 0];
  expect_equal (qn.force (compiled{2}, x, 0 * x, 1e-3), [0 5 -5], 1e-12);
end

function test_a_law_of_two_rows ()
  [folder, clean] = workshop ();
  file = source (folder, 'cross.c', 'force[0] = -now->p[0] * now->v[1]; force[1] = now->p[0] * now->v[0];', '2, 1, 0');
  sim = @(law) oscillator ({law, [1 2]}, 'v0', [1; 0]);
  a = run_of (sim (qn.law ('compiled', file, 'parameters', 3, 'rows', 2)));
  b = run_of (sim (qn.law ('function', @(x, v, s, t) 3 * [-v(2); v(1)], 'rows', 2)));
  expect_equal (size (a.force), [2 401]);
  expect_equal (a.q, b.q);
  expect_error (@() oscillator ({qn.law('compiled', file, 'parameters', 3), 1}), '', '~the law in the library takes 2 rows, the element has 1');
  expect_error (@() oscillator ({qn.law('compiled', file, 'rows', 2), [1 2]}), '', '~takes 1 parameters, the element has 0');
  expect_error (@() oscillator ({qn.law('compiled', file, 'parameters', 3, 'rows', 2, 'states', 1), [1 2]}), '', ...
                '~takes 0 states, the element has 1');
  % The row of "elements", not the place in the module's list of handles.
  bank = {qn.iwan('slip', 1, 'stiffness', 2, 'sliders', 3), 1; qn.law('compiled', file, 'rows', 2), [1 2]};
  expect_error (@() oscillator (bank), '', 'qn.simulation: element 2: the law in the library takes 1 parameters, the element has 0');
  still = source (folder, 'still.c', 'force[0] = now->p[0] * now->x[0];', '1, 1, 0');
  model = qn.modal (4, 1);
  pair = {qn.cubic('stiffness', 1), 1; qn.law('compiled', still), 1};
  expect_error (@() qn.static (model, 1, pair), '', 'qn.static: element 2: the law in the library takes 1 parameters, the element has 0');
end

function test_energy_that_such_laws_take_up_is_accounted_for ()
  [folder, clean] = workshop ();
  res = run_of (oscillator ({qn.law('compiled', plastic (folder), 'parameters', [1e4 5], 'states', 1), 2; ...
                             qn.law('function', @(x, v, s, t) 3 * v), 1}));
  e = qn.energies (res);
  if ~(e.dissipated(end) > 0.1), error ('only %g J dissipated', e.dissipated(end)); end
  if ~(max (abs (e.residual)) < 1e-9 * e.work(end)), error ('a residual of %g J', max (abs (e.residual))); end
end

function test_laws_too_stiff_or_too_damped_for_the_step_are_found_by_differences ()
  [folder, clean] = workshop ();
  stiff = qn.law ('compiled', source (folder, 'stiff.c', 'force[0] = now->p[0] * now->x[0];'), 'parameters', 1e8);
  expect_equal (qn.impl.stiffest (stiff, []), 1e8, 1);
  expect_equal (qn.impl.stiffest (qn.law ('compiled', cubic_source (folder), 'parameters', 1e7), [-0.1 0.02 0.05]), 3e5, 1);
  law = qn.law ('compiled', plastic (folder), 'parameters', [1e4 5], 'states', 1);
  expect_equal (qn.impl.stiffest (law, []), 1e4, 1e-3);
  two = qn.law ('function', @(x, v, s, t) [3 4; -4 3] * x, 'rows', 2);
  expect_equal (qn.impl.stiffest (two, []), 5, 1e-6);
  expect_equal (qn.impl.stiffest (qn.law ('function', @(x, v, s, t) NaN), []), 0);
  found = qn.check (oscillator ({stiff, 1}));
  expect_equal (any (strcmp ({found.code}, 'element_unstable')), true);
end

function test_a_law_is_compiled_once_for_a_content ()
  [folder, clean] = workshop ();
  file = cubic_source (folder);
  first = qn.law ('compiled', file, 'parameters', 1);
  names = kept (folder);
  expect_equal (numel (names), 1);
  expect_equal (names{1}, sprintf ('cubic-%s.so', first.parameters.hash(1:32)));
  library = fullfile (folder, 'cache', 'quarn', 'laws', names{1});
  before = stat (library);
  second = qn.law ('compiled', file, 'parameters', 2);
  after = stat (library);
  expect_equal (after.ino, before.ino);
  expect_equal (second.parameters.hash, first.parameters.hash);
  other = source (folder, 'cubic.c', 'force[0] = 2;');
  third = qn.law ('compiled', other);
  expect_equal (numel (kept (folder)), 2);
  expect_equal (qn.force (third, 1, 0), 2);
  expect_equal (qn.force (first, 2, 0), 8);              % a law stays what it was made from
  setenv ('CC', 'cc -O1');
  fourth = qn.law ('compiled', other);
  expect_equal (strcmp (fourth.parameters.hash, third.parameters.hash), false);
  expect_equal (numel (kept (folder)), 3);
end

function test_names_of_files_and_folders_are_taken_as_they_stand ()
  [folder, clean] = workshop ();
  odd = fullfile (folder, 'it''s a "law" $(touch x) ; & [1]');
  mkdir (odd);
  setenv ('XDG_CACHE_HOME', fullfile (odd, 'cache'));
  file = source (odd, 'my law''s $HOME.c', 'force[0] = 3 * now->x[0];');
  law = qn.law ('compiled', file);
  expect_equal (qn.force (law, 2, 0), 6);
  expect_equal (law.parameters.file, file);
  here = cd (odd);
  back = onCleanup (@() cd (here));
  expect_equal (getfield (qn.law ('compiled', 'my law''s $HOME.c'), 'parameters'), law.parameters);
  expect_equal (exist (fullfile (odd, 'x'), 'file'), 0);
  file = source (odd, 'wrong.c', 'force[0] = nothing;');
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~it''s a "law" \$\(touch x\) ; & \[1\]/wrong.c:4:\d+: error: .nothing. undeclared');
end

function test_what_does_not_compile_is_said_in_the_words_of_the_compiler ()
  [folder, clean] = workshop ();
  file = source (folder, 'wrong.c', 'force[0] = 2 * missing;');
  expect_error (@() qn.law ('compiled', file), 'qn:compile', ['~the law .*wrong.c does not compile with "cc -std=gnu11.*' ...
                'wrong.c:4:\d+: error: .missing. undeclared']);
  expect_equal (numel (kept (folder)), 0);
  file = source (folder, 'calls.c', 'force[0] = squared (now->x[0]);');
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~implicit declaration of function .squared.');
  put_file (file, sprintf ('#include "quarn_law.h"\nstatic int law (int a) { return a; }\nQUARN_LAW (law, 1, 0, 0)\n'));
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~incompatible pointer type');
  put_file (fullfile (folder, 'own.h'), 'double own;');
  put_file (file, sprintf ('#include "own.h"\n'));
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~own.h: No such file');    % one file is a law: its content is all there is
  put_file (file, 'int nothing;');
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~the law .*calls.c compiles, and there is no law in it: a line QUARN_LAW');
  setenv ('CC', 'no-such-compiler -x');
  expect_error (@() qn.law ('compiled', cubic_source (folder)), 'qn:compile', '~does not compile with "no-such-compiler -x -std=gnu11.*not found');
  setenv ('CC', '');
  qn.law ('compiled', cubic_source (folder));
  expect_equal (numel (kept (folder)), 1);
end

% The host's loader said it before, at the first run of the law.
function test_what_a_law_calls_and_is_nowhere_is_said_when_it_is_made ()
  [folder, clean] = workshop ();
  file = fullfile (folder, 'calls.c');
  put_file (file, sprintf ('%s\n', '#include "quarn_law.h"', 'double nowhere (double);', ...
                           'static void law (const quarn_step* now, double* force, double* state) { force[0] = nowhere (now->x[0]); }', ...
                           'QUARN_LAW (law, 1, 0, 0)'));
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~the law .*calls.c does not compile with .*undefined reference to .nowhere');
  expect_equal (numel (kept (folder)), 0);
end

function test_counts_beyond_what_memory_holds_are_refused ()
  for name = {'states', 'rows'}
    expect_error (@() qn.law ('function', @(x, v, s, t) x, name{1}, 1e6), 'qn:input', ...
                  sprintf ('~"%s" must be from \\d to 2000, got 1000000', name{1}));
  end
end

% Blocks of zeros are what a file system leaves of a file that was being written when the machine lost its power.
function test_a_library_with_zeroed_blocks_is_compiled_again_before_it_is_loaded ()
  [folder, clean] = workshop ();
  law = qn.law ('compiled', cubic_source (folder), 'parameters', 1);
  library = qn.impl.user.library (law.parameters);
  good = fileread (library);
  block = 4096;
  for first = 1:block:numel (good)
    bad = good;
    bad(first:min (first + block - 1, end)) = char (0);
    damaged (library, bad, good, law);
  end
  damaged (library, good(1:end - 73), good, law);    % what a version before wrote, or another program: no sum behind it
  damaged (library, good(1:100), good, law);
  damaged (library, '', good, law);
  bad = good;
  bad(end) = char (double (bad(end)) + 1);
  damaged (library, bad, good, law);
  expect_equal (numel (kept (folder)), 1);
  expect_equal (qn.force (law, 2, 0), 8);
end

% In a process of its own it would be loaded; in this one the module would say that it was changed.
function damaged (library, bytes, good, law)
  put_bytes_in (library, bytes);
  expect_equal (qn.impl.user.whole (library), false);
  expect_equal (qn.impl.user.library (law.parameters), library);
  expect_equal (fileread (library), good);
end

function put_bytes_in (file, bytes)
  id = fopen (file, 'w');
  fwrite (id, bytes, 'uint8');
  fclose (id);
end

function test_warnings_of_the_compiler_are_passed_on ()
  [folder, clean] = workshop ();
  state = warning ('error', 'qn:compile');
  back = onCleanup (@() warning (state));
  file = source (folder, 'loose.c', 'double y; force[0] = y;');
  expect_error (@() qn.law ('compiled', file), 'qn:compile', '~the compiler says of the law .*loose.c:4:\d+: warning: .y. is used');
end

function test_files_that_are_none_are_refused ()
  [folder, clean] = workshop ();
  expect_error (@() qn.law ('compiled'), 'qn:input', '~the parameter "file" is missing');
  expect_error (@() qn.law ('compiled', fullfile (folder, 'none.c')), 'qn:input', '~none.c of a compiled law cannot be read');
  expect_error (@() qn.law ('compiled', fullfile (folder, 'none', 'a.c')), 'qn:input', '~a.c of a compiled law cannot be read');
  expect_error (@() qn.law ('compiled', 'law.so'), 'qn:input', '~"file" must be the name of a C file, NAME.c, got law.so');
  file = fullfile (folder, 'empty.c');
  put_file (file, '');
  expect_error (@() qn.law ('compiled', file), 'qn:input', '~empty.c of a compiled law cannot be read: it is empty');
  expect_error (@() qn.law ('compiled', 3), 'qn:input', '~"file" must be a text, got \[1 1\] of class double');
  expect_error (@() qn.law ('function', 'sin'), 'qn:input', '~"call" must be a function handle, such as .* got class char');
  expect_error (@() qn.law ('compiled', cubic_source (folder), 'hash', 'abc'), 'qn:input', '~"hash" must be that of a law that qn.law made');
end

function test_the_folder_of_compiled_laws_is_private ()
  [folder, clean] = workshop ();
  file = cubic_source (folder);
  law = qn.law ('compiled', file);
  place = fullfile (folder, 'cache', 'quarn', 'laws');
  for made = {place, fileparts(place)}, expect_equal (getfield (stat (made{1}), 'modestr')(1:10), 'drwx------'); end
  for mode = {'g+w', 'o+w'}
    for shared = {place, fileparts(place)}
      system (sprintf ('chmod %s "%s"', mode{1}, shared{1}));
      expect_error (@() qn.force (law, 1, 0), 'qn:input', '~they are run: the folder must belong to you, and nobody else may write in it');
      system (sprintf ('chmod go-w "%s"', shared{1}));
    end
  end
  put_file (fullfile (folder, 'flat'), 'a file');
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'flat'));
  expect_error (@() qn.law ('compiled', file), 'qn:input', '~compiled laws are kept in .*flat.* cannot be made');
end

function test_a_library_that_another_process_has_made_meanwhile_stays ()
  [folder, clean] = workshop ();
  law = qn.law ('compiled', cubic_source (folder), 'parameters', 1);
  library = qn.impl.user.library (law.parameters);
  before = stat (library);
  [unused, text, header] = qn.impl.user.content (law.parameters.file);
  qn.impl.user.build (law.parameters.file, text, header, library);
  after = stat (library);
  expect_equal (after.ino, before.ino);
  expect_equal (numel (kept (folder)), 1);
end

function test_where_the_library_is_missing_it_is_compiled_again_from_the_same_content ()
  [folder, clean] = workshop ();
  file = cubic_source (folder);
  law = qn.law ('compiled', file, 'parameters', 1);
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'node'));
  expect_equal (qn.force (law, 2, 0), 8);
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'node2'));
  put_file (file, [fileread(file) ' ']);
  expect_error (@() qn.force (law, 2, 0), 'qn:input', '~is not in the cache of this user, and its file .* is not the one that the law was made from');
  unlink (file);
  expect_error (@() qn.force (law, 2, 0), 'qn:input', '~cubic.c of a compiled law cannot be read');
end

function test_a_stored_run_goes_on_with_the_law_that_it_had_or_not_at_all ()
  [folder, clean] = workshop ();
  source_file = plastic (folder);
  sim = oscillator ({qn.law('compiled', source_file, 'parameters', [1e4 5], 'states', 1), 2});
  whole = run_of (sim);
  file = fullfile (folder, 'half.mat');
  run_of (sim, 'piece', 50, 'save', file, 'stop', @(r) r.time_end > 0.18);
  res = qn.resume (file, 'progress', false, 'check', false, 'save', '');
  expect_equal (res.q, whole.q);
  expect_equal (res.state, whole.state);
  text = fileread (source_file);
  put_file (source_file, [text ' ']);
  expect_error (@() qn.resume (file), 'qn:input', '~the file of its law, .*plastic.c, has changed since the run');
  unlink (source_file);
  expect_error (@() qn.resume (file), 'qn:input', '~the file of its law, .*plastic.c, is not there any more');
  put_file (source_file, text);
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'another'));
  expect_error (@() qn.resume (file), 'qn:input', '~has not been compiled by this user with this content, or .*: look at the file, then qn.law');
  expect_equal (numel (readdir (fullfile (folder, 'another', 'quarn', 'laws'))), 2);    % nothing was compiled
  names = kept (folder);
  library = fullfile (folder, 'cache', 'quarn', 'laws', names{1});
  good = fileread (library);
  put_bytes_in (library, good(1:end - 1));
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'cache'));
  expect_error (@() qn.resume (file), 'qn:input', '~or its library is damaged: look at the file, then qn.law');
  expect_equal (fileread (library), good(1:end - 1));                                   % and nothing is mended
  setenv ('XDG_CACHE_HOME', fullfile (folder, 'another'));
  qn.law ('compiled', source_file);
  res = qn.resume (file, 'progress', false, 'check', false, 'save', '');
  expect_equal (res.q, whole.q);
end

function test_a_run_that_ends_in_its_first_piece_leaves_the_file_of_a_longer_one ()
  [folder, clean] = workshop ();
  law = @(late) qn.law ('compiled', source (folder, 'late.c', 'force[0] = 100.0 * now->x[0] / (now->t < now->p[0]);'), 'parameters', late);
  file = fullfile (folder, 'run.mat');
  half = run_of (oscillator ({law(1), 1}), 'piece', 50, 'save', file, 'stop', @(r) r.time_end > 0.18);
  expect_error (@() run_of (oscillator ({law(0.02), 1}), 'piece', 50, 'save', file), '', '~gives Inf as force 1 at t = 0.02 s');
  expect_equal (getfield (qn.impl.files.read_run ('test', file), 'time_end'), half.time_end);
  expect_equal (getfield (qn.interrupted (), 'time_end'), 0);
end

function test_a_run_with_a_function_goes_on_in_the_session_and_is_not_stored ()
  sim = oscillator ({qn.cubic('stiffness', 1e7), 1; qn.law('function', @(x, v, s, t) plastic_function (x, s, 1e4, 5), 'states', 1), 2});
  whole = run_of (sim);
  part = run_of (sim, 'piece', 50, 'stop', @(r) r.time_end > 0.18);
  res = qn.resume (part, 'progress', false, 'check', false);
  expect_equal (res.q, whole.q);
  file = [tempname() '.mat'];
  expect_error (@() run_of (sim, 'save', file), 'qn:input', '~qn.run: element 2 has a law that is a function, which no file can hold');
  expect_equal (exist (file, 'file'), 0);
end

function test_a_run_that_continues_one_keeps_its_states ()
  [folder, clean] = workshop ();
  list = {qn.law('compiled', plastic (folder), 'parameters', [1e4 5], 'states', 1), 2};
  whole = run_of (oscillator (list));
  first = run_of (oscillator (list, 'steps', 150));
  rest = run_of (oscillator (list, 'start', first, 'steps', 250));
  expect_equal (rest.q(:, end), whole.q(:, end));
  expect_equal (rest.state(end), whole.state(end));
end

function test_errors_of_a_function_in_a_run_say_the_time ()
  law = qn.law ('function', @(x, v, s, t) dry (x, t));
  expect_error (@() run_of (oscillator ({law, 1})), 'bearing:dry', 'no oil (in the run, at t = 0.021 s)');
  expect_error (@() run_of (oscillator ({qn.law('function', @(x, v, s, t) 1 / (t < 0.1) - 1), 1})), '', ...
                '~the user''s law gives Inf as force 1 at t = 0.1 s, where');
  law = qn.law ('function', @(x, v, s, t) error ('bearing:dry', 'no oil'));
  expect_error (@() oscillator ({law, 1}), 'bearing:dry', 'no oil');
end

function f = dry (x, t)
  f = x;
  if t > 0.0205, error ('bearing:dry', 'no oil'); end
end

% A map of the host's class library lost its functions, and the run ended with "isKey not found".
function test_a_function_that_clears_all_functions_of_the_session_changes_nothing ()
  [folder, clean] = new_folder ();
  put_file (fullfile (folder, 'clearing.m'), sprintf ('function f = clearing (x, what)\n  wipe (what);\n  f = 1e4 * x;\nend\n\nfunction wipe (what)\n  eval (what);\nend\n'));
  code = sprintf (['addpath (''%s''); mine = quarn (''chandleset'', 1, magic (3)); model = qn.modal (1e4, 1); run = @(law) qn.run (qn.simulation ' ...
    '(model, ''step'', 1e-3, ''steps'', 300, ''v0'', 1, ''elements'', {qn.law(''function'', law), 1}), ''piece'', 100, ''progress'', false); ' ...
    'wanted = run (@(x, v, s, t) 1e4 * x); for c = {''clear quarn'', ''clear -f'', ''clear all'', ''clear functions'', ''clear classes''}, ' ...
    'res = run (@(x, v, s, t) clearing (x, c{1})); if ~isequal (res.q, wanted.q), error (''other results with %%s'', c{1}); end, end, ' ...
    'assert (isequal (quarn (''chandleget'', mine), magic (3))); disp (''the same'')'], folder);
  [status, text] = system ([octave_command(code) ' 2>&1']);
  if status ~= 0 || isempty (strfind (text, 'the same')) || ~isempty (strfind (text, 'warning')), error ('it said "%s"', text); end
end

function test_laws_are_described_and_read_back_from_elements_and_handles ()
  [folder, clean] = workshop ();
  law = qn.law ('compiled', plastic (folder), 'parameters', [1e4 5], 'states', 1);
  text = sprintf ('compiled law plastic.c (%s), 1 rows, 1 states, parameters 10000 5', law.parameters.hash(1:8));
  expect_equal (qn.describe (law), text);
  e = qn.element (law, 1, 'step', 0.1, 'state', 2);
  expect_equal (qn.describe (e), ['nonlinear element: ' text '; step 0.1 s; observes 2 values']);
  called = qn.law ('function', @(x, v, s, t) 2 * x);
  expect_in (qn.describe (called), '2 * x, 1 rows, 0 states');
  expect_in (qn.describe (qn.element (called, 1)), '2 * x, 1 rows, 0 states');
  foreign = struct ('opt', qn.impl.keyword ('User'), 'library', '/a.so');
  expect_in (qn.describe (foreign), 'nonlinear element, law number');
end

function test_sweeps_run_such_laws_in_other_processes ()
  [folder, clean] = workshop ();
  law = @(k) qn.law ('compiled', fullfile (folder, 'cubic.c'), 'parameters', k);
  cubic_source (folder);
  peak = @(k) max (getfield (qn.run (qn.simulation (qn.modal (1e4, 1), 'step', 1e-3, 'steps', 50, 'v0', 1, 'elements', {law(k), 1}), ...
                                     'progress', false), 'q'));
  serial = qn.sweep (peak, [1e6 1e7 1e8], 'engine', 'serial', 'progress', false);
  state = warning ('off', 'qn:serial');
  back = onCleanup (@() warning (state));
  parallel = qn.sweep (peak, [1e6 1e7 1e8], 'engine', 'parallel', 'workers', 2, 'progress', false);
  expect_equal (parallel, serial);
end
