% The law "User": a library in C or a function of the host's language, what they are given, and what is refused.
function tests = suite_law_user ()
  tests = localfunctions ();
end

% Two rows, one state: springs that are coupled, a push in time, a state that follows by velocity times step. The order of the sums is that of
% the function below.
function text = coupled ()
  text = sprintf ('%s\n', ...
    '#include "quarn_law.h"', ...
    'static void coupled(const quarn_step* now, double* force, double* state) {', ...
    '  const double* x = now->x; const double* p = now->p;', ...
    '  force[0] = p[0] * x[0] + p[1] * (x[0] - x[1]) + state[0] + p[2] * now->t;', ...
    '  force[1] = p[0] * x[1] + p[1] * (x[1] - x[0]) + p[3] * now->v[1];', ...
    '  state[0] = state[0] + now->h * now->v[0] * p[1] - state[0] * p[2];', ...
    '}', ...
    'QUARN_LAW(coupled, 2, 4, 1)');
end

function [f, s] = coupled_function (x, v, s, t, p, h)
  f = [p(1) * x(1) + p(2) * (x(1) - x(2)) + s + p(3) * t; p(1) * x(2) + p(2) * (x(2) - x(1)) + p(4) * v(2)];
  s = s + h * v(1) * p(2) - s * p(3);
end

function text = spring (body, counts)
  if nargin < 2, counts = '1, QUARN_ANY, 0'; end
  text = sprintf ('%s\n', '#include "quarn_law.h"', ['static void law(const quarn_step* now, double* force, double* state) {' body '}'], ...
                  ['QUARN_LAW(law, ' counts ')']);
end

% An element on rows 1 and 2 of n, its state in row 3.
function e = two_rows (p, h, n)
  lines = struct ('ir', int32 ([0; 1; 2]), 'jc', int32 ([0; 1; 2; 3]), 'pr', ones (3, 1), 'dims', [3 n], 'trans', 1);
  act = struct ('ir', int32 ([0; 1]), 'jc', int32 ([0; 1; 2; 2]), 'pr', ones (2, 1), 'dims', [3 n], 'trans', 1);
  e = struct ('type', 1003, 'c', lines, 'b', act, 'opt', [law_code('User'); 0; h; p], 'iopt', int32 ([-1 2 2 1 1]), 'unl', zeros (3, 1), ...
              'vnl', zeros (3, 1), 'snl', zeros (3, 1));
end

% One row, no state.
function e = one_row (p)
  if nargin < 1, p = zeros (0, 1); end
  line = struct ('ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 1, 'dims', [1 1], 'trans', 1);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code('User'); 0; 0.5; p], 'iopt', int32 ([-1 0 1 0 0]), 'unl', zeros (1, 1), ...
              'vnl', zeros (1, 1), 'snl', zeros (1, 1));
end

function r = residual_of (e, u, v)
  if nargin < 2, u = 2; end
  if nargin < 3, v = 0 * u; end
  r = zeros (numel (u), 1);
  [h, i] = registered ({e});
  free = onCleanup (@() quarn ('chandleclear', i));
  quarn ('residual', r, h, fresh (u), fresh (v), zeros (numel (u), 1), zeros (1, 2));
end

function refused (e, text, u)
  if nargin < 3, u = 2; end
  expect_refused (@() residual_of (e, u), ['~' text]);
end

function refused_library (file, text)
  e = one_row ();
  e.library = file;
  refused (e, text);
end

function test_a_compiled_law_and_the_same_function_have_the_same_bits_and_the_numbers_of_a_plain_loop ()
  rand ('twister', 11);
  randn ('twister', 11);
  [folder, clean] = new_folder ();
  file = law_library (folder, 'coupled', coupled ());
  for trial = 1:rounds (60)
    p = [50 * rand(2, 1); rand(2, 1)];
    h = 0.01;
    modes = 2 + randi (3);
    n = modes + 1;
    e = two_rows (p, h, n);
    % The state lies in the third row; the other modes follow.
    m = ones (n, 1);
    [integrator, mem, out] = newmark_setup (m, 0.1 * m, 0 * m, randn (n, 1), randn (1, 12), h, 0.25, 0.5, 2:12);
    integrator.r(3, :) = 0;
    integrator = fresh (integrator);
    [u0, v0, a0] = deal (randn (n, 1), randn (n, 1), randn (n, 1));
    [v0(3), a0(3)] = deal (0);
    compiled = e;
    compiled.library = file;
    called = e;
    called.call = @(x, v, s, t) coupled_function (x, v, s, t, p, h);
    got = cell (1, 2);
    elements = {compiled, called};
    for k = 1:2
      o = fresh (out);
      [list, index] = registered ({fresh(integrator), fresh(elements{k})});
      [got{k}.u, got{k}.v, got{k}.a] = run_newmark (list, u0, v0, a0, fresh (mem), o);
      got{k}.saved = o.def;
      got{k}.element = getfield (quarn ('chandleget', index(2)), 'snl');
      for i = index, quarn ('chandleclear', i); end
    end
    expect_equal (got{1}, got{2});
    wanted = plain_loop (integrator, p, h, u0, v0, a0);
    expect_equal (got{1}.saved, wanted, 1e-12 * max (abs (wanted(:))));
  end
