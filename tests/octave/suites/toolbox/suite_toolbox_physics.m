function tests = suite_toolbox_physics ()
  use_toolbox ();
  tests = localfunctions ();
end

% Free oscillator with Coulomb friction: every half cycle ends 2 F / k nearer to the middle, in the period without friction.
function test_coulomb_friction_takes_the_same_off_every_half_cycle ()
  k = 100;
  model = qn.modal (k, 1);
  slider = {qn.slider('slip', 1, 'stiffness', 1e6), qn.observe(model, 1)};
  res = qn.run (qn.simulation (model, 'step', 5e-5, 'until', 2.6, 'u0', 0.2, 'elements', slider));
  x = qn.displacement (res, 1);
  turns = 1 + find (diff (sign (diff (x))) ~= 0);
  turns = turns(abs (x(turns)) > 0.02);
  c = published ('Free vibration with Coulomb friction', ...
                 'closed form (J. P. Den Hartog, Mechanical Vibrations, 4th ed., 1956): 2 F/k are lost every half cycle', {'DahlC', ...
                 'initial state'});
  expect_published (c, arrayfun (@(k) sprintf ('amplitude after %d half cycles [m]', k), 1:8, 'uniformoutput', false), ...
                    0.2 - 0.02 * (1:8), abs (x(turns(1:8))), 1e-4);
  expect_equal (diff (res.time(turns(1:8))), pi / 10 * ones (1, 7), 1e-3);
  d = qn.dissipated (res);
  path = sum (abs (diff (x)));
  expect_equal (d(1).dissipated(end) / path, 1, 2e-3);
end

% x'' + x + x^3 = 0 from rest at A: w = pi sqrt (1 + A^2) / (2 K (m)), m = A^2 / (2 (1 + A^2)).
function w = duffing (a)
  w = pi * sqrt (1 + a .^ 2) ./ (2 * ellipke (a .^ 2 ./ (2 * (1 + a .^ 2))));
end

function test_the_backbone_of_a_duffing_oscillator ()
  model = qn.modal (1, 1);
  a = 0.05:0.05:3;
  hertz = qn.backbone (model, {qn.cubic('stiffness', 1), qn.observe(model, 1)}, a);
  expect_equal (2 * pi * hertz, duffing (a), 1e-5);
  c = published ('Backbone of a Duffing oscillator', ...
                 'complete elliptic integral: M. Abramowitz and I. A. Stegun, Handbook of Mathematical Functions, 1964, 17.3', ...
                 {'Power', 'harmonic balance'});
  expect_published (c, {'angular frequency at A = 1 [rad/s]', 'at A = 2', 'at A = 3'}, duffing (a([20 40 60])), ...
                    2 * pi * hertz([20 40 60]), 1e-5);
  one = qn.backbone (model, {qn.cubic('stiffness', 1), qn.observe(model, 1)}, a, 'harmonics', 1);
  expect_equal (2 * pi * one, sqrt (1 + 0.75 * a .^ 2), 1e-10);
end

function test_free_duffing_motion_has_the_frequency_of_the_backbone ()
  model = qn.modal (1, 1);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'until', 60, 'u0', 1.5, 'elements', {qn.cubic('stiffness', 1), qn.observe(model, 1)}));
  x = res.q;
  up = find (x(1:end - 1) < 0 & x(2:end) >= 0);
  t = res.time(up) - x(up) ./ (x(up + 1) - x(up)) * 1e-3;
  c = published ('Frequency of a free Duffing motion', ...
                 'complete elliptic integral: M. Abramowitz and I. A. Stegun, Handbook of Mathematical Functions, 1964, 17.3', {'Power', ...
                 'initial state'});
  expect_published (c, 'angular frequency at A = 1.5 [rad/s]', duffing (1.5), 2 * pi / mean (diff (t)), 1e-5);
end

% Jump and fold: between the two answers of a hardening resonance there is a third one. First-harmonic formula: ((1 - w^2 + 3/4 A^2)^2 +
% (c w)^2) A^2 = F^2.
function test_harmonic_balance_follows_the_curve_around_its_folds ()
  model = qn.modal (1, 1, 'damping', 0.05);
  r = qn.harmonic (model, 0.2, {qn.cubic('stiffness', 1), qn.observe(model, 1)}, [0.08 0.35], 'harmonics', 1);
  w = 2 * pi * r.hertz;
  a = sqrt (r.cosines(1, :, 2) .^ 2 + r.sines(1, :, 2) .^ 2);
  expect_equal (((1 - w .^ 2 + 0.75 * a .^ 2) .^ 2 + (0.1 * w) .^ 2) .* a .^ 2, 0.04 * ones (size (w)), 1e-9);
  if ~any (diff (w) < 0), error ('the curve does not fold'); end
  if r.hertz(end) < 0.35, error ('the curve ends at %g Hz', r.hertz(end)); end
