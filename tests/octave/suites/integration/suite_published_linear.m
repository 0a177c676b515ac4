% Linear reference cases: a textbook Newmark table, beam frequencies from projected matrices, and runs cut into pieces.
function tests = suite_published_linear ()
  tests = localfunctions ();
end

% Chopra, Dynamics of Structures, 4th ed., example 5.3 (average acceleration): columns u, v, a at 0.1, 0.2, ... 1.0 s.
function x = half_cycle_reference ()
  x = [0.0437 0.8733 17.4666; 0.2326 2.9057 23.1801; 0.6121 4.6833 12.3719; 1.0825 4.7261 -11.5175; 1.4309 2.2421 -38.1611
       1.4231 -2.3996 -54.6722; 0.9622 -6.8192 -33.6997; 0.1908 -8.6092 -2.1211; -0.6044 -7.2932 28.4423; -1.1442 -3.5026 47.3701];
end

function c = half_cycle_case ()
  c = published ('Half-cycle sine on a damped oscillator, textbook step', 'A. K. Chopra, Dynamics of Structures, 4th ed., 2012, example 5.3', ...
                 {'average acceleration', 'stiffness handle', 'damping handle', 'loads', 'velocities and accelerations'});
end

function list = at_times (what)
  list = arrayfun (@(t) sprintf (what, t), 0.1:0.1:1, 'uniformoutput', false);
end

% The run of that example; the state after each step is seen by ending the table there.
function run = half_cycle_run (points)
  m = 0.2533;
  k = 10;
  c = 2 * 0.05 * sqrt (k * m);
  h = 0.1;
  t = (0:points - 1) * h;
  p = 10 * sin (pi * t / 0.6) .* (t < 0.65);
  [integrator, mem, out] = newmark_setup (m, c, k, 1, p, h, 0.25, 0.5, 2:points);
  run = struct ('u', 0, 'v', 0, 'a', p(1) / m, 'mem', mem, 'out', out);
  run.list = {integrator, typed(1, k), typed(3, c)};
  run = fresh (run);
end

function test_half_cycle_sine_displacements ()
  reference = half_cycle_reference ();
  for register = [true false]
    run = half_cycle_run (11);
    list = run.list;
    if register, list = registered (run.list); end
    run_newmark (list, run.u, run.v, run.a, run.mem, run.out);
    largest_difference (run.out.def(:), reference(:, 1), 1e-4);
  end
  expect_published (half_cycle_case (), at_times ('displacement at %.1f s [in]'), reference(:, 1), run.out.def(:), 1e-4);
end

function test_half_cycle_sine_velocities_and_accelerations ()
  reference = half_cycle_reference ();
  state = zeros (10, 3);
  for steps = 1:10
    run = half_cycle_run (steps + 1);
    [state(steps, 1), state(steps, 2), state(steps, 3)] = run_newmark (run.list, run.u, run.v, run.a, run.mem, run.out);
  end
  largest_difference (state(:, 1), reference(:, 1), 1e-4);
  expect_published (half_cycle_case (), at_times ('velocity at %.1f s [in/s]'), reference(:, 2), state(:, 2), 2e-3);
  expect_published (half_cycle_case (), at_times ('acceleration at %.1f s [in/s^2]'), reference(:, 3), state(:, 3), 3e-3);
end

function largest_difference (got, wanted, tolerance)
  d = max (abs (got - wanted));
  if ~(d <= tolerance), error ('off by %g, tolerance %g', d, tolerance); end
end

% Bending of a beam of length 1 (EI = rho A = 1) by COUNT cubic elements with free ends; two DOFs a node: deflection, slope.
function [k, m] = free_beam (count)
  l = 1 / count;
  ke = [12 6*l -12 6*l; 6*l 4*l^2 -6*l 2*l^2; -12 -6*l 12 -6*l; 6*l 2*l^2 -6*l 4*l^2] / l ^ 3;
  me = [156 22*l 54 -13*l; 22*l 4*l^2 13*l -3*l^2; 54 13*l 156 -22*l; -13*l -3*l^2 -22*l 4*l^2] * l / 420;
  n = 2 * count + 2;
  k = sparse (n, n);
  m = sparse (n, n);
  for e = 1:count
    at = 2 * e - 1:2 * e + 2;
    k(at, at) = k(at, at) + ke;
    m(at, at) = m(at, at) + me;
  end
end

% Legendre polynomials 0 ... DEGREE and their slopes at the nodes of that beam.
function t = polynomials (count, degree)
  x = 2 * (0:count)' / count - 1;
  p = [ones(count + 1, 1), x];
  d = [zeros(count + 1, 1), ones(count + 1, 1)];
  for j = 2:degree
    p(:, j + 1) = ((2 * j - 1) * x .* p(:, j) - (j - 1) * p(:, j - 1)) / j;
    d(:, j + 1) = d(:, j - 1) + (2 * j - 1) * p(:, j);
  end
  t = zeros (2 * count + 2, degree + 1);
  t(1:2:end, :) = p;
  t(2:2:end, :) = 2 * d;
