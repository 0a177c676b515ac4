% Structures with published or closed-form answers, run through the toolbox.
function tests = suite_published_structures ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_the_linear_acceleration_method_steps_as_printed ()
  c = published ('Half-cycle sine, linear acceleration', 'A. K. Chopra, Dynamics of Structures, 4th ed., 2012, example 5.4', ...
                 {'linear acceleration', 'modal damping', 'loads'});
  model = qn.modal (10, 0.2533, 'damping', 0.05);
  load = {qn.load_at(model, 1), @(t) 10 * sin(pi * t / 0.6) .* (t < 0.65)};
  res = qn.run (qn.simulation (model, 'step', 0.1, 'steps', 10, 'load', load, 'scheme', 'linear'));
  u = qn.displacement (res, 1);
  names = arrayfun (@(t) sprintf ('displacement at %.1f s [in]', t), 0.1:0.1:1, 'uniformoutput', false);
  expect_published (c, names, [0.0300 0.2193 0.6166 1.1130 1.4782 1.4625 0.9514 0.1273 -0.6954 -1.2208], u(2:end), 1e-4);
end

% Undamped free vibration: one step turns the phase by 2 atan (w h / 2).
function test_average_acceleration_lengthens_the_period_as_known ()
  c = published ('Period of an undamped mode with average acceleration', 'T. J. R. Hughes, The Finite Element Method, 1987, chapter 9', ...
                 {'average acceleration', 'initial state'});
  for wh = [0.3 1 3]
    q = getfield (qn.run (qn.simulation (qn.modal (1, 1), 'step', wh, 'steps', 200, 'q0', 1)), 'q');
    x = q(2:200).' \ (q(1:199) + q(3:201)).';
    expect_published (c, sprintf ('phase gained in a step at w h = %g [rad]', wh), 2 * atan (wh / 2), acos (x / 2), 1e-12);
  end
end

% What is left of a mode far above the step after one step is rho, with alternating sign after one where both eigenvalues meet.
function test_numerical_damping_has_its_ratio ()
  c = published ('High modes under numerical damping', ...
                 'T. J. R. Hughes, The Finite Element Method, 1987, chapter 9: (3 - 2 gamma)/(1 + 2 gamma) at beta = (gamma + 1/2)^2/4', ...
                 {'numerical damping'});
  for rho = [0.5 0.8]
    q = getfield (qn.run (qn.simulation (qn.modal (1e8, 1), 'step', 1, 'steps', 60, 'q0', 1, 'scheme', {'damped', rho})), 'q');
    % q(k+1) = s q(k) - p q(k-1): p is the product of both eigenvalues.
    x = [q(10:40).', -q(9:39).'] \ q(11:41).';
    expect_published (c, sprintf ('amplitude ratio of a step, %g wanted', rho), rho, sqrt (x(2)), 1e-4);
  end
end

% Free vibration from a displacement and a velocity, in one run and continued.
function test_damped_free_vibration_and_its_continuation ()
  c = published ('Damped free vibration, continued', 'closed form (S. S. Rao, Mechanical Vibrations, 5th ed., 2011, chapter 2)', ...
                 {'initial state', 'modal damping', 'restart', 'outputs at chosen times'});
  w = 20;
  zeta = 0.1;
  wd = w * sqrt (1 - zeta ^ 2);
  exact = @(t) exp (-zeta * w * t) .* (0.01 * cos (wd * t) + (0.3 + zeta * w * 0.01) / wd * sin (wd * t));
  model = qn.modal (w ^ 2, 1, 'damping', zeta);
  first = qn.run (qn.simulation (model, 'step', 1e-4, 'until', 0.25, 'u0', 0.01, 'v0', 0.3, 'times', [0.1 0.25]));
  second = qn.run (qn.simulation (model, 'step', 1e-4, 'until', 0.6, 'start', first, 'times', [0.4 0.6]));
  t = [0.1 0.25 0.4 0.6];
  names = arrayfun (@(t) sprintf ('displacement at %g s [m]', t), t, 'uniformoutput', false);
  expect_published (c, names, exact (t), [first.q second.q], 1e-6);
end

