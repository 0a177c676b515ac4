function tests = suite_toolbox_laws ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_memoryless_laws_give_their_formula ()
  x = [-0.3 0 0.1 0.25];
  expect_equal (qn.force (qn.law ('power', 'stiffness', 20, 'exponent', 2), x), 20 * x .^ 2, 1e-15);
  expect_equal (qn.force (qn.law ('exponential', 'scale', 3, 'base', 5), x), 3 * 5 .^ x, 1e-15);
  expect_equal (qn.force (qn.law ('table', 'displacement', [0 0.1 0.2], 'force', [0 1 4]), x), [-3 0 1 5.5], 1e-12);
end

function test_names_of_parameters_ignore_case_and_defaults_fill_in ()
  law = qn.law ('dahl', 'Stiffness', 5, 'SLIP', 2);
  expect_equal (law.parameters.exponent, 1);
  expect_equal (law.parameters.slip, 2);
end

function test_mistakes_in_laws_are_explained ()
  expect_error (@() qn.law ('spring'), 'qn:input', '~no law called "spring"; there are power');
  expect_error (@() qn.law ('power', 'stiffness', 1), 'qn:input', '~parameter "exponent" is missing');
  expect_error (@() qn.law ('power', 'k', 1), 'qn:input', '~no parameter called "k"; there are stiffness, exponent');
  expect_error (@() qn.law ('power', 'stiffness', [1 2], 'exponent', 1), 'qn:input', '~one finite real number');
  expect_error (@() qn.law ('table', 'displacement', [0 2 1], 'force', [0 1 2]), 'qn:input', '~must ascend');
  % The module would divide by an infinite distance and give the first force everywhere.
  expect_error (@() qn.law ('table', 'displacement', [0 1e308] - 8e307 * [1 0], 'force', [0 1]), 'qn:input', ...
                'qn.law, ''table'': "displacement" goes from -8e+307 to 1e+308 between value 1 and value 2: the distance is beyond all numbers');
  expect_equal (qn.force (qn.law ('table', 'displacement', [-1e308 -1 1 7e307], 'force', [-2 -2 2 2]), [-5 0 5]), [-2 0 2]);
  expect_error (@() qn.law ('table', 'displacement', [0 2], 'force', [0 1 2]), 'qn:input', '~has 2 values and "force" has 3');
  expect_error (@() qn.slider ('slip', 0, 'stiffness', 1), 'qn:input', '~must be above 0');
  expect_error (@() qn.maxwell ('springs', [1 2], 'times', 1), 'qn:input', '~"times" must be 2 values, one a spring');
  expect_error (@() qn.gap ('gap', 1), 'qn:input', '~"stiffness" is missing');
  expect_error (@() qn.element (qn.law ('dahl', 'stiffness', 1, 'slip', 1), [1 0]), 'qn:input', '~needs the time step');
  expect_error (@() qn.element (qn.slider ('slip', 1, 'stiffness', 1), eye (2), 'step', 1, 'state', 3), 'qn:input', '~observes 1 rows, "C" has 2');
  expect_error (@() qn.force (qn.slider ('slip', 1, 'stiffness', 1), 1), 'qn:input', '~has a memory');
end

function test_recipes_have_the_stated_forces ()
  expect_equal (qn.force (qn.gap ('gap', 0.015, 'stiffness', 1e8, 'padding', 0.002, 'soft', 1e7), [-9 0 0.015 0.016 0.020 3]), ...
                [0 0 0 1e4 3.2e5 2.983e8 + 2e4], 1e-12);
  expect_equal (qn.force (qn.gap ('gap', 0.01, 'stiffness', 100, 'side', -1), [-0.03 -0.01 0 5]), [-2 0 0 0], 1e-12);
  expect_equal (qn.force (qn.gap ('gap', -0.01, 'stiffness', 100), [-0.02 0 0.01]), [0 1 2], 1e-12);
  expect_equal (qn.force (qn.stop ('gap', [0.01 0.02], 'stiffness', [100 200], 'inner', 10), [-0.03 -0.01 0 0.02 0.04]), ...
                [-2.1 -0.1 0 0.2 4.2], 1e-12);
  expect_equal (qn.force (qn.bilinear ('first', 10, 'second', 40, 'at', 0.5), [-2 -0.5 0.25 1]), [-65 -5 2.5 25], 1e-12);
  expect_equal (qn.force (qn.cubic ('stiffness', 2), [-1 0 3]), [-2 0 54]);
  ball = qn.bearing ('stiffness', 1e10, 'clearance', 1e-5, 'range', 1e-4);
  x = [-6e-5 -1e-5 0 1e-5 5e-5];
  expect_equal (qn.force (ball, x), sign (x) .* 1e10 .* max (abs (x) - 1e-5, 0) .^ 1.5, 1e-3);
  measured = qn.bearing ('deflection', [0 1 3], 'force', [0 2 12]);
  expect_equal (qn.force (measured, [-2 0.5 3]), [-7 1 12], 1e-12);