end

% Newmark with one correction a step, after docs/theory.md; the loads are those of the column before.
function saved = plain_loop (integrator, p, h, u, v, a)
  d = integrator.data;
  gain = integrator.r(:, 3);
  times = integrator.tft(1, :);
  saved = zeros (numel (u), numel (times) - 1);
  s = u(3);
  for j = 1:numel (times) - 1
    u = u + d(1) * v + d(2) * a;
    v = v + d(3) * a;
    a = 0 * a;
    u(3) = s;
    v(3) = 0;
    r = integrator.r(:, 2) * integrator.tft(2, j);
    [f, s] = coupled_function (u(1:2), v(1:2), s, times(j + 1), p, h);
    r(1:2) = r(1:2) + f;
    x = -gain .* r;
    u = u + x;
    v = v + d(4) * x;
    a = d(5) * x;
    u(3) = s;
    saved(:, j) = u;
  end
end

function test_each_evaluation_is_a_step_of_the_states ()
  [folder, clean] = new_folder ();
  e = two_rows ([3; 4; 0.5; 2], 0.25, 3);
  e.library = law_library (folder, 'coupled', coupled ());
  [h, i] = registered ({e});
  u = fresh ([1; 2; 10]);
  r = zeros (3, 1);
  quarn ('residual', r, h, u, [1; 5; 7], zeros (3, 1), zeros (1, 2));
  expect_equal (r, [3 - 4 + 10; 6 + 4 + 10; 0]);     % t is 0
  expect_equal (u, [1; 2; 10 + 0.25 * 4 - 5]);
  quarn ('residual', r, h, u, [0; 0; 0], zeros (3, 1), zeros (1, 2));
  expect_equal (u(3), 6 - 3);
  quarn ('chandleclear', i);
end

function test_a_law_sees_counts_time_and_step_and_forces_begin_at_zero ()
  [folder, clean] = new_folder ();
  e = one_row ([7; 8]);
  e.library = law_library (folder, 'seen', ...
                           spring ('force[0] += now->rows + 10 * now->parameters + 100 * now->states + 1000 * now->h + now->p[1] + now->t;'));
  e.snl(1) = 99;
  expect_equal (residual_of (e), 1 + 20 + 500 + 8);
  [integrator, mem, out] = newmark_setup (1, 0, 0, 0, zeros (1, 2), 0.125, 0.25, 0.5, 2);
  e = fresh (e);
  run_newmark ({integrator, e}, zeros (1, 1), zeros (1, 1), zeros (1, 1), mem, out);
  expect_equal (e.snl, 1 + 20 + 500 + 8 + 0.125);
end

function test_a_law_without_states_is_evaluated_for_groups_of_rows ()
  [folder, clean] = new_folder ();
  file = law_library (folder, 'pair', spring ('force[0] = now->x[0] * now->x[1]; force[1] = now->rows;', '2, 0, 0'));
  n = 6;
  line = struct ('ir', int32 ((0:n - 1)'), 'jc', int32 ((0:n)'), 'pr', ones (n, 1), 'dims', [n n], 'trans', 1);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code('User'); 0; 0], 'iopt', int32 ([-1 0 2 0 0]), 'unl', zeros (n, 1), ...
              'vnl', zeros (n, 1), 'snl', zeros (n, 1));
  called = e;
  e.library = file;
  called.call = @(x, v, s, t) [x(1) * x(2); numel(x)];
  u = (1:n)';
  expect_equal (residual_of (e, u), [2; 2; 12; 2; 30; 2]);
  expect_equal (residual_of (called, u), [2; 2; 12; 2; 30; 2]);
  e.iopt(3) = 4;
  refused (e, 'unl of law "User" must hold groups of iopt\(3\) = 4 values, got 6', u);
