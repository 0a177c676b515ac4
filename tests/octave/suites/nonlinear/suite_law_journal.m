% The half film of a short plain bearing, in pairs of displacements, against the integral of its pressure.
function tests = suite_law_journal ()
  tests = localfunctions ();
end

% viscosity, length, radius, clearance, spin, limit, centre, record
function p = usual ()
  p = [0.02 0.03 0.05 1e-4 150 0.99 0 0 0];
end

function p = with (k, value)
  p = usual ();
  p(k) = value;
end

function e = element (parameters, page)
  if nargin < 1, parameters = usual (); end
  if nargin < 2, page = 2; end
  e = page_element ('Journal', parameters, page);
end

function [f, e] = force (e, u, v)
  e = evaluate_law (e, u, v);
  f = e.snl;
end

function refused (e, text)
  expect_refused (@() evaluate_law (e, zeros (4, 1), zeros (4, 1)), text);
end

% Reynolds' equation of the short bearing, (h^3 p')' = 12 mu (dh/dt + W/2 dh/dtheta) along the length, its positive pressures summed over
% the circumference; the film pushes the journal, the element's force is the opposite.
function f = by_quadrature (p, u, v)
  c = p(4);
  c_dot = @(t) -v(1) * cos (t) - v(2) * sin (t) + p(5) / 2 * (u(1) * sin (t) - u(2) * cos (t));
  h = @(t) c - u(1) * cos (t) - u(2) * sin (t);
  line_load = @(t) max (0, -p(1) * p(2) ^ 3 * c_dot (t) ./ h (t) .^ 3);
  turn = atan2 (v(1) + p(5) / 2 * u(2), p(5) / 2 * u(1) - v(2));
  unit = max (line_load (2 * pi * (0:99) / 100));
  f = zeros (2, 1);
  for part = turn + [0, pi]
    f(1) = f(1) + quadgk (@(t) line_load (t) / unit .* cos (t), part, part + pi, 'abstol', 1e-12, 'reltol', 1e-12);
    f(2) = f(2) + quadgk (@(t) line_load (t) / unit .* sin (t), part, part + pi, 'abstol', 1e-12, 'reltol', 1e-12);
  end
  f = unit * p(3) * f;
end

function test_force_is_the_integral_of_the_positive_pressures ()
  rand ('twister', 21);
  for k = 1:60
    p = [0.001 + 0.1 * rand, 0.01 + 0.05 * rand, 0.02 + 0.1 * rand, 1e-5 + 2e-4 * rand, 2000 * (rand - 0.5) * (k > 10), 0.99, 0, 0, 0];
    e = 0.95 * rand;
    turn = 2 * pi * rand;
    u = e * p(4) * [cos(turn); sin(turn)];
    v = p(4) * 500 * (rand (2, 1) - 0.5) * (k ~= 20);
    want = by_quadrature (p, u, v);
    expect_equal (force (element (p), u, v) / norm (want), want / norm (want), 1e-9);
  end
end

function test_published_forces_in_units_of_the_bearing ()
  % Quadrature of the film pressure; x, y in clearances, velocities in clearance times spin, forces in mu W R L^3/(2 c^2).
  c = 1e-4;
  unit = 0.02 * 150 * 0.05 * 0.03 ^ 3 / (2 * c ^ 2);
  cases = [.3 .2 .1 -.05, -1.382398388 .492963610; .6 -.4 -.2 .3, .450832664 .280323874; .7 .5 0 0, -23.739668543 -4.431450416];
  for x = cases.'
    f = force (element (), c * x(1:2), 150 * c * x(3:4));
    expect_equal (-f / unit, x(5:6), 1e-9 * norm (x(5:6)));
  end
end

function test_static_force_after_ocvirk ()
  unit = 0.02 * 150 * 0.05 * 0.03 ^ 3 / (2 * 1e-8);
  for e = [0.01 0.1 0.3 0.5 0.7 0.9 0.98]
    f = force (element (), [e * 1e-4; 0], [0; 0]);
    % Pushed back along the line of centres, and against the turn: the film carries the journal on, from x to y.
    radial = 2 * e ^ 2 / (1 - e ^ 2) ^ 2;
    expect_equal (f / unit, [radial; -pi * e / (2 * (1 - e ^ 2) ^ 1.5)], 1e-11 * radial + 1e-12);
  end
