% One run of the diagonal Newmark integrator: the step, its loads and what it is given.
function tests = suite_newmark ()
  tests = localfunctions ();
end

function call (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function test_one_step_by_hand ()
  run = one_mode_run ([8 99]);
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
  run = one_mode_run (8);
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
  run = one_mode_run (8);
  run.mem.uva.uva = zeros (3, 1);
  expect_error (@() call (run), 'KORV:quarn:Invalid', 'wrong uva size');
end

function test_step_uses_the_loads_of_the_previous_column ()
  run = one_mode_run ([3 5 7]);
  run.list{1}.data = fresh ([0.25 0 0 0 1 0]);
  call (run);
  expect_equal (run.mem.uva.uva(4), 5);
  expect_equal (run.a, -2.5);
end

function test_without_load_inputs_only_the_handles_act ()
  run = one_mode_run (0);
  run.list = fresh ({struct('type', 2000, 'r', [9 0.5], 'tft', [0 0.25 0.5], 'data', [0.25 0.125 0.5 3 7 0]), typed(1, 3)});
  run.out = fresh (struct ('data', [0; 0.25; 0.5], 'def', zeros (1, 3)));
  same_as_model (run);
  run.list = run.list(1);
  got = same_as_model (run);
  expect_equal (got.mem.uva.uva(4), 0);
  expect_equal (got.a, 0);
end

function test_gain_is_the_third_column_also_with_two_loads ()
  run = one_mode_run (0);
  run.list{1}.r = fresh ([9 1 0.5 100]);
  run.list{1}.tft = fresh ([0 0.25; 8 0; 2 0]);
  call (run);
  fmod = 8 * 1 + 2 * 0.5;
  expect_equal (run.mem.uva.uva(4), fmod);
  expect_equal (run.a, -7 * (fmod * 0.5));
end

function test_first_column_of_r_is_not_read ()
  run = one_mode_run ([8 0]);
  run.list{1}.r(1) = NaN;
  call (run);
  expect_equal (run.u, -2);
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
  run.list{4} = one_mode_run ([1 2]).list{1};
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