end

function test_what_names_no_law_is_refused ()
  refused (one_row (), 'an element of law "User" needs a field "library" or a field "call", one of them');
  e = one_row ();
  e.library = '/lib/a.so';
  e.call = @sin;
  refused (e, 'needs a field "library" or a field "call", one of them');
  e = one_row ();
  e.call = 3;
  refused (e, '"call" must be a function handle, got double 1x1');
  refused_library (5, '"library" must be the path of a library, a row of fewer than 4096 characters, got double 1x1');
  refused_library (['ab'; 'cd'], '"library" must be the path of a library, .* got char 2x2');
  refused_library (repmat ('/', 1, 5000), '"library" must be the path of a library, .* got char 1x5000');
  refused_library ('law.so', '"library" must be a path from the root, /..., got "law.so"');
  refused_library (['/tmp/a' char(0) '.so'], '"library" must be a path from the root, /..., got "/tmp/a"');
end

function test_files_that_are_no_libraries_are_refused ()
  [folder, clean] = new_folder ();
  refused_library (fullfile (folder, 'none.so'), 'there is no library of a law that can be read at .*none.so: No such file');
  refused_library (folder, 'is no shared library, or not a whole one');
  text = fullfile (folder, 'text.so');
  put_file (text, 'static void law () {}');
  refused_library (text, 'text.so is no shared library, or not a whole one');
  refused_library (fullfile (OCTAVE_EXEC_HOME (), 'bin', 'octave-cli'), '(no shared library|cannot be loaded|cannot be used)');
  whole = law_library (folder, 'whole', spring ('force[0] = now->x[0];'));
  bytes = bytes_of (whole);
  for share = [0.001 0.01 0.2 0.5]
    cut = fullfile (folder, sprintf ('cut%g.so', share));
    put_bytes (cut, bytes(1:round (share * numel (bytes))));
    refused_library (cut, 'is no shared library, or not a whole one');
  end
  other = bytes;
  other(19) = 8;                          % of another processor
  file = fullfile (folder, 'other.so');
  put_bytes (file, other);
  refused_library (file, 'the law cannot be loaded: .*other.so');
  refused_library (law_library (folder, 'missing', [sprintf('double nowhere(double);\n') spring('force[0] = nowhere(now->x[0]);')]), ...
                   'the law cannot be loaded: .*nowhere');
end

function bytes = bytes_of (file)
  id = fopen (file);
  bytes = fread (id, [1 Inf], 'uint8=>uint8');
  fclose (id);
end

function put_bytes (file, bytes)
  id = fopen (file, 'w');
  fwrite (id, bytes);
  fclose (id);
end

function test_libraries_without_a_law_of_this_version_are_refused ()
  [folder, clean] = new_folder ();
  refused_library (law_library (folder, 'empty', 'int something = 3;'), 'empty.so cannot be used: it has no law: a line QUARN_LAW');
  entry = @(text) sprintf ('%s\n', '#include "quarn_law.h"', 'static void law(const quarn_step* now, double* force, double* state) {}', ...
                           ['const quarn_law quarn_law_entry = {' text '};']);
  magic = '{''q'',''u'',''a'',''r'',''n'',''l'',''a'',''w''}';
  size_of = '(int)sizeof(quarn_law)';
  cases = {'magic', ['{0}, 1, ' size_of ', 1, 0, 0, law'], 'it has no law'
           'version', [magic ', 2, ' size_of ', 1, 0, 0, law'], 'its law is of version 2, this module takes version 1: compile it'
           'size', [magic ', 1, 8, 1, 0, 0, law'], 'its law is of version 1, this module takes version 1'
           'rows', [magic ', 1, ' size_of ', 0, 0, 0, law'], 'its law takes 0 rows, 0 parameters and 0 states, which no law can'
           'parameters', [magic ', 1, ' size_of ', 1, -2, 0, law'], 'its law takes 1 rows, -2 parameters and 0 states'
           'states', [magic ', 1, ' size_of ', 1, 0, -1, law'], 'its law takes 1 rows, 0 parameters and -1 states'
           'none', [magic ', 1, ' size_of ', 1, 0, 0, 0'], 'its law has no function'};
  for k = 1:size (cases, 1), refused_library (law_library (folder, cases{k, 1}, entry (cases{k, 2})), ['cannot be used: ' cases{k, 3}]); end
