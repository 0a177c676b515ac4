% Handles gathered for one call: from vectors of registered ones and from cells of values.
function tests = suite_handle_lists ()
  tests = localfunctions ();
end

function test_handles_add_their_shares_in_order ()
  one = quarn ('chandleset', 1, matrix_lines (sparse (1)));
  large = quarn ('chandleset', 1, matrix_lines (sparse (1e16)));
  minus = quarn ('chandleset', 1, matrix_lines (sparse (-1e16)));
  expect_equal (added (chandle ([large one minus])), 0);   % the 1 is lost between the large ones
  expect_equal (added (chandle ([large minus one])), 1);
end

function test_a_handle_named_twice_adds_twice ()
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  expect_equal (added (chandle ([h h])), 6);
end

function test_an_empty_vector_adds_nothing ()
  r = zeros (2, 1) + 0.1;
  quarn ('residual', r, chandle ([]), ones (2, 1), ones (2, 1), ones (2, 1));
  expect_equal (r, [0.1; 0.1]);
end

function test_long_vectors_are_taken ()
  h = quarn ('chandleset', 1, matrix_lines (sparse (1)));
  expect_equal (added (chandle (h * ones (1, 3000))), 3000);
end

function test_an_index_without_a_handle_is_refused_and_leaves_its_key ()
  clear quarn
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  indices = [7 -3 NaN 1e300];
  for k = 1:4
    r = zeros (1, 1) + 0.5;
    expect_error (@() quarn ('residual', r, chandle ([h indices(k)]), ones (1, 1), 0, 0), 'KORV:quarn:NonHandle', 'Handle does not exist');
    expect_equal (r, 0.5);
  end
  expect_equal (quarn ('chandleget'), [-2147483648; -3; 0; 7]);
  expect_equal (added (chandle (h)), 3);
end

function test_a_freed_handle_is_refused ()
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  quarn ('chandleclear', h);
  expect_error (@() added (chandle (h)), 'KORV:quarn:NonHandle', 'Handle does not exist');
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  quarn ('chandleclear');
  expect_error (@() added (chandle (h)), 'KORV:quarn:NonHandle', 'Handle does not exist');
end

function test_a_method_that_returns_no_index_is_refused ()
  h = chandle (quarn ('chandleset', 1, matrix_lines (sparse (3))));
  silent = fullfile (fileparts (which ('registered')), 'silent');
  addpath (silent);
  undo = onCleanup (@() rmpath (silent));
  expect_refused (@() added (h), 'Handle does not exist', 'KORV:quarn:NonHandle');
  clear undo
  expect_equal (added (h), 3);
end

function test_more_handles_than_an_integer_counts_are_refused ()
  code = 'r = 5; try, quarn (''residual'', r, chandle (2^31), 1, 1, 1); catch err, disp (err.message); disp (r); end';
  folders = {fileparts(which ('quarn')), fullfile(fileparts (which ('registered')), 'endless')};
  [status, text] = octave_says ([sprintf('addpath (''%s''); ', folders{:}) code]);
  wanted = 'quarn: quarn residual : a handle list may have up to 2147483647 elements, got 2147483648';
  expect_equal (text, sprintf ('%s\n5\n', wanted));
  expect_equal (status, 0);
end

function test_an_index_is_truncated ()
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  expect_equal (added (chandle (h + 0.75)), 3);
end

function test_an_index_that_is_no_number_is_refused ()
  expect_refused (@() added (chandle ({5})), 'quarn residual : element 1 : the index that "remi" returned must be a number, got cell 1x1');
end

function test_a_vector_may_mix_all_types ()
  h = [quarn('chandleset', 2, matrix_lines (sparse (2))), quarn('chandleset', 3, matrix_lines (sparse (3))), quarn('chandleset', 1, matrix_lines (sparse (5))), ...
       quarn('chandleset', 1003, power_element (matrix_lines (1, true), matrix_lines (1), 1))];
  r = zeros (1, 1) + 7;
  quarn ('residual', r, chandle (h), ones (1, 1), 10 * ones (1, 1), 100 * ones (1, 1));
  expect_equal (r, 7 + 200 + 30 + 5 + 1);
end

function test_an_initialisation_that_fails_keeps_every_handle ()
  good = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  bad = quarn ('chandleset', 2, struct ('x', 1));
  r = zeros (1, 1) + 0.5;
  expect_error (@() quarn ('residual', r, chandle ([good bad]), ones (1, 1), 0, 0), 'KORV:quarn:empty', 'no real part');
  expect_equal (r, 0.5);
  expect_equal (added (chandle (good)), 3);
  expect_equal (quarn ('chandleget', bad), struct ('x', 1));
