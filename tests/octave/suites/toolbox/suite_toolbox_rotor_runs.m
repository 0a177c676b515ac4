% Runs of rotors: steady orbits against the complex frequency response, the order of the scheme, coupled with loads of qn.unbalance.
function tests = suite_toolbox_rotor_runs ()
  use_toolbox ();
  tests = localfunctions ();
end

% Greatest distance from the exact orbit in the last of some turns, by the greatest radius. The run begins on the orbit that the scheme
% has: it answers a frequency W as the structure answers 2/h tan (W h/2). So there is no transient, and what is measured is steady.
function [e, res] = off_orbit (r, model, speed, steps, turns)
  n = size (r.M, 1);
  middle = r.places(13, 1:2);
  me = 14 * 20e-6;
  push = zeros (n, 1);
  push(middle) = me * speed ^ 2 * [1; -1i];
  push(r.places(7, 1:2)) = 0.5 * me * speed ^ 2 * exp (2i) * [1; -1i];
  response = @(w) (r.K + 1i * w * (r.C + speed * r.G) - w ^ 2 * r.M) \ push;
  answer = response (speed);
  h = 2 * pi / speed / steps;
  seen = 2 / h * tan (speed * h / 2);
  start = response (seen);
  load = qn.unbalance (model, [middle; r.places(7, 1:2)], me * [1 0.5], 'phase', [0 2], 'speed', speed);
  sim = qn.simulation (model, 'step', h, 'steps', steps * turns, 'load', load, 'u0', real (start), ...
                       'v0', real (1i * seen * start));
  res = qn.run (sim, 'progress', false);
  last = size (res.q, 2) - steps:size (res.q, 2);
  across = reshape (r.places(:, 1:2), 1, []);
  exact = real (answer(across) * exp (1i * speed * res.time(last)));
  e = max (max (abs (model.shapes(across, :) * res.q(:, last) - exact))) / max (abs (answer(across)));
end

function test_steady_orbit_of_a_rotor_of_24_elements_is_its_complex_frequency_response_of_second_order ()
  c = published ('Steady orbit of a rotor in unsymmetric bearings', ...
                 'complex frequency response (K + i W (C + W G) - W^2 M) \ F of 24 elements, 3 disks, 2 unbalances', ...
                 {'rotor', 'unbalance', 'gyroscopic matrix', 'full stiffness matrix', 'full damping matrix'});
  r = disk_rotor (24);
  speed = 2 * pi * 60;
  model = qn.modal (r, 'speed', speed);
  e = zeros (1, 3);
  for k = 1:3, e(k) = off_orbit (r, model, speed, 90 * 2 ^ (k - 1), 8); end
  order = log2 (e(1:2) ./ e(2:3));
  fprintf ('off by %.3g %.3g %.3g, orders %.4f %.4f\n', e, order);
  assert (e(3) < 1e-4);
  assert (all (abs (order - 2) < 0.05));
  expect_published (c, 'distance from the orbit by its radius, 360 steps a turn [1e-4]', 0, 1e4 * e(3), 1);
  expect_published (c, 'order of the scheme', 2, order(2), 0.05);
end

function test_response_to_unbalance_over_the_speed_has_the_square_of_the_speed_and_the_gyroscopic_matrix ()
  r = disk_rotor (6);
  model = qn.modal (r, 'speed', 0);
  at = r.places(4, 1:2);
  me = [3e-4 1e-4];
  both = [at; r.places(6, 1:2)];
  load = qn.unbalance (model, both, me, 'phase', [0 1], 'speed', 1);
  h = qn.harmonic (model, load{1, 1} - 1i * load{2, 1}, {}, [45 60], 'harmonics', 1, 'samples', 32, 'power', 2, 'G', r.G);
  assert (numel (h.hertz) > 10 && h.hertz(end) >= 60);
  for k = [1, round(numel (h.hertz) / 2), numel(h.hertz)]
    w = 2 * pi * h.hertz(k);
    push = zeros (28, 1);
    push(both(1, :)) = me(1) * w ^ 2 * [1; -1i];
    push(both(2, :)) = me(2) * w ^ 2 * exp (1i) * [1; -1i];
    answer = (r.K + 1i * w * (r.C + w * r.G) - w ^ 2 * r.M) \ push;
    expect_equal (model.shapes * (h.cosines(:, k, 2) - 1i * h.sines(:, k, 2)), answer, 1e-7 * max (abs (answer)));
  end
  skew = r.G;
  skew(1, 1) = 1;
  expect_error (@() qn.harmonic (model, load{1, 1}, {}, [20 60], 'G', skew), 'qn:input', '~"G" must be skew');
