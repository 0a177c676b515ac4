% The three forms of the residual command: what selects them, their outputs and their errors.
function tests = suite_residual_forms ()
  tests = localfunctions ();
end

function [K, m] = matrices ()
  m = {[2 1 0; 1 3 0.5; 0 0.5 4], [0.1 0 0; 0 0.2 0.3; 0 0.3 0.1], [7 -2 1; -2 8 -3; 1 -3 9]};
  K = {matrix_lines(m{1}), matrix_lines(m{2}), matrix_lines(m{3})};
end

function s = state ()
  s = {[1; -2; 0.5], [0.3; 0.1; -4], [10; 20; 30]};
end

function r = residual_of (model, varargin)
  r = zeros (3, 1);
  quarn ('residual', r, model, varargin{:});
end

function h = handles ()
  K = matrices ();
  h = chandle ([quarn('chandleset', 2, K{1}), quarn('chandleset', 3, K{2}), quarn('chandleset', 1, K{3})]);
end

function test_all_forms_give_the_same_sum ()
  [K, m] = matrices ();
  s = state ();
  wanted = m{1} * s{3} + m{2} * s{2} + m{3} * s{1} + 0.4 * m{1} * s{2} + 0.2 * m{3} * s{2};
  expect_equal (residual_of (K, s{:}, [0.4 0.2]), wanted, 1e-13);
  expect_equal (residual_of (struct ('K', {K}), s{:}, [0.4 0.2]), wanted, 1e-13);
  expect_equal (residual_of (handles (), s{:}, [0.4 0.2]), wanted, 1e-13);
end

function test_residual_is_added_to_what_the_vector_holds ()
  K = matrices ();
  s = state ();
  models = {K, struct('K', {K}), handles()};
  names = {'u', 'v', 'a'};
  for k = 1:3
    once = residual_of (models{k}, s{:});
    r = zeros (3, 1) + 64;
    quarn ('residual', r, models{k}, s{:});
    expect_equal (r, once + 64, 1e-13);
    quarn ('residual', r, models{k}, s{:});
    expect_equal (r, 2 * once + 64, 1e-13);
  end
end

function test_handles_are_called_in_order_and_as_often_as_listed ()
  s = {ones(3, 1), zeros(3, 1), []};
  big = quarn ('chandleset', 1, matrix_lines (1e16 * eye (3)));
  one = quarn ('chandleset', 1, matrix_lines (eye (3)));
  minus = quarn ('chandleset', 1, matrix_lines (-1e16 * eye (3)));
  expect_equal (residual_of (chandle ([big minus one one one]), s{:}), 3 * ones (3, 1));
  expect_equal (residual_of (chandle ([big one minus]), s{:}), ((1e16 + 1) - 1e16) * ones (3, 1));
end

function test_empty_handle_vector_adds_nothing ()
  s = state ();
  expect_equal (residual_of (chandle ([]), s{:}, [1 2]), zeros (3, 1));
end

function test_unknown_handle_adds_nothing_at_all ()
  K = matrices ();
  s = state ();
  key = quarn ('chandleset', 1, K{3});
  r = zeros (3, 1);
  expect_error (@() quarn ('residual', r, chandle ([key, key + 40]), s{:}), 'KORV:quarn:NonHandle', 'Handle does not exist');
  expect_equal (r, zeros (3, 1));
end