end

% First loading of the bank by Iwan's formula: a parabola up to the slip force, and Masing's rule for unloading.
function test_an_iwan_bank_loads_along_a_parabola ()
  joint = qn.iwan ('slip', 100, 'stiffness', 1e6, 'sliders', 40);
  h = 1e-3;
  top = 2 * 100 / 1e6;
  up = linspace (0, 1.2 * top, 1201);
  x = [up, fliplr(up(1:end - 1))];
  v = [0, diff(x)] / h;
  f = qn.force (joint, x, v, h);
  along = min (up, top);
  expect_equal (f(1:1201), 1e6 * along - (1e6 * along) .^ 2 / (4 * 100), 2e-2);
  back = min (up(end) - x(1201:end), 2 * top);
  expect_equal (f(1201:end), f(1201) - 2 * (1e6 * back / 2 - (1e6 * back / 2) .^ 2 / 400), 3e-2);
end

% As docs/laws.md says: some laws follow the velocity and begin without a force, others follow the displacement.
function test_what_an_initial_displacement_means_to_laws_with_memory ()
  for law = {qn.slider('slip', 20, 'stiffness', 5e4), qn.law('dahl', 'stiffness', 5e4, 'slip', 20)}
    expect_equal (force_at_the_start (law{1}), 0);
  end
  clima2 = qn.law ('clima2', 'displacement', [-1 1], 'normal', [5 5], 'growth', [1e4 1e4], 'friction', 0.3);
  expect_equal (force_at_the_start (clima2), [0; 0; 5]);
  expect_equal (force_at_the_start (qn.zener ('stiffness', 3e3, 'spring', 2e4, 'damper', 100)), 23, 1e-9);
  expect_equal (force_at_the_start (qn.law ('stickslip', 'contact', 5e4, 'slip', 200)), 50, 1e-9);
  expect_equal (force_at_the_start (qn.boucwen ('stiffness', 2e4, 'yield', 1, 'ratio', 0.1)), 20, 1e-4);
end

% Forces with which a run starts at the displacement 1 mm, on as many rows as the law has.
function f = force_at_the_start (law)
  model = qn.modal (1, 1);
  rows = repmat (qn.observe (model, 1), 1 + 2 * strcmp (law.kind, 'clima2'), 1);
  res = qn.run (qn.simulation (model, 'step', 1e-6, 'steps', 1, 'u0', 1e-3, 'elements', {law, rows}), 'progress', false, 'check', false);
  f = res.force(:, 1);
end

function test_a_bank_may_mix_laws_with_and_without_memory ()
  x = 1e-3 * sin (0:0.1:3);
  v = [0, diff(x)];
  slider = qn.slider ('slip', 1, 'stiffness', 5e3);
  zener = qn.zener ('stiffness', 10, 'spring', 1e3, 'damper', 4e3);
  alone = qn.force (slider, x, v, 1) + qn.force (zener, x, v, 1) + qn.force (qn.cubic ('stiffness', 1e9), x);
  expect_equal (qn.force ([slider, zener, qn.cubic('stiffness', 1e9)], x, v, 1), alone, 1e-13);
end

% Dahl with exponent 1, slow pull: F = Fs (1 - exp (-k x / Fs)).
function test_dahl_friction_approaches_its_slip_force_exponentially ()
  x = linspace (0, 0.05, 2001);
  f = qn.force (qn.law ('dahl', 'stiffness', 1e4, 'slip', 100), x, [0, ones(1, 2000)], 2.5e-5);
  expect_equal (f, 100 * (1 - exp (-x * 100)), 5e-3);
