% The matrix gain of the integrator: Newmark's scheme whole for modes that are coupled by stiffness and damping of any symmetry.
function tests = suite_newmark_gain ()
  tests = localfunctions ();
end

function call (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

% Three coupled modes with two loads; K and C are full and not symmetric.
function [run, m, c, k, p] = coupled_run (steps)
  rand ('twister', 7);
  randn ('twister', 7);
  m = eye (3);
  k = diag ([30 200 900]) + [0 40 0; -40 0 10; 5 0 0];
  c = diag ([0.4 0.3 0.5]) + [0 3 -1; -3 0 2; 1 -2 0];
  h = 0.02;
  p = randn (2, steps + 1);
  phi = randn (3, 2);
  [integrator, mem, out] = newmark_setup (ones (3, 1), diag (c), diag (k), phi, p, h, 0.25, 0.5, 1:steps + 1);
  % Beside a matrix gain the third column of r is nothing but the second load.
  integrator.r = [zeros(3, 1), -phi, zeros(3, 1)];
  integrator.gain = inv (m / (0.25 * h ^ 2) + 0.5 * c / (0.25 * h) + k);
  p = phi * p;
  run = struct ('model', struct ('K', []), 'u', [0.1; 0; -0.2], 'v', [0; 1; 0], 'a', zeros (3, 1), 'opt', zeros (1, 2), 'mem', mem, 'out', out);
  run.a = p(:, 1) - c * run.v - k * run.u;
  run.list = {integrator, typed(1, matrix_lines (k.')), typed(3, matrix_lines (c.'))};
  run = fresh (run);
end

function test_coupled_linear_model_gets_the_whole_scheme ()
  [run, m, c, k, p] = coupled_run (50);
  u = fresh (run.u);
  v = fresh (run.v);
  a = fresh (run.a);
  d = run.list{1}.data;
  h = d(1);
  call (run);
  for j = 1:50
    u = u + h * v + d(2) * a;
    v = v + d(3) * a;
    a = (m + h / 2 * c + h ^ 2 / 4 * k) \ (p(:, j + 1) - c * v - k * u);
    u = u + h ^ 2 / 4 * a;
    v = v + h / 2 * a;
    assert (norm (run.out.def(:, j + 1) - u) < 1e-12 * norm (u));
  end
  assert (norm (run.v - v) < 1e-11 && norm (run.a - a) < 1e-9);
end

function test_corrected_state_obeys_the_equation_of_motion ()
  [run, m, c, k, p] = coupled_run (20);
  call (run);
  assert (norm (m * run.a + c * run.v + k * run.u - p(:, end)) < 1e-10 * norm (k * run.u));
end

function test_run_cut_in_two_has_the_same_bits ()
  run = coupled_run (30);
  whole = fresh (run);
  call (whole);
  tft = run.list{1}.tft;
  for cut = [2 11 30]
    parts = fresh (run);
    parts.list{1}.tft = fresh (tft(:, 1:cut));
    call (parts);
    parts.list{1}.tft = fresh (tft(:, cut:end));
    call (parts);
    expect_equal (parts.u, whole.u);
    expect_equal (parts.v, whole.v);
    expect_equal (parts.a, whole.a);
    expect_equal (parts.out.def, whole.out.def);
  end
end

function test_registered_handles_give_the_same_bits ()
  run = coupled_run (30);
  same_as_model (run, 1e-13, false);
  same_as_model (run, 1e-13, true);
end

function test_empty_gain_of_any_class_is_none ()
  run = small_run ();
  plain = fresh (run);
  call (plain);
  for none = {[], zeros(0, 3), zeros(3, 0), '', {}, sparse(0, 0), single([])}
    trial = fresh (run);
    trial.list{1}.gain = none{1};
    call (trial);
    expect_equal (trial.u, plain.u);
    expect_equal (trial.out.def, plain.out.def);
  end
end

function test_diagonal_matrix_has_the_bits_of_the_column ()
  run = small_run ();
  plain = fresh (run);
  call (plain);
  run.list{1}.gain = fresh (diag (run.list{1}.r(:, 3)));
  run.list{1}.r(:, 3) = NaN;
  call (run);
  expect_equal (run.u, plain.u);
  expect_equal (run.v, plain.v);
  expect_equal (run.a, plain.a);
  expect_equal (run.out.def, plain.out.def);
end

function test_gyroscopic_model_without_damping_does_not_grow ()
  k = diag ([1e4 1.1e4]);
  g = [0 -300; 300 0];
  for h = [1e-4 1e-3]
    n = 2000;
    [integrator, mem, out] = newmark_setup ([1; 1], [0; 0], diag (k), zeros (2, 1), zeros (1, n + 1), h, 0.25, 0.5, n + 1);
    list = fresh ({integrator, typed(1, matrix_lines (k)), struct('type', 3, 'ir', int32 ([0; 1; 0; 1]), 'jc', int32 ([0; 2; 4]), ...
                                                                      'pr', reshape (g.', [], 1))});
    u = [1e-3; 0];
    [x, y, z] = run_newmark (list, u, zeros (2, 1), -k * u, mem, out);
    growth = energy (x, y, k) / energy (u, [0; 0], k);
    list{1}.gain = inv (eye (2) / (0.25 * h ^ 2) + 0.5 * g / (0.25 * h) + k);
    [x, y] = run_newmark (list, u, zeros (2, 1), -k * u, mem, out);
    with = energy (x, y, k) / energy (u, [0; 0], k);
    assert (growth > 1.1 && abs (with - 1) < 1e-9);
  end
end

function e = energy (u, v, k)
  e = (v.' * v + u.' * k * u) / 2;
end
