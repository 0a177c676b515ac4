% Damping that turns with the shaft: the circulatory matrix that belongs to it, and the whirl that it feeds above the critical speed.
function tests = suite_toolbox_internal ()
  use_toolbox ();
  tests = localfunctions ();
end

% A point mass on a shaft, damped by CE at rest and by CI in the shaft.
function r = point (ce, ci)
  r = struct ('M', 3 * eye (2), 'K', 4.8e4 * eye (2), 'C', (ce + ci) * eye (2), 'N', ci * [0 1; -1 0]);
end

function r = shaft (eta, varargin)
  r = qn.rotor ('nodes', [0 0.2 0.5 0.8], 'outer', [0.03 0.04 0.03], 'disks', [2 5 0.02 0.04; 3 7 0.03 0.05], 'internal', eta, ...
                'bearings', {1, [3e6 5e6], 400; 4, [4e6 2e6], 300}, varargin{:});
end

function e = relative (x, wanted)
  e = max (abs (x(:) - wanted(:))) / max (abs (wanted(:)));
end

function test_the_onset_of_a_jeffcott_rotor_is_its_closed_form ()
  w = sqrt (4.8e4 / 3);
  for ratio = [0 0.5 2]
    d = qn.campbell (point (40 * ratio, 40), linspace (0.2, 4.1, 7) * w, 'places', [1 2]);
    expect_equal ([numel(d.unstable), d.unstable.speed, d.unstable.whirl, d.unstable.direction], [1, w * (1 + ratio), w, 1], 1e-7);
  end
end

% At 0.2, 0.85, 1.5 ... of the critical speed the third is the onset: it was passed over.
function test_an_onset_at_one_of_the_speeds_is_found ()
  w = sqrt (4.8e4 / 3);
  for count = [1 2]
    d = qn.campbell (point (20, 40), w * (0.2 + 0.65 * (0:6)), 'modes', count);
    expect_equal ([numel(d.unstable), [d.unstable.speed] / w], [1, 1.5], 1e-7);
  end
end

