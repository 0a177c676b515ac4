% Stick-slip: pairs of (displacement, slider position).
function tests = suite_law_stick_slip ()
  tests = localfunctions ();
end

% Parameters are [h kp k Fs kg]: increment, parallel, contact, slip force, slider to ground.
function e = element (parameters, page, pages)
  if nargin < 1, parameters = [0.5 3 10 2.5 0]; end
  if nargin < 2, page = 2; end
  if nargin < 3, pages = 1; end
  e = state_element ('sts', parameters, [-1 0 0 0 0], page, pages);
end

function test_sticking_element_is_a_spring_to_the_slider ()
  [e, r] = evaluate_law (element (), [0.2; 0.05], [7; 0]);
  expect_equal (e.unl, [0.2; 0.05]);
  expect_equal (e.snl, [(0.2 - 0.05) * 10 + 3 * 0.2; 0]);
  expect_equal (r, e.snl);
end

function test_trial_of_2_9_sticks_at_a_slip_force_of_2_5 ()
  e = evaluate_law (element (), [0.29; 0], [0; 0]);
  expect_equal (e.unl(2), 0);
  e = evaluate_law (element (), [-0.29; 0], [0; 0]);
  expect_equal (e.unl(2), 0);
end

function test_trial_of_3_slips_at_a_slip_force_of_2_5 ()
  e = evaluate_law (element (), [0.375; 0.0625], [0.25; 0]);  % trial -3.125
  expect_equal (e.unl(2), ((0.375 + 0.25 * 0.5) * 10 + 2.5) / 10);
end

function test_equal_whole_forces_slip ()
  e = evaluate_law (element ([0.5 3 10 3 0]), [0.39; 0], [0; 0]);
  expect_equal (e.unl(2), (0.39 * 10 + 3) / 10);
end

function test_slip_takes_the_sign_of_the_trial ()
  e = evaluate_law (element (), [-0.5; 0], [0; 0]);  % trial +5
  expect_equal (e.unl(2), (-0.5 * 10 - 2.5) / 10);
end

function test_force_changes_sign_when_the_slider_slips ()
  e = evaluate_law (element ([0.5 0 10 2.5 0]), [0.5; 0], [0; 0]);
  expect_equal (e.snl(1), -2.5);  % the spring had pulled with +5
end

function test_zero_trial_slips_downward_at_a_slip_force_of_zero ()
  e = evaluate_law (element ([0.5 3 10 0 0]), [0.5; 0.5], [0.5; 0]);
  expect_equal (e.unl(2), ((0.5 + 0.25) * 10 - -0) / 10);
end

function test_spring_from_slider_to_ground_enters_trial_and_slip ()
  e = evaluate_law (element ([0.5 3 10 2.5 20]), [0.1; 0.2], [0.25; 0]);  % trial 1 + 4
  expect_equal (e.unl(2), ((0.1 + 0.25 * 0.5) * 10 - 2.5) / (10 + 20));
  expect_equal (e.snl(1), (0.1 - e.unl(2)) * 10 + 3 * 0.1);
end

function test_first_sticking_pair_ends_the_walk ()
  u = [0.5; 0; 0.1; 0; 0.5; 0];
  e = evaluate_law (element ([0.5 3 10 2.5 0], 6), u, zeros (6, 1));
  expect_equal (e.unl, [0.5; 0.75; 0.1; 0; 0.5; 0]);
end

function test_only_the_first_pair_gives_a_force ()
  e = element ([0.5 3 10 2.5 0], 4);
  e.snl(:) = [7; 8; 9; 6];
  e = evaluate_law (e, [0.5; 0; 0.5; 0], zeros (4, 1));
  expect_equal (e.unl, [0.5; 0.75; 0.5; 0.75]);
  expect_equal (e.snl, [-2.5 + 3 * 0.5; 8; 9; 6]);
end

function test_odd_page_takes_its_last_slider_from_the_next_page ()
  e = element ([0.5 3 10 2.5 0], 3, 2);
  e.unl(4) = 0.25;
  e = evaluate_law (e, [0.5; 0; 1], zeros (3, 1));
  expect_equal (e.unl(4), (1 * 10 + 2.5) / 10);