end

function test_jeffcott_rotor_has_its_resonance_curve ()
  c = published ('Unbalance response of a Jeffcott rotor', 'H. H. Jeffcott, Philosophical Magazine 37, 1919: h^2/|1 - h^2 + 2 i zeta h|', ...
                 {'harmonic balance', 'unbalance', 'modal damping'});
  [m, k, e] = deal (10, 4e6, 5e-5);
  model = qn.modal (k * eye (2), m * eye (2), 'damping', 0.05);
  wn = sqrt (k / m);
  push = qn.load_at (model, [1 2]) * m * e * [1; -1i];
  wanted = [.33259505 10 5.10407694 1.33038021];
  got = zeros (1, 4);
  at = [0.5 1 1.1 2];
  for j = 1:4
    h = qn.harmonic (model, push, {}, at(j) * wn / (2 * pi) * [1 1.01], 'harmonics', 1, 'samples', 8, 'power', 2);
    x = model.shapes * (h.cosines(:, 1, 2) - 1i * h.sines(:, 1, 2));
    got(j) = abs (x(1)) / e;
    expect_equal (x(2), -1i * x(1), 1e-9 * e);
  end
  expect_published (c, arrayfun (@(x) sprintf ('radius by eccentricity at %g of the critical speed', x), at, 'uniformoutput', false), wanted, got, 1e-7);
end

% Contact far away from linear: a ring of springs, in time and by harmonic balance with the load that grows.
function test_growing_loads_and_elements_together_agree_with_a_run ()
  [m, k, e] = deal (10, 4e6, 5e-5);
  model = qn.modal (k * eye (2), m * eye (2), 'damping', 0.1);
  ring = {qn.cubic('stiffness', 2e15), qn.observe(model, 1); qn.cubic('stiffness', 2e15), qn.observe(model, 2)};
  w = 1.05 * sqrt (k / m);
  push = qn.load_at (model, [1 2]) * m * e * [1; -1i];
  h = qn.harmonic (model, push, ring, w / (2 * pi) * [1 1.01], 'harmonics', 5, 'samples', 64, 'power', 2);
  load = qn.unbalance (model, [1 2], m * e, 'speed', w);
  res = qn.run (qn.simulation (model, 'step', 2 * pi / w / 720, 'steps', 720 * 60, 'load', load, 'elements', ring), 'progress', false);
  last = res.q(:, end - 719:end);
  expect_equal (max (abs (last), [], 2), h.amplitude(:, 1), 2e-3 * h.amplitude(1, 1));
end

function test_unbalances_and_models_of_different_speeds_are_said ()
  rotor = @(speed) qn.modal (1e6 * eye (4), diag ([10 10 1 1]), 'G', [zeros(2), zeros(2); zeros(2), [0 1; -1 0]], 'speed', speed);
  said = @(model, varargin) regexprep (evalc ('qn.unbalance (model, [1 2], 1e-4, varargin{:});'), '\s+', ' ');
  expect_equal (said (rotor (100), 'speed', 100), '');
  expect_equal (said (rotor (0), 'profile', [0 1; 0 100]), '');
  expect_equal (said (qn.modal (eye (2), eye (2)), 'speed', 100), '');
  expect_in (said (rotor (0), 'speed', 100), 'the unbalance turns at 100 rad/s, the model at 0 rad/s');
  expect_in (said (rotor (100), 'speed', -100), 'the unbalance turns at -100 rad/s, the model at 100 rad/s');
  expect_in (said (rotor (100), 'profile', [0 1; 0 100]), 'the unbalance runs along a profile, the model turns at 100 rad/s');
end

