% Bearings whose coefficients depend on the speed, in one run-up: tables and functions, linear between speeds.
function tests = suite_toolbox_speeds ()
  use_toolbox ();
  tests = localfunctions ();
end

function [k, c] = tables ()
  k = [0 3e6 5e6; 150 4e6 6e6; 400 7e6 6.5e6; 900 9e6 9e6];
  c = [0 900 200 -100 700; 300 600 350 -250 500; 900 300 500 -500 200];
end

function [f, nodes] = tilted ()
  nodes = [0 200 500 900];
  value = @(w) [4e6 + 2e3 * w, 1e3 * w; -1.5e3 * w, 5e6 - 1e3 * w];
  f = @(w) value (w) * (1 + (w / 900) ^ 3);
end

function r = example_rotor ()
  [k, c] = tables ();
  f = tilted ();
  r = qn.rotor ('nodes', [0 0.2 0.5 0.8], 'outer', [0.03 0.04 0.03], 'disks', [2 5 0.02 0.04; 3 7 0.03 0.05], 'internal', 5e-5, ...
                'bearings', {1, k, c; 4, f, 300});
end

function model = model_of (r)
  [f, nodes] = tilted ();
  was = warning ('off', 'qn:modal');
  back = onCleanup (@() warning (was));
  model = qn.modal (r, 'speeds', nodes);
end

% What the two bearings are at a speed, from the tables themselves.
function [k, c] = bearings_of (w)
  [kt, ct] = tables ();
  [f, nodes] = tilted ();
  [k, c] = deal (zeros (16));
  k(1:2, 1:2) = diag (between (kt, w));
  c(1:2, 1:2) = reshape (between (ct, w), 2, 2).';
  % The function is taken at all speeds that the model knows, and linear between them.
  at = unique ([nodes, 150, 400, 300]);
  j = min (sum (at <= w), numel (at) - 1);
  part = (w - at(j)) / (at(j + 1) - at(j));
  k(13:14, 13:14) = (1 - part) * f (at(j)) + part * f (at(j + 1));
  c(13:14, 13:14) = 300 * eye (2);
end

function y = between (table, w)
  j = sum (table(1:end - 1, 1) <= w);
  part = (w - table(j, 1)) / (table(j + 1, 1) - table(j, 1));
  y = (1 - part) * table(j, 2:end) + part * table(j + 1, 2:end);
end

function e = relative (x, wanted)
  e = max (abs (x(:) - wanted(:))) / max (abs (wanted(:)));
end

function sim = run_of (model, r, table, h)
  sim = qn.simulation (model, 'step', h, 'until', table(1, end), 'speed', table, ...
                       'load', qn.unbalance (model, r.places(2, 1:2), 1e-4, 'profile', table));
end

% Average acceleration in plain Octave, with the coefficients of every step.
function test_a_run_up_and_down_has_the_coefficients_of_every_step ()
  r = example_rotor ();
  model = model_of (r);
  table = [0 0.06 0.09 0.16; 0 880 880 100];
  h = 2e-4;
  sim = run_of (model, r, table, h);
  res = qn.run (sim, 'progress', false, 'check', false);
  none = qn.rotor ('nodes', [0 0.2 0.5 0.8], 'outer', [0.03 0.04 0.03], 'disks', [2 5 0.02 0.04; 3 7 0.03 0.05], 'internal', 5e-5);
  p = model.shapes.' \ (sim.shapes * sim.loads);
  speed = interp1 (table(1, :), table(2, :), sim.time);
  [k, c] = deal (zeros (16, 16, numel (speed)));
  for j = 1:numel (speed)
    [bearings, c(:, :, j)] = bearings_of (speed(j));
    k(:, :, j) = bearings + speed(j) * none.N;
  end
  x = newmark_of_speeds (none, p, h, speed, k, c);
  e = relative (model.shapes * res.q, x);
  frozen = sim;
  frozen.model.rotation.table.K = repmat (model.rotation.table.K(:, :, 3), 1, 1, size (model.rotation.table.K, 3));
  other = qn.run (frozen, 'progress', false, 'check', false);
  printf ('off by %.2g; with the stiffness of one speed by %.2g\n', e, relative (model.shapes * other.q, x));
  assert (e < 1e-5 && relative (model.shapes * other.q, x) > 0.1);
  pieces = qn.run (sim, 'progress', false, 'check', false, 'piece', 311);
  expect_equal (pieces.q, res.q);
  expect_equal (pieces.final.a, res.final.a);
  energy = qn.energies (res);
  assert (max (abs (energy.residual)) < 1e-6 * max (energy.kinetic));
  rates = qn.velocity (res, eye (16));
  assert (norm (rates(:, end) - res.final.v) < 1e-6 * norm (res.final.v));