end

function test_trial_beyond_32_bits_sticks ()
  % It is truncated to -2^31, whose absolute value in 32 bits is -2^31 again and less than any slip force above it.
  for x = [1e12, -1e12, 2 ^ 31 / 10, -(2 ^ 31) / 10, NaN, Inf]
    e = evaluate_law (element ([0.5 3 10 2.5 0]), [x; 0], [0; 0]);
    expect_equal (e.unl(2), 0);
    expect_equal (e.snl(1), x * 10 + 3 * x);
  end
  x = -(2 ^ 31 - 1) / 10;
  e = evaluate_law (element ([0.5 3 10 2.5 0]), [x; 0], [0; 0]);
  expect_equal (e.unl(2), (x * 10 - 2.5) / 10);
  e = evaluate_law (element ([0.5 3 10 -2 ^ 31 0]), [1e12; 0], [0; 0]);
  expect_equal (e.unl(2), (1e12 * 10 - 2 ^ 31) / 10);
end

function test_force_replaces_the_first_displacement_without_snl ()
  e = rmfield (element ([0.5 3 10 2.5 0], 4), 'snl');
  e = evaluate_law (e, [0.5; 0; 0.5; 0], zeros (4, 1));
  expect_equal (e.unl, [-2.5 + 3 * 0.5; 0.75; 0.5; 0.75]);
end

function test_slider_goes_back_into_the_displacements ()
  e = element ();
  e.iopt = int32 ([-1 1 1 1 1])';
  [e, r, u] = evaluate_law (e, [0.5; 0], [0; 0]);
  expect_equal (u, [0.5; 0.75]);
end

function test_zero_increment_becomes_the_first_step_time_and_stays ()
  e = element ([0 0 10 2.5 0]);
  [integrator, mem, out] = newmark_setup (1, 0, 0, zeros (1, 0), zeros (0, 4), 0.25, 0.25, 0.5, 2, 2);
  run_newmark ({integrator, e}, [0; 0], [1; 0], [0; 0], mem, out);
  expect_equal (e.opt(3), 0.25);
end

function test_short_arrays_are_refused ()
  u = [0; 0];
  e = element ();
  e.opt = e.opt(1:6);
  expect_error (@() evaluate_law (e, u, u), '', '~^quarn residual : element 1 : "opt" of law "sts" must hold 7 values or more, got 6$');
  expect_error (@() evaluate_law (rmfield (element (), 'iopt'), u, u), '', '~"iopt" of law "sts" must hold 5 values or more, got 0');
  expect_error (@() evaluate_law (rmfield (element (), 'vnl'), u, u), '', '~"vnl" of law "sts" must hold 1 values or more, got 0');
  expect_error (@() evaluate_law (element ([0.5 3 10 2.5 0], 3), zeros (3, 1), zeros (3, 1)), '', ...
                '~"unl" of law "sts" must hold 4 values or more, got 3');
end

function test_first_pair_is_needed ()
  e = rmfield (element (), 'unl');
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), '', '~"unl" of law "sts" must hold 2 values or more, got 0');
end

function test_trial_of_zero_slips_by_the_slip_force_where_that_is_negative ()
  e = evaluate_law (element ([0.5 3 10 -1 0]), [0; 0], [0; 0]);
  expect_equal (e.unl(2), -1 / 10);
end

function test_stored_blocks_with_a_negative_skip_lose_what_lies_in_front ()
  e = element ([0.5 3 10 1e6 0], 6);
  e.iopt = int32 ([-1 2 -1 3 1]);
  [unused, r, u] = evaluate_law (e, (1:6)', zeros (6, 1));
  expect_equal (u, [1; 2; 3; 1; 2; 6]);
  e.iopt = int32 ([-1 2 -1 3 2]);
  [unused, r, u] = evaluate_law (e, (1:6)', zeros (6, 1));
  expect_equal (u, [1; 2; 2; 3; 4; 6]);
end
