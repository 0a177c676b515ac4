% Models whose modes are coupled by dashpots, gyroscopic matrices and bearings: integrated implicitly, of second order, without growth.
% With the environment variable QUARN_FULL set, 1,000 random structures instead of 60.
function tests = suite_toolbox_coupled ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

function f = state_matrix (s)
  n = size (s.M, 1);
  f = [zeros(n), eye(n); -(s.M \ s.K), -(s.M \ s.C)];
end

% Displacements of the structure in a run of the toolbox.
function u = computed (s, step, steps, varargin)
  load = {};
  if any (s.load.B), load = {s.model.shapes.' * s.load.B, @(t) cos(s.load.w * t)}; end
  sim = qn.simulation (s.model, 'step', step, 'steps', steps, 'u0', s.u0, 'v0', s.v0, 'load', load, varargin{:});
  res = qn.run (sim, 'progress', false);
  u = s.model.shapes * res.q;
end

function u = exact (s, step, steps)
  u = exact_linear (s.M, s.C, s.K, s.u0, s.v0, s.load.B, s.load.w, step, steps);
end

function e = relative (u, wanted)
  e = max (abs (u(:) - wanted(:))) / max (abs (wanted(:)));
  if isnan (e), e = Inf; end
end

function test_random_linear_structures_of_all_dampings_stay_within_five_percent ()
  kinds = {'none', 'modal', 'rayleigh', 'dashpots', 'gyroscopic', 'bearings'};
  rand ('twister', 11);
  randn ('twister', 11);
  count = rounds (60);
  if ~isempty (getenv ('QUARN_FULL')), count = rounds (1000); end
  worst = zeros (size (kinds));
  for k = 1:count
    j = 1 + mod (k, numel (kinds));
    s = random_structure (kinds{j});
    e = relative (computed (s, s.step, s.steps), exact (s, s.step, s.steps));
    worst(j) = max (worst(j), e);
    if e > 0.05, error ('structure %d (%s, %d degrees of freedom): off by %g', k, kinds{j}, numel (s.u0), e); end
  end
  text = sprintf (' %s %.2g', [kinds; num2cell(worst)]{:});
  fprintf ('%d structures, greatest errors:%s\n', count, text);
end

% Three masses in a row; the dampings are set by the tests.
function s = chain ()
  m = diag ([2 1 3]);
  k = 1e4 * [3 -1 0; -1 2 -1; 0 -1 2];
  s = struct ('M', m, 'C', zeros (3), 'K', k, 'u0', [1; -0.5; 0.2] * 1e-2, 'v0', [0; 0.4; -0.3], 'load', struct ('B', [0; 50; 0], 'w', 40));
end

function p = observed_order (s)
  h = 1e-3;
  e = zeros (1, 3);
  for j = 1:3
    cut = 2 ^ (j - 1);
    u = computed (s, h / cut, 400 * cut, 'every', cut);
    e(j) = relative (u, exact (s, h, 400));
  end
  p = log2 (e(1:2) ./ e(2:3));
  fprintf ('orders %.4f %.4f, errors %.2g %.2g %.2g\n', p, e);
end

function test_dashpots_between_masses_are_of_second_order ()
  s = chain ();
  s.C = 300 * [1 0 -1; 0 0 0; -1 0 1] + 200 * [0 0 0; 0 1 -1; 0 -1 1];
  s.model = qn.modal (s.K, s.M, 'C', s.C);
  assert (all (abs (observed_order (s) - 2) < 0.05));
end

function test_a_gyroscopic_matrix_is_of_second_order ()
  s = chain ();
  g = [0 1 -0.5; -1 0 0.3; 0.5 -0.3 0];
  s.C = 150 * g;
  s.model = qn.modal (s.K, s.M, 'G', g, 'speed', 150);
  assert (all (abs (observed_order (s) - 2) < 0.05));
end

function test_bearings_with_cross_coupling_are_of_second_order ()
  s = chain ();
  more = [4000 2000 0; -3000 5000 0; 0 0 1000];
  s.C = [60 10 0; -5 80 0; 0 0 20];
  s.model = qn.modal (s.K, s.M, 'K', more, 'C', s.C);
  s.K = s.K + more;
  assert (all (abs (observed_order (s) - 2) < 0.05));
end

function test_twelve_modes_and_one_strong_dashpot_come_out_right ()
  n = 12;
  k = 1e8 * (2 * eye (n) - diag (ones (n - 1, 1), 1) - diag (ones (n - 1, 1), -1));
  s = struct ('M', 1e3 * eye (n), 'C', zeros (n), 'K', k, 'u0', (1:n).' * 1e-4, 'v0', zeros (n, 1), ...
              'load', struct ('B', zeros (n, 1), 'w', 0));
  s.C(6, 6) = 3e7;
  s.model = qn.modal (s.K, s.M, 'C', s.C);
  e = [relative(computed (s, 1e-4, 4000), exact (s, 1e-4, 4000)), relative(computed (s, 2e-4, 2000), exact (s, 2e-4, 2000))];
  fprintf ('errors %.2g and %.2g\n', e);
  assert (e(1) < 0.012 && e(2) < 0.045 && abs (log2 (e(2) / e(1)) - 2) < 0.05);
end

function test_a_gyroscopic_rotor_without_damping_does_not_grow ()
  k = diag ([4e4 5e4 900 1000]);
  g = zeros (4);
  g(3, 4) = 0.05;
  g(4, 3) = -0.05;
  k([1 2], [3 4]) = [0 2000; -2000 0];
  k([3 4], [1 2]) = k([1 2], [3 4]).';
  m = diag ([3 3 0.03 0.03]);
  model = qn.modal (k, m, 'C', 800 * g);
  for h = [1e-5 1e-3]
    res = qn.run (qn.simulation (model, 'step', h, 'steps', 20000, 'v0', [1; 0; 0; 5]), 'progress', false);
    e = qn.energies (res);
    total = e.kinetic + e.strain;
    assert (max (abs (total / total(1) - 1)) < 1e-8);
  end
end

% A rotor in two directions whose cross stiffness leaves little of the bearings' damping.
function test_the_small_damping_ratio_that_bearings_leave_is_kept ()
  m = 40 * eye (2);
  k = 40 * (2 * pi * 50) ^ 2 * [1 0; 0 1.05];
  c = [900 150; 100 1100];
  g = [0 6; -6 0];
  ratio = @(q) real_ratio (m, c + 100 * g, k + q * [0 1; -1 0]);
  low = 0;
  high = 1e6;
  for round = 1:60
    q = (low + high) / 2;
    if ratio (q) > 0.0047, low = q; else, high = q; end
  end
  [zeta, pole, left] = ratio (q);
  assert (abs (zeta - 0.0047) < 1e-9);
  model = qn.modal (k, m, 'C', c, 'K', q * [0 1; -1 0], 'G', g, 'speed', 100);
  h = 2e-4;
  sim = qn.simulation (model, 'step', h, 'steps', 5000, 'u0', [1e-3; 0]);
  res = qn.run (sim, 'progress', false);
  v = qn.velocity (res, qn.observe (model, 1:2));
  z = left.' * [model.shapes * res.q; v];
  pole_run = log (z(end) / z(1001)) / (4000 * h);
  decay = real (pole_run);
  got = -decay / abs (pole);
  fprintf ('damping ratio %.6f, exact %.6f\n', got, zeta);
  assert (abs (got - zeta) < 2e-5);
end

% Ratio of the least damped pole, that pole, and the left vector with which its motion is read from [u; v].
function [zeta, pole, left] = real_ratio (m, c, k)
  [vectors, poles] = eig (state_matrix (struct ('M', m, 'C', c, 'K', k)).');
  poles = diag (poles);
  [zeta, at] = min (-real (poles) ./ abs (poles));
  pole = poles(at);
  left = vectors(:, at);
end

function test_velocities_of_a_coupled_run_obey_the_equation_of_motion ()
  s = chain ();
  more = [4000 2000 0; -3000 5000 0; 0 0 1000];
  s.C = [60 10 0; -5 80 0; 0 0 20];
  s.model = qn.modal (s.K, s.M, 'K', more, 'C', s.C);
  sim = qn.simulation (s.model, 'step', 1e-3, 'steps', 300, 'u0', s.u0, 'v0', s.v0, 'load', {qn.load_at(s.model, 2), @(t) 50 * sin(40 * t)}, ...
                       'elements', {qn.cubic('stiffness', 1e7), qn.observe(s.model, 1)});
  res = qn.run (sim);
  [v, a] = qn.impl.rates (res);
  balance = a + s.model.damping * v + s.model.stiffness * res.q + qn.observe (s.model, 1).' * res.force - sim.shapes * sim.loads;
  assert (max (abs (balance(:))) < 1e-8 * max (abs (a(:))));
  assert (norm (v(:, end) - res.final.v) < 1e-9 * norm (v(:, end)) && norm (a(:, end) - res.final.a) < 1e-7 * norm (a(:, end)));
end

function test_a_run_in_pieces_and_a_continued_run_have_the_same_bits ()
  s = chain ();
  model = qn.modal (s.K, s.M, 'K', [0 2000 0; -3000 0 0; 0 0 0], 'C', [60 10 0; -5 80 0; 0 0 20]);
  set_up = @(steps, varargin) qn.simulation (model, 'step', 1e-3, 'steps', steps, varargin{:}, 'elements', ...
                                             {qn.slider('stiffness', 1e5, 'slip', 20), qn.observe(model, 2)});
  whole = qn.run (set_up (500, 'v0', s.v0));
  pieces = qn.run (set_up (500, 'v0', s.v0), 'piece', 37);
  expect_equal (pieces.q, whole.q);
  first = qn.run (set_up (200, 'v0', s.v0));
  second = qn.run (set_up (300, 'start', first));
  expect_equal (second.q, whole.q(:, 201:end));
  expect_equal (second.final.u, whole.final.u);
end

function test_static_and_harmonic_answers_of_a_coupled_model ()
  s = chain ();
  more = [4000 2000 0; -3000 5000 0; 0 0 1000];
  c = [60 10 0; -5 80 0; 0 0 20];
  g = [0 1 0; -1 0 0; 0 0 0];
  model = qn.modal (s.K, s.M, 'K', more, 'C', c, 'G', g, 'speed', 30);
  push = [0; 50; 0];
  q = qn.static (model, model.shapes.' * push, {});
  expect_equal (model.shapes * q, (s.K + more) \ push, 1e-10);
  r = qn.harmonic (model, model.shapes.' * push, {}, [3 12], 'harmonics', 1, 'samples', 32);
  for k = [1, numel(r.hertz)]
    w = 2 * pi * r.hertz(k);
    answer = (s.K + more + 1i * w * (c + 30 * g) - w ^ 2 * s.M) \ push;
    expect_equal (model.shapes * (r.cosines(:, k, 2) - 1i * r.sines(:, k, 2)), answer, 1e-8);
  end
end

function test_backbone_refuses_what_has_no_turning_points ()
  model = qn.modal (diag ([1 2]), eye (2), 'G', [0 1; -1 0], 'speed', 1);
  hardening = {qn.cubic('stiffness', 1), qn.observe(model, 1)};
  expect_error (@() qn.backbone (model, hardening, 0.1), 'qn:input', '~modal damping is not symmetric');
  model = qn.modal (diag ([1 2]), eye (2), 'K', [0 1; -1 0] * 0.1);
  expect_error (@() qn.backbone (model, hardening, 0.1), 'qn:input', '~modal stiffness is not symmetric');
  model = qn.modal (diag ([1 2]), eye (2), 'K', [0.5 -0.5; -0.5 0.5]);
  hertz = qn.backbone (model, {qn.cubic('stiffness', 1), qn.observe(model, 1)}, 1e-4);
  expect_equal (2 * pi * hertz, sqrt (min (eig ([1.5 -0.5; -0.5 2.5]))), 1e-6);
end

function test_the_check_of_the_step_sees_frequencies_that_the_coupling_makes ()
  model = qn.modal (zeros (2), eye (2), 'K', [1e4 1; -1 2e4], 'C', [1 0; 0 2]);
  found = qn.check (qn.simulation (model, 'step', 0.02, 'until', 2, 'v0', [1; 0]));
  assert (any (~cellfun ('isempty', regexp ({found.text}, '22\.5\d* Hz.* gets 2\.2 steps a period'))));
  assert (isempty (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 0.3, 'v0', [1; 0]))));
end

function test_matrices_that_do_not_fit_are_refused_in_words ()
  k = diag ([1 2]);
  m = eye (2);
  trials = {{'C', eye(3)}, '"C" must be 2 x 2'; {'C', [1 NaN; 0 1]}, 'C.*finite'; {'K', ones(2, 3)}, '"K" must be 2 x 2'
            {'K', 1i * eye(2)}, 'K.*real'; {'G', [0 1; 1 0], 'speed', 3}, 'G.*skew'; {'G', [0 1; -1 0]}, 'speed'
            {'speed', 3}, 'G'; {'G', [0 1; -1 0], 'speed', Inf}, 'speed'; {'G', zeros(3), 'speed', 1}, '"G" must be 2 x 2'};
  for j = 1:size (trials, 1)
    expect_error (@() qn.modal (k, m, trials{j, 1}{:}), 'qn:input', ['~' trials{j, 2}]);
  end
  model = qn.modal (k, m, 'C', zeros (2), 'K', sparse (2, 2), 'G', zeros (2), 'speed', 0);
  assert (isequal (size (model.damping), [2 1]) && isequal (size (model.stiffness), [2 1]));
end

function test_a_step_whose_matrix_has_no_inverse_is_refused ()
  h = 1e-3;
  model = qn.modal (diag ([1 2]), eye (2), 'K', [0 1; 0 0]);
  model.stiffness = -4 / h ^ 2 * [1 1; 0 1];
  sim = qn.simulation (model, 'step', h, 'steps', 5, 'v0', [1; 0]);
  expect_error (@() qn.run (sim), 'qn:input', '~cannot be inverted');
end

% The trapezoidal rule answers a frequency W as the structure answers 2/h tan (W h/2); a run that starts on that orbit has no transient.
function test_steady_orbit_of_a_beam_rotor_is_its_complex_frequency_response ()
  r = beam_rotor (20);
  speed = 2 * pi * 60;
  turns = 12;
  n = size (r.M, 1);
  unbalance = zeros (n, 1);
  unbalance(r.disk + (0:1)) = 14 * 20e-6 * speed ^ 2 * [1; -1i];
  answer = @(w) (r.K + r.bearings + 1i * w * (r.C + speed * r.G) - w ^ 2 * r.M) \ unbalance;
  h = 2 * pi / speed / 360;
  seen = 2 / h * tan (speed * h / 2);
  start = answer (seen);
  model = qn.modal (r.K, r.M, 'modes', n, 'C', r.C, 'G', r.G, 'speed', speed, 'K', r.bearings);
  b = model.shapes.' * [real(unbalance), imag(unbalance)];
  load = {b(:, 1), @(t) cos(speed * t); b(:, 2), @(t) -sin(speed * t)};
  sim = qn.simulation (model, 'step', h, 'steps', 360 * turns, 'load', load, 'u0', real (start), ...
                       'v0', real (1i * seen * start));
  res = qn.run (sim, 'progress', false);
  last = size (res.q, 2) - 360 + (1:360);
  orbit = model.shapes * res.q(:, last) * exp (-1i * speed * res.time(last).') * 2 / 360;
  moving = 1:4:n;
  moving = [moving, moving + 1];
  row = @(x) x(moving);
  off_by = @(w) max (abs (row (orbit - answer (w)))) / max (abs (orbit(moving)));
  e = [off_by(speed), off_by(seen)];
  fprintf ('orbit of %d degrees of freedom: off by %.2g, from what the scheme makes of it by %.2g\n', n, e);
  assert (e(1) < 1e-4 && e(2) < 1e-7);
end