end

function test_a_run_up_is_of_second_order_where_a_knot_is_between_two_steps ()
  r = example_rotor ();
  model = model_of (r);
  table = [0 0.2; 0 880];
  for j = 1:4
    res{j} = qn.run (run_of (model, r, table, 8e-4 / 2 ^ (j - 1)), 'progress', false, 'check', false);
    x{j} = res{j}.q(:, 1:2 ^ (j - 1):end);
  end
  order = log2 (norm (x{2} - x{3}, 'fro') / norm (x{3} - x{4}, 'fro'));
  assert (abs (order - 2) < 0.1);
end

function test_a_speed_that_is_held_is_the_model_of_that_speed ()
  r = example_rotor ();
  model = model_of (r);
  for w = [0 300 880]
    at = qn.modal (qn.rotor (r, 'speed', w));
    if w == 880, at = qn.modal (model_at (w)); end
    go = {'progress', false, 'check', false};
    v0 = [1; zeros(15, 1)];
    held = qn.run (qn.simulation (model, 'step', 1e-4, 'steps', 400, 'speed', [0 1; w w], 'v0', v0), go{:});
    fixed = qn.run (qn.simulation (at, 'step', 1e-4, 'steps', 400, 'v0', v0), go{:});
    assert (relative (model.shapes * held.q, at.shapes * fixed.q) < 1e-8);
  end
  % Without a table of speeds the model is that of the first one.
  first = qn.run (qn.simulation (model, 'step', 1e-4, 'steps', 400, 'v0', v0), go{:});
  own = qn.modal (qn.rotor (r, 'speed', 0));
  fixed = qn.run (qn.simulation (own, 'step', 1e-4, 'steps', 400, 'v0', v0), go{:});
  assert (relative (model.shapes * first.q, own.shapes * fixed.q) < 1e-8);
end