end

function test_counts_that_do_not_fit_the_library_are_refused ()
  [folder, clean] = new_folder ();
  e = two_rows ([1; 2; 3; 4], 0.1, 3);
  e.library = law_library (folder, 'coupled', coupled ());
  one = one_row ([1; 2; 3; 4]);
  one.library = e.library;
  refused (one, 'the law in the library takes 2 rows, the element has 1');
  short = e;
  short.opt = e.opt(1:6);
  refused (short, 'the law in the library takes 4 parameters, the element has 3', ones (3, 1));
  one = two_rows ([1; 2; 3; 4], 0.1, 3);
  one.library = law_library (folder, 'stateless', spring ('', '2, 4, 0'));
  refused (one, 'the law in the library takes 0 states, the element has 1', ones (3, 1));
  short.opt = e.opt(1:2);
  refused (short, '"opt" of law "User" must hold 3 values or more, got 2', ones (3, 1));
  text = 'iopt\(2:5\) of law "User" must be the place of its states in u, from 1, then \[2 1 1\], got ';
  for wrong = {[-1 0 2 1 1], [-1 2 1 1 1], [-1 2 2 1 2]}
    other = e;
    other.iopt = int32 (wrong{1});
    refused (other, [text regexprep(mat2str (wrong{1}(2:5)), '([\[\]])', '\\$1')], ones (3, 1));
  end
  for wrong = [-1, 4, -2 ^ 31]
    other = e;
    other.iopt(4) = wrong;
    refused (other, sprintf ('iopt\\(4\\) of law "User" must be from 0 to the 3 values of unl, got %d', wrong), ones (3, 1));
  end
end

function test_arrays_that_are_missing_or_shared_are_refused ()
  e = one_row ();
  e.call = @(x, v, s, t) x;
  for name = {'vnl', 'snl'}
    other = rmfield (e, name{1});
    if strcmp (name{1}, 'vnl')
      refused (other, '"vnl" of law "User" must hold 1 values or more, got 0');
    else
      refused (other, '"unl", "vnl" and "snl" of law "User" must each have memory of their own');
    end
  end
  e.snl = zeros (0, 1);
  refused (e, 'must each have memory of their own');
  short = two_rows ([], 1, 3);
  short.call = @(x, v, s, t) deal (x, s);
  short.snl = zeros (2, 1);
  short.b = struct ('ir', int32 ([0; 1]), 'jc', int32 ([0; 1; 2]), 'pr', ones (2, 1), 'dims', [2 3], 'trans', 1);
  refused (short, '"snl" of law "User" must hold 3 values or more, got 2', ones (3, 1));
end

function test_a_library_that_is_changed_after_it_was_loaded_is_refused ()
  [folder, clean] = new_folder ();
  e = one_row (3);
  e.library = law_library (folder, 'law', spring ('force[0] = now->p[0] * now->x[0];'));
  expect_equal (residual_of (e), 6);
  % The same content under the same name is the same law.
  bytes = bytes_of (e.library);
  unlink (e.library);
  expect_equal (residual_of (e), 6);
  put_bytes (e.library, bytes);
  expect_equal (residual_of (e), 6);
  unlink (e.library);
  law_library (folder, 'law', spring ('force[0] = 5 * now->p[0] * now->x[0];'));
  refused (e, 'law.so was changed after it had been loaded: give a changed law another name, or clear quarn before');
  clear ('quarn');
  expect_equal (residual_of (e), 30);
end

% What is loaded is a copy: the code of the first library runs on, and is left behind without a fault.
function test_a_library_that_is_overwritten_while_it_is_loaded_harms_nothing ()
  [folder, clean] = new_folder ();
  e = one_row ();
  e.library = law_library (folder, 'first', spring ('force[0] = 3 * now->x[0];'));
  other = law_library (folder, 'other', spring ('force[0] = 5 * now->x[0];'));
  expect_equal (residual_of (e), 6);
  for bytes = {[], fileread(other)}
    id = fopen (e.library, 'w');
    fwrite (id, bytes{1}, 'char');
    fclose (id);
    refused (e, 'first.so was changed after it had been loaded: give a changed law another name, or clear quarn before');
  end
  clear ('quarn');
  expect_equal (residual_of (e), 10);
end

