% Maxwell-type elements: observed value and internal states, committed copies two pages further on.
function tests = suite_law_maxwell ()
  tests = localfunctions ();
end

function w = weights ()
  w = struct ('Cu', [7 8 9], 'Dv', [10 11 12], 'B', [2 3], 'A', 4, 'E', [5 6]);
end

% One element with one state; committed values 0.1 and 0.2, committed velocity and rate 0.3 and 0.4.
function e = one_state (steps)
  e = maxwell_element (2, 1, 1, 0.5, steps, weights ());
  e.unl(5:6) = [0.1 0.2];
  e.vnl(5:6) = [0.3 0.4];
  e.unl(3) = 0.7;
end

function test_one_sub_step_by_hand ()
  [e, r] = evaluate_law (one_state (1), [1; 99], [2; 98]);
  x = 0.2 + 0.5 * 0.4;
  rate = 2 * 1 + 4 * x + 5 * 2;
  beyond = 3 * 1 + 5 * x + 6 * 2;  % the loop runs over q rates: its matrix entry is the first one of E
  force = 7 * 1 + 10 * 2 + (8 * x + 11 * rate) + (9 * 0.7 + 12 * beyond);
  expect_equal (e.snl, [force; 0], 1e-15);
  expect_equal (r, e.snl);
  expect_equal (e.unl(:), [1; x; 0.7; 0; 0.1; x]);
  expect_equal (e.vnl(:), [2; rate; beyond; 0; 0.3; rate], 1e-15);
end

function test_sub_steps_interpolate_the_inputs_and_commit_one_after_the_other ()
  e = evaluate_law (one_state (4), [1; 0], [2; 0]);
  x = 0.2;
  rate = 0.4;
  for s = 1:4
    x = x + 0.5 * rate;
    rate = 2 * (0.1 + s / 4 * 0.9) + 4 * x + 5 * (0.3 + s / 4 * 1.7);
  end
  expect_equal (e.unl(6), x, 1e-14);
  expect_equal (e.vnl(6), rate, 1e-14);
  expect_equal (e.unl(5), 0.1);
end

function test_states_and_rates_are_committed_as_far_as_each_array_goes ()
  e = one_state (1);
  e.unl = fresh (cat (3, e.unl, zeros (2, 1)));
  got = evaluate_law (e, [1; 99], [2; 98]);
  expect_equal (got.unl(7:8), [0.7 0]);   % the second value beside the states
  expect_equal (numel (got.vnl), 6);
  e = one_state (1);
  e.vnl = fresh (cat (3, e.vnl, zeros (2, 1)));
  got = evaluate_law (e, [1; 99], [2; 98]);
  expect_equal (got.vnl(7:8), [got.vnl(3) 0]);
  expect_equal (numel (got.unl), 6);
end

function test_every_evaluation_advances_the_committed_state ()
  first = evaluate_law (one_state (1), [1; 0], [2; 0]);
  second = evaluate_law (first, [1; 0], [2; 0]);
  expect_equal (second.unl(6), first.unl(6) + 0.5 * first.vnl(6));
end

function test_number_of_sub_steps_is_truncated ()
  expect_equal (evaluate_law (one_state (1.9), [1; 0], [2; 0]).snl, evaluate_law (one_state (1), [1; 0], [2; 0]).snl);
end

function test_no_sub_step_leaves_force_and_states_alone ()
  for steps = [0, 0.9, -3, NaN]
    e = one_state (steps);
    e.snl(:) = [3; 4];
    e.iopt(2) = 1;
    [e, r, u] = evaluate_law (e, [1; 0.25; 5], [2; 0; 0]);
    expect_equal (e.snl, [3; 4]);
    expect_equal (e.unl(:), [1; 0.25; 0.7; 0; 0.1; 0.2]);
    expect_equal (u, [1; 0.7; 5]);  % the state store still happens: it passes over two values
  end
end

