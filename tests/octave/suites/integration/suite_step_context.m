% The arguments that make up a step: sizes, the Rayleigh pair, the state vectors, the force store.
%
% The matrix model {M, C, K} of one unknown shows the pair: r = M*a + C*v + K*u + alpha*M*v + beta*K*v.
function tests = suite_step_context ()
  tests = localfunctions ();
end

function test_a_complex_residual_vector_is_refused ()
  k = one_by_one ();
  expect_refused (@() quarn ('residual', complex (1, 0), k, 1, 1, 1), 'Real numbers for r', 'KORV:quarn:Invalid');
  expect_refused (@() quarn ('residual', 1 + 2i, k, 1, 1, 1, [0 0], []), 'Real numbers for r', 'KORV:quarn:Invalid');
  expect_refused (@() quarn ('residual', sparse (1i), k, 1, 1, 1), 'Real numbers for r', 'KORV:quarn:Invalid');
  h = quarn ('chandleset', 1, matrix_lines (sparse (1)));
  expect_refused (@() quarn ('residual', 1i, chandle (h), 1, 1, 1), 'Real numbers for r', 'KORV:quarn:Invalid');
end

function test_complex_states_are_refused ()
  k = one_by_one ();
  z = complex (1, 0);
  expect_refused (@() quarn ('residual', zeros (1, 1), k, z, 1, 1), 'Real numbers needed.');
  expect_refused (@() quarn ('residual', zeros (1, 1), k, 1, z, 1), 'Real numbers needed.');
  expect_refused (@() quarn ('residual', zeros (1, 1), k, 1, 1, z), 'Real numbers needed.');
  expect_refused (@() quarn ('residual', zeros (1, 1), k, 1, 1, sparse (1i), [0 0]), 'Real numbers needed.');
end

function test_the_residual_vector_is_looked_at_before_the_states ()
  expect_refused (@() quarn ('residual', 1i, one_by_one (), 1i, 1i, 1i), 'Real numbers for r', 'KORV:quarn:Invalid');
end

function test_complex_numbers_are_found_before_the_model_is_looked_at ()
  expect_refused (@() quarn ('residual', 1i, 'no model', 1, 1, 1), 'Real numbers for r', 'KORV:quarn:Invalid');
  expect_refused (@() quarn ('residual', zeros (1, 1), {}, 1, 1i, 1), 'Real numbers needed.');
end

function test_a_law_without_a_time_increment_takes_the_time_of_the_first_step ()
  run = small_run ();
  run.list{4} = state_element ('sts', [0 1 1 1 1], [-1 0 0 0 0], 2);
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  expect_equal (run.list{4}.opt(3), run.list{1}.tft(1, 2));
end

function test_a_handle_list_is_not_tested_for_complex_numbers ()
  expect_refused (@() quarn ('chandlediagnewmark', chandle (0), struct (), 1i, 1, 1, [0 0], struct (), struct ()), 'Real numbers needed.');
  expect_refused (@() quarn ('chandlediagnewmark', {1i}, struct (), 1, 1i, 1, [0 0], struct (), struct ()), 'Real numbers needed.');
end

function test_a_complex_array_in_place_of_a_handle_list_is_refused ()
  expect_refused (@() quarn ('chandlediagnewmark', 1i, struct (), 1, 1, 1, [0 0], struct (), struct ()), 'Real numbers for r', ...
                  'KORV:quarn:Invalid');
  expect_refused (@() quarn ('chandlediagnewmark', 1, struct (), 1, 1, 1, [0 0], struct (), struct ()), 'Expecting chandle vector', ...
                  'KORV:quarn:Invalid');
end

function test_without_a_rayleigh_source_there_is_no_rayleigh_damping ()
  expect_equal (contribution (100), 5 + 30 + 200);
end

function test_the_pair_multiplies_mass_and_stiffness ()
  expect_equal (contribution (100, [0.5 0]), 35 + 200 + 0.5 * 2 * 10);
  expect_equal (contribution (100, [0 0.5]), 35 + 200 + 0.5 * 5 * 10);
  expect_equal (contribution (100, [0.25; 2]), 35 + 200 + 0.25 * 2 * 10 + 2 * 5 * 10);
end

function test_the_pair_may_come_in_a_struct ()
  expect_equal (contribution (100, struct ('Rayleigh', [0.25 2])), contribution (100, [0.25 2]));
  expect_equal (contribution (100, struct ('Rayleigh', {[0.25; 2], 7})), contribution (100, [0.25 2]));
end

