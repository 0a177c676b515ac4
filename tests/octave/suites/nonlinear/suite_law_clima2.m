% Clima2: two Dahl branches and a direct force, scaled by a table over a third observed value.
function tests = suite_law_clima2 ()
  tests = localfunctions ();
end

% h 0.5, k 3, e 1, mu 0.5, offset 0.25 unless said. The table follows the seven parameters, then the search record.
% Over 0..2 in the default table g0 goes from 10 to 30 and g1 from 4 to 8.
function e = element (parameters, page, pages, table, columns)
  if nargin < 1, parameters = [0.5 3 1 0.5 0.25]; end
  if nargin < 2, page = 5; end
  if nargin < 3, pages = 2; end
  if nargin < 4, table = [0 2 10 30 4 8]; end
  if nargin < 5, columns = 2; end
  knots = numel (table) / (1 + columns);
  count = numel (table);
  places = [7, 7 + count, knots, columns];
  e = state_element ('Clima2', [parameters(:); table(:); 0; 0; 0], [-1 0 0 0 0 places], page, pages);
end

function test_three_forces_and_two_states_by_hand ()
  [e, r] = evaluate_law (element (), [0.1; 0.2; 1; 2; -3], [0.5; -0.25; 9; 9; 9]);
  g0 = 20;
  g1 = 6;
  limit = 0.5 * g0;
  f1 = 2 + 0.5 * 0.5 * g1 * (1 - 2 / limit) - 3 * 0.1;
  f2 = -3 - 0.25 * 0.5 * g1 * (1 - 3 / limit) - 3 * 0.2;
  f3 = g0 - 3 * 1 - 0.25;
  expect_equal (e.snl, [f1; f2; f3; 0; 0], 1e-15);
  expect_equal (r, e.snl);
  expect_equal (e.unl(:), [0.1; 0.2; 1; f1; f2; zeros(5, 1)], 1e-15);
end

function test_state_keeps_the_force_with_the_linear_term_in_it ()
  e = element ();
  e.iopt(2:5) = int32 ([3 3 2 1]);
  [h, index] = registered ({e});
  cleanup = onCleanup (@() quarn ('chandleclear', index));
  u = zeros (5, 1);
  v = zeros (5, 1);
  r = zeros (5, 1);
  a = zeros (5, 1);
  u(1) = 0.1;
  for n = 1:3, quarn ('residual', r, h, u, v, a, zeros (1, 2)); end
  expect_equal (u(4), -3 * 3 * 0.1, 1e-15);  % at rest the linear term is taken off once an evaluation
end

function test_exponent_shapes_the_growth ()
  e = evaluate_law (element ([0.5 0 1.7 0.5 0]), [0; 0; 1; 2; -3], [0.5; -0.25; 0; 0; 0]);
  expect_equal (e.snl(1:2), [2 + 0.5 * 0.5 * 6 * 0.8 ^ 1.7; -3 - 0.25 * 0.5 * 6 * 0.7 ^ 1.7], 1e-15);
end

function test_branches_are_clamped_before_the_linear_term ()
  e = evaluate_law (element (), [0.1; 0.2; 1; 2; -3], [100; -100; 0; 0; 0]);
  expect_equal (e.snl(1:2), [10 - 3 * 0.1; -10 - 3 * 0.2]);
end

function test_nothing_grows_beyond_the_limit ()
  % The power of a negative z with this exponent is not a number.
  e = evaluate_law (element ([0.5 0 0.5 0.5 0]), [0; 0; 1; 20; -20], [0.5; -0.5; 0; 0; 0]);
  expect_equal (e.snl(1:2), [10; -10]);
end