function test_sum_of_the_force_includes_the_value_behind_the_element ()
  w = struct ('Cu', [0 0 1], 'Dv', [0 0 0], 'B', [0 0], 'A', 0, 'E', [0 0]);
  e = evaluate_law (maxwell_element (2, 1, 2, 0.5, 1, w), [1; 0; 7; 0], zeros (4, 1));
  expect_equal (e.snl, [7; 0; 0; 0]);
  w = struct ('Cu', 0, 'Dv', [0 0 1], 'B', [0 3], 'A', 0, 'E', [0 0]);
  e = evaluate_law (maxwell_element (2, 1, 1, 0.5, 1, w), [2; 0], [0; 0]);
  expect_equal (e.snl(1), 6);
end

function test_rate_behind_an_element_replaces_the_velocity_of_the_next_one ()
  w = struct ('Cu', 0, 'Dv', 1, 'B', [0 3], 'A', 0, 'E', [0 0]);
  e = maxwell_element (2, 1, 2, 0.5, 1, w);
  e.unl(11) = 8;
  e = evaluate_law (e, [2; 0; 7; 0], [0; 0; 55; 0]);
  expect_equal (e.vnl(3), 6);
  expect_equal (e.snl(3), 6);  % the velocity that the next element saw
  expect_equal (e.vnl(11), 6);
  expect_equal (e.unl(11), 7);  % its committed displacement became the current one
end

function test_last_state_behind_the_third_page_is_dropped_or_lands_in_a_fourth ()
  w = weights ();
  e = maxwell_element (2, 1, 1, 0.5, 1, w, 2, 4);
  e.unl(3) = 0.7;
  e = evaluate_law (e, [1; 0], [2; 0]);
  beyond = 3 * 1 + 0 + 6 * 2;
  expect_equal (e.vnl(7), beyond);
  expect_equal (e.unl(7), 0.7);
  three = maxwell_element (2, 1, 1, 0.5, 1, w);
  three.unl(3) = 0.7;
  three = evaluate_law (three, [1; 0], [2; 0]);
  expect_equal (three.snl, e.snl);
  expect_equal (three.unl(:), reshape (e.unl(1:6), 6, 1));
end

function test_matrix_of_states_is_read_by_columns ()
  w = struct ('Cu', 0, 'Dv', 0, 'B', [0 0 0], 'A', [0 2; 3 0], 'E', [0 0 0]);
  e = maxwell_element (3, 2, 1, 0.5, 1, w);
  e.unl(8:9) = [10 100];
  e = evaluate_law (e, zeros (3, 1), zeros (3, 1));
  expect_equal (reshape (e.vnl(8:9), 1, 2), [200 30]);
end

function test_element_of_width_zero_gives_one_product ()
  e = state_element ('Maxw', [0.5; 2; 0; 3], [-1 0 0 4 2], 2, 2);
  e.snl(2) = 9;
  e = evaluate_law (e, [5; 6], [7; 8]);
  expect_equal (e.snl, [3 * 5 + 3 * 7; 9]);  % Cu and Dv share their place
  expect_equal (e.unl(:), [5; 6; 0; 0]);
end

function test_element_of_negative_width_only_clears_its_force ()
  e = state_element ('Maxw', [0.5; 1; 0], [-1 0 -2 1 1], 2, 2);
  e.snl(:) = [8; 9];
  e = evaluate_law (e, [5; 6], [7; 8]);
  expect_equal (e.snl, [0; 9]);
end