end

% The first step from 0.05 towards 100 Hz would lead past the resonance, and over 0 Hz; a light damping makes the curve long.
function test_harmonic_balance_neither_jumps_over_a_resonance_nor_turns_round ()
  small = {'harmonics', 1, 'samples', 8};
  for zeta = [0.05 1e-3]
    model = qn.modal (1, 1, 'damping', zeta);
    for range = [0.05 100; 0.3 0.05].'
      [r, said] = followed (model, 1, {}, range.', small{:});
      expect_equal (said, '');
      w = 2 * pi * r.hertz;
      a = sqrt (r.cosines(1, :, 2) .^ 2 + r.sines(1, :, 2) .^ 2);
      expect_equal (a, 1 ./ sqrt ((1 - w .^ 2) .^ 2 + (2 * zeta * w) .^ 2), 1e-9 / zeta);
      if max (a) < 0.98 / (2 * zeta), error ('the highest point is %g of %g', max (a), 0.5 / zeta); end
      expect_equal (all (diff (r.hertz) * diff (range) > 0), true);
      expect_equal ((r.hertz(end) - range(2)) * diff (range) >= 0, true);
    end
  end
end

function test_harmonic_balance_says_where_its_curve_ends_early_and_what_it_steps_over ()
  small = {'harmonics', 1, 'samples', 8};
  model = qn.modal (diag ([1 4 9]), eye (3), 'damping', 1e-3);
  [r, said] = followed (model, [1; 1; 1], {}, [0.05 1], small{:}, 'points', 7);
  expect_equal (numel (r.hertz), 7);
  expect_in (said, sprintf ('the curve ends at %.6g Hz, where 1 Hz was wanted: it has 7 "points": allow more', r.hertz(7)));
  [r, said] = followed (model, [1; 1e-4; 1], {}, [0.05 0.45], small{:});
  expect_in (said, 'the curve steps over the resonance at 0.31831 Hz');
  expect_in (said, ': mode 2 answers there with ');
  [r, said] = followed (model, [0; 1e-4; 0], {}, [0.3 0.34], small{:});
  expect_equal (said, '');
  a = sqrt (r.cosines(2, :, 2) .^ 2 + r.sines(2, :, 2) .^ 2);
  expect_equal (max (a), 1e-4 / (2 * 1e-3 * 4), 3e-4);
  expect_error (@() qn.harmonic (model, zeros (3, 1), {}, [1 2]), 'qn:input', 'qn.harmonic: "LOAD" is zero: there is no response to it. Of free motion see qn.backbone');
end

% A curve of qn.harmonic and what was said of it.
function [r, said] = followed (varargin)
  r = [];
  said = regexprep (evalc ('r = qn.harmonic (varargin{:});'), '\s+', ' ');
end

function test_harmonic_balance_agrees_with_the_steady_end_of_a_simulation ()
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'damping', 0.05);
  push = qn.load_at (model, 2) * 40;
  stop = {qn.gap('gap', 2e-3, 'stiffness', 2e4), qn.observe(model, 2)};
  f = 8;
  r = qn.harmonic (model, push, stop, [2 f], 'harmonics', 12, 'samples', 512);
  if abs (r.hertz(end) - f) > 1, error ('the curve ends at %g Hz', r.hertz(end)); end
  f = r.hertz(end);
  h = 1 / f / 2000;
  res = qn.run (qn.simulation (model, 'step', h, 'steps', 60 * 2000, 'load', {push, @(t) cos(2 * pi * f * t)}, 'elements', stop));
  late = res.q(:, end - 1999:end);
  expect_equal (max (abs (late), [], 2) ./ r.amplitude(:, end), [1; 1], 5e-3);
end