end

% Blevins, Formulas for Natural Frequency and Mode Shape, 1979: free-free beam.
function test_free_beam_frequencies_from_projected_matrices ()
  [k, m] = free_beam (150);
  basis = polynomials (150, 16);
  kr = quarn ('c<-a''*b', basis, matrix_lines (k)) * basis;
  buffer = zeros (size (basis, 2), size (m, 2));
  quarn ('c<-a''*b', basis, matrix_lines (m), buffer);
  mr = buffer * basis;
  % Sums of terms as large as the stiffness of an element, whatever is left of them.
  expect_equal (kr, full (basis' * k * basis), 1e-14 * full (max (abs (k(:)))));
  expect_equal (mr, full (basis' * m * basis), 1e-12);
  lambda = sort (real (eig ((kr + kr') / 2, (mr + mr') / 2)));
  beta_l = lambda(3:6) .^ 0.25;
  wanted = [4.730041; 7.853205; 10.995608; 14.137165];
  c = published ('Bending modes of a free uniform beam', ...
                 'R. D. Blevins, Formulas for Natural Frequency and Mode Shape, 1979 (free-free beam)', {'projection'});
  expect_published (c, 'beta L of bending mode', wanted, beta_l, 2e-6);
  largest_difference (lambda(1:2), [0; 0], 1e-6 * lambda(3));
end

% Three modes under two sine loads, force store, springs and friction: everything that carries over from step to step.
function run = long_run (nonlinear)
  m = [1; 2; 0.5];
  c = [0.1; 0; 0.3];
  k = [10; 40; 90];
  points = 61;
  t = (0:points - 1) * 0.03;
  p = 4 * sin (5 * t);
  [integrator, mem, out] = newmark_setup (m, c, k, [1; -0.5; 2], p, 0.03, 0.25, 0.5, 1:points, 4);
  run = struct ('model', struct ('FNL', zeros (3, 1)), 'u', [0.1; -0.2; 0; 0], 'v', [1; 0; 0; 0], 'a', [0; 3; 0; 0], 'opt', [0.01 0.02]);
  run.mem = mem;
  run.out = out;
  run.list = {integrator, typed(1, diag ([k; 0])), typed(3, diag ([c; 0])), typed(2, diag ([m; 0]))};
  if nonlinear
    pair = state_element ('DahlC', [0.03 50 1 2 1], [0 3 1 1 1], 2, 2);
    pair.c = matrix_lines ([1 0 -1 0; 0 0 0 1], true);
    pair.b = matrix_lines ([1 0 -1 0; 0 0 0 0], true);
    spring = spring_element (2, 1, 4, [law_code('Power') 30 3], int32 (2));
    run.list = [run.list, {pair, spring}];
  end
  run = fresh (run);
end

function call (run, list)
  quarn ('chandlediagnewmark', list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function chopped_equals_whole (nonlinear, register)
  whole = long_run (nonlinear);
  list = whole.list;
  if register, list = registered (list); end
  call (whole, list);
  parts = long_run (nonlinear);
  tft = parts.list{1}.tft;
  force_handles = parts.list(2:end);
  if register, [~, kept] = registered (force_handles); end
  edges = [1 18 40 61];
  for piece = 1:3
    parts.list{1}.tft = fresh (tft(:, edges(piece):edges(piece + 1)));
    list = parts.list;
    if register
      [~, index] = registered (parts.list(1));
      list = chandle ([index kept]);
    end
    call (parts, list);
  end
  for name = {'u', 'v', 'a', 'model', 'mem', 'out'}
    expect_equal (parts.(name{1}), whole.(name{1}));
  end
  if register
    for k = 1:numel (kept), expect_equal (quarn ('chandleget', kept(k)), final_value (whole, k + 1)); end
  else
    expect_equal (parts.list(2:end), whole.list(2:end));
  end
  if nonlinear && whole.u(4) == 0, error ('the friction force was never stored'); end
end

% Element K of the list after the whole run by a cell list.
function value = final_value (whole, k)
  again = long_run (numel (whole.list) > 4);
  call (again, again.list);
  value = again.list{k};
end

function test_linear_run_in_three_pieces ()
  chopped_equals_whole (false, false);
end

function test_linear_run_in_three_pieces_with_registered_handles ()
  chopped_equals_whole (false, true);
end

function test_nonlinear_run_in_three_pieces ()
  chopped_equals_whole (true, false);
end

function test_nonlinear_run_in_three_pieces_with_registered_handles ()
  chopped_equals_whole (true, true);
end

function test_long_runs_equal_the_model ()
  same_as_model (long_run (false));
  same_as_model (long_run (true));
end
