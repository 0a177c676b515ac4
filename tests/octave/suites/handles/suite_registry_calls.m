% "chandleget" with a function: calls on a handle's value; and what the handle commands refuse.
function tests = suite_registry_calls ()
  tests = localfunctions ();
end

function test_a_function_is_called_on_the_value ()
  h = quarn ('chandleset', 1, [3 1 2]);
  expect_equal (quarn ('chandleget', 'sort', h), [1 2 3]);
  expect_equal (quarn ('chandleget', @max, h), 3);
  expect_equal (quarn ('chandleget', @(v) {v, 'wrapped'}, h), {[3 1 2], 'wrapped'});
end

% In Octave 11 the memory of what a module gives to a function is gone when the command ends.
function test_a_function_may_keep_the_value ()
  h = quarn ('chandleset', 1, struct ('pr', {{[3 1 2], int8([4 5 6]), 'text', 1i * [1 2], sparse([0 7])}}));
  keep ();
  quarn ('chandleget', @keep, h);
  others = cell (1, 100);
  for k = 1:numel (others), others{k} = {rand(1, 3), int8(randi (9, 1, 3)), ['te' 'xx'], rand(1, 2) * 1i, sparse(rand (1, 2))}; end
  expect_equal (keep (), struct ('pr', {{[3 1 2], int8([4 5 6]), 'text', 1i * [1 2], sparse([0 7])}}));
end

function v = keep (v)
  persistent kept
  if nargin > 0, kept = v; end
  v = kept;
end

function test_extra_arguments_follow_the_value ()
  h = quarn ('chandleset', 1, struct ('pr', 7));
  expect_equal (quarn ('chandleget', 'getfield', h, 'pr'), 7);
  expect_equal (quarn ('chandleget', @(v, a, b) {v.pr, a, b}, h, 'x', {2}), {7, 'x', {2}});
end

function test_all_outputs_are_returned ()
  h = quarn ('chandleset', 1, [3 1 2]);
  [sorted, order] = quarn ('chandleget', 'sort', h, 'descend');
  expect_equal (sorted, [3 2 1]);
  expect_equal (order, [1 3 2]);
end

function test_nine_inputs_are_taken_and_ten_are_too_many ()
  h = quarn ('chandleset', 1, 'value');
  expect_equal (quarn ('chandleget', @collect, h, 1, 2, 3, 4, 5, 6), {'value', 1, 2, 3, 4, 5, 6});
  expect_refused (@() quarn ('chandleget', @collect, h, 1, 2, 3, 4, 5, 6, 7), 'varargin too large', 'KORV:quarn:WrongSize');
  expect_refused (@() quarn ('chandleget', @collect, h, 1, 2, 3, 4, 5, 6, 7, 8), 'varargin too large', 'KORV:quarn:WrongSize');
end

function test_a_missing_handle_is_reported_before_too_many_inputs ()
  clear quarn
  expect_error (@() quarn ('chandleget', @collect, 3, 1, 2, 3, 4, 5, 6, 7), 'KORV:quarn:NonHandle', 'Handle does not exist');
  expect_equal (quarn ('chandleget'), 3);
  quarn ('chandleclear', 3);                                      % the key that the question left behind
  expect_equal (isempty (quarn ('chandleget')), true);
end

function test_an_error_of_the_function_keeps_its_identifier_and_message ()
  h = quarn ('chandleset', 1, 5);
  expect_refused (@() quarn ('chandleget', @(v) error ('solver:diverged', 'step %d of run %s', v, 'A'), h), 'step 5 of run A', ...
                  'solver:diverged');
  expect_refused (@() quarn ('chandleget', @(v) error ('without an identifier'), h), 'without an identifier');
  expect_equal (quarn ('chandleget', h), 5);
end

function test_a_function_without_an_output_may_be_called_for_none ()
  h = quarn ('chandleset', 1, 5);
  quarn ('chandleget', @no_output, h);
  quarn ('chandleget', @returns_none, h);
  expect_equal (quarn ('chandleget', h), 5);
end

function test_a_function_that_returns_nothing_where_an_output_is_asked_is_an_error ()
  h = quarn ('chandleset', 1, 5);
  functions = {@no_output, @returns_none, @unset_output};
  for k = 1:numel (functions)
    raised = false;
    try
      out = quarn ('chandleget', functions{k}, h);
    catch
      raised = true;
    end
    expect_equal (raised, true);
    expect_equal (quarn ('chandleget', h), 5);
  end
end