function test_two_outputs_are_the_energies ()
  [K, m] = matrices ();
  s = state ();
  models = {K, struct('K', {K})};
  for k = 1:2
    r = zeros (3, 1);
    [kinetic, potential] = quarn ('residual', r, models{k}, s{:}, [0.1 0.2]);
    expect_equal (kinetic, 0.5 * s{2}' * m{1} * s{2}, 1e-13);
    expect_equal (potential, 0.5 * s{1}' * m{3} * s{1}, 1e-13);
    expect_equal (r, residual_of (K, s{:}, [0.1 0.2]));
  end
end

function test_energies_without_accelerations_or_velocities ()
  [K, m] = matrices ();
  s = state ();
  r = zeros (3, 1);
  [kinetic, potential] = quarn ('residual', r, K, s{1}, s{2}, []);
  expect_equal (kinetic, 0.5 * s{2}' * m{1} * s{2}, 1e-13);
  expect_equal (potential, 0.5 * s{1}' * m{3} * s{1}, 1e-13);
  expect_equal (r, m{2} * s{2} + m{3} * s{1}, 1e-13);
  [kinetic, potential] = quarn ('residual', zeros (3, 1), K, s{1}, [], []);
  expect_equal (kinetic, 0);
  expect_equal (potential, 0.5 * s{1}' * m{3} * s{1}, 1e-13);
end

function test_energies_use_the_columns_of_unsymmetric_matrices ()
  m = [1 2 0; 0 3 4; 5 0 6];
  s = state ();
  [kinetic, potential] = quarn ('residual', zeros (3, 1), {matrix_lines(m), [], matrix_lines(m')}, s{:});
  expect_equal ([kinetic potential], 0.5 * [s{2}'*m*s{2}, s{1}'*m*s{1}], 1e-13);
  expect_equal (residual_of ({matrix_lines(m), [], matrix_lines(m')}, s{:}), m' * s{3} + m * s{1}, 1e-13);
end

function test_energies_come_before_the_nonlinear_list ()
  K = matrices ();
  s = state ();
  u = s{1} + 0;
  model = struct ('K', {K}, 'NL', {{[], [], struct('type', @(varargin) change_in_place (u, [1; 1; 1]))}});
  [unused, potential] = quarn ('residual', zeros (3, 1), model, u, s{2:3}, [], []);
  [unused, wanted] = quarn ('residual', zeros (3, 1), K, s{:});
  expect_equal (potential, wanted);
  expect_equal (u, s{1} + 1);
end

function test_other_numbers_of_outputs_store_nothing ()
  K = matrices ();
  s = state ();
  r = zeros (3, 1);
  expect_error (@() one_output (r, K, s), '', '~value on (the )?right hand side of (the )?assignment');
  expect_error (@() three_outputs (r, K, s), '', '~element number 1 undefined in return list');
  expect_equal (r, 2 * residual_of (K, s{:}), 1e-13);
end

function x = one_output (r, model, s)
  x = quarn ('residual', r, model, s{:});
end

function three_outputs (r, model, s)
  [x, y, z] = quarn ('residual', r, model, s{:});
end

function test_handle_vectors_have_no_energies ()
  s = state ();
  h = handles ();
  r = zeros (3, 1);
  raised = false;
  try
    [kinetic, potential] = quarn ('residual', r, h, s{:});
  catch
    raised = true;
  end
  assert (raised);
  expect_equal (r, residual_of (h, s{:}));
end

function test_matrix_cell_is_counted_by_its_columns ()
  K = matrices ();
  s = state ();
  wrong = {K(:), K(1:2), {}, cell(5, 2), K(1)};
  for k = 1:numel (wrong)
    expect_error (@() residual_of (wrong{k}, s{:}), '', 'model.K must be a 3*1 cell array');
    expect_error (@() residual_of (struct ('K', {wrong{k}}), s{:}), '', 'model.K must be a 3*1 cell array');
  end
  expect_error (@() residual_of (struct ('M', 1), s{:}), '', 'model.K must be a 3*1 cell array');
  expect_equal (residual_of ([K {@sin}], s{:}), residual_of (K, s{:}));
end

function test_more_columns_than_an_integer_counts_are_enough ()
  r = [1; 2];
  quarn ('residual', r, cell (0, 3e9), [1; 2], [1; 2], [1; 2]);
  expect_equal (r, [1; 2]);
end

function test_models_that_are_none_are_refused ()
  s = state ();
  wrong = {5, 'model', @sin, [], int32(1), true, v_handle(1), sparse(1)};
  for k = 1:numel (wrong)
    expect_refused (@() residual_of (wrong{k}, s{:}), ...
      '~^quarn residual : the model must be a chandle vector, a cell \{M, C, K\} or a struct with a field "K", got ');
  end
  expect_refused (@() residual_of (struct ('K', zeros (1, 3)), s{:}), 'quarn residual : model.K must be a cell {M, C, K}, got double 1x3');
end

function test_list_that_is_not_a_cell_or_not_there_adds_nothing ()
  K = matrices ();
  s = state ();
  lists = {5, [], 'x', struct('type', 'law'), @sin};
  for k = 1:numel (lists)
    model = struct ('K', {K});
    model.NL = lists{k};
    expect_equal (residual_of (model, s{:}), residual_of (K, s{:}));
  end
end

function test_a_matrix_cell_has_no_nonlinear_list ()
  K = matrices ();
  s = state ();
  other = nl_model (struct ('Fu', @(varargin) error ('called'), 'StoreFNL', 0));
  expect_equal (residual_of (K, s{:}, other, other), residual_of (K, s{:}));
end

function test_rayleigh_sources_and_tc_share_one_structure ()
  K = matrices ();
  s = state ();
  expect_equal (residual_of (K, s{:}, struct ('Rayleigh', [0.4 0.2], 'tc', 1)), residual_of (K, s{:}, [0.4 0.2]));
  expect_equal (residual_of (K, s{:}, struct ('tc', 1)), residual_of (K, s{:}));
end

function test_dense_matrices_are_refused ()
  [K, m] = matrices ();
  s = state ();
  for k = 1:3
    one = K;
    one{k} = m{k};
    expect_refused (@() residual_of (one, s{:}), 'Implemented for sparse matrices');
  end
end

function test_energy_of_a_dense_mass_is_refused_where_its_residual_is_not_formed ()
  [K, m] = matrices ();
  s = state ();
  K{1} = m{1};
  expect_equal (residual_of (K, s{1}, s{2}, []), m{2} * s{2} + m{3} * s{1}, 1e-13);
  r = zeros (3, 1) + 5;
  expect_refused (@() energies (r, K, s{1}, s{2}, []), 'Implemented for sparse matrices');
  expect_equal (r, [5; 5; 5]);
end

function test_a_dense_mass_without_accelerations_is_not_looked_at ()
  expect_equal (residual_of ({eye(3), [], []}, [1; 2; 3], [4; 5; 6], [], [0.5 0]), zeros (3, 1));
end

function test_stiffness_that_reaches_past_shorter_velocities_is_refused_with_rayleigh_damping ()
  K = {[], [], matrix_lines(sparse ([1 2 3 1], [1 2 3 3], [1 2 3 4], 3, 3))};
  r = zeros (3, 1) + 5;
  expect_refused (@() quarn ('residual', r, K, [1; 2; 3], [4; 5], [], [0 0.5]), ...
                  'quarn residual : the stiffness matrix : index 2 in "ir" reaches past v of 2 values');
  expect_equal (r, [5; 5; 5]);
end

function test_energies_need_a_velocity_for_each_row_of_u ()
  % The last line of the mass is empty: no index shows that a value lacks.
  m = matrix_lines (diag ([4 5 6]));
  m.jc(4) = m.jc(3);
  expect_refused (@() energies (zeros (3, 1), {m, [], []}, [1; 2; 3], [1; 2], []), ...
                  'quarn residual : v must hold 3 values (one for each row of u), got 2');
end

function test_a_mass_without_accelerations_may_not_reach_past_the_velocities ()
  m = matrix_lines (diag ([4 5 6]));
  m.ir(2) = int32 (3);
  expect_refused (@() energies (zeros (3, 1), {m, [], []}, [1; 2; 3], [1; 2; 3], []), ...
                  'quarn residual : the mass matrix : index 3 in "ir" reaches past v of 3 values');
end

function test_energies_without_rows_are_zero_whatever_the_matrices ()
  [kinetic, potential] = energies (zeros (2, 1), {eye(2), [], []}, zeros (0, 1), [1; 2], []);
  expect_equal ([kinetic, potential], [0 0]);
end

function [kinetic, potential] = energies (varargin)
  [kinetic, potential] = quarn ('residual', varargin{:});
end

function test_native_sparse_matrices_are_refused ()
  K = matrices ();
  s = state ();
  for k = 1:3
    one = K;
    one{k} = speye (3);
    expect_refused (@() residual_of (one, s{:}), 'ir must be int32');
  end
end

function test_vectors_shorter_than_u_are_refused_and_r_is_kept ()
  K = matrices ();
  s = state ();
  models = {K, struct('K', {K}), handles()};
  names = {'u', 'v', 'a'};
  for k = 1:3
    r = zeros (2, 1) + 5;
    expect_refused (@() quarn ('residual', r, models{k}, s{:}), short_text (k, 'r', 1));
    expect_equal (r, [5; 5]);
    for short = 2:3
      args = s;
      args{short} = [1; 2];
      r = zeros (3, 1) + 5;
      expect_refused (@() quarn ('residual', r, models{k}, args{:}), short_text (k, names{short}, 4 - short));
      if short == 3 || k == 3, expect_equal (r, [5; 5; 5]); end
    end
  end
end

% What the model form K says of a vector of 2 values: lists of handles name the element that needs it, and what r is in an integration.
function text = short_text (k, name, element)
  place = '';
  if k == 3, place = sprintf ('element %d : ', element); end
  if k == 3 && strcmp (name, 'r'), name = 'the residual (in an integration, the part of uva after the copies of u, v and a)'; end
  text = ['quarn residual : ' place name ' must hold 3 values (one for each row of u), got 2'];
end

function test_accumulators_of_other_classes_are_refused ()
  K = matrices ();
  s = state ();
  wrong = {int32(zeros (3, 1)), 'abc', true(3, 1), single(zeros (3, 1)), sparse(3, 1), {1}, struct('a', 1), @sin};
  for k = 1:numel (wrong)
    expect_refused (@() quarn ('residual', wrong{k}, K, s{:}), '~^quarn residual : r must be a full real double array, got ');
  end
end
