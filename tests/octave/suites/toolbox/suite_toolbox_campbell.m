% Whirl speeds, critical speeds, lost damping; unbalances and weight as loads.
function tests = suite_toolbox_campbell ()
  use_toolbox ();
  tests = localfunctions ();
end

% A rotor that tilts alone: Id th'' + k th = 0 with gyroscopic moment, whirl speeds Ip W/(2 Id) +- sqrt ((Ip W/(2 Id))^2 + k/Id).
function test_a_tilting_disk_whirls_as_its_formula_says_and_its_modes_are_followed_through_a_crossing ()
  [id, ip, k, m, stiff] = deal (2, 3.2, 50, 4, 64);
  g = zeros (4);
  g(3, 4) = ip;
  g(4, 3) = -ip;
  r = struct ('M', diag ([m m id id]), 'K', diag ([stiff stiff k k]), 'G', g);
  speeds = 0:0.7:7;
  d = qn.campbell (r, speeds, 'modes', 4, 'places', [1 2; 4 3]);
  a = ip * speeds / (2 * id);
  forward = a + sqrt (a .^ 2 + k / id);
  backward = -a + sqrt (a .^ 2 + k / id);
  plane = sqrt (stiff / m) * ones (size (speeds));
  % Row by row whatever crosses: the backward tilt comes lowest, the two translations are equal at every speed.
  expect_equal (d.whirl, [backward; plane; plane; forward], 1e-9);
  expect_equal (max (abs (d.damping(:))) < 1e-12, true);
  expect_equal (d.direction([2 3], :), [-1; 1] * ones (size (speeds)), 1e-9);
  % In [4 3] the second place is -thx: forward tilt is forward there only with y = -thx, backward is turned about.
  expect_equal (abs (d.direction([1 4], :)), ones (2, numel (speeds)), 1e-9);
  critical = [sqrt(k / (id + ip)), 4, 4];
  expect_equal (sort ([d.critical.speed]), sort (critical), 1e-9);
  expect_equal ([d.critical.whirl], [d.critical.speed], 1e-9);
end

