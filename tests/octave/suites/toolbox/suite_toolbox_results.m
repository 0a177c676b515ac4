function tests = suite_toolbox_results ()
  use_toolbox ();
  tests = localfunctions ();
end

function [model, res] = shaken (scheme, varargin)
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 2]), varargin{:});
  load = {qn.load_at(model, 2), @(t) 50 * sin(30 * t); qn.load_at(model, 1), @(t) 20 * (t < 0.05)};
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1500, 'load', load, 'scheme', scheme, 'v0', [0.3; 0]));
end

function test_velocities_are_those_of_the_run ()
  for scheme = {'average', 'linear', {'damped', 0.8}}
    for damping = {{'damping', 0.02}, {'C', [30 0; 0 0]}}
      [model, res] = shaken (scheme{1}, damping{1}{:});
      [v, a] = qn.velocity (res, model.shapes);
      expect_equal (v(:, end), model.shapes * res.final.v, 1e-11);
      expect_equal (a(:, end), model.shapes * res.final.a, 1e-9);
      part = qn.run (res.sim, 'piece', 700, 'stop', @(r) true);
      expect_equal (v(:, 701), model.shapes * part.final.v, 1e-11);
    end
  end
end

function test_a_linear_run_with_average_acceleration_balances_to_rounding ()
  [model, res] = shaken ('average', 'damping', 0.02);
  e = qn.energies (res);
  expect_equal (max (abs (e.residual)) / max (e.work) < 1e-10, true);
  if e.damped(end) < 0.5 * e.work(end), error ('hardly anything was damped'); end
  damped = getfield (qn.energies (qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1500, 'scheme', {'damped', 0.5}, 'q0', [0; 1]))), 'residual');
  if damped(end) > -1e-3, error ('numerical damping does not show'); end
end

function test_the_error_of_the_energy_balance_falls_with_the_step ()
  model = qn.modal (1e4, 1, 'damping', 0.01);
  elements = {qn.gap('gap', 1e-3, 'stiffness', 1e5), qn.observe(model, 1); qn.cubic('stiffness', 1e9), qn.observe(model, 1); ...
              qn.slider('slip', 5, 'stiffness', 1e5), qn.observe(model, 1); ...
              qn.zener('stiffness', 100, 'spring', 3e3, 'damper', 30), qn.observe(model, 1)};
  off = zeros (1, 3);
  steps = [4e-5 2e-5 1e-5];
  for k = 1:3
    res = qn.run (qn.simulation (model, 'step', steps(k), 'until', 0.5, 'v0', 0.5, 'elements', elements));
    e = qn.energies (res);
    off(k) = max (abs (e.residual)) / e.kinetic(1);
  end
  if off(1) > 0.02 || off(2) > 0.6 * off(1) || off(3) > 0.6 * off(2), error ('energy errors %s', mat2str (off)); end
  d = qn.dissipated (res);
  expect_equal (numel (d), 4);
  expect_equal ([abs(d(1).dissipated(end)), abs(d(2).dissipated(end))] < 1e-3 * e.kinetic(1), [true true]);
  if any ([d(3).dissipated(end), d(4).dissipated(end)] < 0.05 * e.kinetic(1)), error ('friction and damper dissipate nothing'); end
  falls = diff (d(3).dissipated);
  if any (falls < -1e-5), error ('a slider gives energy back'); end
end

function test_results_with_steps_left_out_say_what_they_cannot_give ()
  model = qn.modal (1, 1);
  res = qn.run (qn.simulation (model, 'step', 0.1, 'steps', 100, 'every', 2, 'v0', 1));
  expect_error (@() qn.velocity (res, 1), 'qn:input', '~keeps 51 of 101 steps');
  expect_error (@() qn.energies (res), 'qn:input', '~keeps 51 of 101 steps');
  part = qn.run (qn.simulation (model, 'step', 0.1, 'steps', 100, 'v0', 1), 'piece', 10, 'stop', @(r) true);
  expect_error (@() qn.velocity (part, 1), 'qn:input', '~qn.resume');
end

function test_displacements_come_from_rows_or_from_one_number ()
  [model, res] = shaken ('average');
  expect_equal (qn.displacement (res, 2), model.shapes(2, :) * res.q);
  expect_equal (qn.displacement (res, qn.observe (model, [2 1])), model.shapes([2 1], :) * res.q);
  expect_error (@() qn.displacement (res, [1 2 3]), 'qn:input', '~"C"\(3\) is 3; degrees of freedom are numbered from 1 to 2');
end

function test_a_degree_of_freedom_that_a_model_of_one_mode_has_not_is_no_row ()
  % With one mode any number could be a row: 2.8 times the displacement was observed without a word.
  model = qn.modal (5e3, 2);
  expect_error (@() qn.impl.observation_rows (model, 2, 'here: '), 'qn:input', ...
                'here: "C"(1) is 2; degrees of freedom are numbered from 1 to 1. If it is a modal value, give it sparse');
  expect_error (@() qn.impl.observation_rows (model, -1, 'here: '), 'qn:input', '~"C"\(1\) is -1');
  expect_equal (qn.impl.observation_rows (model, sparse (2), 'here: '), 2);
  expect_equal (qn.impl.observation_rows (model, 1, 'here: '), qn.observe (model, 1));
  heavy = qn.modal (5e3, 0.25);
  expect_equal (qn.impl.observation_rows (heavy, qn.observe (heavy, 1, 3), 'here: '), 6);
  expect_equal (qn.impl.observation_rows (heavy, 0, 'here: '), 0);
  two = qn.modal (5e3 * [2 -1; -1 1], 2 * eye (2), 'modes', 1);
  expect_error (@() qn.impl.observation_rows (two, 3, 'here: '), 'qn:input', '~"C"\(1\) is 3; degrees of freedom are numbered from 1 to 2');