% Mass on a Zener element under a harmonic load: amplitude F / |k(w) - m w^2|.
function test_a_mass_on_a_zener_element_answers_with_its_dynamic_stiffness ()
  model = qn.modal (1, 2);
  isolator = qn.zener ('stiffness', 2e3, 'spring', 4e3, 'damper', 50);
  for w = [15 40 70]
    sim = qn.simulation (model, 'step', 1e-4, 'until', 4, 'load', {qn.load_at(model, 1), @(t) 10 * sin(w * t)}, ...
                         'elements', {isolator, qn.observe(model, 1)});
    x = qn.displacement (qn.run (sim), 1);
    branch = 4e3 * (1i * w * 50) / (4e3 + 1i * w * 50);
    c = published ('Mass on a Zener element under a harmonic load', ...
                   'closed form: complex modulus of the standard linear solid', ...
                   {'Maxw', 'loads'});
    exact = abs (10 / (1 + 2e3 + branch - 2 * w ^ 2));
    expect_published (c, sprintf ('amplitude at %g rad/s [mm]', w), 1e3 * exact, 1e3 * max (abs (x(end - 5000:end))), 3e-3 * 1e3 * exact);
  end
end

% Elastic bounce: in contact for half a period, and thrown back with the speed of arrival.
function test_a_free_mass_bounces_off_a_stop ()
  model = qn.modal (0, 2);
  stop = {qn.gap('gap', 0.1, 'stiffness', 2e4), qn.observe(model, 1)};
  res = qn.run (qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'v0', 3, 'elements', stop));
  c = qn.contacts (res, 1);
  expect_equal (numel (c), 1);
  exact = [pi * sqrt(2 / 2e4), 3 * sqrt(2 * 2e4), 2 * 2 * 3];
  bounce = published ('Elastic bounce off a stop', 'closed form: half a period of the mass on the stop', {'Table', 'contacts'});
  expect_published (bounce, {'duration [s]', 'peak force [N]', 'impulse [N s]'}, exact, [c.duration c.peak c.impulse], ...
                    exact .* [2e-3 1e-3 1e-3]);
  v = qn.velocity (res, 1);
  expect_equal (v(end), -3, 1e-3);
end

% Energy of a cycle of an Iwan bank below full slip: k^2 X^3 / (3 Fs).
function test_an_iwan_joint_dissipates_with_the_cube_of_the_amplitude ()
  joint = qn.iwan ('slip', 100, 'stiffness', 1e6, 'sliders', 30);
  n = 1000;
  t = (0:2 * n) / n;
  for amplitude = [0.6e-4 1.2e-4]
    x = amplitude * sin (2 * pi * t);
    f = qn.force (joint, x, [0, diff(x)] * n, 1 / n);
    cycle = n + 1:2 * n + 1;
    energy = sum ((f(cycle(1:end - 1)) + f(cycle(2:end))) / 2 .* diff (x(cycle)));
    c = published ('Energy of an Iwan joint', ['W. D. Iwan, J. Applied Mechanics 33, 1966: parallel-series model with evenly spread ' ...
                   'slip forces, k^2 X^3/(3 Fs) a cycle'], {'DahlC', 'memory of laws'});
    exact = 1e12 * amplitude ^ 3 / 300;
    expect_published (c, sprintf ('energy of a cycle at %g mm [mJ]', 1e3 * amplitude), 1e3 * exact, 1e3 * energy, 10 * exact);
  end
end

function test_statics_of_a_stop_and_of_a_cubic_spring ()
  model = qn.modal (1e4, 2);
  q = qn.static (model, qn.load_at (model, 1) * 300, {qn.gap('gap', 0.01, 'stiffness', 1e5), qn.observe(model, 1)});
  c = published ('Statics of a stop and of a cubic spring', 'closed form', {'Table', 'Power', 'statics'});
  expect_published (c, 'displacement against the stop [m]', 1300 / 1.1e5, model.shapes * q, 1e-10);
  [q, info] = qn.static (model, qn.load_at (model, 1) * 2e4, {qn.cubic('stiffness', 1e4), qn.observe(model, 1)});
  expect_published (c, 'displacement of the cubic spring [m]', 1, model.shapes * q, 1e-9);
  expect_equal (info.forces, 1e4, 1e-5);
  chain = qn.modal (1e4 * [2 -1; -1 1], eye (2));
  q = qn.static (chain, qn.load_at (chain, 2) * 500, {qn.stop('gap', 0.01, 'stiffness', 1e6), qn.observe(chain, [2 1], [1 -1])});
  u = chain.shapes * q;
  expect_equal (u, [0.05; 0.05 + (500 + 1e4) / (1e6 + 1e4)], 1e-9);
  expect_error (@() qn.static (model, 1, {qn.slider('slip', 1, 'stiffness', 1), 1}), 'qn:input', '~has a memory \(dahl\)');
end
