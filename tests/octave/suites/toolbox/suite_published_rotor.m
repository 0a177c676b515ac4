% A finite-element rotor with published critical speeds: its matrices through qn.modal, and its orbit under unbalance in a run.
function tests = suite_published_rotor ()
  use_toolbox ();
  tests = localfunctions ();
end

% Nelson and McVaugh, 1976: 18 elements without shear, a disk at node 5, bearings of 4.378e7 N/m at nodes 11 and 15. One plane has the
% degrees of freedom (deflection, slope) of each node; the gyroscopic matrix couples both planes with twice the rotary inertia.
function [k, m, g] = plane ()
  at = [0 1.27 5.08 7.62 8.89 10.16 10.67 11.43 12.70 13.46 16.51 19.05 22.86 26.67 28.70 30.48 31.50 34.54 35.56] / 100;
  outer = [.51 1.02 .76 2.03 2.03 3.30 3.30 2.54 2.54 1.27 1.27 1.52 1.52 1.27 1.27 3.81 2.03 2.03] / 100;
  inner = zeros (1, 18);
  inner([7 8 18]) = [1.52 1.78 1.52] / 100;
  k = zeros (38);
  m = k;
  g = k;
  for j = 1:18
    l = at(j + 1) - at(j);
    area = pi * (outer(j) ^ 2 - inner(j) ^ 2);
    second = pi / 4 * (outer(j) ^ 4 - inner(j) ^ 4);
    d = 2 * j - 1:2 * j + 2;
    k(d, d) = k(d, d) + 2.078e11 * second / l ^ 3 * [12 6*l -12 6*l; 6*l 4*l^2 -6*l 2*l^2; -12 -6*l 12 -6*l; 6*l 2*l^2 -6*l 4*l^2];
    rotary = 7806 * second / (30 * l) * [36 3*l -36 3*l; 3*l 4*l^2 -3*l -l^2; -36 -3*l 36 -3*l; 3*l -l^2 -3*l 4*l^2];
    m(d, d) = m(d, d) + rotary + 7806 * area * l / 420 * ...
              [156 22*l 54 -13*l; 22*l 4*l^2 13*l -3*l^2; 54 13*l 156 -22*l; -13*l -3*l^2 -22*l 4*l^2];
    g(d, d) = g(d, d) + 2 * rotary;
  end
  m(9:10, 9:10) = m(9:10, 9:10) + diag ([1.401 .00136]);
  g(10, 10) = g(10, 10) + .00203;
  for node = [11 15], k(2 * node - 1, 2 * node - 1) = k(2 * node - 1, 2 * node - 1) + 4.378e7; end
end

function model = spinning (rpm)
  [k, m, g] = plane ();
  none = zeros (size (g));
  model = qn.modal (blkdiag (k, k), blkdiag (m, m), 'modes', 60, 'G', [none g; -g none], 'speed', rpm * pi / 30);
end

function test_critical_speeds_of_a_rotor ()
  c = published ('Critical speeds of a rotor of 18 elements', 'H. D. Nelson and J. M. McVaugh, J. Engineering for Industry 98, 1976', ...
                 {'modes', 'projection', 'gyroscopic matrix'});
  model = spinning (30 / pi);
  % Spin and whirl are one: K x = w^2 (I - i G) x.
  rpm = sort (sqrt (real (eig (diag (model.stiffness), eye (60) - 1i * model.damping)))) * 30 / pi;
  rpm = rpm(rpm > 100);
  published_speeds = [15470 17159 46612 49983 64752 96547];
  names = arrayfun (@(k) sprintf ('critical speed %d [rpm]', k), 1:6, 'uniformoutput', false);
  expect_published (c, names, published_speeds, rpm(1:6), 6e-3 * published_speeds);
  model = spinning (40000);
  rpm = abs (imag (eig ([zeros(60), eye(60); -diag(model.stiffness), -model.damping]))) * 30 / pi;
  rpm = sort (rpm(rpm > 100));
  names = arrayfun (@(k) sprintf ('whirl speed %d at 40,000 rpm [rpm]', k), 1:6, 'uniformoutput', false);
  expect_published (c, names, [14247.6 18334.2 46865.1 49669.8 68714.3 84802.3], rpm(1:2:11), 1);
end