% The starts of the blocks of weights are then beyond every integer; nothing may be read there.
function test_elements_of_the_smallest_widths_only_clear_their_force ()
  least = -2 ^ 31;
  for widths = [least, least, -2, -1; least, 0, least, least]
    e = state_element ('Maxw', [0.5; 1; 0], [-1, 0, widths', 1], 2, 2);
    e.snl(:) = [8; 9];
    e = evaluate_law (e, [5; 6], [7; 8]);
    expect_equal (e.snl, [0; 9]);
  end
end

function test_force_replaces_the_displacement_without_snl ()
  e = rmfield (one_state (2), 'snl');
  expect_law_like_model (e, [1 2; 0 0], [2 3; 0 0]);
  e = evaluate_law (e, [1; 0], [2; 0]);
  x = 0.2 + 0.5 * 0.4;
  rate = 2 * 0.55 + 4 * x + 5 * 1.15;
  beyond = 3 * 0.55 + 5 * x + 6 * 1.15;
  force = 7 + 20 + (8 * x + 11 * rate) + (9 * 0.7 + 12 * beyond);
  x = x + 0.5 * rate;
  rate = 2 * force + 4 * x + 5 * 2;  % the second sub-step takes the force for the displacement
  expect_equal (e.vnl(6), rate, 1e-14);
end

function test_zero_increment_becomes_the_first_step_time_and_stays ()
  e = maxwell_element (2, 1, 1, 0, 1, weights ());
  [integrator, mem, out] = newmark_setup (1, 0, 1, zeros (1, 0), zeros (0, 4), 0.125, 0.25, 0.5, 2, 2);
  run_newmark ({integrator, e}, [0; 0], [1; 0], [0; 0], mem, out);
  expect_equal (e.opt(3), 0.125);
end

function test_pages_are_needed_at_the_first_evaluation ()
  e = maxwell_element (2, 1, 1, 0.5, 1, weights (), 2, 1);
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), '', 'Need unlj1 as last dim');
  expect_error (@() evaluate_law (rmfield (e, 'iopt'), [0; 0], [0; 0]), '', 'Need unlj1 as last dim');
  e = maxwell_element (2, 1, 1, 0.5, 0, weights (), 2, 1);
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), '', 'Need unlj1 as last dim');
  expect_error (@() evaluate_law (rmfield (e, 'unl'), [0; 0], [0; 0]), '', 'Need unlj1 as last dim');
end

function test_committed_values_must_lie_inside_unl_and_vnl ()
  text = 'Need unlj1 as last dim';
  e = maxwell_element (2, 1, 1, 0.5, 1, weights (), 2, 2);
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), '', text);
  e = one_state (1);
  e.vnl = zeros (5, 1);
  expect_error (@() evaluate_law (e, [0; 0], [0; 0]), '', text);
  % As many states as values: the last committed state is past the third page.
  w = struct ('Cu', 0, 'Dv', 0, 'B', zeros (1, 4), 'A', zeros (2), 'E', [0 0]);
  expect_error (@() evaluate_law (maxwell_element (2, 2, 1, 0.5, 1, w), [0; 0], [0; 0]), '', text);
end

function test_short_options_are_refused ()
  e = one_state (1);
  count = numel (e.opt);
  u = [0; 0];
  e.opt = e.opt(1:count - 1);
  expect_error (@() evaluate_law (e, u, u), '', '~^quarn residual : element 1 : "opt" of law "Maxw" must hold values 21 to 22 \(block E\), got 21');
  e.opt = e.opt(1:19);
  expect_error (@() evaluate_law (e, u, u), '', '~\(block A\), got 19');
  e.opt = e.opt(1:18);
  expect_error (@() evaluate_law (e, u, u), '', '~\(block B\), got 18');
  e.opt = e.opt(1:13);
  expect_error (@() evaluate_law (e, u, u), '', '~\(block Dv\), got 13');
  e.opt = e.opt(1:7);
  expect_error (@() evaluate_law (e, u, u), '', '~\(block Cu\), got 7');
  e.opt = e.opt(1:3);
  expect_error (@() evaluate_law (e, u, u), '', '~"opt" of law "Maxw" must hold 4 values or more, got 3');
  e = one_state (1);
  e.iopt = e.iopt(1:4);
  expect_error (@() evaluate_law (e, u, u), '', '~"iopt" of law "Maxw" must hold 5 values or more, got 4');
end

function test_the_block_that_ends_too_early_is_named ()
  % Three values with two states each: the sums over A reach to its fifth place, one beyond its four.
  w = struct ('Cu', 1:3, 'Dv', 1:3, 'B', ones (1, 6), 'A', ones (2), 'E', ones (1, 3));
  e = maxwell_element (3, 2, 1, 0.5, 1, w);
  e.opt = e.opt(1:45);
  expect_error (@() evaluate_law (e, zeros (3, 1), zeros (3, 1)), '', ...
                'quarn residual : element 1 : "opt" of law "Maxw" must hold values 42 to 46 (block A), got 45 values');
end