function test_orders_have_critical_speeds_of_their_own ()
  d = qn.campbell (struct ('M', eye (2), 'K', diag ([100 400])), [1 30], 'orders', [1 2 0.5], 'places', [1 2]);
  expect_equal ([d.critical.speed], [5 10 10 20 20], 1e-9);
  % Two of them are at 10 rad/s, two at 20.
  told = sortrows (round ([[d.critical.order]; [d.critical.mode]; [d.critical.speed]].' * 1e6) / 1e6);
  expect_equal (told, [0.5 1 20; 1 1 10; 1 2 20; 2 1 5; 2 2 10]);
  expect_equal (abs ([d.critical.direction]) < 1e-9, true (1, 5));
  expect_equal (abs (d.critical(1).shape) / max (abs (d.critical(1).shape)), [1; 0], 1e-12);
end

function test_critical_speeds_are_those_of_the_direct_eigenvalue_problem ()
  r = qn.rotor ('nodes', linspace (0, 1.2, 11), 'outer', 0.05, 'disks', [4 20 0.3 0.5; 11 9 0.1 0.2], 'bearings', {1, [2e7 1e7]; 9, [1e7 3e7]});
  d = qn.campbell (r, 0:40:1600, 'modes', 12);
  direct = eig (r.K, r.M - 1i * r.G);
  direct = sort (sqrt (real (direct(real (direct) > 0))));
  direct = direct(direct < 1600).';
  expect_equal (numel (direct) > 3, true);
  expect_equal ([d.critical.speed], direct, 1e-7);
  % Through the lowest modes at rest the first come out as well.
  few = qn.campbell (r, 0:40:1600, 'modes', 12, 'basis', 24);
  expect_equal ([few.critical.speed], direct, 2e-4);
end

function test_speeds_without_a_critical_one_give_an_empty_list ()
  d = qn.campbell (struct ('M', eye (2), 'K', diag ([100 400])), [30 40], 'orders', [1 2 0.1]);
  expect_equal (numel (d.critical), 0);
  expect_equal (numel (d.unstable), 0);
  expect_equal (isempty ([d.critical.speed]), true);
  fig = qn.plot.page ();
  qn.plot.campbell (d);
  close (fig);
end

% Cross-coupling a W against the damping c: forward whirl at wn grows from W = c wn/a on.
function test_the_speed_where_damping_is_lost_is_found ()
  [m, k, c, a] = deal (10, 4e6, 600, 1.5);
  bearing = @(w) [k, a * w; -a * w, k];
  r = qn.rotor ('shaft', struct ('M', m * eye (2), 'K', zeros (2), 'places', [1 2]), 'bearings', {1, bearing, c});
  wn = sqrt (k / m);
  d = qn.campbell (r, linspace (0, 2 * c * wn / a, 8));
  expect_equal (numel (d.unstable), 1);
  expect_equal ([d.unstable.speed, d.unstable.whirl, d.unstable.direction], [c * wn / a, wn, 1], 1e-8);
  expect_equal (d.damping(d.unstable.mode, end) < 0, true);
  expect_equal (numel (getfield (qn.campbell (r, linspace (0, 2 * c * wn / a, 8), 'modes', 1), 'unstable')), 1);
  expect_equal (isempty (getfield (qn.campbell (r, [1 0.9 * c * wn / a]), 'unstable')), true);
end

function test_modes_that_do_not_oscillate_have_no_whirl_speed ()
  c = @(w) diag ([1 40 / (1 + w)]);
  r = qn.rotor ('shaft', struct ('M', eye (2), 'K', zeros (2), 'places', [1 2]), 'bearings', {1, [100 25], c});
  d = qn.campbell (r, 0:10);
  % Critically damped at 40/(1 + W) = 10: W = 3.
  expect_equal (isnan (d.whirl(1, :)), (0:10) <= 3);
  expect_equal (d.whirl(1, 11), sqrt (25 - (20 / 11) ^ 2), 1e-9);
  expect_equal (all (d.whirl(2, :) > 9), true);
end

% Bearings that stiffen with the speed; at low speeds the dampers hold modes that hardly oscillate and come lowest.
function r = damped_rotor ()
  f = @(w) [1e6 + 3e4 * w, 0; 0, 8e5 + 2e4 * w];
  r = qn.rotor ('nodes', 0:0.1:1.2, 'outer', 0.045, 'disks', [4 15 0.1 0.19; 9 10 0.06 0.11], 'bearings', {1, f, 7e3; 13, f, 4e3});
end

function p = poles_at (r, speed)
  r = qn.rotor (r, 'speed', speed);
  n = size (r.M, 1);
  p = eig ([zeros(n), eye(n); -(r.M \ [r.K, r.C + speed * r.G])]);
  p = p(imag (p) > 0);
end

function test_critical_speeds_with_little_damping_are_lost_neither_to_overdamped_modes_nor_to_few_rows ()
  r = damped_rotor ();
  % So many modes with little damping are slower than the rotation at its end, and none is at rest.
  p = poles_at (r, 900);
  slow = sum (-real (p) < 0.5 * abs (p) & imag (p) < 900);
  expect_equal (slow, 4);
  for modes = [1 4 8]
    d = qn.campbell (r, 0:25:900, 'modes', modes);
    expect_equal (size (d.whirl, 1), max (modes, slow));
    expect_equal (numel (d.critical), slow);
    expect_equal ([d.critical.mode], 1:slow);
    for c = d.critical
      p = poles_at (r, c.speed);
      [off, k] = min (abs (imag (p) - c.speed) / c.speed);
      expect_equal (off < 1e-7, true);
      expect_equal (c.damping, -real (p(k)) / abs (p(k)), 1e-6);
    end
  end
  % The others are at the end, with critical speeds of their own.
  d = qn.campbell (r, 0:25:900, 'modes', 12);
  more = d.critical([d.critical.damping] > 0.5);
  expect_equal (numel (d.critical) - numel (more), slow);
  expect_equal (numel (more) > 0 && all ([more.mode] > 8), true);
end

function test_a_basis_says_that_it_does_not_hold_overdamped_modes ()
  c = diag ([1 1 19 19.5]);
  r = struct ('M', eye (4), 'K', diag ([50 60 100 110]), 'C', c);
  lastwarn ('', '');
  d = qn.campbell (r, [0 20], 'modes', 2, 'basis', 4);
  expect_equal (numel (d.critical), 2);
  [unused, id] = lastwarn ();
  expect_equal (id, '');
  evalc ('qn.campbell (r, [0 20], ''modes'', 4, ''basis'', 4);');
  [text, id] = lastwarn ();
  expect_equal (id, 'qn:campbell');
  expect_equal (isempty (strfind (text, sprintf ('2 of 4 rows have damping ratios of %.3g or more, the first is row 3', 19.5 / sqrt (440)))), false);
  lastwarn ('', '');
  qn.campbell (r, [0 20], 'modes', 4);
  [unused, id] = lastwarn ();
  expect_equal (id, '');
end

function test_forward_is_in_the_sense_of_rotation_at_negative_speeds_too ()
  r = qn.rotor ('nodes', 0:0.1:1.2, 'outer', 0.045, 'disks', [4 15 0.1 0.19; 9 10 0.06 0.11], 'bearings', {1, 1e6, 10; 13, 1e6, 10});
  there = qn.campbell (r, 0:50:900, 'modes', 4);
  back = qn.campbell (r, -900:50:0, 'modes', 4);
  expect_equal (numel (there.critical) > 3, true);
  expect_equal (-fliplr ([back.critical.speed]), [there.critical.speed], 1e-7);
  expect_equal (fliplr ([back.critical.direction]), [there.critical.direction], 1e-6);
  % Gyroscopic moments make forward whirl the faster one of a pair.
  expect_equal ([back.direction(1:2, 1), there.direction(1:2, end)], [-1 -1; 1 1], 1e-6);
  expect_equal (back.whirl(1, 1) < back.whirl(2, 1), true);
end

function test_the_own_errors_of_campbell ()
  ok = struct ('M', eye (2), 'K', eye (2));
  trials = {{}, 'a rotor and speeds expected'; {ok, 3}, 'two speeds or more'; {ok, [2 1]}, 'must ascend'
            {7, [1 2]}, '"R" must be a structure'; {struct('M', zeros (2), 'K', eye (2)), [1 2]}, 'M is not positive definite'
            {ok, [1 2], 'places', [1 3]}, '"places"(2) is 3'; {ok, [1 2], 'places', [1 2; 2 2]}, 'row 2 of "places" has degree of freedom 2 as x and as y'
            {struct('M', eye (2), 'K', [2 -1; 0 2]), [1 2]}, 'K of "R" has entries on one side of its diagonal only, as half of a symmetric matrix has'
            {struct('M', eye (2), 'K', sparse ([2 0; -1 2])), [1 2]}, 'give all of it, K + triu (K, 1).'' or K + tril (K, -1).'''
            {struct('M', eye (2), 'K', eye (2), 'c', eye (2)), [1 2]}, '"R" has a field "c", which nothing reads: "C" is meant?'
            {struct('M', eye (2), 'K', eye (2), 'g', eye (2)), [1 2]}, '"R" has a field "g", which nothing reads: "G" is meant?'};
  for k = 1:size (trials, 1)
    expect_error (@() qn.campbell (trials{k, 1}{:}), 'qn:input', ['~' regexptranslate('escape', trials{k, 2})]);
  end
end

function test_a_campbell_diagram_has_a_line_a_mode_and_a_mark_a_critical_speed ()
  r = disk_rotor (6);
  d = qn.campbell (r, 0:100:800, 'modes', 4);
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  qn.plot.campbell (d);
  lines = findobj (gca (), 'type', 'line');
  marks = sum (strcmp (get (lines, 'marker'), 'o'));
  expect_equal (marks, numel (d.critical));
  expect_equal (marks > 0, true);
  x = get (lines(strcmp (get (lines, 'linestyle'), '--')), 'ydata');
  expect_equal (x(:).', d.speed / (2 * pi), 1e-9);
  expect_equal (get (get (gca (), 'xlabel'), 'string'), 'Speed of rotation [rpm]');
  expect_equal (numel (findobj (fig, 'tag', 'legend')), 1);
  qn.plot.campbell (d, 'show', 'damping', 'modes', 2);
  lines = findobj (gca (), 'type', 'line');
  drawn = get (lines, 'ydata');
  wanted = 100 * d.damping(2, :);
  expect_equal (any (cellfun (@(y) numel (y) == 9 && max (abs (y(~isnan (y)) - wanted(~isnan (y)))) < 1e-12, drawn)), true);
  expect_error (@() qn.plot.campbell (3), 'qn:input', '~expects the result of qn.campbell');
  expect_error (@() qn.plot.campbell (d, 'show', 'x'), 'qn:input', '~''whirl'' or ''damping''');
  expect_error (@() qn.plot.campbell (d, 'modes', 5), 'qn:input', '~modes');
end

% The force is minus the inertia of a mass on a circle: second differences of its path.
function test_an_unbalance_is_the_force_of_a_mass_on_a_circle_along_any_profile ()
  model = qn.modal (diag ([1 2 3 4]), eye (4));
  table = [0.2 0.5 1.1 1.5; 20 60 60 30];
  smooth = @(t) [3 * t .^ 2 + sin(t); 6 * t + cos(t); 6 - sin(t)];
  for profile = {table, smooth}
    load = qn.unbalance (model, [1 2; 4 3], [0.1 0.3], 'phase', [0.4 -1], 'profile', profile{1}, 'angle', 0.7);
    t = [0.11 0.31 0.7 1.3 1.9];
    h = 1e-4;
    f = model.shapes * (load{1, 1} * load{1, 2}(t) + load{2, 1} * load{2, 2}(t));
    z = @(t, phase) exp (1i * (turned (profile{1}, t) + 0.7 + phase));
    force = @(me, phase) -me * (z (t + h, phase) - 2 * z (t, phase) + z (t - h, phase)) / h ^ 2;
    wanted = [force(0.1, 0.4); force(0.3, -1)];
    wanted = [real(wanted(1, :)); imag(wanted(1, :)); imag(wanted(2, :)); real(wanted(2, :))];
    expect_equal (f, wanted, 2e-4 * max (abs (wanted(:))));
  end
end

% Angle of the shaft: its own function, or the integral of the table by many trapezoids.
function a = turned (profile, t)
  if isa (profile, 'function_handle')
    a = profile (t);
    a = a(1, :);
    return
  end
  a = zeros (size (t));
  for k = 1:numel (t)
    fine = unique ([linspace(0, t(k), 2000), profile(1, profile(1, :) < t(k))]);
    a(k) = trapz (fine, interp1 ([-1 profile(1, :) 9], [profile(2, 1) profile(2, :) profile(2, end)], fine));
  end
end

function test_an_unbalance_at_constant_speed_turns_as_the_speed_says ()
  model = qn.modal (diag ([1 2]), eye (2));
  load = qn.unbalance (model, [1 2], 0.5, 'speed', -8, 'phase', pi / 2);
  t = 0:0.1:1;
  f = model.shapes * (load{1, 1} * load{1, 2}(t) + load{2, 1} * load{2, 2}(t));
  expect_equal (f, 32 * [cos(-8 * t + pi / 2); sin(-8 * t + pi / 2)], 1e-12);
  same = qn.unbalance (model, [1 2], 0.5, 'profile', [0 1; -8 -8], 'phase', pi / 2);
  expect_equal (same{1, 2}(t), load{1, 2}(t), 1e-12);
  many = qn.unbalance (model, [1 2; 1 2], [0.5 0.5], 'speed', 8, 'phase', [0 pi]);
  expect_equal (norm ([many{:, 1}]) < 1e-15, true);
end

function test_the_weight_bends_as_statics_says_and_may_grow_slowly ()
  r = qn.rotor ('nodes', 0:0.2:1, 'outer', 0.03, 'bearings', {1, 1e7; 6, 1e7});
  down = zeros (24, 1);
  down(r.places(:, 2)) = -1;
  model = qn.modal (r, 'speed', 0);
  load = qn.gravity (model, down, 'ramp', 2, 'g', 9.81);
  expect_equal (load{1, 2}([-1 0 0.5 1 2 3]), [0 0, (1 - sqrt (0.5)) / 2, 0.5 1 1], 1e-12);
  sag = model.shapes * (load{1, 1} ./ model.stiffness);
  expect_equal (sag, r.K \ (9.81 * r.M * down), 1e-9);
  mass = 7850 * pi / 4 * 0.03 ^ 2;
  expect_equal (1e7 * (sag(2) + sag(22)), -9.81 * mass, 1e-6 * mass);
  whole = qn.gravity (model, down);
  expect_equal (whole{1, 2}([0 7]), [1 1]);
  expect_equal (whole{1, 1} / 9.80665, load{1, 1} / 9.81, 1e-12);
end

function test_loads_of_a_rotor_that_make_no_sense_are_refused ()
  model = qn.modal (diag ([1 2]), eye (2));
  trials = {{model, [1 2]}, 'unbalances expected'; {model, [1 2], 1}, 'give "speed" or "profile"'
            {model, [1 2], 1, 'speed', 1, 'profile', [0 1; 1 2]}, 'give "speed" or "profile"'; {model, [2 2], 1, 'speed', 1}, 'names 2 for x and for y'
            {model, [1 3], 1, 'speed', 1}, '"DOFS"(2) is 3'; {model, [1 2], [1 2], 'speed', 1}, '"ME" must be 1 value'
            {model, [1 2], 1, 'profile', [1 0; 1 2]}, '"profile(1, :)" must ascend'
            {model, [1 2], 1, 'profile', @(t) t}, '"profile" must be 3 x 2 numbers'};
  for k = 1:size (trials, 1)
    expect_error (@() qn.unbalance (trials{k, 1}{:}), 'qn:input', ['~' regexptranslate('escape', trials{k, 2})]);
  end
  expect_error (@() qn.gravity (model, [1 2 3]), 'qn:input', '~"PUSH" must be 2 values');
  expect_error (@() qn.gravity (model, [0 1], 'ramp', -1), 'qn:input', '~"ramp" must be at least 0');
end