function test_velocity_zero_counts_as_negative_in_both_branches ()
  % z = 1 + 1 makes the power overflow, and 0 * Inf shows that the branch was taken; z = 1 - 1 leaves the state alone.
  e = evaluate_law (element ([0.5 0 2000 0.5 0]), [0; 0; 1; 10; 10], zeros (5, 1));
  expect_equal (e.snl(1:2), [NaN; NaN]);
  e = evaluate_law (element ([0.5 0 2000 0.5 0]), [0; 0; 1; -10; -10], zeros (5, 1));
  expect_equal (e.snl(1:2), [-10; -10]);
end

function test_state_at_the_limit_stays_under_positive_velocity ()
  e = evaluate_law (element ([0.5 0 1 0.5 0]), [0; 0; 1; 10; 10], [5; 5; 0; 0; 0]);
  expect_equal (e.snl(1:2), [10; 10]);
end

function test_table_value_zero_clamps_both_branches_to_zero ()
  e = element ([0.5 3 1 0.5 0.25], 5, 2, [0 2 0 0 4 8]);
  e = evaluate_law (e, [0.1; 0.2; 1; 2; -3], [0.5; 0.5; 0; 0; 0]);
  expect_equal (e.snl(1:3), [-3 * 0.1; -3 * 0.2; -3 - 0.25]);
end

function test_second_ratio_divides_by_mu_first ()
  % F / mu overflows where mu * g0 is an ordinary number.
  e = element ([0.5 0 1 1e-300 0], 5, 2, [0 2 1e300 1e300 4 4]);
  e = evaluate_law (e, [0; 0; 1; 1e10; 1e10], [0; 0; 0; 0; 0]);
  expect_equal (e.snl(1:2), [1; NaN]);
end

function test_table_is_extrapolated_and_its_record_kept ()
  e = evaluate_law (element (), [0; 0; 3; 0; 0], zeros (5, 1));
  expect_equal (e.snl(3), 40 - 9 - 0.25);
  expect_equal (e.opt(14:16), [1; 3; 1.5]);
end

function test_last_group_leaves_its_forces_and_the_first_gives_the_displacements ()
  u = [0.1; 0.2; 1; 2; -3; 55; 66; 2; 4; -5];
  v = [0.5; -0.25; 0; 0; 0; 0.125; 0.75; 0; 0; 0];
  e = evaluate_law (element ([0.5 3 1 0.5 0.25], 10), u, v);
  f1 = 4 + 0.125 * 0.5 * 8 * (1 - 4 / 15) - 3 * 0.1;
  f2 = -5 + 0.75 * 0.5 * 8 * (1 + 5 / 15) - 3 * 0.2;
  f3 = 30 - 3 * 1 - 0.25;
  expect_equal (e.snl, [f1; f2; f3; zeros(7, 1)], 1e-15);
  expect_equal (reshape (e.unl(9:10), 2, 1), [f1; f2], 1e-15);
  single = evaluate_law (element (), u(1:5), v(1:5));
  expect_equal (e.unl(4:5), single.unl(4:5));
end

function test_page_of_three_values_reads_its_states_from_the_next_page ()
  e = element ([0.5 3 1 0.5 0.25], 3);
  e.unl(4:5) = [2 -3];
  e = evaluate_law (e, [0.1; 0.2; 1], [0.5; -0.25; 0]);
  whole = evaluate_law (element (), [0.1; 0.2; 1; 2; -3], [0.5; -0.25; 0; 0; 0]);
  expect_equal (e.snl, whole.snl(1:3));
  expect_equal (e.unl(4:5), reshape (whole.unl(4:5), 1, 2));
end

function test_one_value_column_means_no_growth ()
  e = element ([0.5 3 1 0.5 0.25], 5, 2, [0 2 10 30], 1);
  e = evaluate_law (e, [0.1; 0.2; 1; 2; -3], [0.5; -0.25; 0; 0; 0]);
  expect_equal (e.snl(1:3), [2 - 3 * 0.1; -3 - 3 * 0.2; 20 - 3 - 0.25]);
end

