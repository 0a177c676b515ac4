% The law "rotcenter": results.
function tests = suite_rotcenter ()
  tests = localfunctions ();
end

function call (r, model, u, v)
  quarn ('residual', r, model, u, v, []);
end

% A point at radius 0.5 on a rotor (DOF 1: rotation, DOFs 2 3: the rotor's translation in its own frame), tied to a fixed
% centre by a spring k and a damper d; DOFs 4 5 move the centre.
function e = disc (rows, k, d)
  c = cell (rows, 2);
  c(1:8, 2) = {1, eye(3), [0.5; 0; 0], [0; 0; 0], [2 3], [1 2], [4 5], [1 2]};
  c{10, 2} = [0 0.5 0];
  if rows >= 11, c{11, 2} = int32 ([4 5 6]); end
  x = [-2; -1; 0.1; 3];
  e = struct ('type', 'rotcenter', 'Cell', {c}, 'Fu', [x k*x], 'Fv', [x d*x], 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
end

function test_point_on_a_rotor_in_closed_form ()
  k = 40;
  d = 3;
  e = disc (10, k, d);
  angles = linspace (-7, 7, 57);
  omega = 2.5;
  for theta = angles
    r = zeros (5, 1);
    call (r, nl_model (e), [theta; 0; 0; 0; 0], [omega; 0; 0; 0; 0]);
    onCentre = -0.5 * (k * [cos(theta); sin(theta)] + d * omega * [-sin(theta); cos(theta)]);
    onRotor = 0.5 * [k; d * omega];
    expect_equal (r, [0; onRotor; onCentre], 1e-13);
  end
end

function test_the_turned_place_is_summed_before_it_is_subtracted ()
  % 1e16 + 1 is 1e16: the elongation is 0, and would be -1 if the products were subtracted one after the other.
  e = disc (10, 40, 3);
  e.Cell{2, 2} = [1 1 0; 0 1 0; 0 0 1];
  e.Cell{3, 2} = [1e16; 1; 0];
  e.Cell{4, 2} = [1e16; 0; 0];
  r = zeros (5, 1);
  call (r, nl_model (e), zeros (5, 1), zeros (5, 1));
  expect_equal (r(4:5), [0; -40], 1e-12);
end

function test_forces_balance_in_the_fixed_frame ()
  e = disc (10, 7, 2);
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  r = zeros (5, 1);
  call (r, nl_model (e), u, [1; 2; 3; 4; 5]);
  T = [cos(0.3) -sin(0.3); sin(0.3) cos(0.3)];
  expect_equal (T * r(2:3) + r(4:5), [0; 0], 1e-13);
  assert (norm (r) > 1);
end

function test_ten_rows_store_nothing_and_eleven_to_fourteen_store_three_values ()
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  v = [1; 2; 3; 4; 5];
  for rows = 10:14
    e = disc (rows, 7, 2);
    e.StoreFNL = 1;
    e.FInd = int32 (0);
    e.b = matrix_lines (speye (5), true);
    e.unl = zeros (0, 1);
    model = nl_model (e);
    model.FNL = zeros (8, 1) + 9;
    r = zeros (5, 1);
    call (r, model, u, v);
    [wanted, force] = model_rotcenter (e, u, v);
    expect_equal (r, wanted, 1e-13);
    store = 9 * ones (8, 1);
    if rows > 10, store(5:7) = force; end
    expect_equal (model.FNL, store, 1e-13);
  end
end

function test_seventeen_rows_use_the_observation_matrices ()
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  v = [1; 2; 3; 4; 5];
  e = disc (17, 7, 2);
  lists = e;
  lists.Cell = e.Cell(1:14, :);
  e.Cell(5:8, 2) = {@sin};
  e.Cell([9 12 13 14 16], 2) = {@sin};
  e.Cell{15, 2} = matrix_lines (sparse ([1 2], [2 3], [1 1], 3, 5), true);
  e.Cell{17, 2} = matrix_lines (sparse ([1 2], [4 5], [1 1], 3, 5), true);
  model = nl_model (e);
  model.FNL = zeros (7, 1);
  r = zeros (5, 1);
  call (r, model, u, v);
  other = nl_model (lists);
  other.FNL = zeros (7, 1);
  wanted = zeros (5, 1);
  call (wanted, other, u, v);
  expect_equal (r, wanted);
  expect_equal (model.FNL, other.FNL);
  assert (norm (model.FNL) > 0);
end

function test_more_rows_and_columns_change_nothing ()
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  e = disc (10, 7, 2);
  wide = e;
  wide.Cell = [e.Cell repmat({@sin}, 10, 2)];
  wide.Cell(:, 1) = {@cos};
  wide.Cell{9, 2} = @sin;
  r = zeros (5, 1);
  wanted = zeros (5, 1);
  call (r, nl_model (wide), u, ones (5, 1));
  call (wanted, nl_model (e), u, ones (5, 1));
  expect_equal (r, wanted);
end

function test_full_observation_matrix_observes_but_cannot_assemble ()
  e = disc (17, 7, 2);
  e.Cell{15, 2} = full (sparse ([1 2], [2 3], [1 1], 3, 5));
  e.Cell{17, 2} = full (sparse ([1 2], [4 5], [1 1], 3, 5));
  model = nl_model (e);
  model.FNL = zeros (7, 1);
  r = zeros (5, 1);
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  expect_error (@() call (r, model, u, zeros (5, 1)), '', 'Add_Mt_u implemented for sparse matrices');
  expect_equal (r, zeros (5, 1));
  e.Cell = e.Cell(1:14, :);
  [unused, force] = model_rotcenter (e, u, zeros (5, 1));
  expect_equal (model.FNL(5:7), force, 1e-13);
end

function test_cursors_are_updated_in_place ()
  e = disc (10, 1, 1);
  e.cur_u = zeros (3, 1) + [-4; 8; 8];
  e.cur_v = zeros (3, 1) + [50; 8; 8];
  call (zeros (5, 1), nl_model (e), [0; 0; 0; 0; 2.5], zeros (5, 1));
  expect_equal (e.cur_u, [1; -0.5; 1 / 1.1], 1e-13);
  expect_equal (e.cur_v, [1; 0; 1 / 1.1], 1e-13);
end

function test_numbers_are_truncated ()
  e = disc (10, 7, 2);
  f = e;
  f.Cell([1 5 6 7 8], 2) = {[1.9 77], [2.5 3.999], [1.2 2.9], [4.1 5.5], [1.7 2.3]};
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  r = zeros (5, 1);
  wanted = zeros (5, 1);
  call (r, nl_model (f), u, ones (5, 1));
  call (wanted, nl_model (e), u, ones (5, 1));
  expect_equal (r, wanted);
end

function test_repeated_position_observes_the_last_and_feeds_all ()
  e = disc (10, 7, 0);
  e.Cell([7 8], 2) = {[2 4], [1 1]};
  e.Cell([5 6], 2) = {[], []};
  r = zeros (5, 1);
  call (r, nl_model (e), [0; 0.3; 0; 0.2; 0], zeros (5, 1));
  f = 7 * (0.2 - 0.5);
  expect_equal (r, [0; f; 0; f; 0], 1e-13);
end

function test_surplus_dofs_of_a_point_are_ignored ()
  e = disc (10, 7, 2);
  f = e;
  f.Cell([5 7], 2) = {[2 3 900], [4 5 -1 NaN]};
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  r = zeros (5, 1);
  wanted = zeros (5, 1);
  call (r, nl_model (f), u, ones (5, 1));
  call (wanted, nl_model (e), u, ones (5, 1));
  expect_equal (r, wanted);
end

function test_tables_with_a_jump_one_knot_or_none ()
  e = disc (10, 0, 0);
  e.Cell{3, 2} = [0; 0; 0];
  e.Fu = [0 10; 1 20; 1 30; 2 40];
  r = zeros (5, 1);
  call (r, nl_model (e), [0; 0; 0; 1; 3], zeros (5, 1));
  expect_equal (r, [0; -25; -50; 25; 50]);
  e.Fu = [5 6];
  r = zeros (5, 1);
  call (r, nl_model (e), [0; 0; 0; 1; 3], zeros (5, 1));
  expect_equal (r, [0; -6; -6; 6; 6]);
  e.Fu = zeros (0, 2);
  e.Fv = [0 1 99; 1 2 99];
  r = zeros (5, 1);
  call (r, nl_model (e), [0; 0; 0; 1; 3], [0; 0; 0; 3; 3]);
  expect_equal (r, [0; -4; -4; 4; 4]);
end

function test_random_elements_against_the_model ()
  rand ('twister', 42);
  randn ('twister', 42);
  kinds = [10 11 12 13 14 17 18 21];
  for k = 1:rounds (400)
    n = 6 + mod (k, 5);
    rows = kinds(1 + mod (k, numel (kinds)));
    e = random_rotor (n, rows, 3);
    model = nl_model (e);
    model.FNL = zeros (7, 1) + 4;
    u = randn (n, 1);
    v = randn (n, 1);
    r = randn (n, 1);
    start = r + 0;
    [added, force] = model_rotcenter (e, u, v);
    quarn ('residual', r, model, u, v, []);
    expect_equal (r, start + added, 1e-13);
    store = 4 * ones (7, 1);
    if rows >= 11, store(3 + [3 1 2]) = force; end
    expect_equal (model.FNL, store, 1e-13);
    again = start + 0;
    quarn ('residual', again, model, u, v, []);
    expect_equal (again, r);
  end
end