function test_a_gyroscopic_matrix_counts_once_in_a_response ()
  g = [0 1; -1 0];
  model = qn.modal (1e4 * eye (2), eye (2), 'damping', 0.05, 'G', g, 'speed', 20);
  load = {[1 0], 1; [0 1], -1i};
  expect_error (@() qn.harmonic (model, load, {}, [10 12], 'power', 2, 'G', g), 'qn:input', '~the model has it at 20 rad/s already');
end

function r = small_rotor ()
  r = qn.rotor ('nodes', [0 0.4 1], 'outer', 0.05, 'disks', [2 10 0.05 0.1], 'bearings', {1, 1e7, 1e3; [3 1 2], 1e7, 1e3}, ...
                'stator', struct ('M', 20 * eye (2), 'K', 1e7 * eye (2)));
end

function test_an_unbalance_stands_on_x_and_y_of_a_node_of_the_rotor ()
  model = qn.modal (small_rotor (), 'speed', 100);
  push = @(dofs) qn.unbalance (model, dofs, 1e-4 * ones (size (dofs, 1), 1), 'speed', 100);
  expect_equal (size (push ([5 6; 1 2])), [2 2]);
  expect_error (@() push ([5 8]), 'qn:input', ...
                '~row 1 of "DOFS", \[5 8\], is x of node 2 and thy of node 2, not x and y of one node; those of node 2 are \[5 6\]');
  expect_error (@() push ([1 2; 6 5]), 'qn:input', '~row 2 of "DOFS", \[6 5\], is y of node 2 and x of node 2.*against the shaft');
  expect_error (@() push ([1 5; 2 6]), 'qn:input', '~is x of node 1 and x of node 2');
  expect_error (@() push ([13 14]), 'qn:input', '~is none of the shaft and none of the shaft');
end

function test_an_unbalance_on_a_mass_and_an_inertia_is_said ()
  model = qn.modal (1e6 * eye (4), diag ([10 9 1 1]));
  said = @(model, dofs) regexprep (evalc ('qn.unbalance (model, dofs, 1e-4, ''speed'', 100);'), '\s+', ' ');
  expect_equal (said (model, [1 2]), '');
  expect_in (said (model, [1 3]), 'row 1 of "DOFS", [1 3], moves 10 and 1 on the diagonal of M');
end