function test_further_value_columns_are_not_used ()
  u = [0.1; 0.2; 1; 2; -3];
  v = [0.5; -0.25; 0; 0; 0];
  e = evaluate_law (element ([0.5 3 1 0.5 0.25], 5, 2, [0 2 10 30 4 8 70 80], 3), u, v);
  two = evaluate_law (element (), u, v);
  expect_equal (e.snl, two.snl);
  expect_equal (e.opt(16:18), two.opt(14:16));
  many = evaluate_law (element ([0.5 3 1 0.5 0.25], 5, 2, [0 2 10 30 4 8 1e3*rand(1, 1000)], 502), u, v);
  expect_equal (many.snl, two.snl);
end

function test_without_value_columns_the_segment_number_is_the_scale ()
  e = element ([0.5 3 1 0.5 0.25], 5, 2, [0 2 3 5], 0);
  e = evaluate_law (e, [0.1; 0.2; 2.5; 0.1; -3], [0.5; -0.25; 0; 0; 0]);
  expect_equal (e.snl(1:3), [0.1 - 3 * 0.1; -1 - 3 * 0.2; 2 - 3 * 2.5 - 0.25]);
end

function test_forces_replace_the_displacements_without_snl ()
  e = rmfield (element ([0.5 3 1 0.5 0.25], 10), 'snl');
  u = [0.1 0.3; 0.2 0.1; 1 0.5; 2 2; -3 1; 5 5; 6 6; 2 1; 4 3; -5 1];
  expect_law_like_model (e, u, 0.25 * u);
end

function test_zero_increment_becomes_the_first_step_time_and_stays ()
  e = element ([0 3 1 0.5 0.25]);
  [integrator, mem, out] = newmark_setup (1, 0, 1, zeros (1, 0), zeros (0, 4), 0.125, 0.25, 0.5, 2, 5);
  run_newmark ({integrator, e}, zeros (5, 1), zeros (5, 1), zeros (5, 1), mem, out);
  expect_equal (e.opt(3), 0.125);
end

function test_pages_are_needed_at_selection ()
  e = element ([0.5 3 1 0.5 0.25], 5, 1);
  expect_error (@() evaluate_law (e, zeros (5, 1), zeros (5, 1)), 'KORV:quarn:empty', 'Incorrect unl');
end

function test_without_observation_the_forces_stand_as_given ()
  e = rmfield (element (), {'unl', 'vnl'});
  e.snl(:) = (1:5)';
  [e, r] = evaluate_law (e, zeros (5, 1), zeros (5, 1));
  expect_equal (r, (1:5)');
end

function test_short_arrays_are_refused ()
  u = zeros (5, 1);
  e = element ();
  e.opt = e.opt(1:6);
  expect_error (@() evaluate_law (e, u, u), '', '~^quarn residual : element 1 : "opt" of law "Clima2" must hold 7 values or more, got 6$');
  e = element ();
  e.opt = e.opt(1:15);
  expect_error (@() evaluate_law (e, u, u), '', '~^quarn residual : element 1 : the search record at opt\(14\) ends beyond opt of 15 values');
  e = element ();
  e.iopt = e.iopt(1:8);
  expect_error (@() evaluate_law (e, u, u), '', '~iopt');
  e = element ();
  e.opt(8:9) = [2 0];
  expect_error (@() evaluate_law (e, u, u), '', '~the abscissae of a table must ascend');
  expect_error (@() evaluate_law (rmfield (element (), 'vnl'), u, u), '', '~"vnl" of law "Clima2" must hold 2 values or more, got 0');
  e = rmfield (element (), 'b');
  e.snl = zeros (2, 1);
  expect_error (@() evaluate_law (e, u, u), '', '~"snl" of law "Clima2" must hold 3 values or more, got 2');
  e = element ([0.5 3 1 0.5 0.25], 1, 3);
  e = rmfield (e, 'b');
  e.snl = zeros (3, 1);
  expect_error (@() evaluate_law (e, u(1), u(1)), '', '~"unl" of law "Clima2" must hold 5 values or more, got 3');
end
