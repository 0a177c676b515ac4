% Force laws with published or closed-form answers, run through the toolbox.
function tests = suite_published_laws ()
  use_toolbox ();
  tests = localfunctions ();
end

% Mass 1 kg at 1 m/s meets F = 1e6 d^1.5: the closed form follows from the energy, the duration is a beta function.
function test_elastic_impact_after_hertz ()
  c = published ('Elastic impact after Hertz', ...
                 ['closed form from the energy, the duration by a beta function (model: K. H. Hunt and F. R. E. Crossley, J. Applied ' ...
                  'Mechanics 42, 1975, without damping)'], {'Table', 'contacts'});
  d = linspace (0, 5e-3, 2001);
  model = qn.modal (0, 1);
  hertz = qn.law ('table', 'displacement', [-1, d], 'force', [0, 1e6 * d .^ 1.5]);
  res = qn.run (qn.simulation (model, 'step', 1e-6, 'until', 0.016, 'v0', 1, 'elements', {hertz, qn.observe(model, 1)}));
  hit = qn.contacts (res, 1);
  expect_published (c, {'depth [m]', 'greatest force [N]', 'duration [s]'}, [4.35275282e-3 287.174589 1.28113493e-2], ...
                    [max(res.q), hit.peak, hit.duration], [1e-8 1e-3 3e-6]);
end

