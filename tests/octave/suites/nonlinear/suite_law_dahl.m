% Dahl friction: pairs of (displacement, force state).
function tests = suite_law_dahl ()
  tests = localfunctions ();
end

% h 0.5 s, stiffness 10, exponent 1, limit 2*4 = 8 unless said; parameters are [h k e a b].
function e = element (parameters, page, pages)
  if nargin < 1, parameters = [0.5 10 1 2 4]; end
  if nargin < 2, page = 2; end
  if nargin < 3, pages = 2; end
  e = state_element ('DahlC', parameters, [-1 0 0 0 0], page, pages);
end

function test_force_grows_by_the_formula_in_both_directions ()
  e = evaluate_law (element (), [0.1; 2], [0.25; 0]);
  expect_equal (e.snl(1), 2 + 0.25 * 0.5 * 10 * (1 - 2 / 8));
  e = evaluate_law (element (), [0.1; 2], [-0.25; 0]);
  expect_equal (e.snl(1), 2 - 0.25 * 0.5 * 10 * (1 + 2 / 8));
end

function test_force_is_state_force_slot_and_residual ()
  [e, r] = evaluate_law (element (), [0.1; 2], [0.25; 0]);
  f = 2.9375;
  expect_equal (e.unl(:), [0.1; f; 0; 0]);
  expect_equal (e.snl, [f; 0]);
  expect_equal (r, [f; 0]);
end

function test_exponent_shapes_the_growth ()
  e = evaluate_law (element ([0.5 10 1.7 2 4]), [0; 2], [0.25; 0]);
  expect_equal (e.snl(1), 2 + 0.25 * 0.5 * 10 * 0.75 ^ 1.7);
  e = evaluate_law (element ([0.5 10 0 2 4]), [0; 2], [0.25; 0]);
  expect_equal (e.snl(1), 2 + 0.25 * 0.5 * 10);
end

function test_force_is_clamped_on_both_sides ()
  e = evaluate_law (element (), [0; 2], [100; 0]);
  expect_equal (e.snl(1), 8);
  e = evaluate_law (element (), [0; 2], [-100; 0]);
  expect_equal (e.snl(1), -8);
end

function test_at_the_limit_only_reversed_motion_changes_the_force ()
  e = evaluate_law (element (), [0; 8], [0.25; 0]);
  expect_equal (e.snl(1), 8);
  e = evaluate_law (element (), [0; 8], [-0.25; 0]);
  expect_equal (e.snl(1), 8 - 0.25 * 0.5 * 10 * 2);
end

function test_beyond_the_limit_nothing_grows_before_the_clamp ()
  % The power of a negative z with this exponent is not a number.
  e = evaluate_law (element ([0.5 10 0.5 2 4]), [0; 20], [0.25; 0]);
  expect_equal (e.snl(1), 8);
  e = evaluate_law (element ([0.5 10 0.5 2 4]), [0; -20], [-0.25; 0]);
  expect_equal (e.snl(1), -8);
end

function test_negative_limit_ends_at_its_opposite ()
  % The minimum with the limit comes first, the maximum with its opposite has the last word.
  e = evaluate_law (element ([0.5 10 2 -2 4]), [0; 0.5], [0.25; 0]);
  expect_equal (e.snl(1), 8);
end

function test_velocity_zero_counts_as_negative ()
  % With z = 1 + 1 the power overflows, and 0 * Inf shows that the branch was taken; z = 1 - 1 would have left the force alone.
  e = evaluate_law (element ([0.5 10 2000 2 4]), [0; 8], [0; 0]);
  expect_equal (e.snl(1), NaN);
  e = evaluate_law (element ([0.5 10 2000 2 4]), [0; -8], [0; 0]);
  expect_equal (e.snl(1), -8);
end

function test_velocity_nan_counts_as_negative ()
  e = evaluate_law (element (), [0; -8], [NaN; 0]);
  expect_equal (e.snl(1), -8);
  e = evaluate_law (element (), [0; 8], [NaN; 0]);
  expect_equal (e.snl(1), NaN);
end

function test_nan_force_passes_the_clamp ()
  e = evaluate_law (element (), [0; NaN], [1; 0]);
  expect_equal (e.snl(1), NaN);
  expect_equal (e.unl(2), NaN);
end

function test_pairs_are_independent ()
  e = evaluate_law (element ([0.5 10 1 2 4], 6), [0; 2; 0; -3; 0; 8], [0.25; 0; 0.1; 0; -0.1; 0]);
  expect_equal (e.snl, [2.9375; 0; -3 + 0.1 * 0.5 * 10 * (1 + 3 / 8); 0; 8 - 0.1 * 0.5 * 10 * 2; 0]);
  expect_equal (reshape (e.unl([2 4 6]), 3, 1), e.snl([1 3 5]));
end

