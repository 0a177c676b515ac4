% One run of the diagonal Newmark integrator: the step, loads, outputs and cursors.
function tests = suite_newmark ()
  tests = localfunctions ();
end

function call (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

% A run of one mode without handles: gain 0.5, the load input vector is 1, data = [h d2 d3 d4 d5 0].
function run = bare_run (loads)
  n = numel (loads);
  run = struct ('model', struct ('K', []), 'u', 1, 'v', 2, 'a', 4, 'opt', [0 0]);
  run.list = {struct('type', 2000, 'r', [0 1 0.5], 'tft', [(0:n - 1) * 0.25; loads], 'data', [0.25 0.125 0.5 3 7 0])};
  run.mem = struct ('uva', struct ('uva', zeros (4, 1)));
  run.out = struct ('data', (0:n - 1)' * 0.25, 'def', -ones (1, n));
  run = fresh (run);
end

function test_one_step_by_hand ()
  run = bare_run ([8 99]);
  call (run);
  % Predictor u = 1 + 0.25*2 + 0.125*4, v = 2 + 0.5*4; correction d = 8*0.5.
  expect_equal (run.u, 2 - 4);
  expect_equal (run.v, 4 - 3 * 4);
  expect_equal (run.a, -7 * 4);
  expect_equal (run.list{1}.data, [0.25 0.125 0.5 3 7 0.25]);
  expect_equal (run.mem.uva.uva, [1; 2; 4; 8]);
  expect_equal (run.out.def, [-1 -2]);
end

function test_state_is_predictor_minus_correction ()
  run = small_run ();
  run.list{1}.tft = fresh (run.list{1}.tft(:, 1:2));
  start = fresh (run);
  call (run);
  d = run.list{1}.data;
  fmod = run.mem.uva.uva(10:12);
  step = fmod .* run.list{1}.r(:, 3);
  expect_equal (run.mem.uva.uva(1:9), [start.u; start.v; start.a]);
  expect_equal (run.u, ((d(2) * start.a + d(1) * start.v) + start.u) - step);
  expect_equal (run.v, (d(3) * start.a + start.v) - d(4) * step);
  expect_equal (run.a, -step * d(5));
end

function test_one_time_point_runs_no_step ()
  run = bare_run (8);
  before = fresh (run);
  call (run);
  expect_equal (run.u, before.u);
  expect_equal (run.v, before.v);
  expect_equal (run.a, before.a);
  expect_equal (run.out, before.out);
  expect_equal (run.mem, before.mem);
  expect_equal (run.list{1}.data, before.list{1}.data);
  expect_equal (run.list{1}, before.list{1});
end

function test_one_time_point_still_checks ()
  run = bare_run (8);
  run.mem.uva.uva = zeros (3, 1);
  expect_error (@() call (run), 'KORV:quarn:Invalid', 'wrong uva size');
end

function test_step_uses_the_loads_of_the_previous_column ()
  run = bare_run ([3 5 7]);
  run.list{1}.data = fresh ([0.25 0 0 0 1 0]);
  call (run);
  expect_equal (run.mem.uva.uva(4), 5);
  expect_equal (run.a, -2.5);
end

function test_without_load_inputs_only_the_handles_act ()
  run = bare_run (0);
  run.list = fresh ({struct('type', 2000, 'r', [9 0.5], 'tft', [0 0.25 0.5], 'data', [0.25 0.125 0.5 3 7 0]), typed(1, 3)});
  run.out = fresh (struct ('data', [0; 0.25; 0.5], 'def', zeros (1, 3)));
  same_as_model (run);
  run.list = run.list(1);
  got = same_as_model (run);
  expect_equal (got.mem.uva.uva(4), 0);
  expect_equal (got.a, 0);
end

function test_gain_is_the_third_column_also_with_two_loads ()
  run = bare_run (0);
  run.list{1}.r = fresh ([9 1 0.5 100]);
  run.list{1}.tft = fresh ([0 0.25; 8 0; 2 0]);
  call (run);
  fmod = 8 * 1 + 2 * 0.5;
  expect_equal (run.mem.uva.uva(4), fmod);
  expect_equal (run.a, -7 * (fmod * 0.5));
end

function test_first_column_of_r_is_not_read ()
  run = bare_run ([8 0]);
  run.list{1}.r(1) = NaN;
  call (run);
  expect_equal (run.u, -2);
end

function test_save_times_need_exact_equality ()
  run = bare_run ([1 1 1 1]);
  times = (0:3)' * 0.25;
  run.out.data = fresh ([times(2) * (1 + eps); times(3); times(4) * (1 - eps)]);
  run.out.def = -ones (1, 3);
  call (run);
  expect_equal (run.out.def([1 3]), [-1 -1]);
  if run.out.def(2) == -1, error ('the exact time was not saved'); end
end

function test_start_state_is_never_saved ()
  run = bare_run ([1 1]);
  call (run);
  expect_equal (run.out.def(1), -1);
end

function test_save_cursor_goes_forward_only ()
  run = bare_run ([1 1 1 1]);
  run.out.data = fresh ([0.5; 0.25; 0.75; 0.75]);
  run.out.def = -ones (1, 4);
  call (run);
  expect_equal (run.out.def([2 4]), [-1 -1]);
  expect_equal (run.out.def([1 3]) ~= -1, [true true]);
  same_as_model (run);
end

function test_save_times_are_bounded_by_the_output_columns ()
  run = bare_run ([1 1 1 1]);
  run.out.data = fresh ([0.25; 0.5; 0.75]);
  run.out.def = -ones (1, 2);
  call (run);
  expect_equal (run.out.def ~= -1, [true true]);
end

function test_output_columns_are_counted_in_modes_and_strided_in_rows ()
  % Two modes, three rows of output: 6 values would be 3 columns of modes, only 2 columns of rows are there.
  run = small_run ();
  run.list{1}.r = fresh (run.list{1}.r(1:2, :));
  run.list(2:3) = {typed(1, diag ([4 5 0])), typed(3, diag ([0.3 0 0]))};
  run.list = fresh (run.list);
  times = run.list{1}.tft(1, 2:4);
  run.out = fresh (struct ('data', times(:), 'def', zeros (3, 2)));
  got = same_as_model (run);
  expect_equal (got.out.def(3, :), [-0.2 -0.2]);
end

function test_missing_output_fields ()
  run = small_run ();
  times = run.out.data;
  for out = {struct('x', 1), struct('data', times), struct('def', zeros (3, 6))}
    run.out = out{1};
    same_as_model (run);
  end
end

function test_loads_are_copied_into_the_force_store ()
  run = bare_run ([8 99 5]);
  run.model.FNL = -ones (4, 1);
  run.list{1}.iopt = int32 (2) * ones (1, 1, 'int32');
  call (run);
  expect_equal (run.model.FNL, [-1; -1; 99; -1]);
end

function test_load_copy_needs_a_force_store ()
  run = bare_run ([8 99 5]);
  run.list{1}.iopt = int32 (2) * ones (1, 1, 'int32');
  same_as_model (run);
end

function test_snapshot_is_the_force_store_at_the_start_of_the_step ()
  run = bare_run ([8 99 5]);
  run.model.FNL = -ones (2, 1);
  run.list{1}.iopt = int32 (1) * ones (1, 1, 'int32');
  run.mem.uva.FNL = zeros (2, 1);
  call (run);
  expect_equal (run.mem.uva.FNL, [-1; 8]);
  expect_equal (run.model.FNL, [-1; 99]);
end

function test_snapshot_length_is_the_shorter_of_both ()
  for rows = [1 3]
    run = bare_run ([8 99 5]);
    run.model.FNL = [3; 4];
    run.mem.uva.FNL = -ones (rows, 1);
    got = same_as_model (fresh (run));
    expect_equal (got.mem.uva.FNL(1), 3);
  end
  expect_equal (got.mem.uva.FNL, [3; 4; -1]);
end

% Four time points, the force store follows the load.
function run = force_output_run ()
  run = bare_run ([8 99 5 6]);
  run.model.FNL = zeros (1, 1);
  run.list{1}.iopt = zeros (1, 1, 'int32');
  run.mem.uva.FNL = zeros (1, 1);
  times = (1:3)' * 0.25;
  run.out = struct ('data', times, 'def', zeros (1, 3), 'FNL', struct ('data', times, 'def', -ones (1, 3)));
  run = fresh (run);
end

function test_force_outputs ()
  run = force_output_run ();
  got = same_as_model (run);
  expect_equal (got.out.FNL.def, [8 99 5]);
end

function test_force_outputs_compare_with_the_output_times_at_their_own_cursor ()
  run = force_output_run ();
  run.out.FNL.data = fresh ([0.3; 0.6; 0.9]);
  got = same_as_model (run);
  % The force cursor stands at 0, 1, 2 for t = 0.25, 0.5, 0.75, where the output times are equal to t.
  expect_equal (got.out.FNL.def, [8 99 5]);
  run.out.data = fresh ([0.5; 0.6; 0.75]);
  got = same_as_model (run);
  expect_equal (got.out.FNL.def, [-1 -1 5]);
end

function test_force_outputs_beyond_the_output_times_are_not_used ()
  run = force_output_run ();
  run.out.data = fresh (0.25 * ones (1, 1));
  run.out.def = zeros (1, 1);
  got = same_as_model (run);
  expect_equal (got.out.FNL.def, [8 -1 -1]);
end

function test_integrator_data_as_structures ()
  run = small_run ();
  whole = same_as_model (run);
  r = run.list{1}.r;
  tft = run.list{1}.tft;
  run.list{1}.r = struct ('pr', r(:), 'dims', size (r));
  run.list{1}.tft = struct ('pr', tft(:), 'dims', size (tft));
  run = fresh (run);
  call (run);
  expect_equal (run.u, whole.u);
  expect_equal (run.out.def, whole.out.def);
end

function test_registered_integrator_restarts_at_every_call ()
  run = small_run ();
  [h, indices] = registered (run.list);
  first = fresh (run);
  quarn ('chandlediagnewmark', h, first.model, first.u, first.v, first.a, first.opt, first.mem, first.out);
  second = fresh (run);
  quarn ('chandlediagnewmark', h, second.model, second.u, second.v, second.a, second.opt, second.mem, second.out);
  expect_equal (second, first);
  data = quarn ('chandleget', indices(1)).data;
  expect_equal (data(6), run.list{1}.tft(1, 6));
  expect_equal (run.list{1}.data(6), 0);
end

function test_second_integrator_in_the_list_adds_nothing ()
  run = small_run ();
  alone = same_as_model (run);
  run.list{4} = bare_run ([1 2]).list{1};
  call (run);
  expect_equal (run.u, alone.u);
end

function test_rayleigh_pair_reaches_the_handles ()
  run = small_run ();
  run.list{4} = typed (2, diag ([1 2 3]));
  run.opt = [0.5 0.25];
  with = same_as_model (run);
  run.opt = struct ('Rayleigh', [0 0]);
  without = same_as_model (run);
  expect_equal (any (with.u ~= without.u), true);
end