function test_what_cannot_be_called_is_an_error ()
  h = quarn ('chandleset', 1, 5);
  values = {[], 5, {}, struct('x', 1), true, 'no_such_function_anywhere', '', chandle(0), v_handle(1), containers.Map(), speye(2)};
  for k = 1:numel (values)
    raised = false;
    try
      quarn ('chandleget', values{k}, h);
    catch
      raised = true;
    end
    expect_equal (raised, true);
    expect_equal (quarn ('chandleget', h), 5);
  end
end

function test_a_function_may_use_the_module_itself ()
  h = quarn ('chandleset', 1, 5);
  inner = quarn ('chandleget', @(v) quarn ('chandleset', 1, v + 1), h);
  expect_equal (quarn ('chandleget', inner), 6);
  expect_equal (quarn ('chandleget', @(v) quarn ('chandleget', @(w) v * w, inner), h), 30);
end

function test_a_function_may_free_the_handle_it_is_called_on ()
  h = quarn ('chandleset', 1, {'still', 'here'});
  expect_equal (quarn ('chandleget', @(v) clear_and_return (v, h), h), {'still', 'here'});
  expect_error (@() quarn ('chandleget', h), 'KORV:quarn:NonHandle', 'Handle does not exist');
  quarn ('chandleclear', h);
  h = quarn ('chandleset', 1003, {'still', 'here'});
  expect_equal (quarn ('chandleget', @(v) clear_and_return (v), h), {'still', 'here'});
end

function test_handles_that_a_function_freed_leave_their_memory_at_the_next_call ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
  value = matrix_lines (speye (2));
  value.pr = ones (1e6, 1);
  before = resident_memory ();
  for k = 1:20
    both = [quarn('chandleset', 1, value), quarn('chandleset', 1, value)];
    quarn ('chandleget', @(x) arrayfun (@(i) quarn ('chandleclear', i), both), both(1));
  end
  quarn ('ismex');
  if resident_memory () - before > 8e4, error ('40 values of 8 MB: memory grew by %d KiB', resident_memory () - before); end
end

function test_the_last_handle_that_a_function_freed_leaves_its_memory_too ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
  value = matrix_lines (speye (2));
  value.pr = ones (5e6, 1);
  before = resident_memory ();
  i = quarn ('chandleset', 1, value);
  quarn ('chandleget', @(x) quarn ('chandleclear', i), i);
  quarn ('ismex');
  if resident_memory () - before > 2e4, error ('a value of 40 MB: memory grew by %d KiB', resident_memory () - before); end
end

function test_a_function_cannot_unload_the_module_that_waits_for_it ()
  for k = 1:10
    h = quarn ('chandleset', 1, {'stays', k});
    expect_equal (quarn ('chandleget', @unload_and_return, h), {'stays', k});
    expect_equal (quarn ('chandleget', h), {'stays', k});
  end
end

function test_a_function_that_hides_the_module_behind_a_broken_file_leaves_it_locked ()
  code = {'function v = hide (v)', ...
          '  mkdir (''broken'');  id = fopen (''broken/quarn.m'', ''w'');  fprintf (id, ''function quarn ('');  fclose (id);', ...
          '  addpath (fullfile (pwd (), ''broken''));  rehash ();', ...
          'end', ...
          'h = quarn (''chandleset'', 1, 5);  got = quarn (''chandleget'', @hide, h);', ...
          'rmpath (fullfile (pwd (), ''broken''));  rehash ();', ...
          'disp (got);  disp (mislocked (''quarn''));  clear (''quarn'');  disp (quarn (''chandleget'', h));'};
  [status, text] = octave_says (sprintf ('%s\n', sprintf ('addpath (''%s'');', fileparts (which ('quarn'))), code{:}));
  expect_equal (text, sprintf ('5\n1\n5\n'));
  expect_equal (status, 0);
end

function test_a_refusal_after_a_nested_call_names_its_own_command ()
  h = quarn ('chandleset', 1, 5);
  expect_refused (@() quarn ('chandleget', @(v) quarn ('tbbp'), h), 'quarn tbbp : expected 4 inputs (command, A, x, y), got 1');
  expect_refused (@() quarn ('chandleget', [], h, @(v) quarn ('omp')), '~function handle');
end

function test_a_call_does_not_let_the_function_change_the_handle ()
  h = quarn ('chandleset', 1, struct ('pr', [1; 2; 3]));
  got = quarn ('chandleget', @changed, h);
  expect_equal (got.pr, [2; 3; 4]);
  expect_equal (quarn ('chandleget', h), struct ('pr', [1; 2; 3]));