function test_numbers_that_are_none_end_the_call_and_say_the_time ()
  [folder, clean] = new_folder ();
  e = one_row ();
  e.library = law_library (folder, 'none', spring ('force[0] = 0.0 / (now->t < 0.2 ? 1.0 : 0.0);'));
  [integrator, mem, out] = newmark_setup (1, 0, 1, 0, zeros (1, 9), 0.125, 0.25, 0.5, 2);
  run = @(u, v) run_newmark ({fresh(integrator), fresh(e)}, u, v, zeros (1, 1), fresh (mem), fresh (out));
  expect_error (@() run (zeros (1, 1), ones (1, 1)), '', '~the user''s law gives NaN as force 1 at t = 0.25 s, where x\(1\) = 0.2\d* and v\(1\) = 1');
  [u, v, a] = run (zeros (1, 1), 1e30 * ones (1, 1));         % a motion that has grown out of hand is the business of others
  expect_equal (isnan (u), true);
  e.library = law_library (folder, 'infinite', spring ('force[0] = 1.0 / now->x[0];'));
  refused (e, 'the user''s law gives Inf as force 1 at t = 0 s, where x\(1\) = 0 and v\(1\) = 0', 0);
  s = two_rows ([0; 0; 0; 0], 1, 3);
  s.library = law_library (folder, 'state', spring ('state[0] = 0.0 / now->p[0];', '2, 4, 1'));
  refused (s, 'the user''s law gives NaN as state 1', ones (3, 1));
end

function test_what_a_function_must_return ()
  e = one_row ();
  for wrong = {[1 2], zeros(0, 1), 'a', single(1), 1i, {1}, sparse(2)}
    e.call = @(x, v, s, t) wrong{1};
    refused (e, 'the law''s function must return 1 forces, full and real, got .* at t = 0 s');
  end
  e = two_rows ([], 1, 3);
  e.call = @(x, v, s, t) deal (x, [1 2]);
  refused (e, 'the law''s function must return 1 states, full and real, got double 1x2', ones (3, 1));
  e.call = @(x, v, s, t) x;
  refused (e, 'the law''s function must return 1 states, full and real, got nothing', ones (3, 1));
end

% Octave 11 lends a function the memory of what a module hands it, and takes it back.
function test_a_function_may_keep_what_it_is_given_and_give_it_back ()
  e = two_rows ([], 1, 3);
  e.call = @keeping;
  keeping ();
  r = zeros (3, 1);
  for k = 1:3
    r = r + residual_of (e, [k; -0.1; 4]);
    rand (2, 1);  % the memory is used again
  end
  expect_equal (max (abs (r - [6; -0.3; 0])) < 1e-15, true);
  expect_equal (keeping (), {[1; -0.1], [2; -0.1], [3; -0.1]});
end

% Gives back the x of each call; called without arguments, those of all calls, which it then forgets.
function [x, s] = keeping (x, v, s, t)
  persistent all
  if nargin == 0
    x = all;
    all = {};
  else
    all{end + 1} = x;
  end
end

function test_errors_of_a_function_arrive_with_identifier_and_text ()
  e = one_row ();
  e.call = @(x, v, s, t) error ('bearing:dry', 'no oil at %g', x);
  expect_error (@() residual_of (e), 'bearing:dry', 'no oil at 2');
  [integrator, mem, out] = newmark_setup (1, 0, 1, 0, zeros (1, 9), 0.125, 0.25, 0.5, 2);
  expect_error (@() run_newmark ({integrator, e}, zeros (1, 1), ones (1, 1), zeros (1, 1), mem, out), 'bearing:dry', '~no oil at 0.125');
end

function test_a_function_that_frees_or_uses_the_handles_of_its_call_ends_it ()
  global user_law_handle
  clean = onCleanup (@() clear ('-global', 'user_law_handle'));
  text = '~the law''s function freed, or used in a call of its own, a handle of the call that waits for it, at t = 0 s';
  e = one_row ();
  [user_law_handle, i] = deal ([]);
  e.call = @(x, v, s, t) freeing (x);
  [user_law_handle, i] = registered ({e});
  r = zeros (1, 1);
  expect_refused (@() quarn ('residual', r, user_law_handle, ones (1, 1), zeros (1, 1), zeros (1, 1), zeros (1, 2)), text);
  expect_equal (any (quarn ('chandleget') == i), false);
  e.call = @(x, v, s, t) using (x);
  [user_law_handle, i] = registered ({typed(1, 3), e});
  expect_refused (@() quarn ('residual', r, user_law_handle, ones (1, 1), zeros (1, 1), zeros (1, 1), zeros (1, 2)), text);
  % The same within a run, with the integrator itself.
  [integrator, mem, out] = newmark_setup (1, 0, 1, 0, zeros (1, 9), 0.125, 0.25, 0.5, 2);
  user_law_handle = registered ({integrator, e});
  expect_error (@() run_newmark (user_law_handle, zeros (1, 1), ones (1, 1), zeros (1, 1), mem, out), '', ...
                strrep (text, 't = 0 s', 't = 0.125 s'));
  quarn ('chandleclear', i(1));
  quarn ('chandleclear', i(2));
  quarn ('chandleclear');