% NAFEMS test 5H: simply supported deep beam under a uniform harmonic load, with shear (kappa 0.85) and rotary inertia.
function [k, m, f] = deep_beam (n)
  e = 2e11;
  g = e / 2.6;
  l = 10 / n;
  ei = e * 16 / 12;
  ga = 0.85 * g * 4;
  phi = 12 * ei / (ga * l ^ 2);
  ke = ei / (l ^ 3 * (1 + phi)) * [12 6*l -12 6*l; 6*l (4+phi)*l^2 -6*l (2-phi)*l^2; -12 -6*l 12 -6*l; 6*l (2-phi)*l^2 -6*l (4+phi)*l^2];
  me = 8000 * l / 6 * kron ([2 1; 1 2], diag ([4, 16 / 12]));
  k = zeros (2 * n + 2);
  m = k;
  f = zeros (2 * n + 2, 1);
  for j = 1:n
    at = 2 * j - 1:2 * j + 2;
    k(at, at) = k(at, at) + ke;
    m(at, at) = m(at, at) + me;
    f(at) = f(at) + 1e6 * [l / 2; 0; l / 2; 0];
  end
  free = [2:2 * n, 2 * n + 2];
  k = k(free, free);
  m = m(free, free);
  f = f(free);
end

function test_deep_beam_under_a_harmonic_load ()
  c = published ('Deep simply supported beam under a harmonic load', 'NAFEMS, Selected Benchmarks for Forced Vibration, 1989, test 5H', ...
                 {'modes', 'modal damping', 'loads'});
  n = 60;
  [k, m, f] = deep_beam (n);
  model = qn.modal (k, m, 'modes', 12, 'damping', 0.02);
  expect_published (c, 'frequency of the first mode [Hz]', 42.65, model.hertz(1), 0.05);
  hertz = 42.65;
  h = 1 / hertz / 100;
  sim = qn.simulation (model, 'step', h, 'steps', 9000, 'load', {model.shapes.' * f, @(t) sin(2 * pi * hertz * t)});
  u = qn.displacement (qn.run (sim), qn.observe (model, n));
  expect_published (c, 'amplitude at mid-span at 42.65 Hz [mm]', 13.45, 1e3 * max (abs (u(end - 400:end))), 0.07);
end

function [k, m] = chain ()
  k = full (spdiags (ones (8, 1) * [-1 2 -1], -1:1, 8, 8)) * 1e5;
  m = 10 * eye (8);
end

function hertz = chain_frequencies ()
  hertz = sqrt (1e5 / 10) / pi * cos ((9 - (1:8)) / 9 * pi / 2);
end

function test_chain_of_eight_masses ()
  c = published ('Chain of eight masses between walls', 'Code_Aster validation manual, SDLD02 (closed form)', {'modes'});
  [k, m] = chain ();
  model = qn.modal (k, m);
  expect_published (c, 'frequency of mode [Hz]', chain_frequencies (), model.hertz, 1e-9);
end

% The forces of inertia and of the springs in a natural mode, each from a handle, are in the ratio of its frequency squared.
function test_inertia_and_stiffness_in_the_modes_of_a_chain ()
  c = published ('Inertia and stiffness of a chain in its modes', 'Code_Aster validation manual, SDLD02 (closed form)', ...
                 {'mass handle', 'stiffness handle'});
  [k, m] = chain ();
  wanted = chain_frequencies ();
  for mode = [1 5]
    shape = sin (mode * (1:8).' * pi / 9);
    handles = registered ({typed(1, k), typed(2, m)});
    r = zeros (8, 2);
    springs = zeros (8, 1);
    quarn ('residual', springs, handles, shape + 0, zeros (8, 1), zeros (8, 1));
    inertia = zeros (8, 1);
    quarn ('residual', inertia, handles, zeros (8, 1), zeros (8, 1), shape + 0);
    hertz = sqrt (norm (springs) / norm (inertia)) / (2 * pi);
    expect_published (c, sprintf ('frequency from the forces [Hz], mode %d', mode), wanted(mode), hertz, 1e-9);
  end
end

function test_three_masses_on_a_base_that_accelerates ()
  c = published ('Three masses on a base with an acceleration of 2e5 t^2', 'Code_Aster validation manual, SDLD04; modal closed form', ...
                 {'base motion', 'modes'});
  model = qn.modal (1000 * [2 -1 0; -1 2 -1; 0 -1 1], eye (3));
  res = qn.run (qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'base', {ones(3, 1), @(t) 2e5 * t .^ 2}, 'times', [0.05 0.1]));
  u = qn.displacement (res, [1 2 3]');
  expect_published (c, 'relative displacement at 0.05 s [m] of mass', [-9.62100782e-2 -1.03819473e-1 -1.04156870e-1], u(:, 1), 1e-6);
  expect_published (c, 'relative displacement at 0.1 s [m] of mass', [-1.26439952 -1.60175036 -1.65906080], u(:, 2), 1e-6);
end

% Unbalance: a load that turns, of amplitude e W^2 for each kilogram.
function test_orbit_of_an_unbalanced_jeffcott_rotor ()
  c = published ('Orbit of an unbalanced Jeffcott rotor', ...
                 'closed form (G. Genta, Dynamics of Rotating Systems, 2005): h^2/sqrt ((1 - h^2)^2 + (2 zeta h)^2)', {'several loads', ...
                 'modal damping'});
  model = qn.modal (eye (2), eye (2), 'damping', 0.05);
  speeds = [0.5 1 1.1 2];
  wanted = [.33259505 10 5.10407694 1.33038021];
  for k = 1:4
    w = speeds(k);
    h = 2 * pi / w / 400;
    turning = {qn.load_at(model, 1), @(t) w ^ 2 * cos(w * t); qn.load_at(model, 2), @(t) w ^ 2 * sin(w * t)};
    u = qn.displacement (qn.run (qn.simulation (model, 'step', h, 'until', 200, 'load', turning)), qn.observe (model, [1 2]));
    expect_published (c, sprintf ('radius over eccentricity at %g of the critical speed', w), wanted(k), norm (u(:, end)), ...
                      2e-3 * wanted(k));
  end
end

% At the two fixed points the damping of the absorber does not matter; at its best tuning both are at sqrt (1 + 2/mu).
function test_a_tuned_absorber_has_its_fixed_points ()
  c = published ('Tuned absorber: amplitude at the fixed points', ...
                 'J. P. Den Hartog, Mechanical Vibrations, 4th ed., 1956, chapter 3: sqrt (1 + 2/mu)', ...
                 {'full damping matrix', 'loads'});
  mu = 0.05;
  tuned = 1 / (1 + mu);
  zeta = sqrt (3 * mu / (8 * (1 + mu) ^ 3));
  ka = mu * tuned ^ 2;
  ca = 2 * zeta * mu;
  model = qn.modal ([1 + ka, -ka; -ka, ka], diag ([1 mu]), 'C', ca * [1 -1; -1 1]);
  names = {'first', 'second'};
  for k = 1:2
    w = sqrt ((1 + (-1) ^ k * sqrt (mu / (2 + mu))) / (1 + mu));
    h = 2 * pi / w / 1000;
    u = qn.displacement (qn.run (qn.simulation (model, 'step', h, 'until', 250, 'load', {qn.load_at(model, 1), @(t) sin(w * t)})), ...
                         qn.observe (model, 1));
    expect_published (c, sprintf ('dynamic magnification at the %s fixed point', names{k}), sqrt (1 + 2 / mu), ...
                      max (abs (u(end - 1000:end))), ...
                      1e-4);
  end
end

function test_rayleigh_damping_of_each_mode ()
  c = published ('Damping ratios of Rayleigh damping', ...
                 'A. K. Chopra, Dynamics of Structures, 4th ed., 2012, section 11.4: alpha/(2 w) + beta w/2', ...
                 {'Rayleigh damping', 'initial state'});
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'rayleigh', [2 4e-4]);
  res = qn.run (qn.simulation (model, 'step', 2e-5, 'until', 0.6, 'dq0', [1; 1]));
  for k = 1:2
    q = res.q(k, :);
    top = find (q(2:end - 1) > q(1:end - 2) & q(2:end - 1) >= q(3:end)) + 1;
    decrement = log (q(top(1)) / q(top(3))) / 2;
    w = model.w(k);
    expect_published (c, sprintf ('damping ratio of mode %d', k), 2 / (2 * w) + 4e-4 * w / 2, ...
                      decrement / sqrt (4 * pi ^ 2 + decrement ^ 2), 1e-5);
  end
end

function test_energy_of_a_cycle_in_a_viscous_damper ()
  c = published ('Energy of a steady cycle with viscous damping', ...
                 'A. K. Chopra, Dynamics of Structures, 4th ed., 2012, section 3.8: 2 pi zeta (w/wn) k u0^2', {'energies', ...
                 'modal damping'});
  model = qn.modal (100, 1, 'damping', 0.1);
  w = 8;
  n = 2000;
  res = qn.run (qn.simulation (model, 'step', 2 * pi / w / n, 'steps', 60 * n, 'load', {qn.load_at(model, 1), @(t) sin(w * t)}));
  e = qn.energies (res);
  u0 = 1 / abs (100 - w ^ 2 + 2i * 0.1 * 10 * w);
  exact = 2 * pi * 0.1 * 0.8 * 100 * u0 ^ 2;
  expect_published (c, {'damped [J]', 'work of the load [J]'}, [exact exact], [e.damped(end) - e.damped(end - n), ...
                    e.work(end) - e.work(end - n)], ...
                    1e-4 * exact);
end

function test_step_with_a_rise_time ()
  c = published ('Overshoot after a step force with a rise time', ...
                 'A. K. Chopra, Dynamics of Structures, 4th ed., 2012, section 4.5: 1 + |sin (pi tr/T)|/(pi tr/T)', {'loads'});
  model = qn.modal (4 * pi ^ 2, 1);
  for rise = [0.5 1 1.5]
    load = {qn.load_at(model, 1), [0, rise, 10; 0, 4 * pi ^ 2, 4 * pi ^ 2]};
    u = qn.displacement (qn.run (qn.simulation (model, 'step', 1e-3, 'until', 5, 'load', load)), 1);
    expect_published (c, sprintf ('greatest over static displacement, tr/T = %g', rise), 1 + abs (sin (pi * rise)) / (pi * rise), ...
                      max (u), 1e-4);
  end
end

% Phase gained in a second by a point that turns in a circle.
function w = turning (res, x, y)
  z = qn.displacement (res, qn.observe (res.sim.model, x)) + 1i * qn.displacement (res, qn.observe (res.sim.model, y));
  w = mean (angle (z(2:end) ./ z(1:end - 1))) / res.sim.step;
end

% Free whirl in one mode: degrees of freedom x, slope in its plane, y, slope in its plane; z = x + i y.
function test_whirl_of_an_overhung_disk ()
  c = published ('Whirl of an overhung disk', ['frequency equation (k11 - m w^2)(k22 - Id w^2 + Ip W w) = k12^2: G. Genta, Dynamics of ' ...
                 'Rotating Systems, 2005'], {'gyroscopic matrix', 'initial state'});
  k = 2.1e11 * pi * 0.02 ^ 4 / 64 / 0.5 ^ 3 * [12, -3; -3, 1];
  m = diag ([5 0.02]);
  speed = 100 * pi;
  g = zeros (4);
  g(2, 4) = 0.04;
  g(4, 2) = -0.04;
  model = qn.modal (blkdiag (k, k), blkdiag (m, m), 'G', g, 'speed', speed);
  names = {'backward, first', 'forward, first', 'backward, second', 'forward, second'};
  wanted = [-76.23523 98.25782 -585.19988 1191.49582];
  for j = 1:4
    w = wanted(j);
    shape = [k(1, 2); w ^ 2 * m(1, 1) - k(1, 1)];
    shape = shape / norm (shape);
    sim = qn.simulation (model, 'step', 1e-3 / abs (w), 'steps', 3000, 'u0', [shape; 0; 0], 'v0', [0; 0; w * shape]);
    expect_published (c, sprintf ('%s whirl at 3000 rpm [rad/s]', names{j}), w, turning (qn.run (sim), 1, 3), 1e-5 * abs (w));
  end
end

% Cross-coupled stiffness q: m z'' + c z' + (k - i q) z = 0; above q = c w the forward whirl grows.
function test_growth_of_a_whirl_by_cross_coupled_stiffness ()
  c = published ('Whirl of a rotor with cross-coupled stiffness', 'closed form: roots of m s^2 + c s + k - i q = 0', ...
                 {'full stiffness matrix', 'modal damping', 'initial state'});
  w = 100;
  zeta = 0.02;
  for q = [200 400 600]
    root = -zeta * w + sqrt ((zeta * w) ^ 2 - w ^ 2 + 1i * q);
    model = qn.modal (w ^ 2 * eye (2), eye (2), 'damping', zeta, 'K', [0 q; -q 0]);
    sim = qn.simulation (model, 'step', 5e-5, 'until', 1, 'u0', [1; 0], 'v0', [real(root); imag(root)]);
    u = qn.displacement (qn.run (sim), qn.observe (model, [1 2]));
    expect_published (c, sprintf ('growth rate at q = %g N/m [1/s]', q), real (root), log (norm (u(:, end))), 1e-4);
  end
end