% Disk mass centre 63.5 um off at 10,000 rpm, no damping: a run that starts on the orbit stays on it.
function test_unbalance_orbit_of_a_rotor ()
  c = published ('Unbalance orbit of a rotor of 18 elements', ...
                 ['closed form (K - W^2 (M - G)) r = m e W^2 of the rotor of H. D. Nelson and J. M. McVaugh, J. Engineering for Industry ' ...
                  '98, 1976'], {'gyroscopic matrix', 'several loads', 'initial state'});
  w = 10000 * pi / 30;
  model = spinning (10000);
  f = 1.401 * 6.35e-5 * w ^ 2;
  x = qn.load_at (model, 9);
  y = qn.load_at (model, 38 + 9);
  q = (diag (model.stiffness) - w ^ 2 * eye (60) + 1i * w * model.damping) \ (f * (x - 1i * y));
  sim = qn.simulation (model, 'step', 2 * pi / w / 720, 'steps', 3 * 720, 'q0', real (q), 'dq0', real (1i * w * q), ...
                       'load', {x, @(t) f * cos(w * t); y, @(t) f * sin(w * t)});
  res = qn.run (sim);
  at = @(dof) sqrt (sum (qn.displacement (res, qn.observe (model, dof + [0 38])) .^ 2, 1));
  disk = at (9);
  tip = at (1);
  expect_published (c, {'radius at the disk after 3 turns [um]', 'radius at node 1 after 3 turns [um]'}, [20.43836 39.46272], ...
                    1e6 * [disk(end) tip(end)], [2e-3 4e-3]);
  expect_equal ([max(disk) / min(disk), max(tip) / min(tip)], [1 1], 1e-4);
end

% The same rotor from qn.rotor, its speeds from qn.campbell.
function test_campbell_diagram_of_a_rotor ()
  c = published ('Campbell diagram of a rotor of 18 elements', ...
                 ['K x = W^2 (M - i G) x to rounding, for the rotor of H. D. Nelson and J. M. McVaugh, J. Engineering for Industry 98, ' ...
                  '1976'], {'rotor', 'whirl speeds', 'gyroscopic matrix'});
  at = [0 1.27 5.08 7.62 8.89 10.16 10.67 11.43 12.70 13.46 16.51 19.05 22.86 26.67 28.70 30.48 31.50 34.54 35.56] / 100;
  outer = [.51 1.02 .76 2.03 2.03 3.30 3.30 2.54 2.54 1.27 1.27 1.52 1.52 1.27 1.27 3.81 2.03 2.03] / 50;
  inner = zeros (1, 18);
  inner([7 8 18]) = [1.52 1.78 1.52] / 50;
  r = qn.rotor ('nodes', at, 'outer', outer, 'inner', inner, 'young', 2.078e11, 'density', 7806, 'shear', false, ...
                'disks', [5 1.401 .00136 .00203], 'bearings', {11, 4.378e7; 15, 4.378e7});
  d = qn.campbell (r, (0:10000:100000) * pi / 30, 'modes', 6);
  names = arrayfun (@(k) sprintf ('critical speed %d [rpm]', k), 1:6, 'uniformoutput', false);
  expect_published (c, names, [15476.4 17159.3 46594.4 49968.1 64754.1 96047.0], [d.critical.speed] * 30 / pi, 0.5);
  names = arrayfun (@(k) sprintf ('whirl speed %d at 40,000 rpm [rpm]', k), 1:6, 'uniformoutput', false);
  expect_published (c, names, [14247.6 18334.2 46865.1 49669.8 68714.3 84802.3], d.whirl(:, 5) * 30 / pi, 0.1);
  expect_equal (d.direction(:, 2:end), repmat ([-1; 1], 3, 10), 1e-6);
  w = 10000 * pi / 30;
  push = zeros (76, 1);
  push([17 18]) = 1.401 * 6.35e-5 * w ^ 2 * [1; -1i];
  orbit = (r.K + 1i * w ^ 2 * r.G - w ^ 2 * r.M) \ push;
  expect_published (c, {'radius at the disk at 10,000 rpm [um]', 'radius at node 1 at 10,000 rpm [um]'}, [20.43836 39.46272], ...
                    1e6 * abs (orbit([17 1])), 1e-4);
end