% m x'' + c x' + k x = 0, its damper an element, and x'' + e x'|x'| + w^2 x = 0, whose first integral gives one turning point from another:
% (1 + 2 e a1) exp (-2 e a1) = (1 - 2 e a2) exp (2 e a2). A mass alone coasts as log (1 + e v0 t)/e.
function test_free_decay_with_linear_and_quadratic_damping ()
  c = published ('Free decay with linear and with quadratic damping', ...
                 ['closed form: exponential decay; turning points by the first integral of x'''' + e x''|x''| + w^2 x = 0 (the equation: ' ...
                  'A. H. Nayfeh and D. T. Mook, Nonlinear Oscillations, 1979)'], {'Damper', 'initial state'});
  w = 10;
  z = 0.05;
  model = qn.modal (w ^ 2, 1);
  row = qn.observe (model, 1);
  linear = {qn.damper('damping', 2 * z * w), row};
  r = qn.run (qn.simulation (model, 'step', 1e-5, 'until', 1, 'u0', 1, 'elements', linear), 'progress', false);
  wd = w * sqrt (1 - z ^ 2);
  exact = exp (-z * w) * (cos (wd) + z * w / wd * sin (wd));
  expect_published (c, {'linear: displacement after 1 s [m]'}, exact, r.q(end), 1e-5);
  e = 0.3;
  a = 1;
  for k = 1:4
    a(k + 1) = fzero (@(y) (1 + 2 * e * a(k)) * exp (-2 * e * a(k)) - (1 - 2 * e * y) * exp (2 * e * y), [1e-9, a(k)]);
  end
  quadratic = {qn.damper('damping', e, 'exponent', 2), row};
  r = qn.run (qn.simulation (model, 'step', 1e-5, 'until', 1.4, 'u0', 1, 'elements', quadratic), 'progress', false);
  at = find (diff (sign (diff (r.q))) ~= 0) + 1;
  names = arrayfun (@(k) sprintf ('quadratic: turning point %d [m]', k), 1:4, 'uniformoutput', false);
  expect_published (c, names, a(2:5) .* [-1 1 -1 1], r.q(at(1:4)), 2e-5);
  free = qn.modal (0, 1);
  r = qn.run (qn.simulation (free, 'step', 1e-4, 'until', 2, 'v0', 3, 'elements', {quadratic{1}, qn.observe(free, 1)}), 'progress', false);
  expect_published (c, {'quadratic: way of a free mass in 2 s [m]'}, log (1 + 3 * e * 2) / e, r.q(end), 2e-4);
end

% Mass 1 kg against F = 1e6 d^1.5 (1 + 0.5 d'). What is lost depends on 0.5 v0 = D alone: D (1 + e) = log ((1 + D) / (1 - D e)).
function test_impact_with_losses_after_hunt_and_crossley ()
  c = published ('Impact with losses after Hunt and Crossley', ...
                 ['K. H. Hunt and F. R. E. Crossley, J. Applied Mechanics 42, 1975: restitution from the first integral, depth and ' ...
                  'duration by quadrature'], {'Contact', 'contacts'});
  speeds = [0.1 1 5];
  wanted = [0.96773858 6.80911356e-4 2.037332e-2; 0.74843493 3.89257378e-3 1.328982e-2; 0.35237867 1.09239474e-2 1.137558e-2];
  model = qn.modal (0, 1);
  row = qn.observe (model, 1);
  for k = 1:3
    v0 = speeds(k);
    sim = qn.simulation (model, 'step', 1e-6, 'until', 0.025, 'v0', v0, 'elements', {qn.contact('stiffness', 1e6, 'damping', 0.5), row});
    res = qn.run (sim, 'progress', false);
    hit = qn.contacts (res, 1);
    v = qn.velocity (res, row);
    names = cellfun (@(n) sprintf ('%s at %g m/s', n, v0), {'restitution', 'depth [m]', 'duration [s]'}, 'uniformoutput', false);
    expect_published (c, names, wanted(k, :), [-v(end) / v0, max(res.q), hit.duration], [2e-8 1e-6 2e-6]);
  end
end

% x'' + x - (1 - x^2) x' = 0, its forces sampled over x: along x' they are straight.
function test_a_force_surface_has_the_limit_cycle_of_van_der_pol ()
  c = published ('Limit cycle of van der Pol on a sampled force surface', ...
                 ['B. van der Pol, Philosophical Magazine 2, 1926: equation, with a damping of 1; greatest displacement and period by ' ...
                  'numerical integration'], {'Surface', 'initial state'});
  x = linspace (-2.2, 2.2, 441);
  v = [-3 0 3];
  [u, w] = ndgrid (x, v);
  law = qn.law ('surface', 'displacement', x, 'velocity', v, 'force', u - (1 - u .^ 2) .* w);
  model = qn.modal (0, 1);
  h = 2e-5;
  sim = qn.simulation (model, 'step', h, 'until', 14, 'u0', 2, 'elements', {law, qn.observe(model, 1)});
  q = getfield (qn.run (sim, 'progress', false, 'check', false), 'q');
  up = find (q(1:end - 1) < 0 & q(2:end) >= 0);
  t = h * (up - q(up) ./ (q(up + 1) - q(up)));
  expect_published (c, {'greatest displacement [m]', 'period [s]'}, [2.00861986 6.66328686], [max(q(up(end - 1):end)), diff(t(end - 1:end))], ...
                    [1e-4 1e-4]);
end

% Between yield and the lower line the loop is a parallelogram on each side: 2 (drop Fy) (X - Fy/k) a cycle, and nothing is left at rest.
function test_a_self_centring_brace_dissipates_its_flags ()
  c = published ('Cycle of a self-centring brace', ...
                 'C. Christopoulos, A. Filiatrault and B. Folz, Earthquake Engng Struct. Dyn. 31, 2002: flag-shaped hysteresis, area of its loop', ...
                 {'User', 'memory of laws'});
  [k, yield, share, drop, amplitude] = deal (2e7, 2e5, 0.05, 0.8, 0.04);
  file = fullfile (project_folder (), 'toolbox', 'examples', 'self_centring.c');
  brace = qn.law ('compiled', file, 'parameters', [k yield share drop], 'states', 2);
  h = 1e-4;
  t = 0:h:1.25;
  x = amplitude * sin (2 * pi * t);
  f = qn.force (brace, x, 2 * pi * amplitude * cos (2 * pi * t), h);
  cycle = find (t >= 0.25 - h / 2);
  area = sum ((f(cycle(1:end - 1)) + f(cycle(2:end))) / 2 .* diff (x(cycle)));
  top = yield + share * (k * amplitude - yield);
  expect_published (c, {'work of a cycle [J]', 'greatest force [N]', 'force at rest [N]'}, [2 * drop * yield * (amplitude - yield / k), top, 0], ...
                    [area, max(f), f(round (0.5 / h) + 1)], [1 1e-6 1e-6]);
end

% x'' + exp (x) = 1 keeps x'^2/2 + exp (x) - x.
function test_a_toda_spring_turns_where_its_energy_says ()
  c = published ('Oscillator with an exponential spring', ...
                 'M. Toda, J. Physical Society of Japan 22, 1967: energy integral of one lattice point', ...
                 {'Expon', 'loads'});
  model = qn.modal (0, 1);
  spring = qn.law ('exponential', 'scale', 1, 'base', exp (1));
  load = {qn.load_at(model, 1), @(t) ones(size (t))};
  sim = qn.simulation (model, 'step', 1e-3, 'until', 20, 'u0', -2, 'load', load, 'elements', {spring, qn.observe(model, 1)});
  u = qn.displacement (qn.run (sim), 1);
  other = fzero (@(x) exp (x) - x - exp (-2) - 2, [0.5 2]);
  expect_published (c, {'upper turning point [m]', 'lower turning point [m]'}, [other, -2], [max(u), min(u)], 2e-6);
end

% Below its slip force the slider stays: the mass swings on both springs.
function test_a_slider_that_sticks_is_a_spring ()
  c = published ('Mass on a contact that sticks', 'W. D. Iwan, J. Applied Mechanics 33, 1966: element before slip, w^2 = (k + kc)/m', ...
                 {'sts', 'memory of laws'});
  model = qn.modal (0, 2);
  contact = qn.law ('stickslip', 'stiffness', 300, 'contact', 500, 'slip', 100, 'ground', 0);
  u = qn.displacement (qn.run (qn.simulation (model, 'step', 1e-4, 'until', 2, 'u0', 0.1, 'elements', {contact, qn.observe(model, 1)})), 1);
  t = [0.1 0.5 2];
  names = arrayfun (@(t) sprintf ('displacement at %g s [m]', t), t, 'uniformoutput', false);
  expect_published (c, names, 0.1 * cos (20 * t), u(1 + round (t * 1e4)), 1e-5);
end

% Constant sliding: the friction of each branch rises as mu N (1 - exp (-g x/(mu N))), N and g from the table at the third value.
function test_a_friction_pad_builds_up_its_force ()
  c = published ('Friction pad under a given normal force', 'P. R. Dahl, A Solid Friction Model, 1968: first loading with exponent 1', ...
                 {'Clima2'});
  pad = qn.law ('clima2', 'stiffness', 0, 'exponent', 1, 'friction', 0.5, 'offset', 0, 'displacement', [0 2], 'normal', [100 300], ...
                'growth', [4e4 8e4]);
  h = 1e-5;
  t = 0:h:0.1;
  x = [0.05 * t; -0.02 * t; ones(1, numel (t))];
  v = repmat ([0.05; -0.02; 0], 1, numel (t));
  f = qn.force (pad, x, v, h);
  limit = 0.5 * 200;
  exact = limit * [1 - exp(-6e4 * 0.05 * 0.1 / limit), -(1 - exp (-6e4 * 0.02 * 0.1 / limit))];
  expect_published (c, {'friction along x after 5 mm [N]', 'friction along y after -2 mm [N]', 'normal force [N]'}, [exact 200], f(:, ...
                    end), 0.02);
end

% Cycles of +-X: four times the slip force over what is left of the stroke.
function test_the_loop_of_an_elastic_slider ()
  c = published ('Loop of a spring and slider in series', 'closed form: 4 Fs (X - Fs/k)', {'DahlC'});
  h = 1e-4;
  t = (0:20000) * h;
  f = qn.force (qn.slider ('slip', 200, 'stiffness', 1e5), 0.01 * sin (2 * pi * t), 0.02 * pi * cos (2 * pi * t), h);
  work = sum (f(10001:20000) .* 0.02 .* pi .* cos (2 * pi * t(10001:20000))) * h;
  expect_published (c, 'energy of a cycle [J]', 4 * 200 * (0.01 - 200 / 1e5), work, 5e-3);
end

% A mass between two slack springs: quarter swings on them and free flight between.
function test_period_of_a_mass_with_clearance ()
  c = published ('Free vibration with a clearance on both sides', 'closed form: two half swings on the springs and four free flights', ...
                 {'Table', 'initial state'});
  model = qn.modal (0, 1);
  sides = qn.stop ('gap', 0.01, 'stiffness', 400);
  res = qn.run (qn.simulation (model, 'step', 1e-4, 'until', 10, 'u0', 0.03, 'elements', {sides, qn.observe(model, 1)}));
  x = res.q;
  down = find (x(1:end - 1) > 0 & x(2:end) <= 0);
  at = res.time(down) + x(down) ./ (x(down) - x(down + 1)) * 1e-4;
  expect_published (c, 'period [s]', 2 * pi / 20 + 4 * 0.01 / (20 * 0.02), mean (diff (at)), 1e-5);
end