function test_a_struct_without_the_pair_gives_zeros ()
  none = contribution (100);
  expect_equal (contribution (100, struct ()), none);
  expect_equal (contribution (100, struct ('rayleigh', [1 1])), none);
  expect_equal (contribution (100, struct ('Rayleigh', {})), none);
end

function test_missing_values_of_the_pair_are_zero ()
  expect_equal (contribution (100, []), contribution (100));
  expect_equal (contribution (100, 0.5), contribution (100, [0.5 0]));
  expect_equal (contribution (100, struct ('Rayleigh', [])), contribution (100));
  expect_equal (contribution (100, struct ('Rayleigh', 0.5)), contribution (100, [0.5 0]));
end

function test_further_values_of_the_pair_are_not_read ()
  expect_equal (contribution (100, [0.25 2 NaN 7]), contribution (100, [0.25 2]));
end

function test_an_empty_acceleration_drops_the_mass_and_zeroes_the_pair ()
  expect_equal (contribution ([]), 30 + 5);
end

function test_a_rayleigh_source_wins_over_an_empty_acceleration ()
  expect_equal (contribution ([], [0.5 0.25]), 30 + 5 + 0.5 * 2 * 10 + 0.25 * 5 * 10);
  expect_equal (contribution ([], struct ('Rayleigh', [0.5 0.25])), 30 + 5 + 0.5 * 2 * 10 + 0.25 * 5 * 10);
  expect_equal (contribution ([], struct ()), 30 + 5);
end

function test_the_pair_reaches_handles ()
  m = quarn ('chandleset', 2, matrix_lines (sparse (2)));
  k = quarn ('chandleset', 1, matrix_lines (sparse (5)));
  r = zeros (1, 1);
  quarn ('residual', r, chandle ([m k]), 1, 10, 100, [0.25 2]);
  expect_equal (r, 200 + 0.25 * 2 * 10 + 5 + 2 * 5 * 10);
end

function test_the_size_is_the_row_count_of_u ()
  k = matrix_lines (sparse ([1 2 3; 4 5 6; 7 8 9]));
  zero = matrix_lines (sparse (3, 3));
  r = zeros (3, 1);
  quarn ('residual', r, {zero, zero, k}, [1 1 1] + 0, zeros (3, 1), zeros (3, 1));
  expect_equal (r, [12; 0; 0]);
  r = zeros (3, 1);
  quarn ('residual', r, {zero, zero, k}, [1 0; 1 0] + 0, zeros (3, 1), zeros (3, 1));
  expect_equal (r, [5; 7; 0]);
end

function test_an_empty_u_evaluates_nothing ()
  k = matrix_lines (speye (3));
  r = zeros (3, 1) + 2;
  quarn ('residual', r, {k, k, k}, zeros (0, 1), zeros (0, 1), zeros (0, 1));
  expect_equal (r, [2; 2; 2]);
end

function test_a_model_without_a_force_store_keeps_its_forces_to_itself ()
  models = {[], struct(), struct('FNL', []), 5, 'text', {}, struct('FNL', {}), @sin, chandle(0), containers.Map(), speye(2)};
  for k = 1:numel (models)
    run = element_run ();
    run.model = models{k};
    quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, [0 0], run.mem, run.out);
    expect_equal (all (isfinite (run.u)) && run.u(1) ~= 1, true);
  end
end

function test_the_force_store_of_the_first_model_is_used ()
  run = element_run ();
  first = zeros (4, 1);
  second = zeros (4, 1);
  model = struct ('FNL', {first, second});
  quarn ('chandlediagnewmark', run.list, model, run.u, run.v, run.a, [0 0], run.mem, run.out);
  expect_equal (model(1).FNL(2) ~= 0, true);
  expect_equal (model(1).FNL([1 3 4]), zeros (3, 1));
  expect_equal (model(2).FNL, zeros (4, 1));
end

% r of the model {2, 3, 5} at u = 1, v = 10 and the acceleration given.
function r = contribution (a, varargin)
  r = zeros (1, 1);
  quarn ('residual', r, one_by_one (), 1, 10, a, varargin{:});
end

function k = one_by_one ()
  k = {matrix_lines(sparse (2)), matrix_lines(sparse (3)), matrix_lines(sparse (5))};
end

% One mode and one element whose force goes to place 1 of the force store.
function run = element_run ()
  run = small_run ();
  element = power_element (matrix_lines (sparse ([1 0 0]), true), matrix_lines (sparse ([1 0 0]), true), 1);
  element.type = 1003;
  element.iopt = int32 ([1; 0; 0; 0; 0]);
  run.list = {run.list{1}, element};
  run.u = run.u + 0.25;
end
