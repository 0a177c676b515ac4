% Shafts in plain bearings, dampers and rings, with published or closed-form answers.
function tests = suite_published_bearings ()
  use_toolbox ();
  tests = localfunctions ();
end

% A bearing of M. I. Friswell et al., example 5.5.1: 525 N at 1500 rpm.
function film = bearing (speed)
  if nargin < 1, speed = 50 * pi; end
  film = qn.journal ('viscosity', 0.1, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', speed);
end

% mu W R L^3/(2 c^2) of it, and the load that makes the eccentricity e.
function f = unit ()
  f = 0.1 * 50 * pi * 0.05 * 0.03 ^ 3 / (2 * 1e-8);
end

function w = load_at_eccentricity (e)
  w = unit () * e / (2 * (1 - e ^ 2) ^ 2) * sqrt (16 * e ^ 2 + pi ^ 2 * (1 - e ^ 2));
end

function test_coefficients_of_a_published_bearing ()
  c = published ('Stiffness of a short journal bearing', ...
                 'M. I. Friswell, J. E. T. Penny, S. D. Garvey and A. W. Lees, Dynamics of Rotating Machines, 2010, example 5.5.1', {'Journal'});
  b = qn.journal_coefficients (bearing (), [0 -525]);
  k = abs (b.stiffness) / 1e6;
  expect_published (c, {'eccentricity', 'stiffness, 12.81 [MN/m]', 'stiffness, 16.39 [MN/m]', 'stiffness, 25.06 [MN/m]', ...
                        'stiffness, 8.815 [MN/m]'}, [.2663 12.81 16.39 25.06 8.815], ...
                    [b.eccentricity, sort_like(k(:), [12.81 16.39 25.06 8.815])], [5e-5 5e-3 5e-3 5e-3 5e-4]);
  % The load is along -y: the place lies behind it in the sense of rotation, and the force holds the load.
  expect_equal (b.position(1) > 0 && b.position(2) < 0, true);
  expect_equal (qn.force (bearing (), b.position, [0; 0]), [0; -525], 1e-9 * 525);
end

% Of the values X those nearest to WANTED, each once.
function y = sort_like (x, wanted)
  y = wanted;
  for k = 1:numel (wanted)
    [~, j] = min (abs (x - wanted(k)));
    y(k) = x(j);
    x(j) = Inf;
  end
end

function test_load_and_attitude_of_the_short_bearing ()
  c = published ('Load and attitude of a short journal bearing', ...
                 'closed form of the half film (F. W. Ocvirk, NACA TN 2808, 1952)', {'Journal'});
  e = [.1 .3 .5 .7 .9];
  sommerfeld = [.98997911 .27217603 .10604941 .03296432 .00331488];
  attitude = [82.7078 68.1781 53.6802 38.7040 20.8261];
  for k = 1:5
    % S (L/D)^2 = mu n L D/W (R/c)^2 (L/D)^2
    load = 0.1 * 25 * 0.03 * 0.1 * (0.05 / 1e-4) ^ 2 * 0.3 ^ 2 / sommerfeld(k);
    b = qn.journal_coefficients (bearing (), load * [cos(k), sin(k)]);
    expect_published (c, {sprintf('eccentricity at S (L/D)^2 = %g', sommerfeld(k)), 'attitude [degrees]'}, [e(k) attitude(k)], ...
                      [b.eccentricity, b.attitude * 180 / pi], [2e-8, 6e-5]);
  end
end

% K c/load and C c W/load, direction 1 along the load.
function test_dimensionless_coefficients_of_the_short_bearing ()
  c = published ('Stiffness and damping of a short journal bearing at the eccentricity 0.5', ...
                 'closed form of the half film (F. W. Ocvirk, NACA TN 2808, 1952)', {'Journal'});
  load = load_at_eccentricity (0.5);
  b = qn.journal_coefficients (bearing (), [load 0]);
  expect_published (c, {'Kxx', 'Kxy', 'Kyx', 'Kyy'}, [2.923250 3.976642 -.857700 2.209944], ...
                    reshape (b.stiffness.', 1, []) * 1e-4 / load, 1e-6);
  expect_published (c, {'Cxx', 'Cxy', 'Cyx', 'Cyy'}, [6.614760 2.244955 2.244955 3.053924], ...
                    reshape (b.damping.', 1, []) * 1e-4 * 50 * pi / load, 1e-6);
end

function test_threshold_of_a_rigid_rotor_on_its_film ()
  c = published ('Stability of a rigid rotor in short journal bearings', ...
                 'closed form: Routh criterion with the coefficients of the half film (F. W. Ocvirk, NACA TN 2808, 1952)', {'Journal'});
  masses = [7.514609 6.790120 7.295272];
  whirls = [.502938 .519417 .473955];
  e = [.1 .3 .6];
  for k = 1:3
    load = load_at_eccentricity (e(k));
    b = qn.journal_coefficients (bearing (), [0 -load]);
    expect_published (c, {sprintf('m c W^2/load at the eccentricity %g', e(k)), 'whirl over spin'}, [masses(k) whirls(k)], ...
                      [b.mass * 1e-4 * (50 * pi) ^ 2 / load, b.whirl], 1e-6);
  end
  at = @(e) qn.journal_coefficients (bearing (), [0 -load_at_eccentricity(e)]);
  [low, high] = deal (0.7, 0.8);
  for round = 1:22
    middle = at ((low + high) / 2);
    if isfinite (middle.mass), low = (low + high) / 2; else, high = (low + high) / 2; end
  end
  expect_published (c, 'eccentricity above which no mass whirls', 0.756030, low, 1e-6);
  expect_equal ([at(high).mass, at(high).whirl], [Inf 0]);
  expect_equal (at(low).whirl < 0.01, true);
end

% Places in units of the clearance, velocities in c W; forces in mu W R L^3/(2 c^2).
function test_forces_of_a_journal_that_moves ()
  c = published ('Oil film of a journal that moves', 'quadrature of the pressure of the half film (F. W. Ocvirk, NACA TN 2808, 1952)', {'Journal'});
  states = [.3 .2 .1 -.05; .6 -.4 -.2 .3; .7 .5 0 0];
  forces = [-1.382398388 .492963610; .450832664 .280323874; -23.739668543 -4.431450416];
  for k = 1:3
    f = -qn.force (bearing (), 1e-4 * states(k, 1:2).', 1e-4 * 50 * pi * states(k, 3:4).') / unit ();
    names = arrayfun (@(s) sprintf ('%s over mu W R L^3/(2 c^2), state %d', s, k), 'xy', 'uniformoutput', false);
    expect_published (c, names, forces(k, :), f.', 1e-8);
  end
end

% The same threshold in time: a run decays at 0.98 of the speed, and grows at 1.02 of it.
function test_a_run_decays_below_the_threshold_and_grows_above_it ()
  c = published ('Oil whirl of a rigid rotor on both sides of its threshold', ...
                 'closed form: eigenvalues of a rigid rotor with the coefficients of the half film (F. W. Ocvirk, NACA TN 2808, 1952)', ...
                 {'Journal', 'initial state', 'statics'});
  load = 525;
  % At 1500 rpm the threshold belongs to this mass.
  b = qn.journal_coefficients (bearing (), [0 -load]);
  for share = [0.98 1.02]
    film = bearing (50 * pi * share);
    model = qn.modal (zeros (2), b.mass * eye (2));
    down = {qn.load_at(model, 2), @(t) -load + 0 * t};
    elements = {film, qn.observe(model, eye (2))};
    q = qn.static (model, qn.load_at (model, 2) * -load, elements, model.shapes \ b.position);
    now = qn.journal_coefficients (film, [0 -load]);
    expect_equal (model.shapes * q, now.position, 1e-11);
    a = [zeros(2), eye(2); -now.stiffness / b.mass, -now.damping / b.mass];
    rate = max (real (eig (a)));
    whirl = 2 * pi / max (imag (eig (a)));
    % The film's damping acts at the prediction: its error is of first order, and turns the small difference that the rate is.
    h = whirl / 20000;
    sim = qn.simulation (model, 'step', h, 'steps', 30 * 20000, 'every', 20, 'q0', q + model.shapes \ [1e-9; 0], 'load', down, 'elements', elements);
    res = qn.run (sim, 'progress', false);
    away = sqrt (sum (bsxfun (@minus, model.shapes * res.q, now.position) .^ 2, 1));
    amplitude = log (max (reshape (away(1:30 * 1000), 1000, 30)));
    slope = polyfit (whirl * (5:29), amplitude(6:30), 1);
    expect_published (c, sprintf ('growth rate at %g of the threshold speed [1/s]', share), rate, slope(1), 0.02 * abs (rate));
  end
end

function test_circular_orbit_in_a_squeeze_film_damper ()
  c = published ('Circular orbit in a squeeze film damper', ...
                 'closed form of the half film: C = mu R (L/c)^3 (pi/2)/(1-e^2)^1.5, K = 2 mu w R (L/c)^3 e/(1-e^2)^2', {'Journal'});
  film = bearing (0);
  e = 0.4;
  w = 300;
  t = 0.3;
  x = e * 1e-4 * [cos(w * t); sin(w * t)];
  v = e * 1e-4 * w * [-sin(w * t); cos(w * t)];
  f = qn.force (film, x, v);
  base = 0.1 * 0.05 * (0.03 / 1e-4) ^ 3;
  damping = base * (pi / 2) / (1 - e ^ 2) ^ 1.5;
  stiffness = 2 * base * w * e / (1 - e ^ 2) ^ 2;
  expect_published (c, {'damping [N s/m]', 'stiffness [N/m]'}, [damping stiffness], ...
                    [f.' * v / (v.' * v), f.' * x / (x.' * x)], [1e-9 * damping, 1e-9 * stiffness]);
end

% Jeffcott rotor in a centred ring, synchronous whirl with rub: m z'' + c z' + k z + kc (1 - d/|z|) (1 + i mu) z = m e W^2 exp (i W t).
function test_rub_of_a_rotor_in_a_ring ()
  c = published ('Synchronous whirl of a rotor that rubs in a ring', ...
                 'closed form of a Jeffcott rotor with constant whirl radius', {'Radial', 'several loads', 'initial state'});
  [m, k, d, e, gap, kc, mu] = deal (10, 4e6, 632.4555, 5e-5, 1e-4, 2e7, 0.05);
  model = qn.modal (k * eye (2), m * eye (2), 'C', d * eye (2));
  wanted = [1.03884944e-4 1.24741702e-4];
  ratios = [0.9 1.2];
  for j = 1:2
    w = ratios(j) * sqrt (k / m);
    ring = qn.radial ('gap', gap, 'stiffness', kc, 'friction', mu, 'onset', 1e-3, 'radius', 0.05, 'speed', w);
    push = m * e * w ^ 2;
    % The circle: where the forces of the ring at that radius balance it, turned so that the unbalance is on x at the start.
    radius = wanted(j);
    z = push / (k - m * w ^ 2 + 1i * d * w + kc * (1 - gap / radius) * (1 + 1i * mu));
    u0 = [real(z); imag(z)];
    v0 = [real(1i * w * z); imag(1i * w * z)];
    h = 2 * pi / w / 1000;
    sim = qn.simulation (model, 'step', h, 'steps', 80 * 1000, 'u0', 0.99 * u0, 'v0', 0.99 * v0, 'elements', {ring, qn.observe(model, eye (2))}, ...
                         'load', {qn.load_at(model, 1), @(t) push * cos(w * t); qn.load_at(model, 2), @(t) push * sin(w * t)});
    res = qn.run (sim, 'progress', false);
    r = sqrt (sum ((model.shapes * res.q(:, end - 1000:end)) .^ 2, 1));
    expect_published (c, sprintf ('radius of the whirl at %g of the critical speed [um]', ratios(j)), 1e6 * wanted(j), 1e6 * mean (r), 2e-3);
    expect_equal (max (r) / min (r), 1, 1e-3);
  end
end

% A free mass whirls along the ring at w: m w^2 r = k (r - d).
function test_whirl_along_a_ring ()
  c = published ('Free whirl of a mass along an elastic ring', 'closed form: centripetal force of the ring', {'Radial', 'initial state'});
  model = qn.modal (zeros (2), 2 * eye (2));
  w = 100;
  ring = qn.radial ('gap', 1e-3, 'stiffness', 1e5);
  r = 1e5 * 1e-3 / (1e5 - 2 * w ^ 2);
  sim = qn.simulation (model, 'step', 2 * pi / w / 2000, 'steps', 10 * 2000, 'u0', [r; 0], 'v0', [0; r * w], ...
                       'elements', {ring, qn.observe(model, eye (2))});
  res = qn.run (sim, 'progress', false);
  x = model.shapes * res.q;
  expect_published (c, {'greatest radius in ten turns [mm]', 'least radius [mm]', 'angle after ten turns over 2 pi'}, [1e3 * r, 1e3 * r, 10], ...
                    [1e3 * max(sqrt (sum (x .^ 2, 1))), 1e3 * min(sqrt (sum (x .^ 2, 1))), 10 + atan2(x(2, end), x(1, end)) / (2 * pi)], ...
                    [2e-5, 2e-5, 1e-4]);
end

% Mass 1 kg in a ring of no gap, k 1e6, exponent 1.5, chi 0.5: D (1+e) = log ((1+D)/(1 - D e)) with D = chi v0.
function test_restitution_after_hunt_and_crossley ()
  c = published ('Restitution of a damped contact', 'K. H. Hunt and F. R. E. Crossley, J. Applied Mechanics 42, 1975: closed form', {'Radial'});
  speeds = [0.1 1 5];
  restitution = [.96773858 .74843493 .35237867];
  depth = [6.80911356e-4 3.89257378e-3 1.09239474e-2];
  ring = qn.radial ('gap', 0.02, 'stiffness', 1e6, 'exponent', 1.5, 'damping', 0.5);
  model = qn.modal (zeros (2), eye (2));
  along = [0.6; 0.8];
  for k = 1:3
    sim = qn.simulation (model, 'step', 1e-6, 'steps', 25000, 'u0', 0.02 * along, 'v0', speeds(k) * along, ...
                         'elements', {ring, qn.observe(model, eye (2))});
    res = qn.run (sim, 'progress', false);
    r = along.' * model.shapes * res.q;
    back = -diff (r(end - 1:end)) / 1e-6;
    expect_published (c, {sprintf('restitution at %g m/s', speeds(k)), 'depth [mm]'}, [restitution(k), 1e3 * depth(k)], ...
                      [back / speeds(k), 1e3 * (max (r) - 0.02)], [2e-5, 0.1 * depth(k)]);
  end
end