end

function test_a_slider_is_an_elastic_spring_that_slips ()
  n = 4000;
  t = (0:n) / n;
  x = 0.01 * sin (2 * pi * t);
  f = qn.force (qn.slider ('slip', 10, 'stiffness', 1e4), x, 0.02 * pi * cos (2 * pi * t), t(2));
  expect_equal ([max(f), min(f)], [10, -10], 1e-12);
  inside = x(1:40) < 1e-3;
  one_step = 1e4 * 0.02 * pi * t(2);
  if max (abs (f(inside) - 1e4 * x(inside))) > 1.01 * one_step, error ('sticking differs from the spring by more than one step'); end
end

% Steady harmonic motion: D(w) = K + sum Kj i w tj / (1 + i w tj).
function test_maxwell_branches_have_the_dynamic_stiffness_of_a_prony_series ()
  k = 1e5;
  kj = [2e5 5e4];
  tj = [0.05 0.01];
  w = 30;
  h = 5e-5;
  t = 0:h:0.6;
  f = qn.force (qn.maxwell ('stiffness', k, 'springs', kj, 'times', tj), sin (w * t), w * cos (w * t), h);
  d = k + sum (kj .* (1i * w * tj) ./ (1 + 1i * w * tj));
  late = t > 0.5;
  if max (abs (f(late) - imag (d * exp (1i * w * t(late))))) > 2e-3 * abs (d), error ('off by more than the step explains'); end
end

% Relaxation after a jump: F = K + K1 exp (-t K1 / C).
function test_a_zener_element_relaxes ()
  h = 2e-5;
  t = 0:h:0.1;
  f = qn.force (qn.zener ('stiffness', 100, 'spring', 300, 'damper', 6), ones (size (t)), zeros (size (t)), h);
  expect_equal (f, 100 + 300 * exp (-50 * t), 1e-3);
end

function test_every_law_is_described_with_its_numbers_and_read_back_from_its_handle ()
  laws = {qn.law('power', 'stiffness', 11, 'exponent', 3), qn.law('exponential', 'scale', 11, 'base', 7), ...
          qn.law('table', 'displacement', [0 1 5], 'force', [0 11 12]), qn.law('maxwell', 'springs', [11 5], 'dampers', [2 1], 'stiffness', 4), ...
          qn.law('dahl', 'stiffness', 11, 'slip', 3), qn.law('stickslip', 'contact', 11, 'slip', 30, 'stiffness', 5, 'ground', 2), ...
          qn.law('clima2', 'displacement', [0 1], 'normal', [0 11], 'growth', [3 4], 'friction', 0.2), ...
          qn.law('damper', 'damping', 11, 'exponent', 2), ...
          qn.law('contact', 'stiffness', 11, 'exponent', 1.25, 'damping', 2, 'gap', 3, 'side', -1), ...
          qn.law('boucwen', 'stiffness', 11, 'ratio', 0.25, 'beta', 3, 'gamma', 2, 'exponent', 1.5, 'A', 1.25)};
  for k = 1:numel (laws)
    law = laws{k};
    text = qn.describe (law);
    if isempty (strfind (text, '11')), error ('no number in "%s"', text); end
    t = qn.impl.traits (law, 1);
    e = qn.element (law, eye (max (t.rows, 1)), 'step', 0.5, 'state', 4);
    i = quarn ('chandleset', 1003, e);
    if isempty (strfind (qn.describe (i), text)), error ('"%s" is not in "%s"', text, qn.describe (i)); end
    back = qn.impl.unpack_law (quarn ('chandleget', i));
    expect_equal (struct2cell (back.parameters), struct2cell (law.parameters));
    quarn ('chandleclear', i);
  end
end

function test_an_integrator_is_described ()
  sim = qn.simulation (qn.modal (4, 1), 'step', 0.01, 'steps', 10, 'scheme', 'linear');
  text = qn.describe (qn.impl.integrator (sim, 1, 11));
  if isempty (strfind (text, 'beta 0.166667, gamma 0.5, step 0.01 s, 1 modes')), error ('got %s', text); end
