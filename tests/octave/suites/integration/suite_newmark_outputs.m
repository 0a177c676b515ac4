% Outputs of the integrator: displacements and forces at save times, the cursors, the snapshot of the force store.
function tests = suite_newmark_outputs ()
  tests = localfunctions ();
end

function call (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function test_save_times_need_exact_equality ()
  run = one_mode_run ([1 1 1 1]);
  times = (0:3)' * 0.25;
  run.out.data = fresh ([times(2) * (1 + eps); times(3); times(4) * (1 - eps)]);
  run.out.def = -ones (1, 3);
  call (run);
  expect_equal (run.out.def([1 3]), [-1 -1]);
  if run.out.def(2) == -1, error ('the exact time was not saved'); end
end

function test_start_state_is_never_saved ()
  run = one_mode_run ([1 1]);
  call (run);
  expect_equal (run.out.def(1), -1);
end

function test_save_cursor_goes_forward_only ()
  run = one_mode_run ([1 1 1 1]);
  run.out.data = fresh ([0.5; 0.25; 0.75; 0.75]);
  run.out.def = -ones (1, 4);
  call (run);
  expect_equal (run.out.def([2 4]), [-1 -1]);
  expect_equal (run.out.def([1 3]) ~= -1, [true true]);
  same_as_model (run);
end

function test_save_times_are_bounded_by_the_output_columns ()
  run = one_mode_run ([1 1 1 1]);
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

function test_outputs_of_fewer_rows_than_modes_are_counted_in_modes ()
  % 2 rows and 6 columns hold 4 times 3 modes: the fifth and sixth save times are not served.
  run = small_run ();
  run.out.def = -9 * ones (2, 6);
  run.out.data = fresh ([0; run.list{1}.tft(1, 2:6)'] + zeros (6, 1));
  got = same_as_model (run);
  expect_equal (got.out.def(:, [1 5 6]), -9 * ones (2, 3));
  expect_equal (any (got.out.def(:, 2:4) == -9), [false false false]);
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
  run = one_mode_run ([8 99 5]);
  run.model.FNL = -ones (4, 1);
  run.list{1}.iopt = int32 (2) * ones (1, 1, 'int32');
  call (run);
  expect_equal (run.model.FNL, [-1; -1; 99; -1]);
end

function test_load_copy_needs_a_force_store ()
  run = one_mode_run ([8 99 5]);
  run.list{1}.iopt = int32 (2) * ones (1, 1, 'int32');
  same_as_model (run);
end

function test_snapshot_is_the_force_store_at_the_start_of_the_step ()
  run = one_mode_run ([8 99 5]);
  run.model.FNL = -ones (2, 1);
  run.list{1}.iopt = int32 (1) * ones (1, 1, 'int32');
  run.mem.uva.FNL = zeros (2, 1);
  call (run);
  expect_equal (run.mem.uva.FNL, [-1; 8]);
  expect_equal (run.model.FNL, [-1; 99]);
end

function test_snapshot_length_is_the_shorter_of_both ()
  for rows = [1 3]
    run = one_mode_run ([8 99 5]);
    run.model.FNL = [3; 4];
    run.mem.uva.FNL = -ones (rows, 1);
    got = same_as_model (fresh (run));
    expect_equal (got.mem.uva.FNL(1), 3);
  end
  expect_equal (got.mem.uva.FNL, [3; 4; -1]);
end

function test_snapshot_length_counts_rows ()
  run = one_mode_run ([8 99 5]);
  run.model.FNL = [3 4];
  run.mem.uva.FNL = -ones (2, 1);
  got = same_as_model (fresh (run));
  expect_equal (got.mem.uva.FNL, [3; -1]);
  run.model.FNL = [3; 4];
  run.mem.uva.FNL = -ones (1, 2);
  got = same_as_model (fresh (run));
  expect_equal (got.mem.uva.FNL, [3 -1]);
end

% Four time points, the force store follows the load.
function run = force_output_run ()
  run = one_mode_run ([8 99 5 6]);
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

function test_force_outputs_that_end_inside_a_column_leave_it_out ()
  run = force_output_run ();
  run.model.FNL = zeros (2, 1);
  run.mem.uva.FNL = zeros (2, 1);
  run.out.FNL.def = -ones (5, 1);
  call (run);
  expect_equal (run.out.FNL.def, [8; 0; 99; 0; -1]);
end

function test_force_outputs_compare_with_the_output_times_at_their_own_cursor ()
  run = force_output_run ();
  run.out.FNL.data = fresh ([0.3; 0.6; 0.9]);
  got = same_as_model (run);
  % The force cursor is at 0, 1, 2 for t = 0.25, 0.5, 0.75, where the output times are equal to t.
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

function test_a_snapshot_without_columns_counts_its_rows ()
  run = one_mode_run ([1 2 3 4]);
  run.list{1}.iopt = int32 (0);
  run.model.FNL = zeros (3, 1) + 9;
  run.mem.uva.FNL = zeros (2, 0);
  run.out.FNL = struct ('data', run.out.data, 'def', zeros (2, 4));
  call (run);
  expect_equal (run.out.FNL.def, [0 1 2 3; 0 9 9 9]);
end

function test_force_outputs_of_linear_runs_at_times_in_any_order ()
  % Nothing writes into the store, but when it is saved and when its cursor goes on depends on each step.
  orders = {1:5, [4 2 3 1 5], [5 1 2 3 4], [1 3 2 5 4], [5 5 3 4 2], [2 2 2 4 4]};
  tried = 0;
  for save = orders
    for store = orders
      tried = tried + 1;
      if passed_over (tried, 5), continue, end
      run = small_run ();
      run.list{3} = typed (3, diag ([0.3 0.2 0.1]));
      times = run.list{1}.tft(1, 2:end)';
      run.model.FNL = [7; 8];
      run.mem.uva.FNL = zeros (2, 1);
      run.out.FNL = struct ('data', times(store{1}), 'def', zeros (2, 5));
      run.out.data = times(save{1});
      run.out.def = -ones (3, 5);
      same_as_model (fresh (run));
    end
  end
end

function test_rows_behind_the_modes_are_saved_as_they_are ()
  % Where u has further columns the output may have rows for them, which no step changes: with forces of handles, and with none but the loads.
  for handles = [2 0]
    run = small_run ();
    run.list = run.list(1:1 + handles);
    run.u = [run.u, [4; 5; 6]];
    run.v = [run.v, zeros(3, 1)];
    run.a = [run.a, zeros(3, 1)];
    run.mem.uva.uva = zeros (24, 1);
    run.out.def = -ones (6, 6);
    run = fresh (run);
    call (run);
    expect_equal (run.out.def(4:6, 2:6), [4; 5; 6] * ones (1, 5));
    expect_equal (run.u(:, 2), [4; 5; 6]);
    expect_equal (any (run.out.def(1:3, 2:6) == -1), false (1, 5));
  end
end

function test_diagonal_forces_on_rows_behind_the_modes ()
  % They gather from step to step: nothing sets them back.
  run = one_mode_run ([1 2 3 4]);
  run.u = [1; 0.5];
  run.v = [2; 0.25];
  run.a = [4; 0];
  run.list = [run.list, {typed(1, diag ([3 5])), typed(3, diag ([2 4])), page_element('Power', [2; 3], 1)}];
  run.list{4}.c.dims = [1 2];
  run.list{4}.b.dims = [1 2];
  run.mem.uva.uva = zeros (5, 1);
  got = same_as_model (fresh (run));
  expect_equal (got.mem.uva.uva(5) ~= 0, true);
end

function refuse_late (t)
  if t > 0.5, error ('bearing:dry', 'no oil'); end
end

function f = dry_later (x, t)
  refuse_late (t);
  f = x;
end

function test_law_that_ends_a_run_leaves_the_copies_of_its_step ()
  element = page_element ('User', [0; 0.25], 1);
  element.iopt = int32 ([-1 0 1 0 0]);
  element.call = @(x, v, s, t) dry_later (x, t);
  run = one_mode_run ([1 2 3 4 5]);
  run.list{2} = element;
  before = fresh (run);
  before.list{1}.tft = fresh (before.list{1}.tft(:, 1:3));
  call (before);
  expect_error (@() call (run), 'bearing:dry', '~no oil');
  expect_equal (run.mem.uva.uva(1:3), [before.u; before.v; before.a]);
end