function s = model_at (w)
  none = qn.rotor ('nodes', [0 0.2 0.5 0.8], 'outer', [0.03 0.04 0.03], 'disks', [2 5 0.02 0.04; 3 7 0.03 0.05], 'internal', 5e-5);
  [k, c] = bearings_of (w);
  s = struct ('M', none.M, 'K', none.K, 'Ks', none.K + (k + k.') / 2, 'C', none.C + c, 'G', none.G, 'N', none.N, 'speed', w);
  s.K = none.K + k;
end

function test_harmonic_balance_takes_the_bearings_of_every_frequency ()
  r = example_rotor ();
  model = model_of (r);
  load = qn.load_at (model, r.places(2, 1:2)) * 1e-4 * [1; -1i];
  h = qn.harmonic (model, load, {}, [30 70], 'harmonics', 1, 'samples', 8, 'step', 0.1, 'power', 2, 'G', r.G);
  for j = [1, round(numel (h.hertz) / 3), numel(h.hertz)]
    w = 2 * pi * h.hertz(j);
    s = model_at (w);
    f = zeros (16, 1);
    f(r.places(2, 1:2)) = 1e-4 * w ^ 2 * [1; -1i];
    exact = (s.K + w * s.N + 1i * w * (s.C + w * s.G) - w ^ 2 * s.M) \ f;
    assert (relative (model.shapes * (h.cosines(:, j, 2) - 1i * h.sines(:, j, 2)), exact) < 1e-6);
  end
  expect_error (@() qn.harmonic (model, load, {}, [30 200], 'power', 2, 'G', r.G), 'qn:input', ...
                ['qn.harmonic, "HERTZ" times 2 pi: what depends on the speed is known from 0 to 900 rad/s, and asked for at 188.496 to ' ...
                 '1256.64 rad/s']);
end

function test_tables_are_bearings_for_one_speed_and_for_whirl_speeds ()
  [k, c] = tables ();
  make = @(a, b) qn.rotor ('nodes', 0:2, 'outer', 0.1, 'bearings', {1, a, b; 3, 1e6, 100});
  r = make (k, c);
  assert (isempty (r.K));
  at = qn.rotor (r, 'speed', 275);
  same = make (interp1 (k(:, 1), k(:, 2:3), 275), reshape (interp1 (c(:, 1), c(:, 2:5), 275), 2, 2).');
  assert (relative (at.K, same.K) < 1e-14 && relative (at.C, same.C) < 1e-14);
  d = qn.campbell (r, [100 500 850], 'modes', 4);
  f = make (@(w) interp1 (k(:, 1), k(:, 2:3), w), @(w) reshape (interp1 (c(:, 1), c(:, 2:5), w), 2, 2).');
  expect_equal (d.pole, getfield (qn.campbell (f, [100 500 850], 'modes', 4), 'pole'), 1e-9);
  expect_error (@() qn.campbell (r, [100 1000]), 'qn:input', ...
                'qn.rotor: the table "bearings{1, 2}" has values from 0 to 900 rad/s, and is asked for at 1000 rad/s');
  expect_error (@() qn.rotor (r, 'speed', -5), 'qn:input', '~the table "bearings\{1, 2\}" has values from 0 to 900 rad/s, and is asked for at -5 rad/s');
  expect_error (@() make (k([1 3 2 4], :), c), 'qn:input', '~"bearings\{1, 2\}\(:, 1\)" must ascend: value 2 is 400, value 3 is 150');
  expect_error (@() make ([0 NaN 1; 1 2 3], c), 'qn:input', '~"bearings\{1, 2\}"\(1, 2\) is NaN');
end

function test_speeds_beyond_the_tables_are_refused_with_numbers ()
  r = example_rotor ();
  expect_error (@() qn.modal (r, 'speeds', [0 1000]), 'qn:input', ...
                '~the table "bearings\{1, 2\}" has values from 0 to 900 rad/s, and is asked for at 1000 rad/s');
  model = model_of (r);
  make = @(table) qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'speed', table);
  expect_error (@() make ([0 1; 0 950]), 'qn:input', ...
                'qn.simulation, "speed": what depends on the speed is known from 0 to 900 rad/s, and asked for at 0 to 950 rad/s');
  expect_error (@() make ([0 1; -10 200]), 'qn:input', '~known from 0 to 900 rad/s, and asked for at -10 to 200 rad/s');
  % What the table of speeds has after the run is not asked for.
  sim = make ([0 2; 0 1800]);
  assert (~any (strcmp ({getfield(qn.check (sim), 'level')}, 'error')));
end

function test_bearings_that_leave_the_line_between_two_speeds_are_said ()
  r = example_rotor ();
  said = evalc ('qn.modal (r, ''speeds'', [0 900]);');
  assert (~isempty (regexp (said, 'half-way between 400 and 900 rad/s the stiffness of the bearings is [\d.]+ % off the line', 'once')));
  said = evalc ('qn.modal (r, ''speeds'', 0:50:900);');
  assert (isempty (strfind (said, 'off the line')));
end

function test_what_a_run_up_cannot_have_is_refused ()
  make = @(varargin) qn.rotor ('nodes', 0:2, 'outer', 0.1, 'bearings', {1, @(w) 1e6 + w, 10; 3, 1e6, 10}, varargin{:});
  r = make ();
  expect_error (@() qn.modal (r), 'qn:input', ['qn.modal: the bearings of this rotor depend on the speed; give one with qn.rotor (R, ''speed'', W), ' ...
                                               'or for run-ups their range with ''speeds'', [W1 W2 ...]']);
  expect_error (@() qn.modal (r, 'speeds', 5), 'qn:input', 'qn.modal: "speeds" must be two speeds or more, got 1');
  expect_error (@() qn.modal (r, 'speeds', [5 3]), 'qn:input', '~"speeds" must ascend: value 1 is 5, value 2 is 3');
  fixed = qn.rotor ('nodes', 0:2, 'outer', 0.1, 'bearings', {1, 1e6});
  expect_error (@() qn.modal (fixed, 'speeds', [0 1]), 'qn:input', ['qn.modal: "speeds" is for a rotor of qn.rotor with bearings that depend ' ...
                                                                   'on the speed, which this one has not; give "speed"']);
  heavy = make ('seals', {2, 1e3, 0, @(w) 1 + w});
  expect_error (@() qn.modal (heavy, 'speeds', [0 100]), 'qn:input', '~a seal has another added mass at 100 rad/s than at 0 rad/s');
  by = @(rows) qn.modal (eye (2), eye (2), 'speed', 0, 'by_speed', rows);
  expect_error (@() by ({0, eye(2), []}), 'qn:input', ...
                'qn.modal: "by_speed" must be a cell {speed, K, C; ...} of two rows or more, got [1 3] of class cell');
  expect_error (@() by ({0, eye(2), []; 1, eye(3), []}), 'qn:input', '~"by_speed\{2, 2\}" must be 2 x 2 numbers');
  expect_error (@() by ({1, eye(2), []; 0, eye(2), []}), 'qn:input', '~"by_speed{:, 1}" must ascend');
  expect_error (@() qn.modal (eye (2), eye (2), 'speed', 3, 'by_speed', {0, eye(2), []; 1, eye(2), []}), 'qn:input', ...
                '~known from 0 to 1 rad/s, and asked for at 3 rad/s');
end

% The response to an unbalance begins small: in steps of that size the curve could end before its range, without a word.
function test_the_curve_of_an_unbalance_goes_through_its_peaks_to_the_end ()
  model = qn.modal (diag ([1e4 9e4]), eye (2), 'damping', 5e-3);
  load = [1; 0.3];
  h = qn.harmonic (model, load, {}, [1 100], 'harmonics', 1, 'samples', 8, 'power', 2);
  assert (h.hertz(end) >= 100 && numel (h.hertz) < 400);
  peaks = max (h.amplitude, [], 2);
  expect_equal (peaks.' ./ (load.' / (2 * 5e-3)), [1 1], 0.01);
end

function test_a_report_says_how_the_rotor_turns_and_what_changes ()
  r = example_rotor ();
  model = model_of (r);
  list = {'K', eye(16), [0 1; 0 1]};
  up = qn.simulation (model, 'step', 1e-3, 'steps', 10, 'speed', [0 0.02; 100 300], 'varying', list, 'v0', ones (16, 1));
  text = qn.impl.page.set_up (up);
  assert (~isempty (strfind (text, '100 to 200 rad/s (954.93 to 1909.9 rpm); gyroscopic matrix, circulatory matrix, stiffness and damping by speed')));
  assert (~isempty (strfind (text, '1 matrix of stiffness, by tables')));
  still = qn.modal (eye (2), eye (2));
  assert (isempty (strfind (qn.impl.page.set_up (qn.simulation (still, 'step', 1e-3, 'steps', 10)), 'Rotation')));
  at = qn.modal (qn.rotor (r, 'speed', 300));
  text = qn.impl.page.set_up (qn.simulation (at, 'step', 1e-3, 'steps', 10));
  assert (~isempty (strfind (text, '300 rad/s (2864.8 rpm); gyroscopic matrix, circulatory matrix<')));
end