function test_odd_page_takes_its_last_state_from_the_next_page ()
  e = element ([0.5 10 1 2 4], 3);
  e.unl(4) = 2;
  e = evaluate_law (e, [0; 0; 0], [0; 0; 0.25]);
  expect_equal (e.snl(3), 2.9375);
  expect_equal (e.unl(4), 2.9375);
end

function test_forces_replace_the_displacements_without_snl ()
  e = rmfield (element (), 'snl');
  [e, r] = evaluate_law (e, [0.1; 2], [0.25; 0]);
  expect_equal (e.unl(:), [2.9375; 2.9375; 0; 0]);
  expect_equal (r, [2.9375; 2.9375]);
end

function test_state_goes_back_into_the_displacements ()
  e = element ();
  e.iopt = int32 ([-1 1 1 1 1])';
  [e, r, u] = evaluate_law (e, [0.1; 2], [0.25; 0]);
  expect_equal (u, [0.1; 2.9375]);
end

function test_constant_velocity_follows_the_closed_form ()
  % F_n = Fc (1 - (1 - k v h / Fc)^n)
  e = element ([1e-3 1e5 1 10 100]);
  e.iopt = int32 ([-1 1 1 1 1])';
  [h, index] = registered ({e});
  cleanup = onCleanup (@() quarn ('chandleclear', index));
  u = zeros (2, 1);
  v = zeros (2, 1);
  a = zeros (2, 1);
  r = zeros (2, 1);
  v(1) = 0.25;
  for n = 1:50
    u(1) = u(1) + v(1) * 1e-3;
    quarn ('residual', r, h, u, v, a, zeros (1, 2));
    expect_equal (u(2), 1000 * (1 - (1 - 1e5 * 0.25 * 1e-3 / 1000) ^ n), 1e-13);
  end
end

function test_zero_increment_becomes_the_first_step_time_and_stays ()
  e = element ([0 10 1 2 4]);
  e.iopt = int32 ([-1 1 1 1 1])';
  e = fresh (e);
  [integrator, mem, out] = newmark_setup (1, 0, 0, zeros (1, 0), zeros (0, 3), 0.125, 0.25, 0.5, 2, 2);
  run_newmark ({integrator, e}, [0; 0], [1; 0], [0; 0], mem, out);
  expect_equal (e.opt(3), 0.125);
  e = fresh (e);
  run_newmark ({integrator, e}, [0; 0], [1; 0], [0; 0], mem, out);
  expect_equal (e.opt(3), 0.125);
end

function test_negative_increment_is_one_like_any_other ()
  e = evaluate_law (element ([-0.5 10 1 2 4]), [0.1; 2], [0.25; 0]);
  expect_equal (e.snl(1), 2 - 0.25 * 0.5 * 10 * (1 - 2 / 8));
  expect_equal (e.opt(3), -0.5);
end

function test_velocity_times_increment_comes_before_the_stiffness ()
  e = evaluate_law (element ([0.1 0.3 0 2 4]), [0; 0], [0.7; 0]);
  expect_equal (e.snl(1), (0.7 * 0.1) * 0.3);
  expect_equal ((0.7 * 0.1) * 0.3 ~= (0.7 * 0.3) * 0.1, true);
end

function test_pages_are_needed_at_selection ()
  e = element ([0.5 10 1 2 4], 2, 1);
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), 'KORV:quarn:empty', 'Incorrect unl');
end

function test_without_observation_the_force_stands_as_given ()
  e = rmfield (element (), {'unl', 'vnl'});
  e.snl(:) = [3; 4];
  [e, r] = evaluate_law (e, [0.1; 2], [0.25; 0]);
  expect_equal (r, [3; 4]);
end

function test_short_arrays_are_refused ()
  u = [0; 0];
  e = element ();
  e.opt = e.opt(1:6);
  expect_error (@() evaluate_law (e, u, u), '', '~^quarn residual : element 1 : "opt" of law "DahlC" must hold 7 values or more, got 6$');
  expect_error (@() evaluate_law (rmfield (element (), 'iopt'), u, u), '', '~"iopt" of law "DahlC" must hold 5 values or more, got 0');
  expect_error (@() evaluate_law (rmfield (element (), 'vnl'), u, u), '', '~"vnl" of law "DahlC" must hold 1 values or more, got 0');
  e = element ([0.5 10 1 2 4], 4);
  e.snl = zeros (2, 1);
  e = rmfield (e, 'b');
  expect_error (@() evaluate_law (e, zeros (4, 1), zeros (4, 1)), '', '~"snl" of law "DahlC" must hold 3 values or more, got 2');
end

function test_two_integer_options_do_where_no_state_is_stored ()
  e = element ();
  e.iopt = int32 ([-1 0])';
  e = evaluate_law (e, [0.1; 2], [0.25; 0]);
  expect_equal (e.snl(1), 2.9375);
  e.iopt = int32 ([-1 1 1 1])';
  expect_error (@() evaluate_law (e, [0.1; 2], [0.25; 0]), '', '~"iopt" of law "DahlC" must hold 5 values or more, got 4');
end
