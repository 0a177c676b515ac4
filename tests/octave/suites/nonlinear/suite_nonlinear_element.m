% The nonlinear element: observation, scatter of the forces, and what its fields may be.
function tests = suite_nonlinear_element ()
  tests = localfunctions ();
end

% Two observed values of three DOFs; the law returns what it observes.
function [e, c, b] = linear_element ()
  c = [1 -1 0; 0 2 0.5];
  b = [3 0 1; 0 -1 4];
  e = struct ('type', 1003, 'c', matrix_lines (c, true), 'b', matrix_lines (b, true), 'opt', [law_code('Power'); 1; 1]);
  e.unl = ones (2, 1) * 77;
  e.vnl = ones (2, 1) * 77;
  e.snl = ones (2, 1) * 77;
  e = fresh (e);
end

function [u, v] = states ()
  u = [1; 2; 4];
  v = [-1; 0.5; 8];
end

function test_observe_law_scatter ()
  [e, c, b] = linear_element ();
  [u, v] = states ();
  e.opt = [law_code('Power'); 3; 2];
  [got, r] = evaluate_law (e, u, v);
  expect_equal (got.unl, c * u);
  expect_equal (got.vnl, c * v);
  expect_equal (got.snl, 3 * (c * u) .^ 2);
  expect_equal (r, b' * got.snl);
end

function test_forces_are_added_to_the_residual ()
  [e, c, b] = linear_element ();
  [u, v] = states ();
  r = [100; 200; 300] + zeros (3, 1);
  h = registered ({e, e});
  quarn ('residual', r, h, u, v, zeros (3, 1), [0 0]);
  expect_equal (r, [100; 200; 300] + 2 * (b' * (c * u)));
end

function test_without_or_with_empty_force_vector_the_forces_overwrite_the_observations ()
  [e, c, b] = linear_element ();
  [u, v] = states ();
  e.opt = [law_code('Power'); 3; 2];
  empty = e;
  empty.snl = [];
  for x = {rmfield(e, 'snl'), empty}
    [got, r] = evaluate_law (x{1}, u, v);
    expect_equal (got.unl, 3 * (c * u) .^ 2);
    expect_equal (r, b' * got.unl);
  end
end

function test_without_velocities ()
  [e, c, b] = linear_element ();
  [u, v] = states ();
  [got, r] = evaluate_law (rmfield (e, 'vnl'), u, v);
  expect_equal (isfield (got, 'vnl'), false);
  expect_equal (r, b' * (c * u));
end

function test_without_observations_the_forces_stand_as_they_are ()
  [e, ~, b] = linear_element ();
  [u, v] = states ();
  [got, r] = evaluate_law (rmfield (rmfield (e, 'unl'), 'vnl'), u, v);
  expect_equal (got.snl, [77; 77]);
  expect_equal (r, b' * [77; 77]);
end

function test_observations_with_extents_but_no_page_are_no_observations ()
  [e, ~, b] = linear_element ();
  [u, v] = states ();
  e = rmfield (e, 'vnl');
  e.unl = zeros (2, 1, 0);
  [got, r] = evaluate_law (e, u, v);
  expect_equal (got.snl, [77; 77]);
  expect_equal (r, b' * [77; 77]);
end

function test_forces_in_the_observations_are_as_many_as_those ()
  e = rmfield (linear_element (), 'snl');
  [u, v] = states ();
  e.b = matrix_lines ([3 0 1; 0 -1 4; 1 1 1], true);
  expect_refused (@() evaluate_law (e, u, v), 'quarn residual : element 1 : snl must hold 3 values (one for each line of b), got 2');
end

function test_places_of_the_residual_without_a_force_lose_a_negative_zero ()
  e = linear_element ();
  u = (1:20)';
  e.c = matrix_lines (eye (2, 20), true);
  e.b = struct ('ir', int32 ([3; 7]), 'jc', int32 ([0; 1; 2]), 'pr', [2; 5], 'dims', [2 20], 'trans', 1);
  r = -zeros (20, 1);
  quarn ('residual', r, registered ({e}), u, u, zeros (20, 1), [0 0]);
  wanted = zeros (20, 1);
  wanted([4 8]) = [2 * 1; 5 * 2];
  expect_equal (r, wanted);
end

function test_without_command_matrix_nothing_is_added ()
  [e, c] = linear_element ();
  [u, v] = states ();
  [got, r] = evaluate_law (rmfield (e, 'b'), u, v);
  expect_equal (got.snl, c * u);
  expect_equal (r, zeros (3, 1));
end

function test_without_observation_matrix_the_observations_are_zero ()
  [e, ~, b] = linear_element ();
  [u, v] = states ();
  e.opt = [law_code('Expon'); 5; 2];
  [got, r] = evaluate_law (rmfield (e, 'c'), u, v);
  expect_equal (got.unl, [0; 0]);
  expect_equal (got.vnl, [0; 0]);
  expect_equal (r, b' * [5; 5]);
end

function test_observation_touches_the_first_page_only ()
  [e, c] = linear_element ();
  [u, v] = states ();
  e.unl = fresh (reshape (1:6, 2, 1, 3));
  e.vnl = fresh (reshape (11:16, 2, 1, 3));
  got = evaluate_law (e, u, v);
  expect_equal (got.unl(:), [c * u; 3; 4; 5; 6]);
  expect_equal (got.vnl(:), [c * v; 13; 14; 15; 16]);
end

function test_page_is_rows_times_columns ()
  c = [1 -1 0; 0 2 0.5; 1 1 1; 2 0 0];
  e = struct ('type', 1003, 'c', matrix_lines (c, true), 'b', matrix_lines (c, true), 'opt', [law_code('Power'); 2; 1], 'snl', zeros (4, 1));
  e.unl = reshape (1:8, 2, 2, 2) * 1;
  e = fresh (e);
  [u, v] = states ();
  got = evaluate_law (e, u, v);
  expect_equal (got.unl(:), [c * u; 5; 6; 7; 8]);
  expect_equal (got.snl, 2 * (c * u));
end

function test_page_longer_than_the_observation_is_zero_behind_it ()
  [e, c] = linear_element ();
  [u, v] = states ();
  e.unl = ones (4, 1) * 9;
  e.vnl = ones (4, 1) * 9;
  e.snl = ones (4, 1) * 9;
  got = evaluate_law (e, u, v);
  expect_equal (got.unl, [c * u; 0; 0]);
  expect_equal (got.vnl, [c * v; 0; 0]);
  expect_equal (got.snl, [c * u; 0; 0]);
end

function test_dense_observation_matrix ()
  [e, c, b] = linear_element ();
  [u, v] = states ();
  for dense = {c, struct('pr', c(:), 'dims', size (c)), struct('pr', c(:), 'dims', size (c), 'trans', 1)}
    e.c = dense{1};
    [got, r] = evaluate_law (e, u, v);
    expect_equal (got.unl, c * u);
    expect_equal (got.vnl, c * v);
    expect_equal (r, b' * (c * u));
  end
end

function test_sparse_observation_matrix_must_be_flagged_transposed ()
  e = linear_element ();
  [u, v] = states ();
  e.c = matrix_lines ([1 0 0; 0 1 0; 0 0 1]);
  expect_error (@() evaluate_law (e, u, v), '', 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_command_matrix_stored_by_columns_gathers ()
  [e, c] = linear_element ();
  [u, v] = states ();
  b = [3 1; 0 -1];
  e.b = matrix_lines (b);
  [got, r] = evaluate_law (e, u, v);
  expect_equal (r, [b' * (c * u); 0]);
end

function test_dense_transposed_command_matrix_uses_the_first_force_only ()
  [e, c] = linear_element ();
  [u, v] = states ();
  e.b = struct ('pr', [3; 5; 7], 'dims', [1 3], 'trans', 1);
  [got, r] = evaluate_law (e, u, v);
  expect_equal (r, [3; 5; 7] * (c(1, :) * u));
  e.b = struct ('pr', [3; 5; 7; 11; 13; 17], 'dims', [2 3], 'trans', 1);
  [got, r] = evaluate_law (e, u, v);
  expect_equal (r, [3; 5; 7] * (c(1, :) * u));
end

function test_dense_command_matrix_is_not_implemented ()
  e = linear_element ();
  [u, v] = states ();
  e.b = ones (3, 2);
  expect_error (@() evaluate_law (e, u, v), '', 'Add_Mt_u implemented for sparse matrices');
  e.b = struct ('pr', ones (6, 1), 'dims', [3 2], 'trans', 0);
  expect_error (@() evaluate_law (e, u, v), '', 'Add_Mt_u implemented for sparse matrices');
end

function test_native_sparse_matrices ()
  [u, v] = states ();
  for name = {'b', 'c'}
    e = linear_element ();
    e.(name{1}) = sparse (ones (2, 3));
    expect_error (@() evaluate_law (e, u, v), '', 'ir must be int32');
  end
end

function test_value_keeps_its_state_between_calls ()
  e = linear_element ();
  e.opt = fresh ([law_code('Table'); (0:3)'; [0; 1; 4; 9]; 0; 0; 0]);
  e.iopt = int32 ([-1 0 0 0 0 1 9 4 1]);
  [h, index] = registered ({e});
  r = zeros (3, 1);
  quarn ('residual', r, h, [2.5; 0; 0], zeros (3, 1), zeros (3, 1), [0 0]);
  record = quarn ('chandleget', index).opt(10:12);
  expect_equal (record, [0; 2.5; 0]);
  quarn ('residual', r, h, [0; 1.25; 0], zeros (3, 1), zeros (3, 1), [0 0]);
  record = quarn ('chandleget', index).opt(10:12);
  expect_equal (record, [2; -1.25; 0.5]);
end