end

function test_the_other_sense_of_rotation_mirrors_the_force ()
  a = force (element (with (5, 300)), 1e-4 * [0.3; 0.2], [2e-3; 1e-3]);
  b = force (element (with (5, -300)), 1e-4 * [0.3; -0.2], [2e-3; -1e-3]);
  expect_equal (b, [a(1); -a(2)], 1e-12 * norm (a));
end

function test_without_spin_it_is_a_squeeze_film_damper ()
  % Circular orbit of the radius e c: damping mu R (L/c)^3 (pi/2)/(1-e^2)^1.5, stiffness 2 mu w R (L/c)^3 e/(1-e^2)^2.
  e = 0.6;
  w = 400;
  f = force (element (with (5, 0)), [e * 1e-4; 0], [0; e * 1e-4 * w]);
  unit = 0.02 * 0.05 * (0.03 / 1e-4) ^ 3;
  damping = unit * (pi / 2) / (1 - e ^ 2) ^ 1.5;
  stiffness = 2 * unit * w * e / (1 - e ^ 2) ^ 2;
  expect_equal (f, e * 1e-4 * [stiffness; damping * w], 1e-10 * norm (f));
  expect_equal (force (element (with (5, 0)), [e * 1e-4; 0], [0; 0]), [0; 0]);
end

function test_no_force_in_the_middle_at_rest ()
  expect_equal (force (element (), [0; 0], [0; 0]), [0; 0]);
end

function test_the_centre_may_lie_elsewhere ()
  moved = force (element (with (7:8, [2e-5 -1e-5])), 1e-4 * [0.5; 0.2], [1e-3; 0]);
  expect_equal (moved, force (element (), 1e-4 * [0.3; 0.3], [1e-3; 0]), 1e-12 * norm (moved));
end

function test_pairs_have_forces_of_their_own ()
  both = force (element (usual (), 4), 1e-4 * [0.3; 0.4; -0.1; 0.25], 1e-3 * [1; 2; 3; 4]);
  expect_equal (both, [force(element (), 1e-4 * [0.3; 0.4], 1e-3 * [1; 2]); force(element (), 1e-4 * [-0.1; 0.25], 1e-3 * [3; 4])]);
end

function test_beyond_its_limit_the_film_is_that_of_the_limit ()
  at_limit = force (element (with (6, 0.8)), 1e-4 * 0.8 * [0.6; 0.8], [1e-3; 2e-3]);
  for e = [0.9 1 1.5 40]
    f = force (element (with (6, 0.8)), 1e-4 * e * [0.6; 0.8], [1e-3; 2e-3]);
    expect_equal (f, at_limit, 1e-11 * norm (at_limit));
  end
  just_inside = force (element (with (6, 0.8)), 1e-4 * (0.8 - 1e-9) * [0.6; 0.8], [1e-3; 2e-3]);
  expect_equal (just_inside, at_limit, 1e-7 * norm (at_limit));
end

function test_the_greatest_eccentricity_is_kept ()
  [~, e] = force (element (usual (), 4), 1e-4 * [0.3; 0.4; 0.6; 0.8], zeros (4, 1));
  expect_equal (e.opt(10), 1, 1e-14);
  [~, e] = force (element (with (9, 0.7)), 1e-4 * [0.3; 0.4], [0; 0]);
  expect_equal (e.opt(10), 0.7);
  [~, e] = force (element (), [NaN; 0], [0; 0]);
  expect_equal (e.opt(10), 0);
end

function test_what_is_not_a_number_does_not_vanish ()
  expect_equal (force (element (), [NaN; 0], [0; 0]), [NaN; NaN]);
  expect_equal (force (element (), [1e-5; 0], [0; NaN]), [NaN; NaN]);