function test_short_arrays_are_refused ()
  u = zeros (4, 1);
  w = weights ();
  e = rmfield (maxwell_element (2, 1, 2, 0.5, 1, w), 'b');
  e.snl = zeros (2, 1);
  expect_error (@() evaluate_law (e, u, u), '', '~"snl" of law "Maxw" must hold 3 values or more, got 2');
  e = rmfield (one_state (1), 'vnl');
  expect_error (@() evaluate_law (e, u(1:2), u(1:2)), '', '~"vnl" of law "Maxw" must hold 3 values or more, got 0');
  e = one_state (1);
  e.iopt(3) = int32 (-1);
  e.iopt(5) = int32 (2);
  expect_error (@() evaluate_law (e, u(1:2), u(1:2)), '', '~iopt\(3\) of law "Maxw" must not be negative with 2 elements, got -1');
end

% Without "snl" the force is on unl(1), so each of the 2 x 3 passes multiplies what the one before left there.
function test_every_pass_forms_the_force_of_an_element_without_values_again ()
  e = rmfield (maxwell_element (0, 0, 2, 0.5, 3, struct ('Cu', [], 'Dv', [], 'B', [], 'A', [], 'E', []), 1), {'snl', 'b'});
  e.opt(6) = 3;
  e = evaluate_law (e, 2, 0);
  expect_equal (e.unl(1), 2 * 3 ^ 6);
end

% The number of sub-steps is a mode of the state, which moves away from 0 in the first step.
function e = run_with_shared_options (values)
  u = [law_code('Maxw'); 0; 1; 0; 0; 5];
  v = [0; 0; 0; 10; 0; 0];
  observed = matrix_lines (sparse (1, 6, 1, 2, 6), true);
  e = state_element ('Maxw', 0, [-1 0 values 0 1], 2, 2);
  e = rmfield (e, 'b');
  e.c = observed;
  e.snl = fresh ([7; 7]);
  e.opt = u;
  integrator = fresh (struct ('type', 2000, 'r', zeros (6, 2), 'tft', [0 1], 'data', [1; 0.25; 0.5; 2; 4; 0]));
  mem = struct ('uva', struct ('uva', zeros (24, 1)));
  quarn ('chandlediagnewmark', {integrator, e}, struct (), u, v, zeros (6, 1), [0 0], mem, struct ());
end

function test_sub_steps_that_turn_up_during_a_run_are_done ()
  e = run_with_shared_options (0);
  expect_equal (e.snl, [25; 7]);
end

function test_sub_steps_that_turn_up_during_a_run_stay_inside_the_arrays ()
  expect_error (@() run_with_shared_options (1e6), '', '~of law "Maxw" must hold');
end

% Without values of an element and without forces of its own, each pass overwrites the observed displacement and reads it again.
function u = passes (weight, u, v, elements, steps)
  e = state_element ('Maxw', [0.5; steps; 0; weight], [-1 0 0 0 elements], 1, 2);
  e = rmfield (e, 'snl');
  e.vnl = zeros (1, 1, 2);
  e = evaluate_law (fresh (e), u, v);
  u = e.unl(1);
end

function test_passes_of_elements_without_values_end_where_a_loop_over_them_ends ()
  rand ('twister', 12);
  for k = 1:rounds (600)
    weights = [-1, 1, 0.5, -0.5, 0, -0.75, 2, 2 * rand() - 1];
    weight = weights(randi (numel (weights)));
    [u, v, elements, steps] = deal (rand (), randi (3) / 2 - 1, randi (12), randi (12));
    x = u;
    for pass = 1:elements * steps, x = weight * x + weight * v; end
    expect_equal (passes (weight, u, v, elements, steps), x);
  end
end

function test_counts_without_values_hold_no_call ()
  begun = cputime ();
  most = 2 ^ 31 - 1;
  expect_equal (passes (-1, 3, 0.5, most, most), -3.5);       % an odd number of passes
  expect_equal (passes (-1, 3, 0.5, most, most - 1), 3);
  expect_equal (passes (0.5, 3, 0.5, most, most), 0.5);
  if cputime () - begun > 5, error ('it took %g s', cputime () - begun); end
end