function test_textbook_rotors_on_soft_and_on_overhung_bearings ()
  c = published ('Rotors of six Timoshenko elements', ...
                 ['M. I. Friswell, J. E. T. Penny, S. D. Garvey and A. W. Lees, Dynamics of Rotating Machines, 2010, examples 5.9.1 and ' ...
                  '5.9.9'], {'rotor', 'whirl speeds', 'gyroscopic matrix'});
  steel = {'nodes', 0:0.25:1.5, 'outer', 0.05, 'young', 211e9, 'density', 7810, 'poisson', 211 / 162.4 - 1};
  soft = qn.rotor (steel{:}, 'cylinders', [3 0.07 0.28 0.05 7810; 5 0.07 0.35 0.05 7810], 'bearings', {1, 1e6; 7, 1e6});
  over = qn.rotor (steel{:}, 'cylinders', [7 0.07 0.35 0.05 7810], 'bearings', {1, 1e7; 5, 1e7});
  speeds = [0 4000] * pi / 30;
  wanted = {[86.66 86.66 274.31 274.31 716.78; 85.39 87.80 251.78 294.71 600.18].', 'soft bearings', soft
            [90.14 90.14 630.73 630.73 830.43 830.43; 76.19 103.91 565.99 634.23 647.75 1174.2].', 'overhung', over};
  for w = wanted.'
    d = qn.campbell (w{3}, speeds, 'modes', 8);
    for k = 1:2
      got = sort (d.whirl(:, k));
      count = size (w{1}, 1);
      names = arrayfun (@(j) sprintf ('%s, %g rpm, whirl speed %d [rad/s]', w{2}, speeds(k) * 30 / pi, j), 1:count, 'uniformoutput', false);
      expect_published (c, names, w{1}(:, k), got(1:count), 0.01 + 0.04 * (w{1}(:, k).' > 1000));
    end
  end
end

% A massless cantilever; the clamp is a stiff bearing with moments.
function test_overhung_disk_splits_into_forward_and_backward_whirl ()
  c = published ('Overhung disk on a massless shaft', 'closed form: (k11 - m w^2)(k22 - Id w^2 + Ip W w) = k12^2', ...
                 {'rotor', 'whirl speeds', 'gyroscopic matrix'});
  r = qn.rotor ('nodes', [0 0.5], 'outer', 0.02, 'density', 0.1, 'shear', false, 'disks', [2 5 0.02 0.04], 'bearings', {1, 1e11 * eye(4)});
  d = qn.campbell (r, [0 3000] * pi / 30, 'modes', 4);
  names = {'backward', 'forward', 'second backward', 'second forward'};
  expect_published (c, strcat (names, ' at rest [rad/s]'), [87.39910 87.39910 826.89970 826.89970], d.whirl(:, 1), ...
                    [1 1 8 8] * 1e-3);
  expect_published (c, strcat (names, ' at 3000 rpm [rad/s]'), [76.23523 98.25782 585.19988 1191.49582], d.whirl(:, 2), ...
                    [1 1 6 12] * 1e-3);
  expect_equal (d.direction(:, 2), [-1; 1; -1; 1], 1e-6);
end

% A point mass on a shaft with damping of its own, ci, and ce at rest: forward whirl grows above omega (1 + ce / ci).
function test_onset_of_whirl_by_damping_of_the_shaft ()
  c = published ('Onset of whirl by damping that turns with the shaft', 'closed form: G. Genta, Dynamics of Rotating Systems, 2005', ...
                 {'whirl speeds', 'circulatory matrix'});
  [m, k, ci] = deal (10, 4e5, 30);
  for ce = [15 60]
    s = struct ('M', m * eye (2), 'K', k * eye (2), 'C', (ce + ci) * eye (2), 'N', ci * [0 1; -1 0]);
    d = qn.campbell (s, 20:70:860, 'places', [1 2]);
    expect_published (c, {sprintf('onset at ce / ci = %g [rad/s]', ce / ci), 'whirl there [rad/s]', 'direction'}, [200 * (1 + ce / ci), 200, 1], ...
                      [d.unstable.speed, d.unstable.whirl, d.unstable.direction], 1e-6);
    speed = 1.1 * d.unstable.speed;
    pole = roots ([m, ce + ci, k - 1i * speed * ci]);
    model = qn.modal (s, 'speed', speed);
    sim = qn.simulation (model, 'step', 2e-4, 'until', 6, 'v0', [1; 0]);
    res = qn.run (sim, 'progress', false, 'check', false);
    rate = log (norm (res.q(:, 30001)) / norm (res.q(:, 15001))) / 3;
    expect_published (c, 'growth rate in a run at 1.1 of it [1/s]', max (real (pole)), rate, 0.01 * max (real (pole)));
  end
end