end

function f = freeing (x)
  global user_law_handle
  quarn ('chandleclear', remi (user_law_handle, 1));
  f = x;
end

% Its first handle alone, so that no law calls itself without end.
function f = using (x)
  global user_law_handle
  quarn ('residual', zeros (1, 1), chandle (remi (user_law_handle, 1)), ones (1, 1), zeros (1, 1), zeros (1, 1), zeros (1, 2));
  f = x;
end

function test_a_function_may_use_handles_of_its_own_and_clear_quarn ()
  e = one_row ();
  e.call = @(x, v, s, t) with_own (x);
  expect_equal (residual_of (e), 6);
  e.call = @(x, v, s, t) cleared (x);
  expect_equal (residual_of (e), 2);
end

function f = with_own (x)
  [h, i] = registered ({typed(1, 3)});
  f = zeros (1, 1);
  quarn ('residual', f, h, x, zeros (1, 1), zeros (1, 1), zeros (1, 2));
  quarn ('chandleclear', i);
end

function f = cleared (x)
  clear ('quarn');
  f = x;
end

function test_a_law_that_calls_itself_ends_with_an_error_of_the_host ()
  global user_law_handle
  clean = onCleanup (@() clear ('-global', 'user_law_handle'));
  e = one_row ();
  e.call = @(x, v, s, t) again (x);
  [user_law_handle, i] = registered ({e});
  expect_error (@() again (1), '', '~max_recursion_depth');
  quarn ('chandleclear', i);
  expect_equal (quarn ('ismex'), 1);
end

function f = again (x)
  global user_law_handle
  f = zeros (1, 1);
  quarn ('residual', f, user_law_handle, x, zeros (1, 1), zeros (1, 1), zeros (1, 2));
end

function test_calls_of_a_function_hold_memory_flat ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
  e = two_rows ([], 1, 3);
  e.call = @(x, v, s, t) deal (x, s);
  steps = 20000;
  [integrator, mem, out] = newmark_setup (ones (3, 1), zeros (3, 1), ones (3, 1), zeros (3, 1), zeros (1, steps), 1e-3, 0.25, 0.5, 2);
  once = @() run_newmark ({fresh(integrator), fresh(e)}, zeros (3, 1), zeros (3, 1), zeros (3, 1), fresh (mem), fresh (out));
  once ();
  before = resident_memory ();
  once ();
  grown = resident_memory () - before;
  if grown > 3000, error ('%d KiB in %d calls', grown, steps); end
end

function test_the_header_of_the_toolbox_is_that_of_the_module ()
  root = project_folder ();
  expect_equal (fileread (fullfile (root, 'toolbox', 'quarn_law.h')), fileread (fullfile (root, 'src', 'nonlinear', 'quarn_law.h')));
end

function test_the_header_is_good_c_of_any_standard_and_good_cpp ()
  [folder, clean] = new_folder ();
  file = fullfile (folder, 'law.c');
  put_file (file, strrep (spring ('(void)state; force[0] = now->x[0];'), ', 0)', ', 0)'));
  header = fullfile (project_folder (), 'toolbox');
  for words = {'cc -std=c89', 'cc -std=c99', 'cc -std=c17', 'c++ -x c++ -std=c++17'}
    [status, said] = system (sprintf ('%s -Wall -Wextra -Werror -fPIC -shared -I"%s" -o "%s/law.so" "%s" 2>&1', words{1}, header, folder, file));
    if status ~= 0, error ('%s: %s', words{1}, said); end
    e = one_row ();
    e.library = fullfile (folder, 'law.so');
    clear ('quarn');
    expect_equal (residual_of (e), 2);
  end
end