end

function test_what_is_too_short_is_refused ()
  e = element (usual (), 4);
  short = e;
  short.opt = e.opt(1:9);
  refused (short, 'quarn residual : element 1 : "opt" of law "Journal" must hold 10 values or more, got 9');
  refused (rmfield (e, 'vnl'), 'quarn residual : element 1 : "vnl" of law "Journal" must hold 4 values or more, got 0');
  refused (element (usual (), 3), 'quarn residual : element 1 : "unl" of law "Journal" must hold pairs of displacements, got 3 values');
end

function test_parameters_without_a_film_are_refused ()
  for c = [0 -1e-4 NaN]
    refused (element (with (4, c)), ...
             sprintf ('quarn residual : element 1 : the clearance of law "Journal", opt(5), must be above 0, got %s', lower (sprintf ('%g', c))));
  end
  for limit = [0 1 1.2]
    refused (element (with (6, limit)), ...
             sprintf (['quarn residual : element 1 : the greatest eccentricity of law "Journal", opt(7), must be between 0 and 1, ' ...
                       'got %g'], limit));
  end
end

% Eccentricity e, angle from the direction in which the film is pressed together to the place, and both integrals, in quadruple precision.
function test_a_film_that_opens_near_the_wall_keeps_its_digits ()
  c = 1e-4;
  cases = [0.9 2.5 5.4040926797760e-01 5.0745930249891e-01; 0.99 2.5 5.2036013727279e-01 5.7280325931131e-01
           0.999 3 2.7517971304257e-01 5.8770274848649e-02; 0.9999 2 3.6976811895365e+00 1.2111379520404e+01
           0.99999 -2.8 3.1879623430854e-01 -1.7001016868300e-01; 0.9999999 3.1 2.6735977921482e-01 1.6689927461788e-02
           0.99 0.5 1.2846455555795e+05 6.9569675794499e+04; 0.999 -1 1.5404083277833e+07 -2.3935701280429e+07];
  p = with (5:6, [0, 1 - 1e-12]);
  unit = p(1) * p(3) * p(2) ^ 3 / (2 * c ^ 2);
  for x = cases.'
    % Without spin the film is pressed together along the velocity, with twice its rate over the clearance.
    f = force (element (p), c * x(1) * [cos(x(2)); sin(x(2))], [c * 500; 0]);
    expect_equal (f / (unit * 1000), x(3:4), (1e-11 + 1e-15 / (1 - x(1))) * norm (x(3:4)));
  end
end

function test_both_formulas_of_a_film_that_opens_meet ()
  c = 1e-4;
  p = with (5:6, [0, 0.999]);
  e = 0.97;
  % s = 0.1 X^2
  turn = acos (-sqrt ((1 - e ^ 2) / 0.1) / e);
  at = @(turn) force (element (p), c * e * [cos(turn); sin(turn)], [c * 500; 0]);
  [a, b] = deal (at (turn - 1e-9), at (turn + 1e-9));
  expect_equal (a, b, 1e-8 * norm (a));
  [a, b] = deal (at (-turn - 1e-9), at (-turn + 1e-9));
  expect_equal (a, b, 1e-8 * norm (a));
end

function test_far_out_the_film_is_that_of_the_limit_in_the_same_direction ()
  % Squares of what is beyond 1.3e154 are beyond all numbers: the journal must not come back to the middle.
  want = force (element (), 0.99e-4 * [0.6; 0.8], [0; 0]);
  for far = [1 1e149 1e160 1e300]
    [f, e] = force (element (), far * [0.6; 0.8], [0; 0]);
    expect_equal (f, want, 1e-9 * norm (want));
    expect_equal (e.opt(10), far * 1e4, far * 1e-9);
  end
  % A film squeezed slowly or quickly has a force in proportion.
  for v = [1e-175 1e155]
    expect_equal (force (element (with (5, 0)), [0; 0], [3; 4] * v) / v, force (element (with (5, 0)), [0; 0], [3; 4]), 1e-9 * norm (want));
  end
end
