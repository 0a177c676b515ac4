% Rotors built by qn.rotor: elements, disks, bearings, seals and stator against plain formulas, and every refusal.
function tests = suite_toolbox_rotor ()
  use_toolbox ();
  tests = localfunctions ();
end

function w = whirl (r, speed)
  n = size (r.M, 1);
  w = sort (abs (imag (eig ([zeros(n), eye(n); -(r.M \ [r.K, r.C + speed * r.G])]))));
  w = w(1:2:end).';
end

% Matrices of an element from the static shape functions of a beam with shear, integrated by Gauss's rule with 5 points.
function test_element_matrices_are_integrals_of_the_static_shapes ()
  [l, outer, inner, e, rho, nu] = deal (0.3, 0.2, 0.08, 2e11, 7800, 0.27);
  area = pi / 4 * (outer ^ 2 - inner ^ 2);
  second = pi / 64 * (outer ^ 4 - inner ^ 4);
  t = (1 + (inner / outer) ^ 2) ^ 2;
  kappa = 6 * (1 + nu) * t / ((7 + 6 * nu) * t + (20 + 12 * nu) * (inner / outer) ^ 2);
  shear = kappa * area * e / (2 * (1 + nu));
  for stiff = [false true]
    s = shear;
    if stiff, s = Inf; end
    % Bending moment a + b x: slope, deflection from it and from the shear force -b; the constants from the motion of the ends.
    turn = @(x) [x / (e * second), x ^ 2 / (2 * e * second), 1, 0];
    bend = @(x) [x ^ 2 / (2 * e * second), x ^ 3 / (6 * e * second) - x / s, x, 1];
    ends = [bend(0); turn(0); bend(l); turn(l)];
    [k, m, r] = deal (zeros (4));
    [x, w] = gauss (l);
    for j = 1:5
      moment = [1 x(j) 0 0] / ends;
      force = [0 1 0 0] / ends;
      k = k + w(j) * (moment.' * moment / (e * second) + force.' * force / s);
      m = m + w(j) * rho * area * (bend (x(j)) / ends).' * (bend (x(j)) / ends);
      r = r + w(j) * rho * second * (turn (x(j)) / ends).' * (turn (x(j)) / ends);
    end
    [kk, mm, rr] = qn.impl.rotor.beam (l, outer, inner, e, rho, nu, ~stiff);
    for pair = {k, m, r; kk, mm, rr}, expect_equal (pair{2} / norm (pair{1}), pair{1} / norm (pair{1}), 1e-12); end
  end
end

function [x, w] = gauss (l)
  n = 1:4;
  b = n ./ sqrt (4 * n .^ 2 - 1);
  [v, d] = eig (diag (b, 1) + diag (b, -1));
  x = l * (1 + diag (d)) / 2;
  w = l * v(1, :) .^ 2;
end

