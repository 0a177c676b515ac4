% Nonlinear reference cases with exact solutions: a manufactured solution with a tabulated spring, and the Duffing oscillator.
function tests = suite_published_nonlinear ()
  tests = localfunctions ();
end

% Manufactured solution (Code_Aster validation manual, case SDND103): a mass on the spring K0*u - K0*u*|u|/X0 follows A0*sin(w*t).
% Largest error over 8 s in units of the amplitude.
function worst = manufactured (h, register)
  m = 450;
  k0 = 1e5;
  x0 = 0.1;
  a0 = 0.01;
  w = pi / 4;
  points = round (8 / h) + 1;
  t = (0:points - 1) * h;
  x = a0 * sin (w * t);
  p = m * x .* (-w ^ 2 + (k0 / m) * (1 - abs (x) / x0));
  [integrator, mem, out] = newmark_setup (m, 0, k0, 1, p, h, 0.25, 0.5, 2:points);
  knots = linspace (-0.02, 0.02, 4001)';
  count = numel (knots);
  table = [knots; -k0 * knots .* abs(knots) / x0];
  spring = spring_element (1, 1, 1, [law_code('Table'); table; count / 2; 0; 0], int32 ([-1 0 0 0 0 1 1 + 2 * count count 1]));
  list = {integrator, typed(1, k0), spring};
  if register, list = registered (list); end
  run_newmark (list, zeros (1, 1), a0 * w * ones (1, 1), zeros (1, 1), mem, out);
  worst = max (abs (out.def - x(2:end))) / a0;
end

function test_manufactured_solution_with_a_tabulated_spring ()
  for register = [false true]
    worst = manufactured (0.02, register);
    if ~(worst <= 1.8e-5), error ('off by %g of the amplitude', worst); end
  end
  c = published ('Manufactured motion of a mass on a tabulated spring', 'Code_Aster validation manual, SDND103 (exact solution A0 sin wt)', ...
                 {'Table', 'loads', 'initial state'});
  expect_published (c, 'largest error over 8 s in units of the amplitude', 0, worst, 1.8e-5);
end

function test_manufactured_solution_improves_with_the_step ()
  coarse = manufactured (0.04, false);
  fine = manufactured (0.02, false);
  if ~(fine < 0.6 * coarse), error ('%g at the coarse step, %g at half of it', coarse, fine); end
end

% Free vibration of u'' + u + u^3 = 0 from u = 1 (Abramowitz and Stegun, 17.1): displacements at a quarter, half and whole period.
function u = duffing (steps, register)
  period = 4.7680220291;
  h = period / steps;
  quarter = steps / 4;
  [integrator, mem, out] = newmark_setup (1, 0, 1, 1, zeros (1, steps + 1), h, 0.25, 0.5, 1 + [quarter, 2 * quarter, steps]);
  spring = spring_element (1, 1, 1, [law_code('Power') 1 3]);
  list = {integrator, typed(1, 1), spring};
  if register, list = registered (list); end
  run_newmark (list, ones (1, 1), zeros (1, 1), -2 * ones (1, 1), mem, out);
  u = out.def;
end

function test_duffing_oscillator_keeps_its_exact_period ()
  for register = [false true]
    u = duffing (200, register);
    expect_equal (u, [0 -1 1], 1.2e-4);
  end
  c = published ('Free vibration of a Duffing oscillator', ...
                 'M. Abramowitz and I. A. Stegun, Handbook of Mathematical Functions, 1964, 17.1 (period 4.7680220291)', ...
                 {'Power', 'initial state', 'outputs at chosen times'});
  expect_published (c, {'u at T/4', 'u at T/2', 'u at T'}, [0 -1 1], u, 1.2e-4);
end

function test_duffing_oscillator_improves_with_the_step ()
  coarse = abs (duffing (200, false) - [0 -1 1]);
  fine = abs (duffing (800, false) - [0 -1 1]);
  if ~all (fine < coarse / 3), error ('%s at 200 steps, %s at 800', mat2str (coarse, 3), mat2str (fine, 3)); end
end

function test_cell_list_and_registered_handles_give_the_same_bits ()
  expect_equal (duffing (200, true), duffing (200, false));
  expect_equal (manufactured (0.02, true), manufactured (0.02, false));
end