end

function test_setting_without_a_value_is_refused_and_leaves_the_counter ()
  clear quarn
  expect_error (@() quarn ('chandleset'), '', 'quarn chandleset : expected 3 inputs (command, type, value), got 1');
  expect_error (@() quarn ('chandleset', 1), '', 'quarn chandleset : expected 3 inputs (command, type, value), got 2');
  expect_equal (quarn ('chandleset', 1, 5), 0);
end

function test_type_codes_that_are_no_numbers_are_refused ()
  values = {[], {}, {1}, '', struct('x', 1), @sin, sparse([1 0]), chandle(1), v_handle(1), containers.Map()};
  for k = 1:numel (values)
    expect_refused (@() quarn ('chandleset', values{k}, 5), '~^quarn chandleset : the handle''s type must be a number, got ');
  end
end

function test_indices_that_are_no_numbers_are_refused ()
  values = {[], {}, {1}, '', struct('x', 1), @sin, sparse([1 0]), chandle(1), v_handle(1), containers.Map()};
  for k = 1:numel (values)
    expect_refused (@() quarn ('chandleget', values{k}), '~^quarn chandleget : the handle''s index must be a number, got ');
    expect_refused (@() quarn ('chandleget', @isempty, values{k}), '~^quarn chandleget : the handle''s index must be a number, got ');
  end
  values = {{1}, struct('x', 1), @sin, sparse([1 0]), chandle(1), v_handle(1), containers.Map()};
  for k = 1:numel (values)
    expect_refused (@() quarn ('chandleclear', values{k}), '~^quarn chandleclear : the handle''s index must be a number, got ');
  end
end

function test_handle_commands_survive_arguments_of_every_kind ()
  values = hostile_values ();
  for k = 1:numel (values)
    for other = [1 7 20 36 50 numel(values)]
      survives ('chandleset', values{k}, values{other});
      survives ('chandleget', values{k}, values{other});
    end
    survives ('chandleset', 1, values{k});
    survives ('chandleget', values{k});
    survives ('chandleget', @isempty, values{k});
    survives ('chandleclear', values{k});
    survives ('chandleclear', values{k}, 1);
  end
end

function survives (word, varargin)
  try
    quarn (word, varargin{:});
  catch err
    if isempty (err.message), error ('quarn %s ended without a message', word); end
  end
  h = quarn ('chandleset', 1, {'alive'});
  expect_equal (quarn ('chandleget', h), {'alive'});
end

function all = collect (varargin)
  all = varargin;
end

function no_output (v)
end

function varargout = returns_none (v)
end

function out = unset_output (v)
end

function v = clear_and_return (v, varargin)
  quarn ('chandleclear', varargin{:});
end

function v = changed (v)
  add_one (v.pr);
end

function v = unload_and_return (v)
  clear quarn
end

function test_a_clean_up_that_registers_a_handle_while_all_are_freed ()
  first = quarn ('chandleset', 1, struct ('a', onCleanup (@() quarn ('chandleset', 1, 55))));
  last = quarn ('chandleset', 1, 5);
  quarn ('chandleclear');
  keys = quarn ('chandleget');
  expect_equal (keys(end), last + 1);
  expect_equal (quarn ('chandleget', last + 1), 55);
  expect_error (@() quarn ('chandleget', last), 'KORV:quarn:NonHandle', 'Handle does not exist');
  quarn ('chandleclear');
end

function test_a_clean_up_that_clears_the_module_does_not_unload_it_at_work ()
  for all = [false true]
    h = quarn ('chandleset', 1, struct ('a', onCleanup (@() clear ('quarn')), 'b', rand (1000, 1)));
    other = quarn ('chandleset', 1, 5);
    if all, quarn ('chandleclear'); else, quarn ('chandleclear', h); end
    keys = quarn ('chandleget');
    expect_equal (any (keys == other), true);   % not a new registry
  end
end

function out = calls_and_clears (value)
  out = quarn ('chandleget', @(v) v + 1, value);
  out(2) = mislocked ('quarn');
  clear ('quarn');
  out(3) = numel (quarn ('chandleget'));
end

function test_a_nested_callback_that_has_ended_leaves_the_outer_call_locked ()
  h = quarn ('chandleset', 1, 5);
  before = numel (quarn ('chandleget'));
  holder = quarn ('chandleset', 1, h);
  expect_equal (quarn ('chandleget', @calls_and_clears, holder), [6, true, before + 1]);
  expect_equal (quarn ('chandleget', h), 5);
end