end

function test_contacts_are_listed_with_their_impulse ()
  t = 0:1e-4:1;
  c = qn.contacts (t, 50 * sin (20 * t));
  expect_equal (numel (c), 7);
  expect_equal ([c(1:6).duration], pi / 20 * ones (1, 6), 2e-4);
  expect_equal ([c(1:6).impulse], 5 * [1 -1 1 -1 1 -1], 1e-3);
  expect_equal ([c(1:6).peak], 50 * [1 -1 1 -1 1 -1], 1e-6);
  expect_equal ([c(1:3).start], pi / 20 * (0:2), 2e-4);
  expect_equal (numel (qn.contacts (t, zeros (size (t)))), 0);
  last = qn.contacts ([0 1 2], [0 0 3]);
  expect_equal (last.duration, 1);
  sparsely = @(varargin) qn.run (qn.simulation (qn.modal (1e4, 1), 'step', 1e-3, 'steps', 200, 'v0', 1, 'elements', ...
                                                {qn.stop('gap', 1e-3, 'stiffness', 1e4), 1}, varargin{:}), 'progress', false);
  few = sparsely ('every', 4);
  expect_in (regexprep (evalc ('c = qn.contacts (few);'), '\s+', ' '), ...
             ['qn.contacts: the result keeps 51 of 201 steps: contacts between them are missed, and what is found of the others lasts ' ...
              'whole parts of 0.004 s']);
  whole = sparsely ();
  expect_equal (evalc ('c = qn.contacts (whole);'), '');
  uneven = sparsely ('times', [0 0.01 0.1]);
  expect_error (@() qn.contacts (uneven), 'qn:input', '~qn.contacts: "TIME" must ascend in equal steps');
  expect_error (@() qn.contacts (t, 1), 'qn:input', '~"FORCE" must be 10001 values, one a time');
end

function test_a_spectrum_shows_amplitudes ()
  t = (0:999) * 1e-3;
  x = [2 * sin(2 * pi * 50 * t) + 7; 3 * cos(2 * pi * 120 * t)];
  for window = {'hann', 'none'}
    [f, a] = qn.spectrum (t, x, 'window', window{1});
    expect_equal (f([51 121]), [50 120], 1e-12);
    expect_equal (a(1, 51), -2i, 1e-10);
    expect_equal (a(2, 121), 3, 1e-10);
    expect_equal (abs (a(:, 1)), [0; 0], 1e-10);
  end
  % As the help says: halfway between two frequencies (closed forms 8 / (3 pi) and 2 / pi).
  [f, a] = qn.spectrum (t, sin (2 * pi * 50.5 * t), 'window', 'hann');
  expect_equal (max (abs (a)), 8 / (3 * pi), 1e-3);
  [f, a] = qn.spectrum (t, sin (2 * pi * 50.5 * t), 'window', 'none');
  expect_equal (max (abs (a)), 2 / pi, 5e-3);
  [f, a] = qn.spectrum (t, x(1, :), 'window', 'none', 'mean', 'keep');
  expect_equal (real (a(1)), 7, 1e-10);
  % Parseval: the mean square is half the sum of squared amplitudes.
  randn ('twister', 42);
  y = randn (1, 501);
  [f, a] = qn.spectrum ((0:500) * 1e-3, y, 'window', 'none');
  expect_equal (sum (abs (a(2:end)) .^ 2) / 2, mean ((y - mean (y)) .^ 2), 1e-12);
  expect_error (@() qn.spectrum ([0 1 3], [1 2 3]), 'qn:input', '~equal steps');
end

% Undamped oscillator under a half sine of duration d: acceleration w^2 times the relative motion, in closed form during and after.
function top = half_sine_peak (w, d)
  p = pi / d;
  r = p / w;
  t = linspace (0, d, 20001);
  during = (sin (p * t) - r * sin (w * t)) / (1 - r ^ 2);
  rate = (p * cos (p * d) - r * w * cos (w * d)) / (1 - r ^ 2);
  top = max ([abs(during), sqrt(during(end) ^ 2 + (rate / w) ^ 2)]);
end

function test_the_shock_response_spectrum_of_a_half_sine ()
  d = 0.011;
  t = 0:1e-5:0.03;
  acc = 100 * sin (pi * t / d) .* (t < d);
  hertz = [5 20 50 73 90 150 400];
  wanted = zeros (size (hertz));
  for k = 1:numel (hertz), wanted(k) = 100 * half_sine_peak (2 * pi * hertz(k), d); end
  expect_equal (qn.srs (t, acc, hertz, Inf), wanted, 1e-3);
  [a, positive, negative] = qn.srs (t, acc, hertz, 10);
  expect_equal (a, max (positive, negative));
  if any (a > wanted * 1.0001), error ('damping raises the spectrum'); end
  if any (negative(1:3) < 0.5 * positive(1:3)), error ('the residual response is missing'); end
end

function test_the_shock_response_spectrum_agrees_with_the_module ()
  h = 1e-4;
  t = (0:4000) * h;
  acc = 30 * sin (2 * pi * 15 * t) .* exp (-5 * t);
  f = 12;
  model = qn.modal ((2 * pi * f) ^ 2, 1, 'damping', 0.05);
  res = qn.run (qn.simulation (model, 'step', h, 'steps', 4000, 'load', {qn.base(model, 1), acc}));
  [v, a] = qn.velocity (res, 1);
  expect_equal (qn.srs (t, acc, f, 10), max (abs (a + acc)), 1e-3);
end
