% Rotors whose speed changes: a run-up is one run, with the gyroscopic matrix of every step.
function tests = suite_toolbox_run_up ()
  use_toolbox ();
  tests = localfunctions ();
end

% A rigid disk on a soft shaft, off its middle: displacements and slopes in two directions, 20 to 90 Hz at standstill.
function s = disk_rotor (c, kg)
  m = diag ([3 3 0.02 0.02 1 1]);
  k = kron ([8 -0.3 -2; -0.3 0.05 0.1; -2 0.1 3] * 1e4, eye (2));
  g = zeros (6);
  g(3:4, 3:4) = 0.035 * [0 1; -1 0];
  s = struct ('M', m, 'K', k, 'C', c * (2e-5 * k + 0.4 * m), 'G', g, 'KG', []);
  if kg, s.KG = zeros (6); s.KG(3, 4) = 0.035; end
  s.model = qn.modal (k, m, 'C', s.C, 'G', g, 'speed', 0, 'KG', s.KG);
end

% Speed and slope of a table at times in a row; loads of an unbalance that turns by the angle of it, at the first degrees of freedom.
function [omega, slope, angle] = turned (table, t)
  slopes = diff (table(2, :)) ./ diff (table(1, :));
  k = min (sum (table(1, 1:end - 1).' <= t, 1), numel (slopes));
  since = t - table(1, k);
  omega = table(2, k) + slopes(k) .* since;
  slope = slopes(k);
  knot = k > 1 & since == 0;
  slope(knot) = (slopes(k(knot) - 1) + slopes(k(knot))) / 2;
  before = [0, cumsum((table(2, 1:end - 1) + table(2, 2:end)) / 2 .* diff (table(1, :)))];
  angle = before(k) + (table(2, k) + omega) / 2 .* since;
end

function p = unbalance (table, time)
  [w, s, angle] = turned (table, time);
  p = 3e-5 * [w .^ 2 .* cos(angle) + s .* sin(angle); w .^ 2 .* sin(angle) - s .* cos(angle)];
end

function sim = set_up (s, table, h, steps, varargin)
  b = eye (6, 2);
  load = {s.model.shapes.' * b(:, 1), @(t) [1 0] * unbalance(table, t); s.model.shapes.' * b(:, 2), @(t) [0 1] * unbalance(table, t)};
  sim = qn.simulation (s.model, 'step', h, 'steps', steps, 'speed', table, 'load', load, varargin{:});
end

% The scheme by hand, with the matrices of the structure at every step.
function out = by_hand (s, table, h, steps)
  time = (0:steps) * h;
  p = [unbalance(table, time); zeros(4, steps + 1)];
  speeds = zeros (1, steps + 1);
  changing = zeros (6, 6, steps + 1);
  for j = 1:steps + 1
    [speeds(j), slope] = turned (table, time(j));
    if ~isempty (s.KG), changing(:, :, j) = slope * s.KG; end
  end
  out = newmark_of_speeds (s, p, h, speeds, changing);
end

function e = relative (x, wanted)
  e = max (abs (x(:) - wanted(:))) / max (abs (wanted(:)));
end

function table = to_seventy_hertz ()
  table = [0 1.5 1.7; 0 1 1] .* [1; 2 * pi * 70];
end

function test_a_run_up_to_70_hz_is_the_scheme_with_the_matrix_of_every_step ()
  for kg = [false true]
    s = disk_rotor (1, kg);
    res = qn.run (set_up (s, to_seventy_hertz (), 1e-3, 1600), 'progress', false, 'check', false);
    e = relative (s.model.shapes * res.q, by_hand (s, to_seventy_hertz (), 1e-3, 1600));
    fprintf ('off by %.2g\n', e);
    assert (e < 1e-5);
  end
end

function test_a_run_up_is_of_second_order_against_a_solution_to_small_tolerances ()
  s = disk_rotor (1, true);
  table = [0 0.25 0.5; 0 300 2 * pi * 70];
  rate = @(y, t) slope_of (s, table, y, t);
  before = lsode_options ('integration method');
  back = onCleanup (@() lsode_options ('integration method', before));
  lsode_options ('integration method', 'adams');
  lsode_options ('relative tolerance', 1e-11);
  lsode_options ('absolute tolerance', 1e-14);
  y = lsode (rate, zeros (12, 1), (0:50) * 0.01, 0.25);
  e = zeros (1, 3);
  for j = 1:3
    cut = 2 ^ (j - 1);
    res = qn.run (set_up (s, table, 2.5e-4 / cut, 2000 * cut, 'every', 40 * cut), 'progress', false, 'check', false);
    e(j) = relative (s.model.shapes * res.q, y(:, 1:6).');
  end
  fprintf ('errors %.2g %.2g %.2g\n', e);
  assert (all (abs (log2 (e(1:2) ./ e(2:3)) - 2) < 0.05));
end

function f = slope_of (s, table, y, t)
  [omega, slope] = turned (table, t);
  p = [unbalance(table, t); zeros(4, 1)];
  f = [y(7:12); s.M \ (p - (s.C + omega * s.G) * y(7:12) - (s.K + slope * s.KG) * y(1:6))];
end

function test_a_table_of_one_speed_is_the_model_at_that_speed ()
  s = disk_rotor (1, false);
  flat = [0 10; 300 300];
  run = qn.run (set_up (s, flat, 1e-3, 400), 'progress', false, 'check', false);
  at = s;
  at.model = qn.modal (s.K, s.M, 'C', s.C, 'G', s.G, 'speed', 300);
  sim = set_up (s, flat, 1e-3, 400);
  fixed = qn.simulation (at.model, 'step', 1e-3, 'steps', 400, 'load', sim.options.load);
  expect_equal (fixed.speed, []);
  wanted = qn.run (fixed, 'progress', false, 'check', false);
  assert (relative (run.q, wanted.q) < 1e-11 && relative (run.final.a, wanted.final.a) < 1e-10);
end

function test_a_rotor_without_damping_keeps_its_energy_while_it_runs_up_and_down ()
  s = disk_rotor (0, false);
  table = [0 4.5 5.5 10; 0 440 440 -100];
  at = @(ending, start, varargin) qn.run (qn.simulation (s.model, 'step', 1e-3, 'until', ending, 'speed', table, 'start', start, ...
                                                         varargin{:}), 'progress', false, 'check', false);
  energy = @(res) sum (res.final.v .^ 2) / 2 + sum (s.model.stiffness .* res.final.u .^ 2) / 2;
  up = at (4.6, [], 'v0', [1; 0; 0; 5; 0; 0]);
  held = at (5.4, up);
  down = at (10, held);
  first = sum ((s.model.shapes.' * s.M * [1; 0; 0; 5; 0; 0]) .^ 2) / 2;
  off = [energy(held) / energy(up), [energy(up), energy(down)] / first] - 1;
  fprintf ('energy off by %.2g at constant speed, %.2g after the run-up, %.2g at the end\n', off);
  % While the speed changes, the scheme itself keeps the energy to the order of the step squared.
  assert (all (abs (off) < [1e-10 0.03 0.01]));
end

function test_energies_of_a_run_up_balance ()
  s = disk_rotor (1, true);
  res = qn.run (set_up (s, to_seventy_hertz (), 5e-4, 3200), 'progress', false, 'check', false);
  e = qn.energies (res);
  scale = max (e.kinetic + e.strain);
  assert (max (abs (e.residual)) < 1e-6 * scale);
  assert (max (abs (e.circulatory)) > 1e-3 * scale && max (abs (e.gyroscopic)) < 1e-3 * scale);
  v = qn.velocity (res, eye (6));
  assert (norm (v(:, end) - res.final.v) < 1e-6 * norm (v(:, end)));
end

function sim = with_slider (s, steps, varargin)
  list = {qn.slider('stiffness', 1e4, 'slip', 2), qn.observe(s.model, 1); qn.cubic('stiffness', 1e9), qn.observe(s.model, 5)};
  sim = set_up (s, to_seventy_hertz (), 1e-3, steps, 'elements', list, varargin{:});
end

function test_pieces_files_and_continued_runs_have_the_bits_of_the_whole ()
  quiet = {'progress', false, 'check', false};
  for kg = [false true]
    s = disk_rotor (1, kg);
    whole = qn.run (with_slider (s, 1600), quiet{:});
    pieces = qn.run (with_slider (s, 1600), quiet{:}, 'piece', 37);
    expect_equal (pieces.q, whole.q);
    expect_equal (pieces.force, whole.force);
    file = [tempname() '.mat'];
    gone = onCleanup (@() delete (file));
    qn.run (with_slider (s, 1600), quiet{:}, 'piece', 250, 'save', file, 'stop', @(r) r.time_end > 0.6);
    resumed = qn.resume (file, 'progress', false);
    expect_equal (resumed.q, whole.q);
    expect_equal (resumed.final.a, whole.final.a);
    for cut = [250 1500]
      first = qn.run (with_slider (s, cut), quiet{:});
      second = qn.run (with_slider (s, 1600 - cut, 'start', first), quiet{:});
      expect_equal (second.q, whole.q(:, cut + 1:end));
      expect_equal (second.final.u, whole.final.u);
    end
  end
end

function test_a_coast_down_begins_where_a_run_at_constant_speed_ends ()
  s = disk_rotor (1, false);
  at = qn.modal (s.K, s.M, 'C', s.C, 'G', s.G, 'speed', 300);
  steady = qn.run (qn.simulation (at, 'step', 1e-3, 'steps', 300, 'v0', [1; 0; 0; 2; 0; 0]), 'progress', false, 'check', false);
  down = qn.simulation (s.model, 'step', 1e-3, 'steps', 500, 'start', steady, 'speed', [0 0.3 0.8; 300 300 0]);
  assert (relative (down.start.a, steady.final.a) < 1e-9);
  res = qn.run (down, 'progress', false, 'check', false);
  assert (res.complete && max (abs (res.q(:))) < 1);
end

function test_a_dense_table_of_speeds_is_followed_too ()
  s = disk_rotor (1, false);
  t = (0:800) * 1e-3;
  table = [t; 440 * sin(pi / 2 * t / 0.8) .^ 2];
  sim = qn.simulation (s.model, 'step', 1e-3, 'steps', 800, 'speed', table, 'v0', [1; 0; 0; 5; 0; 0]);
  res = qn.run (sim, 'progress', false, 'check', false);
  [u, v, a] = deal (zeros (6, 1), [1; 0; 0; 5; 0; 0], []);
  a = -(s.M \ (s.C * v));
  for j = 2:801
    c = s.C + table(2, j) * s.G;
    u = u + 1e-3 * v + 2.5e-7 * a;
    v = v + 5e-4 * a;
    a = (s.M + 5e-4 * c + 2.5e-7 * s.K) \ (-c * v - s.K * u);
    u = u + 2.5e-7 * a;
    v = v + 5e-4 * a;
  end
  assert (relative (s.model.shapes * res.q(:, end), u) < 1e-9);
end

% A top: pushed over by its weight, held up by its spin above 2*sqrt(k*m)/g.
function test_the_check_looks_at_the_whole_range_of_speeds ()
  model = qn.modal (zeros (2), eye (2), 'K', -100 * eye (2), 'G', [0 1; -1 0] * 0.5, 'speed', 0);
  sim = @(table) qn.simulation (model, 'step', 1e-3, 'steps', 2000, 'speed', table, 'v0', [1; 0]);
  found = qn.check (sim ([0 2; 60 100]));
  assert (~any (strcmp ({found.code}, 'model_grows')));
  found = qn.check (sim ([0 2; 60 0]));
  k = find (strcmp ({found.code}, 'model_grows'));
  assert (numel (k) == 1);
  assert (~isempty (regexp (found(k).text, '^at 0 rad/s the model itself is unstable', 'once')));
  s = disk_rotor (1, false);
  damped = set_up (s, to_seventy_hertz (), 5e-4, 3200);
  found = qn.check (damped);
  assert (~any (strcmp ({found.level}, 'error')));
  long = set_up (s, to_seventy_hertz (), 1e-2, 160, 'scheme', 'linear');
  found = qn.check (long);
  assert (any (strcmp ({found.level}, 'error')));
end

function test_the_check_of_the_step_takes_the_fastest_whirl ()
  model = qn.modal (1e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', 0);
  slow = qn.check (qn.simulation (model, 'step', 2e-3, 'steps', 2000, 'speed', [0 4; 0 10], 'v0', [1; 0]));
  fast = qn.check (qn.simulation (model, 'step', 2e-3, 'steps', 2000, 'speed', [0 4; 0 900], 'v0', [1; 0]));
  assert (~any (strcmp ({slow.code}, 'step_coarse')) && any (strcmp ({fast.code}, 'step_coarse')));
end

function test_a_growing_run_up_is_still_said_and_one_that_may_grow_is_not ()
  s = disk_rotor (0, false);
  sim = qn.simulation (s.model, 'step', 1e-3, 'steps', 500, 'speed', [0 1; 0 400], 'v0', [1; 0; 0; 5; 0; 0]);
  assert (isfinite (qn.impl.energy_limit (sim, sim.start)));
  s = disk_rotor (0, true);
  sim = qn.simulation (s.model, 'step', 1e-3, 'steps', 500, 'speed', [0 1; 0 400], 'v0', [1; 0; 0; 5; 0; 0]);
  assert (isinf (qn.impl.energy_limit (sim, sim.start)));
end

function test_advice_on_the_step_of_a_run_up_runs_it_up ()
  s = disk_rotor (1, false);
  sim = qn.simulation (s.model, 'step', 1e-3, 'steps', 600, 'speed', [0 0.6; 0 440], 'v0', [1; 0; 0; 5; 0; 0]);
  advice = qn.advise (sim, 'rows', qn.observe (s.model, 1));
  assert (abs (advice.order - 2) < 0.1);
end

function test_speeds_that_do_not_fit_are_refused_in_words ()
  s = disk_rotor (1, false);
  make = @(varargin) qn.simulation (s.model, 'step', 1e-3, 'steps', 100, varargin{:});
  trials = {[0 0.05; 0 1], 'qn.simulation: "speed" covers 0 to 0.05 s of a run from 0 to 0.1 s; give it for all of the run'
            [0.01 1; 0 1], 'qn.simulation: "speed" covers 0.01 to 1 s of a run from 0 to 0.1 s; give it for all of the run'
            [0 1 1; 0 1 2], '~"speed\(1, :\)" must ascend: value 2 is 1, value 3 is 1'
            [0 2 1; 0 1 2], '~"speed\(1, :\)" must ascend: value 2 is 2, value 3 is 1'
            [0 NaN; 0 1], 'qn.simulation: "speed"(1, 2) is NaN; finite numbers expected'
            [0 1; 0 Inf], 'qn.simulation: "speed"(2, 2) is Inf; finite numbers expected'
            [0 1; 0 1i], '~"speed"\(2, 2\) is .*; real numbers expected'
            [0; 1; 2], '~"speed" must be 2 x n numbers, \[times; speeds\], got 3 x 1'
            [0 0; 1 2; 2 3], '~"speed" must be 2 x n numbers, \[times; speeds\], got 3 x 2. It looks transposed'
            [0 1; 0 100; 0 5], '~"speed" must be 2 x n numbers, \[times; speeds\], got 3 x 2$'
            300, '~"speed" must be 2 x n numbers, \[times; speeds\], got 1 x 1'
            'fast', '~"speed" must be numbers, got .*char'};
  for k = 1:size (trials, 1)
    expect_error (@() make ('speed', trials{k, 1}), 'qn:input', trials{k, 2});
  end
  plain = qn.modal (s.K, s.M);
  expect_error (@() qn.simulation (plain, 'step', 1e-3, 'steps', 100, 'speed', [0 1; 0 1]), 'qn:input', ...
                'qn.simulation: "speed" needs a model with a gyroscopic matrix: give qn.modal "G" and "speed", 0');
  expect_error (@() qn.modal (s.K, s.M, 'KG', s.K), 'qn:input', 'qn.modal: "KG" belongs to a gyroscopic matrix: give "G" as well');
  expect_error (@() qn.modal (s.K, s.M, 'G', s.G, 'speed', 0, 'KG', eye (3)), 'qn:input', '~"KG" must be 6 x 6');
  sim = make ('speed', [0 1; 0 1], 'v0', ones (6, 1));
  sim.speed(1, 2) = 0.05;
  found = qn.check (sim);
  assert (any (strcmp ({found.code}, 'speed')));
end

% With a step on which a table's knot falls by rounding only, the stiffness jumps in the mean of both sides.
function test_knots_that_miss_a_step_by_rounding_are_on_it ()
  s = disk_rotor (1, true);
  sim = qn.simulation (s.model, 'step', 0.1, 'steps', 5, 'speed', [0 0.3 1; 0 30 10]);
  expect_equal (sim.speed(1, 2), 3 * 0.1);
  [omega, slope] = qn.impl.speed_at (sim, sim.time);
  expect_equal (omega(4), 30);
  expect_equal (slope([1 3 4 5]), [100, 100, (100 - 20 / 0.7) / 2, -20 / 0.7], 1e-12);
end
