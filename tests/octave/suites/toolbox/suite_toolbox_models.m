function tests = suite_toolbox_models ()
  use_toolbox ();
  tests = localfunctions ();
end

% Two equal masses in a row: w^2 = k/m (3 -+ sqrt 5) / 2.
function test_modes_of_two_masses_in_a_row ()
  model = qn.modal (1e6 * [2 -1; -1 1], 3 * eye (2), 'damping', [0.01 0.02]);
  w = sqrt (1e6 / 3 * (3 + [-1; 1] * sqrt (5)) / 2);
  expect_equal (model.w, w, 1e-12);
  expect_equal (model.hertz, w / (2 * pi), 1e-12);
  expect_equal (model.damping, 2 * [0.01; 0.02] .* w, 1e-12);
  expect_equal (model.shapes.' * model.M * model.shapes, eye (2), 1e-12);
end

% Fixed-free chain of equal springs and masses: w = 2 sqrt (k/m) sin ((2j-1) pi / (2 (2n+1))).
function test_dense_and_sparse_solvers_find_the_modes_of_a_long_chain ()
  n = 300;
  k = 1e4 * spdiags ([-ones(n, 1), [2 * ones(n - 1, 1); 1], -ones(n, 1)], -1:1, n, n);
  m = 2 * speye (n);
  w = 2 * sqrt (1e4 / 2) * sin ((2 * (1:5).' - 1) * pi / (2 * (2 * n + 1)));
  dense = qn.modal (k, m, 'modes', 5, 'method', 'eig');
  sparse_one = qn.modal (k, m, 'modes', 5, 'method', 'eigs');
  expect_equal (dense.w ./ w, ones (5, 1), 1e-8);
  expect_equal (sparse_one.w ./ w, ones (5, 1), 1e-8);
  expect_equal (sparse_one.shapes, dense.shapes, 1e-6);
end

function test_a_free_structure_has_a_mode_of_frequency_zero ()
  k = sparse ([1 -1 0; -1 2 -1; 0 -1 1]) * 1e5;
  a = qn.modal (k, eye (3), 'method', 'eig');
  b = qn.modal (k, eye (3), 'modes', 1, 'method', 'eigs');
  expect_equal (a.w(1), 0);
  expect_equal (b.shapes, ones (3, 1) / sqrt (3), 1e-6);
end

function test_dampings_add_up ()
  k = 1e4 * [2 -1; -1 1];
  m = diag ([1 2]);
  w = getfield (qn.modal (k, m), 'w');
  both = qn.modal (k, m, 'damping', 0.01, 'rayleigh', [0.3 1e-4]);
  expect_equal (both.damping, 0.02 * w + 0.3 + 1e-4 * w .^ 2, 1e-12);
  from_matrix = qn.modal (struct ('K', k, 'M', m, 'C', 0.3 * m + 1e-4 * k));
  expect_equal (from_matrix.damping, 0.3 + 1e-4 * w .^ 2, 1e-9);
end

function test_damping_that_couples_modes_is_kept_as_a_matrix ()
  k = 1e4 * [2 -1; -1 1];
  c = [5 0; 0 0];
  model = qn.modal (k, eye (2), 'C', c, 'damping', 0.01);
  expect_equal (model.damping, model.shapes.' * c * model.shapes + diag (0.02 * model.w), 1e-12);
end

function test_a_damping_matrix_of_zeros_is_no_damping ()
  model = qn.modal (struct ('K', 1e4 * [2 -1; -1 1], 'M', eye (2), 'C', zeros (2)));
  expect_equal (model.damping, [0; 0]);
  expect_equal (qn.project (ones (3, 2), sparse (3, 3)), zeros (2, 2));
end

function test_rayleigh_coefficients_meet_both_dampings ()
  ab = qn.rayleigh ([2 20], [0.03 0.05]);
  w = 2 * pi * [2 20];
  expect_equal ((ab(1) ./ w + ab(2) * w) / 2, [0.03 0.05], 1e-14);
  expect_error (@() qn.rayleigh ([2 2], 0.1), 'qn:input', '~two different frequencies, got 2 twice');
end

function test_observation_command_and_base_rows ()
  model = qn.modal (1e6 * [2 -1 0; -1 2 -1; 0 -1 1], diag ([1 2 3]));
  expect_equal (qn.observe (model, [3 1]), model.shapes([3 1], :));
  expect_equal (qn.observe (model, [3 1], [1 -2]), [1 -2] * model.shapes([3 1], :), 1e-15);
  expect_equal (qn.observe (model, sparse ([0 1 -1])), [0 1 -1] * model.shapes, 1e-15);
  expect_equal (qn.load_at (model, 2), model.shapes(2, :).');
  expect_equal (qn.base (model, ones (3, 1)), -model.shapes.' * diag ([1 2 3]) * ones (3, 1), 1e-14);
  expect_equal (sum (qn.base (model, ones (3, 1)) .^ 2), 6, 1e-12);
  expect_error (@() qn.observe (model, 4), 'qn:input', '~numbered from 1 to 3');
  expect_error (@() qn.observe (model, [1 2], 1), 'qn:input', '~"WEIGHTS" must be 2 values');
  expect_error (@() qn.base (model, 1), 'qn:input', '~"PUSH" must be 3 values');
end

function test_mistakes_in_models_are_explained ()
  expect_error (@() qn.modal (eye (2), eye (3)), 'qn:input', '~square matrices of one size');
  expect_error (@() qn.modal (eye (2), -eye (2)), 'qn:input', '~not positive definite');
  expect_error (@() qn.modal (eye (2), eye (2), 'damping', -1), 'qn:input', '~"damping" must be at least 0, got -1');
  expect_error (@() qn.modal (eye (2), eye (2), 'zeta', 1), 'qn:input', '~no parameter called "zeta"; there are modes');
  expect_error (@() qn.modal (struct ('K', 1)), 'qn:input', '~fields K and M');
end

% A sparse row is a row, with one degree of freedom as with many: -1 was taken for its number and refused.
function test_a_sparse_row_of_one_degree_of_freedom_is_a_row ()
  model = qn.modal (4, 4);
  expect_equal (qn.observe (model, sparse (-1)), -0.5);
  expect_equal (qn.observe (model, sparse (3)), 1.5);
  expect_equal (qn.load_at (model, sparse (0.5)), 0.25);
  expect_error (@() qn.observe (model, -1), 'qn:input', '~"DOFS".1. is -1');
end