end

function test_a_cell_list_uses_the_callers_own_arrays ()
  run = small_run ();
  expect_equal (run.list{2}.ir, int32 ([0; 1; 2]));
  simulate (run);
  expect_equal (run.list{2}.ir, int32 ([-1; 1; 2]));
end

function test_a_registered_list_leaves_the_callers_arrays ()
  run = small_run ();
  values = run.list;
  run.list = registered (run.list);
  simulate (run);
  expect_equal (values{2}.ir, int32 ([0; 1; 2]));
end

function test_cell_lists_and_registered_lists_give_the_same_bits ()
  one = small_run ();
  two = small_run ();
  two.list = registered (two.list);
  simulate (one);
  simulate (two);
  expect_equal (one.out, two.out);
  expect_equal (one.u, two.u);
end

function test_a_cell_list_registers_nothing ()
  before = quarn ('chandleget');
  simulate (small_run ());
  expect_equal (quarn ('chandleget'), before);
end

function test_an_unknown_type_in_a_cell_list_is_refused ()
  codes = [4 0 -1 NaN 1e300];
  for k = 1:5
    run = small_run ();
    run.list{3}.type = codes(k);
    expect_refused (@() simulate (run), 'Not a valid chandle type', 'KORV:quarn:NonHandle');
  end
end

function test_types_in_a_cell_list_are_truncated ()
  run = small_run ();
  run.list{2}.type = 1.9;
  simulate (run);
  expect_equal (run.list{2}.ir(1), int32 (-1));
end

function test_elements_without_a_type_are_refused ()
  values = {[], 5, 'text', {}, struct('x', 1), struct('type', []), struct('type', 'no'), struct('type', {}), struct('type', {{1}}), ...
            @sin, chandle(0), v_handle(1)};
  for k = 1:numel (values)
    run = small_run ();
    run.list{3} = values{k};
    own_answer (@() simulate (run));
    expect_equal (fails (run), true);
  end
end

function r = added (handles)
  r = zeros (1, 1);
  quarn ('residual', r, handles, ones (1, 1), zeros (1, 1), zeros (1, 1));
end

function simulate (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function failed = fails (run)
  failed = false;
  try
    simulate (run);
  catch
    failed = true;
  end
end

% While the result lives, "remi" first runs HOOK with the element's number.
function undo = hooked (hook)
  global REMI_HOOK
  REMI_HOOK = hook;
  folder = fullfile (fileparts (which ('registered')), 'hooked');
  addpath (folder);
  undo = onCleanup (@() rmpath (folder));
end

function fail_from (place, k)
  if k >= place, error ('own:id', 'asked for %d', k); end
end

function test_elements_are_found_and_set_up_one_after_the_other ()
  clear quarn
  dense = quarn ('chandleset', 2, struct ('pr', [1; 2], 'dims', [2 1]));
  undo = hooked (@(k) fail_from (2, k));
  gather = @(indices) quarn ('residual', zeros (1, 1), chandle (indices), 1, 1, 1);
  % The set-up of the first element fails before the second one's index is asked for; so does the look-up, which leaves its key.
  expect_error (@() gather ([dense 5]), 'KORV:quarn:empty', 'Error not a valid mass');
  expect_error (@() gather ([7 5]), 'KORV:quarn:NonHandle', 'Handle does not exist');
  expect_equal (quarn ('chandleget'), [0; 7]);
  good = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  expect_error (@() gather ([good dense]), 'own:id', 'asked for 2');
end

function clear_at (place, k, index)
  if k == place, quarn ('chandleclear', index); end
end

function test_a_handle_freed_by_a_later_method_does_not_exist ()
  h = quarn ('chandleset', 1, matrix_lines (sparse (3)));
  other = quarn ('chandleset', 1, matrix_lines (sparse (4)));
  unused = quarn ('chandleset', 1, matrix_lines (sparse (5)));
  undo = hooked (@(k) clear_at (2, k, unused));
  expect_equal (added (chandle ([h other])), 7);
  clear undo
  undo = hooked (@(k) clear_at (2, k, h));
  expect_error (@() added (chandle ([h other])), 'KORV:quarn:NonHandle', 'Handle does not exist');
  clear undo
  expect_equal (added (chandle (other)), 4);
end