function test_both_planes_bend_alike_and_the_gyroscopic_matrix_is_skew ()
  r = disk_rotor (4);
  same = qn.rotor ('nodes', linspace (0, 1.2, 5), 'outer', 0.05);
  turned = kron (eye (5), [0 1 0 0; -1 0 0 0; 0 0 0 1; 0 0 -1 0]);
  for name = 'MKG', expect_equal (turned * same.(name) * turned.', same.(name), 1e-9 * norm (same.(name))); end
  expect_equal (r.G, -r.G.', 0);
  expect_equal (r.places, reshape (1:20, 4, []).');
  expect_equal (r.nodes, linspace (0, 1.2, 5));
  % Rigid motions bend nothing: both displacements, and both rotations with thy = dx/dz, thx = -dy/dz.
  z = same.nodes;
  rigid = zeros (20, 4);
  rigid(1:4:end, [1 3]) = [ones(5, 1), z.'];
  rigid(2:4:end, [2 4]) = [ones(5, 1), -z.'];
  rigid(4:4:end, 3) = 1;
  rigid(3:4:end, 4) = 1;
  expect_equal (same.K * rigid, zeros (20, 4), 1e-8 * norm (same.K));
  mass = 7850 * pi / 4 * 0.05 ^ 2 * 1.2;
  expect_equal (rigid(:, 1:2).' * same.M * rigid(:, 1:2), mass * eye (2), 1e-10 * mass);
  polar = 7850 * pi / 32 * 0.05 ^ 4 * 1.2;
  expect_equal (rigid(:, 4).' * same.G * rigid(:, 3), polar, 1e-10 * polar);
end

function test_a_disk_by_its_dimensions_is_the_one_by_its_inertias ()
  [width, outer, inner, rho] = deal (0.07, 0.28, 0.05, 7810);
  mass = rho * width * pi / 4 * (outer ^ 2 - inner ^ 2);
  polar = mass / 2 * ((outer / 2) ^ 2 + (inner / 2) ^ 2);
  across = mass / 12 * (3 * ((outer / 2) ^ 2 + (inner / 2) ^ 2) + width ^ 2);
  a = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'cylinders', [2 width outer inner rho]);
  b = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'disks', [2 mass across polar]);
  bare = qn.rotor ('nodes', [0 1], 'outer', 0.05);
  expect_equal (a.M, b.M, 1e-12);
  expect_equal (a.G, b.G, 1e-12);
  expect_equal (b.M - bare.M, diag ([0 0 0 0 mass mass across across]), 1e-12);
  more = b.G - bare.G;
  expect_equal ([more(7, 8), more(8, 7), norm(more, 'fro')], polar * [1 -1 sqrt(2)], 1e-12);
end

function test_bearings_and_seals_add_what_they_say ()
  bare = qn.rotor ('nodes', [0 1 2], 'outer', 0.05);
  moments = magic (4);
  r = qn.rotor ('nodes', [0 1 2], 'outer', 0.05, 'bearings', {1, [3 1; -2 4], 7; 2, [5 6], []; 3, moments, 2}, 'seals', {2, 9, [1 2; -2 1], [8 3]});
  k = zeros (12);
  k(1:2, 1:2) = [3 1; -2 4];
  k(5:6, 5:6) = diag ([5 6]) + 9 * eye (2);
  k(9:12, 9:12) = moments;
  c = zeros (12);
  c(1:2, 1:2) = 7 * eye (2);
  c(5:6, 5:6) = [1 2; -2 1];
  c(9:10, 9:10) = 2 * eye (2);
  m = zeros (12);
  m(5:6, 5:6) = diag ([8 3]);
  expect_equal (r.K - bare.K, k, 1e-8 * norm (bare.K) * eps () * 1e8);
  expect_equal (r.C, c);
  expect_equal (r.M - bare.M, m, 1e-12);
  expect_equal (r.Ks, r.Ks.', 1e-6);
  assert (min (eig (r.Ks)) > -1e-8 * norm (r.Ks));
end

function test_a_rotor_on_a_stator_is_held_against_it ()
  stator = struct ('M', diag ([20 30]), 'K', diag ([1e6 2e6]), 'C', 50 * eye (2));
  r = qn.rotor ('shaft', struct ('M', diag ([3 3]), 'K', zeros (2), 'places', [1 2]), 'stator', stator, 'bearings', {[1 1 2], [4e5 1e5; -2e5 5e5], 80});
  b = [4e5 1e5; -2e5 5e5];
  expect_equal (r.stator, [3 4]);
  expect_equal (r.K, [b, -b; -b, b + stator.K], 1e-9);
  expect_equal (r.C, [80 * eye(2), -80 * eye(2); -80 * eye(2), 130 * eye(2)]);
  expect_equal (r.M, diag ([3 3 20 30]));
  expect_equal (r.G, zeros (4));
end

function test_matrices_from_another_program_enter_at_the_same_door ()
  r = disk_rotor (6);
  bare = qn.rotor ('nodes', linspace (0, 1.2, 7), 'outer', 0.05);
  n = size (bare.M, 1);
  order = [n:-1:5, 2 1 4 3];
  foreign = struct ('M', bare.M(order, order), 'K', sparse (bare.K(order, order)), 'G', bare.G(order, order));
  [unused, back] = sort (order);
  foreign.places = reshape (back, 4, []).';
  mass = [8 14 10];
  again = qn.rotor ('shaft', foreign, 'disks', [3 4 6; mass; mass * 0.15 ^ 2 / 4; mass * 0.15 ^ 2 / 2].', ...
                    'bearings', {1, [2e7 4e6; -6e6 3e7], [3e4 2e3; 1e3 4e4]; 7, [2e7 4e6; -6e6 3e7], [3e4 2e3; 1e3 4e4]});
  for name = 'MKCG', expect_equal (again.(name)(back, back), r.(name), 1e-9 * norm (r.(name))); end
end

function test_bearings_by_speed_are_formed_at_the_speed ()
  f = @(w) 1e6 * [1, w / 100; -w / 100, 1];
  r = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'bearings', {1, f, @(w) 10 * w; 2, 1e6, 5});
  assert (isempty (r.K) && isempty (r.C) && isempty (r.M));
  expect_error (@() qn.modal (r), 'qn:input', '~bearings of this rotor depend on the speed');
  a = qn.rotor (r, 'speed', 200);
  b = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'bearings', {1, f(200), 2000; 2, 1e6, 5});
  for name = 'MKCG', expect_equal (a.(name), b.(name)); end
  expect_equal (a.speed, 200);
  model = qn.modal (a, 'modes', 8);
  x = model.shapes.';
  expect_equal (x * a.M * x.', eye (8), 1e-9);
  expect_equal (qn.impl.matrix (model.damping), x * (a.C + 200 * a.G) * x.', 1e-6);
  expect_equal (qn.impl.matrix (model.stiffness), x * a.K * x.', 1e-9 * norm (model.stiffness));
  a.C = a.C + 1;
  expect_error (@() qn.rotor (a, 'speed', 100), 'qn:input', '~C of the rotor was changed');
  expect_error (@() qn.campbell (a, [1 2]), 'qn:input', '~C of the rotor was changed');
  wrong = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'bearings', {1, @(w) NaN, 3});
  expect_error (@() qn.rotor (wrong, 'speed', 3), 'qn:input', '~"bearings\{1, 2\} at 3 rad/s"');
end

function test_a_function_may_give_stiffness_and_damping_at_once_and_is_called_once_for_equal_bearings ()
  f = @(w) counted (w);
  counted ('begin');
  r = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'bearings', {1, f, []; 2, f, 7}, 'speed', 3);
  expect_equal (counted ('end'), 1);
  b = qn.rotor ('nodes', [0 1], 'outer', 0.05, 'bearings', {1, [5 3; -3 6], [1 0; 0 2]; 2, [5 3; -3 6], [8 0; 0 9]});
  for name = 'MKC', expect_equal (r.(name), b.(name)); end
  expect_error (@() qn.rotor ('nodes', [0 1], 'outer', 1, 'bearings', {1, 5, @(w) counted(w)}, 'speed', 1), 'qn:input', ...
                '~"bearings\{1, 3\} at 1 rad/s" takes no structure');
end

function x = counted (w)
  persistent calls;
  x = calls;
  if ischar (w)
    calls = 0;
  else
    calls = calls + 1;
    x = struct ('stiffness', [5 w; -w 6], 'damping', [1 2]);
  end
end

% A bearing that pushes away along one direction leaves the modes those of what holds; a run has it all.
function test_a_bearing_with_negative_stiffness_makes_a_model ()
  r = qn.rotor ('shaft', struct ('M', eye (2), 'K', 9 * eye (2), 'places', [1 2]), 'bearings', {1, [-4 1; -2 5]});
  model = qn.modal (r, 'speed', 0);
  expect_equal (model.shapes * qn.impl.matrix (model.stiffness) * model.shapes.', [5 1; -2 14], 1e-12);
end

function test_simply_supported_shaft_without_shear_has_the_frequencies_of_euler_and_bernoulli ()
  c = published ('Simply supported slender shaft', 'closed form: (j pi/L)^2 sqrt (E I/(rho A)), L. Euler and D. Bernoulli', {'rotor'});
  r = qn.rotor ('nodes', linspace (0, 2, 41), 'outer', 0.004, 'young', 2e11, 'density', 8000, 'shear', false, 'bearings', {1, 1e12; 41, 1e12});
  w = whirl (r, 0);
  exact = ((1:3) * pi / 2) .^ 2 * sqrt (2e11 * 0.002 ^ 2 / 4 / 8000);
  names = arrayfun (@(k) sprintf ('mode %d [rad/s]', k), 1:3, 'uniformoutput', false);
  expect_published (c, names, exact, w(1:2:5), 2e-5 * exact);
end

function test_simply_supported_thick_shaft_has_the_frequencies_of_timoshenko ()
  c = published ('Simply supported thick shaft', ['closed form: frequency equation of S. P. Timoshenko, Philosophical Magazine 41, ' ...
                 '1921, shear coefficient of G. R. Cowper, J. Applied Mechanics 33, 1966'], {'rotor'});
  [l, d, e, rho, nu] = deal (1, 0.2, 2e11, 8000, 0.3);
  r = qn.rotor ('nodes', linspace (0, l, 41), 'outer', d, 'young', e, 'density', rho, 'poisson', nu, 'bearings', {1, 1e14; 41, 1e14});
  w = whirl (r, 0);
  area = pi / 4 * d ^ 2;
  second = pi / 64 * d ^ 4;
  soft = 6 * (1 + nu) / (7 + 6 * nu) * e / (2 * (1 + nu));
  exact = zeros (1, 3);
  for j = 1:3
    k = j * pi / l;
    x = roots ([rho ^ 2 * second / soft, -(rho * area + k ^ 2 * rho * second * (1 + e / soft)), e * second * k ^ 4]);
    exact(j) = sqrt (min (x));
  end
  names = arrayfun (@(k) sprintf ('mode %d [rad/s]', k), 1:3, 'uniformoutput', false);
  expect_published (c, names, exact, w(1:2:5), 1e-3 * exact);
end

function test_a_seal_whose_mass_is_unsymmetric_or_negative_is_refused_with_its_place ()
  ok = {'nodes', [0 1 2], 'outer', 0.1};
  trials = {{1, 1, 1, 2; 3, 1, 1, [2 1; 0 2]}, 'the mass "seals{2, 4}" at node 3 is not symmetric: M - M.'' is 0.47 of it'
            {2, 1, 1, [2 1; -1 2]}, 'the mass "seals{1, 4}" at node 2 is not symmetric: M - M.'' is 0.89 of it'
            {2, 1, 1, -3}, 'the mass "seals{1, 4}" at node 2 is negative in one direction: its least eigenvalue is -3'
            {2, 1, 1, [1 2; 2 1]}, 'the mass "seals{1, 4}" at node 2 is negative in one direction: its least eigenvalue is -1'
            {2, 1, 1, @(w) 5 - w}, 'the mass "seals{1, 4} at 9 rad/s" at node 2 is negative in one direction: its least eigenvalue is -4'};
  for k = 1:size (trials, 1)
    expect_error (@() qn.rotor (ok{:}, 'seals', trials{k, 1}, 'speed', 9), 'qn:input', ['~' regexptranslate('escape', trials{k, 2})]);
  end
  r = qn.rotor (ok{:}, 'seals', {2, 1, 1, [1 1; 1 1]; 3, 1, 1, 0; 1, 1, 1, []});
  bare = qn.rotor (ok{:});
  expect_equal (r.M(5:6, 5:6) - bare.M(5:6, 5:6), ones (2), 1e-12);
end

function test_what_does_not_make_a_rotor_is_refused_in_words ()
  ok = {'nodes', [0 1 2], 'outer', 0.1};
  point = struct ('M', eye (2), 'K', eye (2), 'places', [1 2]);
  trials = {{}, 'give "nodes" or "shaft"'; {'nodes', [0 1], 'shaft', point}, 'give "nodes" or "shaft"'
            {'nodes', 1, 'outer', 1}, 'two nodes or more'; {'nodes', [0 1 1], 'outer', 1}, '"nodes" must ascend'
            {'nodes', [0 1 2], 'outer', [1 2 3]}, '"outer" must be 2 values'; {ok{:}, 'inner', 0.1}, '"inner" of element 1 is 0.1 m'
            {ok{:}, 'disks', [1 1 1 1; 4 1 1 1]}, 'row 2 of "disks" is a disk at node 4; nodes are numbered from 1 to 3'
            {ok{:}, 'disks', [1.5 1 1 1]}, 'a disk at node 1.5'
            {ok{:}, 'disks', [1 1 1 1], 'cylinders', [0.35 1 2 1 1]}, 'row 1 of "cylinders" is a disk at node 0.35'
            {ok{:}, 'disks', [1 1 1 3]}, 'Ip of a body is at most twice Id'; {ok{:}, 'cylinders', [1 1 1 2 1]}, 'inner diameter of row 1'
            {ok{:}, 'bearings', 3}, '"bearings" is a cell'; {ok{:}, 'bearings', {1, 2, 3, 4}}, '"bearings" is a cell'
            {ok{:}, 'bearings', {4, 1}}, '"bearings{1, 1}" must be the number of a node, from 1 to 3'
            {ok{:}, 'bearings', {1, [1 2 3]}}, '"bearings{1, 2}" must be one value, two'
            {ok{:}, 'bearings', {[1 1 2], 5}}, 'degree of freedom 2 of a stator that has 0'
            {'shaft', point, 'bearings', {1, eye(4)}}, '"bearings{1, 2}" has moments'
            {'shaft', point, 'disks', [1 1 1 1]}, 'without rotations'; {ok{:}, 'stator', 3}, '"stator" must be a structure'
            {ok{:}, 'stator', struct('M', eye (2), 'K', eye (2), 'G', [0 1; -1 0])}, 'does not turn'
            {'shaft', struct('M', eye (3), 'K', eye (3))}, 'no 4 a node'
            {'shaft', struct('M', eye (3), 'K', eye (3), 'places', [1 2 3])}, '2 or 4 columns, got 3'
            {'shaft', struct('M', [1 1; 0 1], 'K', eye (2), 'places', [1 2])}, 'M of "shaft" is not symmetric'
            {'shaft', struct('M', eye (2), 'K', [1 1; 0 1], 'places', [1 2])}, 'K of shaft and stator must be symmetric'
            {'shaft', struct('M', eye (2), 'K', eye (2), 'G', eye (2), 'places', [1 2])}, 'must be skew'};
  for k = 1:size (trials, 1)
    expect_error (@() qn.rotor (trials{k, 1}{:}), 'qn:input', ['~' regexptranslate('escape', trials{k, 2})]);
  end
  expect_error (@() qn.rotor (struct ('M', 1), 'speed', 1), 'qn:input', '~no result of qn.rotor');
  expect_error (@() qn.rotor (qn.rotor (ok{:})), 'qn:input', '~"speed" is missing');
end

% Matrices of three beam elements, with the degrees of freedom in another order.
function s = shaft_of (order)
  r = qn.rotor ('nodes', [0 0.3 0.7 1], 'outer', 0.05);
  p = r.places(:, [1 2 3 4]);
  if strcmp (order, 'by kind'), at = p(:); else, at = reshape (p(:, order).', [], 1); end
  s = struct ('M', r.M(at, at), 'K', r.K(at, at), 'G', r.G(at, at));
end

function test_a_shaft_in_another_order_is_not_taken_for_nodes_of_x_y_thx_thy ()
  expect_error (@() qn.rotor ('shaft', shaft_of ('by kind')), 'qn:input', '~those of node 1, the degrees of freedom \[1 2 3 4\], have the masses');
  expect_error (@() qn.rotor ('shaft', shaft_of ([1 4 2 3])), 'qn:input', '~say with the field "places" which are which');
  own = shaft_of (1:4);
  r = qn.rotor ('shaft', own);
  expect_equal (r.K, own.K);
  s = shaft_of ([1 4 2 3]);
  s.places = reshape (1:16, 4, []).';
  s.places = s.places(:, [1 3 4 2]);
  r = qn.rotor ('shaft', s);
  expect_equal (r.places, s.places);
end

function test_a_shaft_whose_disks_turn_the_other_way_is_said ()
  s = shaft_of (1:4);
  said = @(s) regexprep (evalc ('qn.rotor (''shaft'', s);'), '\s+', ' ');
  expect_equal (said (s), '');
  s.G = -s.G;
  expect_in (said (s), 'G of "shaft" is that of a rotation from y to x');
end

function test_what_nothing_would_read_is_refused ()
  s = shaft_of (1:4);
  ok = {'nodes', [0 1], 'outer', 0.1};
  other = s;
  other.g = s.G;
  expect_error (@() qn.rotor ('shaft', other), 'qn:input', '~"shaft" has a field "g", which nothing reads; "G" is meant\?');
  expect_error (@() qn.rotor (ok{:}, 'stator', struct ('M', 1, 'K', 1, 'D', 1)), 'qn:input', '~"stator" has a field "D"');
  for name = {'outer', 'inner', 'young', 'density', 'poisson', 'shear'}
    expect_error (@() qn.rotor ('shaft', s, name{1}, 0.1), 'qn:input', ['~"' name{1} '" describes beams between "nodes"']);
  end
  r = qn.rotor (ok{:});
  r.bearings = {1, 1e6};
  expect_error (@() qn.modal (r, 'speed', 0), 'qn:input', '~the field "bearings" was set in a result of qn.rotor');
  expect_error (@() qn.campbell (r, [1 2]), 'qn:input', '~the field "bearings" was set');
  expect_error (@() qn.rotor (r, 'speed', 0), 'qn:input', '~the field "bearings" was set');
  r = qn.rotor (ok{:});
  r.Speed = 3;
  expect_error (@() qn.modal (r, 'speed', 0), 'qn:input', '~the field "Speed" was set');
end

function test_places_of_two_nodes_are_not_the_same ()
  s = struct ('M', eye (4), 'K', eye (4), 'places', [1 2; 3 2]);
  expect_error (@() qn.rotor ('shaft', s), 'qn:input', '~"places" names degree of freedom 2 twice, in the rows \[1 2\]');
end

function test_a_bearing_on_one_degree_of_freedom_of_the_stator_twice_is_refused ()
  expect_error (@() qn.rotor ('nodes', [0 1], 'outer', 0.1, 'stator', struct ('M', eye (2), 'K', eye (2)), 'bearings', {[2 1 1], 5}), ...
                'qn:input', '~"bearings\{1, 1\}" stands on degree of freedom 1 of the stator with x and with y');
end

% The gyroscopic matrix would have taken the new speed, the bearings the old one.
function test_a_speed_set_by_hand_does_not_leave_the_bearings_of_another ()
  r = qn.rotor ('nodes', [0 1], 'outer', 0.1, 'bearings', {1, @(w) 1e6 + w; 2, 1e6}, 'speed', 100);
  r.speed = 300;
  text = '~"speed" of the rotor was set to 300, and its bearings are those of 100 rad/s';
  expect_error (@() qn.modal (r), 'qn:input', text);
  expect_error (@() qn.campbell (r, [1 2]), 'qn:input', text);
  r = qn.rotor ('nodes', [0 1], 'outer', 0.1, 'bearings', {1, 1e6; 2, 1e6});
  r.speed = 300;
  model = qn.modal (r);
  expect_equal (model.rotation.speed, 300);
end

function test_a_speed_beside_a_rotor_without_its_name_is_said_in_the_words_of_the_call ()
  r = qn.rotor ('nodes', [0 1], 'outer', 0.1, 'bearings', {1, 1e6; 2, 1e6});
  expect_error (@() qn.modal (r, 100), 'qn:input', '~in pairs after the structure, got 1 arguments there; a speed is given as ''speed'', W');
end
