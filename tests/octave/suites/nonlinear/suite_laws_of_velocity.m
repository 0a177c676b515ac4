% Laws without memory whose force depends on the velocity.
function tests = suite_laws_of_velocity ()
  tests = localfunctions ();
end

function test_a_damper_pushes_along_the_velocity ()
  v = [-2; -0.5; 1; 3];
  [e, r] = evaluate_law (page_element ('Damper', [4 1], 4), [9; 9; 9; 9], v);
  expect_equal (e.snl, 4 * v);
  expect_equal (r, 4 * v);
  e = evaluate_law (page_element ('Damper', [4 2], 4), zeros (4, 1), v);
  expect_equal (e.snl, [-16; -1; 4; 36]);
  e = evaluate_law (page_element ('Damper', [4 0.5], 2), [0; 0], [-0.25; 9]);
  expect_equal (e.snl, [-2; 12]);
end

function test_a_damper_at_rest_has_no_force_whatever_its_exponent ()
  for exponent = [0 1 2 -1]
    e = evaluate_law (page_element ('Damper', [4 exponent], 2), [1; 1], [0; -0]);
    expect_equal (e.snl, [0; 0]);
  end
  e = evaluate_law (page_element ('Damper', [4 0], 2), [1; 1], [-3; 5]);
  expect_equal (e.snl, [-4; 4]);   % dry friction
end

function test_no_number_as_a_velocity_gives_none ()
  e = evaluate_law (page_element ('Damper', [4 2], 2), [0; 0], [NaN; Inf]);
  expect_equal (e.snl, [NaN; Inf]);
end

function test_forces_of_a_damper_replace_the_displacements_without_snl ()
  [e, r] = evaluate_law (rmfield (page_element ('Damper', [4 1], 2), 'snl'), [9; 9], [1; -2]);
  expect_equal (e.unl, [4; -8]);
  expect_equal (r, [4; -8]);
end

function test_a_damper_is_stored_among_the_forces ()
  e = page_element ('Damper', [4 1], 2);
  e.iopt = int32 (1);
  model = struct ('FNL', zeros (4, 1));
  still = struct ('type', 2000, 'r', zeros (2, 2), 'tft', [0 1], 'data', zeros (1, 6));
  u = zeros (2, 1);
  v = [1; -2] + zeros (2, 1);
  a = zeros (2, 1);
  quarn ('chandlediagnewmark', {still, e}, model, u, v, a, zeros (1, 2), struct ('uva', struct ('uva', zeros (8, 1))), struct ());
  expect_equal (model.FNL, [0; 4; -8; 0]);
end

function test_short_arrays_of_a_damper_are_refused ()
  head = 'quarn residual : element 1 : ';
  u = [0; 0];
  e = page_element ('Damper', 4, 2);
  expect_refused (@() evaluate_law (e, u, u), [head 'opt must hold 3 values (code, coefficient, exponent), got 2']);
  e = page_element ('Damper', [4 1], 2);
  expect_refused (@() evaluate_law (rmfield (e, 'vnl'), u, u), [head '"vnl" of law "Damper" must hold 2 values or more, got 0']);
  e.snl = 0;
  expect_refused (@() evaluate_law (rmfield (e, 'b'), u, u), [head 'snl must hold 2 values (as many as a page of unl), got 1']);
end

function test_one_array_for_both_observations_is_refused ()
  shared = zeros (2, 1);
  e = page_element ('Damper', [4 1], 2);
  e.unl = shared;
  e.vnl = shared;
  still = struct ('type', 2000, 'r', zeros (2, 2), 'tft', [0 1], 'data', zeros (1, 6));
  mem = struct ('uva', struct ('uva', zeros (8, 1)));
  call = @() quarn ('chandlediagnewmark', {still, e}, struct ('K', []), zeros (2, 1), zeros (2, 1), zeros (2, 1), zeros (1, 2), mem, struct ());
  expect_error (call, '', '~"unl" and "vnl" are one array: law "Damper" needs each with its own zeros');
end

% Stiffness 4, exponent 2, damping 0.5, gap 1 unless said.
function e = stop (side, n)
  e = page_element ('Contact', [4 2 0.5 1 side], n);
end

function test_an_impact_is_met_at_its_gap_on_its_side ()
  x = [-3; 0; 1; 1.5; 3];
  [e, r] = evaluate_law (stop (1, 5), x, zeros (5, 1));
  expect_equal (e.snl, [0; 0; 0; 1; 16]);
  expect_equal (r, e.snl);
  e = evaluate_law (stop (-1, 5), x, zeros (5, 1));
  expect_equal (e.snl, [-16; 0; 0; 0; 0]);
  e = evaluate_law (stop (0, 2), [-3; 3], [0; 0]);
  expect_equal (e.snl, [0; 16]);   % neither side is that of positive values
end

function test_an_impact_resists_more_while_it_closes_and_never_pulls ()
  e = evaluate_law (stop (1, 4), [3; 3; 3; 0], [1; -1; -5; 9]);
  expect_equal (e.snl, [16 * 1.5; 16 * 0.5; 0; 0]);
  e = evaluate_law (stop (-1, 3), [-3; -3; -3], [-1; 1; 5]);
  expect_equal (e.snl, [-16 * 1.5; -16 * 0.5; 0]);
end

function test_no_number_in_an_impact_gives_none ()
  e = evaluate_law (stop (1, 3), [NaN; 3; 0], [0; NaN; NaN]);
  expect_equal (e.snl, [NaN; NaN; 0]);
end

function test_short_arrays_of_an_impact_are_refused ()
  head = 'quarn residual : element 1 : ';
  u = [0; 0];
  e = stop (1, 2);
  e.opt = e.opt(1:5);
  expect_refused (@() evaluate_law (e, u, u), [head 'opt must hold 6 values (code, stiffness, exponent, damping, gap, side), got 5']);
  e = stop (1, 2);
  expect_refused (@() evaluate_law (rmfield (e, 'vnl'), u, u), [head '"vnl" of law "Contact" must hold 2 values or more, got 0']);
  e.snl = 0;
  expect_refused (@() evaluate_law (rmfield (e, 'b'), u, u), [head 'snl must hold 2 values (as many as a page of unl), got 1']);
end