function test_every_mode_of_a_shaft_has_an_onset_of_its_own ()
  r = qn.rotor ('nodes', 0:0.25:1, 'outer', 0.05, 'shear', false);
  held = r.K;
  for at = [1 2 17 18], held(at, at) = held(at, at) + 1e8; end
  [alpha, eta] = deal (30, 2e-4);
  s = qn.rotor ('shaft', struct ('M', r.M, 'K', held, 'C', alpha * r.M), 'internal', eta);
  w = sort (sqrt (eig (held, r.M)));
  onset = w(1:2:5) .* (1 + alpha ./ (eta * w(1:2:5) .^ 2));
  d = qn.campbell (s, linspace (0, 1.2 * max (onset), 40), 'modes', 8);
  got = sortrows ([[d.unstable.whirl]; [d.unstable.speed]].');
  expect_equal (size (got, 1) >= 3, true);
  expect_equal (got(1:3, :), [w(1:2:5), onset], 1e-5);
end

% What every element damps, in the frame of the shaft and turned back; nothing of a motion that does not bend it.
function test_matrices_of_the_shaft_are_those_of_its_elements_in_the_turning_frame ()
  eta = [1e-4 0 3e-4];
  r = shaft (eta);
  none = shaft (0);
  expect_equal (none.N, zeros (16));
  c = r.C - none.C;
  bare = qn.rotor ('nodes', [0 0.2 0.5 0.8], 'outer', [0.03 0.04 0.03]);
  wanted = zeros (16);
  for e = 1:3
    at = 4 * e - 3:4 * e + 4;
    single = qn.rotor ('nodes', bare.nodes(e:e + 1), 'outer', 0.03 + 0.01 * (e == 2));
    wanted(at, at) = wanted(at, at) + eta(e) * single.K;
  end
  assert (relative (c, wanted) < 1e-9);
  % A deflection that turns with the shaft strains it steadily: C q' + W N q is nothing for q' = W times q turned by a right angle.
  q = sin ((1:16).' .^ 2);
  turned = zeros (16, 1);
  for node = 1:4, turned(4 * node - (3:-1:0)) = kron (eye (2), [0 -1; 1 0]) * q(4 * node - (3:-1:0)); end
  assert (norm (c * turned + r.N * q) < 1e-10 * norm (r.N * q));
  % Rigid motions: both translations and both tilts.
  z = [0 0.2 0.5 0.8].';
  rigid = repmat (eye (4), 4, 1);
  rigid(1:4:end, 4) = z;
  rigid(2:4:end, 3) = -z;
  assert (max (max (abs (r.N * rigid))) < 1e-9 * max (abs (r.N(:))) && max (max (abs (c * rigid))) < 1e-9 * max (abs (c(:))));
  foreign = qn.rotor ('shaft', struct ('M', bare.M, 'K', bare.K), 'internal', 2e-4);
  own = qn.rotor ('nodes', bare.nodes, 'outer', [0.03 0.04 0.03], 'internal', 2e-4);
  assert (relative (foreign.N, own.N) < 1e-12 && relative (foreign.C, own.C) < 1e-12);
end

function test_a_run_at_constant_speed_decays_and_grows_as_its_poles_say ()
  r = shaft (2e-4);
  d = qn.campbell (r, linspace (20, 1500, 12), 'modes', 4);
  u = d.unstable(1);
  for speed = [0.8 1.3] * u.speed
    model = qn.modal (r, 'speed', speed);
    pole = eig ([zeros(16), eye(16); -(r.M \ [r.K + speed * r.N, r.C + speed * r.G])]);
    assert ((max (real (pole)) > 0) == (speed > u.speed));
    own = eig ([zeros(16), eye(16); -qn.impl.matrix(model.stiffness), -qn.impl.matrix(model.damping)]);
    assert (abs (max (real (own)) - max (real (pole))) < 1e-6 * max (abs (pole)));
    sim = qn.simulation (model, 'step', 2e-5, 'steps', 3000, 'v0', [1; zeros(15, 1)], 'every', 100);
    res = qn.run (sim, 'progress', false, 'check', false);
    exact = expm ([zeros(16), eye(16); -(r.M \ [r.K + speed * r.N, r.C + speed * r.G])] * 0.06) * [zeros(16, 1); 1; zeros(15, 1)];
    assert (norm (model.shapes * res.q(:, end) - exact(1:16)) < 2e-2 * norm (exact(1:16)));
    found = qn.check (sim);
    assert (any (strcmp ({found.code}, 'model_grows')) == (speed > u.speed));
  end
end

% Synchronous circles do not strain the shaft anew: z = m e W^2 / (k - m W^2 + i W ce), whatever the damping in the shaft.
function test_unbalance_does_not_feel_damping_that_turns_with_the_shaft ()
  r = point (25, 300);
  model = qn.modal (r, 'speed', 0);
  load = qn.load_at (model, 1) - 1i * qn.load_at (model, 2);
  h = qn.harmonic (model, 1e-3 * load, {}, [15 25], 'harmonics', 1, 'samples', 8, 'power', 2, 'G', zeros (2));
  z = model.shapes * (h.cosines(:, :, 2) - 1i * h.sines(:, :, 2));
  w = 2 * pi * h.hertz;
  exact = 1e-3 * w .^ 2 ./ (4.8e4 - 3 * w .^ 2 + 1i * w * 25);
  assert (numel (w) > 20 && relative (z(1, :), exact) < 1e-8 && relative (z(2, :), -1i * exact) < 1e-8);
end

function test_harmonic_balance_of_a_rotor_has_all_that_turns ()
  r = shaft (3e-4);
  model = qn.modal (r, 'speed', 0);
  load = qn.load_at (model, r.places(2, 1:2)) * 1e-4 * [1; -1i];
  h = qn.harmonic (model, load, {}, [20 60], 'harmonics', 1, 'samples', 8, 'power', 2, 'G', r.G);
  for k = [1, round(numel (h.hertz) / 2), numel(h.hertz)]
    w = 2 * pi * h.hertz(k);
    f = zeros (16, 1);
    f(r.places(2, 1:2)) = 1e-4 * w ^ 2 * [1; -1i];
    exact = (r.K + w * r.N + 1i * w * (r.C + w * r.G) - w ^ 2 * r.M) \ f;
    assert (relative (model.shapes * (h.cosines(:, k, 2) - 1i * h.sines(:, k, 2)), exact) < 1e-7);
  end
end

% The scheme by hand, with the matrices of every step.
function test_a_run_up_has_the_circulatory_matrix_of_every_step ()
  r = shaft (4e-4);
  model = qn.modal (r, 'speed', 0);
  table = [0 0.2 0.3; 0 900 900];
  h = 2e-4;
  sim = qn.simulation (model, 'step', h, 'until', 0.3, 'speed', table, 'load', qn.unbalance (model, r.places(2, 1:2), 1e-4, 'profile', table));
  res = qn.run (sim, 'progress', false, 'check', false);
  p = model.shapes.' \ (sim.shapes * sim.loads);
  speed = interp1 (table(1, :), table(2, :), sim.time);
  x = newmark_of_speeds (r, p, h, speed, bsxfun (@times, r.N, reshape (speed, 1, 1, [])));
  e = relative (model.shapes * res.q, x);
  printf ('off by %.2g\n', e);
  assert (e < 1e-5);
  energy = qn.energies (res);
  assert (max (abs (energy.residual)) < 1e-6 * max (energy.kinetic) && max (abs (energy.circulatory)) > 1e-3 * max (energy.kinetic));
  without = sim;
  without.model.rotation.N = [];
  assert (relative (model.shapes * getfield (qn.run (without, 'progress', false, 'check', false), 'q'), x) > 0.01);
  assert (isinf (qn.impl.energy_limit (sim, sim.start)));
  pieces = qn.run (sim, 'progress', false, 'check', false, 'piece', 333);
  expect_equal (pieces.q, res.q);
end

function test_what_would_drop_the_circulatory_part_is_refused ()
  jeffcott = qn.modal (point (1, 2), 'speed', 0);
  load = [1; 1];
  expect_error (@() qn.harmonic (jeffcott, load, {}, [1 2], 'power', 2), 'qn:input', ...
                ['qn.harmonic: a load of "power" 2 is that of an unbalance, and the model has a circulatory matrix or bearings by speed ' ...
                 'at standstill: give "G", zeros (2), so that they turn with the load']);
  r = shaft (1e-4);
  model = qn.modal (r, 'speed', 0);
  expect_error (@() qn.harmonic (model, ones (16, 1), {}, [1 2], 'power', 2), 'qn:input', '~has a gyroscopic matrix at standstill');
  expect_error (@() qn.harmonic (model, ones (16, 1), {}, [1 2], 'power', 2, 'G', zeros (16)), 'qn:input', ...
                ['qn.harmonic: with "G" zero the structure is shaken and does not turn, and the model has more that depends on the speed: ' ...
                 'make it without ("internal" 0, bearings of one speed)']);
  expect_error (@() qn.modal (point (1, 2)), 'qn:input', '~"speed" must be one finite real number');
  expect_error (@() qn.modal (eye (2), eye (2), 'N', eye (3), 'speed', 1), 'qn:input', '~"N" must be 2 x 2 numbers');
  % The speed of an unbalance is compared with that of the model, which has no gyroscopic matrix.
  said = evalc ('push = qn.unbalance (jeffcott, [1 2], 1, ''speed'', 30);');
  assert (~isempty (strfind (said, 'the unbalance turns at 30 rad/s, the model at 0 rad/s')));
  sim = qn.simulation (jeffcott, 'step', 1e-3, 'steps', 10, 'load', push);
  found = qn.check (sim);
  assert (any (strcmp ({found.code}, 'unbalance_speed')));
end

function test_internal_damping_that_does_not_fit_is_refused ()
  make = @(varargin) qn.rotor ('nodes', 0:2, 'outer', 0.1, varargin{:});
  expect_error (@() make ('internal', -1e-4), 'qn:input', '~"internal" must be at least 0, got -0.0001|"internal"\(1\) is -0.0001');
  expect_error (@() make ('internal', [1 2 3]), 'qn:input', '~"internal" must be 2 values, one for all elements or one an element');
  expect_error (@() qn.rotor ('shaft', struct ('M', eye (5), 'K', eye (5), 'places', [1 2; 3 4]), 'internal', 1e-4), 'qn:input', ...
                'qn.rotor: "internal" needs "places" for every degree of freedom, x, y, thx, thy of each node; they name 4 of 5');
  expect_error (@() make ('stator', struct ('M', 1, 'K', 1, 'N', 1)), 'qn:input', 'qn.rotor: "stator" does not turn, it has no N');
  r = make ('bearings', {1, 1e6; 3, 1e6});
  r.internal = 1e-4;
  expect_error (@() qn.campbell (r, [0 1]), 'qn:input', '~the field "internal" was set in a result of qn.rotor');
end