function test_weight_moves_a_rotor_as_one ()
  model = qn.modal (small_rotor (), 'speed', 100);
  down = zeros (14, 1);
  down([2 6 10]) = -1;
  weight = qn.gravity (model, down);
  % Beams, disk and stator: the stator does not fall in this push.
  expect_equal (model.shapes \ weight{1}, model.shapes \ (9.80665 * model.shapes.' * model.M * down), 1e-9);
  down(14) = -1;
  qn.gravity (model, down);
  one = zeros (14, 1);
  one(6) = -1;
  expect_error (@() qn.gravity (model, one), 'qn:input', '~"PUSH" moves node 1 of the rotor by \[0 0\] and node 2 by \[0 -1\]');
  expect_error (@() qn.gravity (model, 9.81 * down), 'qn:input', '~"PUSH" moves the rotor by 9.81; it is a motion by 1');
  down(3) = 1;
  expect_error (@() qn.gravity (model, down), 'qn:input', '~"PUSH" turns node 1 of the rotor by 1');
end

function sim = along (profile, varargin)
  model = qn.modal (small_rotor (), 'speed', 0);
  ends = {'until', 0.5};
  if any (strcmp (varargin(1:2:end), 'until')), ends = {}; end
  sim = qn.simulation (model, 'step', 1e-4, ends{:}, 'load', qn.unbalance (model, [5 6], 1e-4, 'profile', profile), varargin{:});
end

function test_rows_of_a_profile_that_do_not_belong_together_are_refused ()
  along (@(t) [50 * t .^ 2; 100 * t; 100 + 0 * t]);
  along (@(t) [mod(5000 * t .^ 2, 2 * pi); 1e4 * t; 1e4 + 0 * t]);
  along (@(t) [3 + 200 * t - 0.1 * cos(50 * t); 200 + 5 * sin(50 * t); 250 * cos(50 * t)]);
  expect_error (@() along (@(t) [100 * t .^ 2; 100 * t; 100 + 0 * t]), 'qn:input', ...
                '~load 1: qn.unbalance: the rows.*from 0 to 0.5 s its angle grows by 25, and the integral of its speed by 12.5');
  expect_error (@() along (@(t) [50 * t .^ 2; 100 * t; 0 * t]), 'qn:input', ...
                '~its speed grows by 50, and the integral of its angular acceleration by 0');
  expect_error (@() along (@(t) [300 * t; 300 * 30 / pi + 0 * t; 0 * t]), 'qn:input', '~its angle grows by');
end

function said = findings_of (sim, code)
  found = qn.check (sim);
  said = strjoin ({found(strcmp ({found.code}, code)).text, ''}, '');
end

function test_a_profile_without_the_speed_of_the_run_is_found ()
  table = [0 0.5; 0 200];
  expect_in (findings_of (along (table), 'unbalance_speed'), 'turns with 200 rad/s at 0.5 s, and the gyroscopic forces are those of 0 rad/s');
  expect_equal (findings_of (along (table, 'speed', table), 'unbalance_speed'), '');
  expect_in (findings_of (along (@(t) [100 * t .^ 2; 200 * t; 200 + 0 * t]), 'unbalance_speed'), 'turns with 100 rad/s at 0.5 s');
  expect_in (findings_of (along (table, 'speed', [0 0.5; 0 300]), 'unbalance_speed'), 'are those of 300 rad/s: give both the same table');
  % A run that goes on knows it too.
  first = qn.run (along (table, 'speed', table), 'progress', false, 'check', false);
  more = along ([0 1; 0 400], 'start', first, 'until', 0.6);
  expect_in (findings_of (more, 'unbalance_speed'), 'turns with 240 rad/s at 0.6 s');
end

function test_a_profile_that_ends_before_the_run_is_found ()
  table = [0 0.4; 0 200];
  whole = [0 0.4 0.5; 0 200 200];
  expect_in (findings_of (along (table, 'speed', whole), 'unbalance_ends'), ...
             'covers 0 to 0.4 s of a run from 0 to 0.5 s; outside it the speed stays 0 and 200 rad/s');
  expect_equal (findings_of (along (whole, 'speed', whole), 'unbalance_ends'), '');
end

function test_a_load_of_power_two_takes_the_gyroscopic_matrix_of_a_rotor ()
  r = small_rotor ();
  model = qn.modal (r, 'speed', 0);
  push = qn.load_at (model, [5 6]) * [1; -1i];
  args = {{}, [10 10.1], 'harmonics', 1, 'samples', 8, 'points', 2, 'power', 2};
  expect_error (@() qn.harmonic (model, push, args{:}), 'qn:input', '~the model has a gyroscopic matrix at standstill: give it as "G".*zeros \(14\)');
  shaken = qn.harmonic (model, push, args{:}, 'G', zeros (14));
  w = 2 * pi * shaken.hertz(1);
  f = zeros (14, 1);
  f([5 6]) = w ^ 2 * [1; -1i];
  exact = (r.K + 1i * w * r.C - w ^ 2 * r.M) \ f;
  expect_equal (model.shapes * (shaken.cosines(:, 1, 2) - 1i * shaken.sines(:, 1, 2)), exact, 1e-7 * max (abs (exact)));
  model = qn.modal (r, 'speed', 30);
  said = regexprep (evalc ('qn.harmonic (model, push, args{:});'), '\s+', ' ');
  expect_in (said, 'the gyroscopic matrix stays that of 30 rad/s');
end

function test_an_unbalance_that_turns_faster_than_all_modes_is_found ()
  r = small_rotor ();
  model = qn.modal (r, 'speed', 900, 'modes', 4);
  assert (model.w(4) < 900);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.1, 'load', qn.unbalance (model, [5 6], 1e-4, 'speed', 900));
  expect_in (findings_of (sim, 'load_fast'), ...
             sprintf ('turns with 900 rad/s (143.2 Hz) at 0 s, faster than all 4 modes that are kept, of which the highest has %.4g rad/s', model.w(4)));
  full = qn.modal (r, 'speed', 900);
  sim = qn.simulation (full, 'step', 1e-4, 'until', 0.1, 'load', qn.unbalance (full, [5 6], 1e-4, 'speed', 900));
  expect_equal (findings_of (sim, 'load_fast'), '');
end
