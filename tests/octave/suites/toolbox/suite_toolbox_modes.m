% Modes of large and of singular models.
function tests = suite_toolbox_modes ()
  use_toolbox ();
  tests = localfunctions ();
end

% A square plate of N x N points with two unknowns each: many of its modes come in pairs.
function [k, m] = plate (n)
  e = ones (n, 1);
  t = spdiags ([-e 2*e -e], -1:1, n, n);
  a = kron (t, speye (n)) + kron (speye (n), t);
  k = kron (a * a, sparse ([2 0.3; 0.3 1]));
  m = kron (speye (n ^ 2) + 0.1 * kron (t, speye (n)), speye (2));
end

function test_large_sparse_models_give_the_modes_of_dense_ones ()
  [k, m] = plate (14);
  auto = qn.modal (k, m, 'modes', 40);
  dense = qn.modal (k, m, 'modes', 40, 'method', 'eig');
  expect_equal (auto.w, dense.w, 1e-9 * dense.w(end));
  expect_equal (auto.shapes.' * m * auto.shapes, eye (40), 1e-10);
  expect_equal (auto.shapes.' * k * auto.shapes, diag (auto.w .^ 2), 1e-9 * auto.w(end) ^ 2);
  if isequal (auto.shapes, dense.shapes), error ('the dense method was taken'); end
  expect_equal (qn.modal (k, m, 'modes', 40), auto);
end

function test_a_mode_that_eigs_leaves_out_is_noticed ()
  [k, m] = plate (12);
  model = qn.modal (k, m, 'modes', 30, 'method', 'eig');
  expect_equal (qn.impl.mode_doubt (k, m, model.shapes, model.stiffness), '');
  for missed = [1 2 5 12 20 28]
    kept = [1:missed - 1, missed + 1:30];
    text = qn.impl.mode_doubt (k, m, model.shapes(:, kept), model.stiffness(kept));
    if isempty (strfind (text, 'there is one more at or below')), error ('mode %d: "%s"', missed, text); end
  end
  worse = model.shapes;
  worse(7, 3) = worse(7, 3) * 1.01 + 1e-3;
  if isempty (qn.impl.mode_doubt (k, m, worse, model.stiffness)), error ('an inaccurate mode passes'); end
end

function test_a_free_structure_of_many_points_keeps_its_rigid_motion ()
  n = 400;
  e = ones (n, 1);
  k = spdiags ([-e [1; 2 * ones(n - 2, 1); 1] -e], -1:1, n, n);
  model = qn.modal (k, speye (n), 'modes', 20);
  expect_equal (model.w, 2 * sin (pi / (2 * n) * (0:19).'), 1e-10);
end

% Against the eigenvalues of the pencil, of which those without mass are infinite.
function test_degrees_of_freedom_without_mass_are_condensed_exactly ()
  k = [3 -1 0 0; -1 2 -1 0; 0 -1 2.5 -1; 0 0 -1 4];
  m = diag ([1 0 2 0]);
  for form = {@full, @sparse}
    model = qn.modal (form{1} (k), form{1} (m));
    wanted = eig (k, m);
    wanted = sort (sqrt (wanted(isfinite (wanted) & abs (wanted) < 1e8)));
    expect_equal (model.w, wanted, 1e-12);
    expect_equal (k * model.shapes, m * model.shapes * diag (model.w .^ 2), 1e-12);
  end
  % A static push on the masses is found by the modes alone.
  f = [1; 0; -2; 0];
  expect_equal (model.shapes * ((model.shapes.' * f) ./ model.stiffness), k \ f, 1e-12);
  expect_error (@() qn.modal (diag ([1 0]), diag ([1 0])), 'qn:input', '~without mass .* are not held by the stiffness');
  expect_error (@() qn.modal (eye (2), ones (2)), 'qn:input', '~not positive definite');
end

% A stiffness with a negative eigenvalue was taken for a rigid motion: cosh (t) came out as a constant.
function test_a_stiffness_that_pushes_away_is_refused_and_as_a_further_stiffness_grows_as_it_should ()
  for form = {@full, @sparse}
    expect_error (@() qn.modal (form{1} ([1 2; 2 1]), eye (2)), 'qn:input', '~mode 1 has a stiffness of -1 1/s.2.*option "K"');
  end
  expect_error (@() qn.modal (-1, 1), 'qn:input', '~not positive semidefinite');
  model = qn.modal (eye (2), eye (2), 'K', [0 2; 2 0]);
  upright = qn.modal (1, 1, 'K', -2);
  before = warning ('off', 'qn:check:model_grows');
  back = onCleanup (@() warning (before));
  sim = @(m, u) qn.simulation (m, 'step', 1e-3, 'until', 3, 'u0', u);
  res = qn.run (sim (model, [1; 0]));
  expect_equal (model.shapes * res.q(:, end), [cosh(3) + cos(sqrt (3) * 3); cos(sqrt (3) * 3) - cosh(3)] / 2, 1e-5);
  res = qn.run (sim (upright, 1));
  expect_equal (res.q(end), cosh (3), 1e-5);
  found = qn.check (sim (upright, 1));
  expect_equal ({found(~strcmp ({found.level}, 'note')).code}, {'model_grows'});
  found = qn.check (qn.simulation (upright, 'step', 1.5, 'until', 30, 'u0', 1));
  expect_equal ({found(strcmp ({found.level}, 'error')).code}, {'growth'});
end

function test_a_rounded_stiffness_of_a_free_structure_keeps_its_rigid_motion_with_a_warning ()
  k = 1e8 * [1 -1 0; -1 2 -1; 0 -1 1];
  k(2, 2) = k(2, 2) - 1;                               % as from a file with eight digits
  lastwarn ('', '');
  model = qn.modal (k, eye (3));
  [unused, id] = lastwarn ();
  expect_equal (id, 'qn:modal');
  expect_equal (model.w, sqrt ([0; 1; 3] * 1e8), 1e-3);
  lastwarn ('', '');
  qn.modal (1e8 * [1 -1 0; -1 2 -1; 0 -1 1], eye (3));
  [unused, id] = lastwarn ();
  expect_equal (id, '');
end

% Eigenvalues below 1e-12 of the greatest were set to zero without a word, though two parts that do not meet have each their own.
function test_a_slow_part_beside_a_fast_one_keeps_its_frequency ()
  model = qn.modal (diag ([1 1e-13 1e13]), eye (3));
  expect_equal (model.w ./ sqrt ([1e-13; 1; 1e13]), ones (3, 1), 1e-9);
  expect_equal (abs (model.shapes), [0 1 0; 1 0 0; 0 0 1], 1e-9);
  turned = [0.6 0.8 0; -0.8 0.6 0; 0 0 1];
  model = qn.modal (turned * diag ([3 2 1e15]) * turned.', eye (3));
  expect_equal (model.w(1:2), sqrt ([2; 3]), 1e-9);
  % What is below the rounding of the entries is a rigid motion, and noted.
  model = qn.modal (1e13 * [1 -1; -1 1] + [1 0; 0 0], eye (2));
  expect_equal (model.w(1), 0);
end

function test_numbers_beyond_all_bounds_are_named_and_end_in_no_error_of_the_host ()
  beyond = '~stiffness over mass is beyond all numbers';
  expect_error (@() qn.modal (1e300, 1e-300), 'qn:input', beyond);
  expect_error (@() qn.modal (1e-300, 1e300), 'qn:input', beyond);
  expect_error (@() qn.modal (1e300 * speye (300), 1e-300 * speye (300), 'modes', 3), 'qn:input', beyond);
  expect_error (@() qn.modal ([2 1; 1 2] * 1e200, [1 0.9; 0.9 1] * 1e-200), 'qn:input', beyond);
  expect_error (@() qn.modal (1e10, 1, 'rayleigh', [1e300 1e300]), 'qn:input', '~modal damping is beyond all numbers');
  expect_error (@() qn.modal (1, 1e-300, 'K', 1e308), 'qn:input', '~modal stiffness is beyond all numbers');
end