end

% A mode that does not move the place leaves a zero in its row: with it the row stays one run of places, which the module sums quickly.
function test_a_modal_row_with_zeros_is_stored_as_one_run ()
  rand ('twister', 61);
  law = qn.law ('power', 'stiffness', 2, 'exponent', 1);
  for round = 1:40
    n = 8 + floor (30 * rand ());
    p = 1 + floor (3 * rand ());
    c = rand (p, n) + 1;
    c(rand (p, n) < 0.3) = 0;
    b = c .* (rand (p, n) < 0.4);
    e = qn.element (law, c, 'command', b);
    expect_equal (full (qn.unpack (e.c)), c);
    expect_equal (full (qn.unpack (e.b)), b);
    long = find (sum (c ~= 0, 2) >= 8);
    if ~isempty (long)
      reached = find (any (c(long, :) ~= 0, 1));
      for k = long.'
        line = double (e.c.ir(e.c.jc(k) + 1:e.c.jc(k + 1))).' + 1;
        if 2 * nnz (c(k, :)) >= reached(end) - reached(1) + 1
          expect_equal (line, reached(1):reached(end));
        else
          expect_equal (line, find (c(k, :)));
        end
      end
    end
    u = rand (n, 1);
    r = zeros (n, 1);
    h = chandle (quarn ('chandleset', 1003, e));
    quarn ('residual', r, h, u, u, []);
    delete (h);
    expect_equal (r, b.' * (2 * (c * u)), 1e-12);
  end
end

function test_laws_without_memory_observe_no_velocity ()
  laws = {qn.law('power', 'stiffness', 2, 'exponent', 3), qn.law('exponential', 'scale', 2, 'base', 3), qn.gap('gap', 0.1, 'stiffness', 5)};
  u = (1:9)' / 10;
  for k = 1:numel (laws)
    quick = qn.element (laws{k}, ones (1, 9));
    expect_equal (size (quick.vnl), [0 1]);
    slow = quick;
    slow.vnl = zeros (1, 1);
    r = zeros (9, 2);
    for which = 1:2
      e = {quick, slow}{which};
      h = chandle (quarn ('chandleset', 1003, e));
      own = zeros (9, 1);
      quarn ('residual', own, h, u, -u, []);
      r(:, which) = own;
      delete (h);
    end
    expect_equal (r(:, 1), r(:, 2));
    expect_equal (any (r(:, 1)), true);
  end
  maxwell = qn.element (qn.law ('maxwell', 'springs', 1, 'dampers', 1), 1, 'step', 1e-3);
  expect_equal (size (maxwell.vnl), size (maxwell.unl));
end

% D (1 + e) = log ((1 + D) / (1 - D e)), and 1 - 2 D / 3 for little damping; a run against the stop agrees.
function test_an_impact_is_given_by_its_restitution ()
  for e = [0.05 0.35237867 0.9 0.9999]
    law = qn.contact ('stiffness', 1, 'restitution', e, 'speed', 2);
    d = 2 * law.parameters.damping;
    expect_equal (d * (1 + e), log ((1 + d) / (1 - d * e)), 1e-9);
  end
  for e = [1 - 1e-5, 1 - 0.999e-5, 1 - 1e-7, 1]
    law = qn.contact ('stiffness', 1, 'restitution', e, 'speed', 1);
    d = law.parameters.damping;
    if abs (d - 1.5 * (1 - e)) > 1e-4 * d, error ('e = %.17g gives D = %g', e, d); end
  end
  model = qn.modal (0, 1);
  stop = qn.contact ('stiffness', 1e6, 'restitution', 0.6, 'speed', 0.5, 'gap', 0.01, 'side', -1);
  res = qn.run (qn.simulation (model, 'step', 1e-5, 'until', 0.06, 'v0', -0.5, 'elements', {stop, qn.observe(model, 1)}), 'progress', false);
  v = qn.velocity (res, 1);
  expect_equal (v(end), 0.3, 1e-5);
end

function test_impacts_and_dampers_are_refused_where_they_make_no_sense ()
  expect_error (@() qn.contact ('stiffness', 1, 'restitution', 0.5), 'qn:input', '~"restitution" and "speed" go together');
  expect_error (@() qn.contact ('stiffness', 1, 'speed', 0.5), 'qn:input', '~"restitution" and "speed" go together');
  expect_error (@() qn.contact ('stiffness', 1, 'restitution', 0.5, 'speed', 1, 'damping', 1), 'qn:input', '~not both');
  expect_error (@() qn.contact ('stiffness', 1, 'restitution', 1.1, 'speed', 1), 'qn:input', '~"restitution" must be');
  expect_error (@() qn.contact ('stiffness', 1, 'damping', -1), 'qn:input', '~"damping" must be');
  expect_error (@() qn.contact ('stiffness', 1, 'side', 2), 'qn:input', '~"side" must be 1 or -1, got 2');
  expect_error (@() qn.damper ('damping', -1), 'qn:input', '~"damping" must be');
  expect_error (@() qn.damper ('damping', 1, 'exponent', 0), 'qn:input', '~"exponent" must be');
  expect_error (@() qn.force (qn.damper ('damping', 1), 1), 'qn:input', '~depends on the velocity');
end

% Both in one bank with a spring: the forces add up, at the velocities given.
function test_forces_of_the_velocity_add_up_in_a_bank ()
  x = [0.1 0.3 0.5];
  v = [1 -2 0.5];
  bank = [qn.damper('damping', 3, 'exponent', 2), qn.cubic('stiffness', 7), qn.contact('stiffness', 5, 'exponent', 1, 'damping', 0.2, 'gap', 0.2)];
  expect_equal (qn.force (bank, x, v), 3 * v .* abs (v) + 7 * x .^ 3 + 5 * max (0, x - 0.2) .* (1 + 0.2 * v), 1e-14);
end

% Nothing moves in equilibrium: a damper has no force there, a stop that of its depth.
function test_dampers_and_impacts_at_rest ()
  model = qn.modal (1e4, 1);
  elements = {qn.damper('damping', 1e3), 1; qn.contact('stiffness', 1e5, 'exponent', 1, 'damping', 5, 'gap', 0.01), 1};
  q = qn.static (model, 300, elements);
  expect_equal (q, (300 + 1e5 * 0.01) / 1.1e5, 1e-9);
  expect_error (@() qn.harmonic (model, 1, elements(1, :), [1 2]), 'qn:input', '~law of the displacement alone');
end

% What is stored and what is lost, for both laws, balances the energy of the mass.
function test_energies_of_dampers_and_impacts ()
  model = qn.modal (100, 1);
  elements = {qn.damper('damping', 0.4, 'exponent', 2), 1; qn.contact('stiffness', 1e5, 'damping', 0.5, 'gap', 0.05), 1};
  sim = qn.simulation (model, 'step', 1e-4, 'until', 2, 'v0', 1, 'elements', elements);
  res = qn.run (sim, 'progress', false);
  e = qn.energies (res);
  d = qn.dissipated (res);
  expect_equal (e.dissipated, d(1).dissipated + d(2).dissipated, 1e-12);
  expect_equal (max (abs (d(1).stored)), 0);
  depth = max (0, res.q - 0.05);
  expect_equal (d(2).stored, 1e5 * depth .^ 2.5 / 2.5, 1e-12);
  if max (abs (e.residual)) > 1e-12, error ('a residual of %g J', max (abs (e.residual))); end
  for k = 1:2
    if any (diff (d(k).dissipated) < -1e-5), error ('element %d gives energy back', k); end
    if d(k).dissipated(end) < 0.01, error ('element %d takes %g J', k, d(k).dissipated(end)); end
  end
end

% K at rest, RATIO K after yielding, on the line through the yield point; a straight way back with the shape 0.5.
function test_a_yielding_spring_runs_into_its_lines ()
  law = qn.boucwen ('stiffness', 1e4, 'yield', 0.01, 'ratio', 0.2, 'exponent', 8);
  x = [0:1e-5:0.05, 0.05 - (1e-5:1e-5:0.005)];
  f = qn.force (law, x, 0 * x, 1);
  expect_equal (f(301), 1e4 * 0.003, 1e-3);
  expect_equal (f(5001), 1e4 * (0.2 * 0.05 + 0.8 * 0.01), 1e-6);
  expect_equal ((f(end) - f(5001)) / (x(end) - x(5001)), 1e4, 1e-6);
  expect_error (@() qn.boucwen ('stiffness', 1, 'yield', 0.1, 'shape', 0.4), 'qn:input', '~"shape" must be');
  expect_error (@() qn.boucwen ('stiffness', 1, 'yield', 0.1, 'ratio', 1.1), 'qn:input', '~"ratio" must be');
  expect_error (@() qn.boucwen ('stiffness', 1, 'yield', 1e-9, 'exponent', 99), 'qn:input', '~beyond all numbers');
end

% No motion finds a slope above the stiffness that the checks take.
function test_the_greatest_stiffness_of_a_yielding_spring_bounds_its_slopes ()
  rand ('twister', 5);
  for k = 1:10
    law = qn.law ('boucwen', 'stiffness', 3, 'ratio', rand (), 'beta', 2 * rand (), 'gamma', rand (), 'exponent', 1 + rand (), 'A', 0.5 + rand ());
    x = cumsum (0.01 * repmat (sign (rand (1, 30) - 0.5), 50, 1)(:).');
    slope = diff (qn.force (law, x, 0 * x, 1)) ./ diff (x);
    if any (abs (slope) > qn.impl.stiffest (law, x, []) * (1 + 1e-9)), error ('slope %g', max (abs (slope))); end
  end
end

% A mass on a yielding spring: what is lost never comes back, work and energies balance, and the second order shows.
function test_runs_with_a_yielding_spring ()
  model = qn.modal (100, 1);
  law = qn.boucwen ('stiffness', 400, 'yield', 0.01, 'ratio', 0.1, 'shape', 0.7);
  sim = @(n) qn.simulation (model, 'step', 1 / n, 'until', 1, 'v0', 1, 'elements', {law, 1});
  res = qn.run (sim (1000), 'progress', false);
  d = qn.dissipated (res);
  e = qn.energies (res);
  if max (abs (e.residual)) > 1e-12, error ('a residual of %g J', max (abs (e.residual))); end
  if any (diff (d.dissipated) < -1e-6) || d.dissipated(end) < 0.05, error ('it dissipates %g J', d.dissipated(end)); end
  q = arrayfun (@(n) getfield (qn.run (sim (n), 'progress', false), 'q', {1:n / 1000:n + 1}), [1000 2000 4000], 'uniformoutput', false);
  order = log2 (norm (q{1} - q{2}) / norm (q{2} - q{3}));
  if abs (order - 2) > 0.2, error ('order %g', order); end
  expect_error (@() qn.static (model, 1, {law, 1}), 'qn:input', '~has a memory');
end

% Cut into two runs, and continued, it keeps its bits.
function test_a_run_with_a_yielding_spring_goes_on_where_it_was ()
  model = qn.modal (100, 1);
  law = qn.boucwen ('stiffness', 400, 'yield', 0.01, 'ratio', 0.1);
  whole = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 400, 'v0', 1, 'elements', {law, 1}), 'progress', false);
  first = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 150, 'v0', 1, 'elements', {law, 1}), 'progress', false);
  second = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 250, 'start', first, 'elements', {law, 1}), 'progress', false);
  expect_equal (second.q, whole.q(151:end));
  expect_equal (second.state, whole.state(:, 151:end));
end

% They go through an element of 64 rows, the rest through one of its own.
function test_forces_of_many_displacements_are_those_of_each ()
  x = linspace (-0.01, 0.02, 150);
  for law = {qn.law('table', 'displacement', [-1 0 0.005 1], 'force', [-10 0 2 500]), qn.damper('damping', 3, 'exponent', 1.5)}
    v = sin (1:150);
    wanted = arrayfun (@(k) qn.force (law{1}, x(k), v(k)), 1:150);
    expect_equal (qn.force (law{1}, x, v), wanted);
    expect_equal (qn.force (law{1}, reshape (x, 50, 3), reshape (v, 50, 3)), reshape (wanted, 50, 3));
    expect_equal (qn.force (law{1}, x(1:64), v(1:64)), wanted(1:64));
  end
end
