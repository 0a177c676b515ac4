% Bouc-Wen hysteresis: groups of (displacement, z, displacement at the last evaluation).
function tests = suite_law_bouc_wen ()
  tests = localfunctions ();
end

% Stiffness 100, share 0.25, A 2, beta 3, gamma 5, exponent 1 unless said: the limit of z is 0.25.
function e = element (parameters, page)
  if nargin < 1, parameters = [0 100 0.25 2 3 5 1]; end
  if nargin < 2, page = 3; end
  e = state_element ('BoucWen', parameters, [-1 0 0 0 0], page);
end

function test_exponent_1_follows_its_closed_form_in_both_directions ()
  % z = L (1 - exp (-(beta+gamma) x)) on loading, L = A/(beta+gamma).
  for side = [1 -1]
    x = side * (0:0.005:0.2);
    z = led_boucwen ([0 100 0.25 2 3 5 1], x);
    expect_equal (z, side * 0.25 * (1 - exp (-8 * abs (x))), 1e-8);
  end
end

function test_exponent_2_follows_the_hyperbolic_tangent ()
  x = 0:1e-3:0.05;
  [z, f] = led_boucwen ([0 1e5 0.1 1 5000 5000 2], x);
  expect_equal (z, 0.01 * tanh (x / 0.01), 1e-6);
  expect_equal (f, 1e5 * (0.1 * x + 0.9 * z), 1e-12);
end

% On a random way the library integrator and the law agree.
function test_it_agrees_with_lsode_to_its_tolerance ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('what the module does here other tests show the sanitizers; the rest is the host''s'); end
  rand ('twister', 7);
  lsode_options ('relative tolerance', 1e-11);
  lsode_options ('absolute tolerance', 1e-13);
  for n = [1.5 3]
    p = [0 1 0 1 0.7 0.3 n];
    turns = cumsum ((-1) .^ (1:6) .* (0.5 + 2 * rand (1, 6)));
    wanted = 0;
    got = [];
    z0 = 0;
    x = 0;
    way = [];
    for turn = turns
      way = [way, linspace(x(end), turn, 401)(2:end)];
      s = sign (turn - x(end));
      z = lsode (@(z, t) s * (1 - abs (z) ^ n * (0.3 + 0.7 * sign (z * s))), z0, [0, abs(turn - x(end))]);
      z0 = z(end);
      wanted(end + 1) = z0;
      x(end + 1) = turn;
    end
    z = led_boucwen (p, way);
    expect_equal (z(400:400:end), wanted(2:end), 1e-7);
  end
end

function test_a_shorter_step_brings_it_nearer_with_the_fourth_power ()
  off = zeros (1, 3);
  for k = 1:3
    m = 20 * 2 ^ k;
    z = led_boucwen ([0 1 0 1 0.5 0.5 2], 1.5 * (0:m) / m);
    off(k) = abs (z(end) - tanh (1.5));
  end
  if any (log2 (off(1:2) ./ off(2:3)) < 3.7), error ('off by %s', mat2str (off, 3)); end
end

function test_no_way_is_too_long_and_none_passes_the_limit ()
  for way = [0.1 1 10 1e3 1e6 1e300]
    [z, f] = led_boucwen ([0 100 0.25 2 3 5 1], [way, -way, way]);
    if any (abs (z) > 0.25), error ('z %s after ways of %g', mat2str (z, 17), way); end
    if way >= 10, expect_equal (z, 0.25 * [1 -1 1]); end
  end
end

function test_an_evaluation_at_the_same_place_changes_nothing ()
  z = led_boucwen ([0 100 0.25 2 3 5 1.5], [0.1 0.1 0.1 0.05 0.05]);
  expect_equal (z([1 1 4]), z([2 3 5]));
end

function test_a_state_beyond_the_limit_comes_back_to_it ()
  e = element ();
  e = evaluate_law (e, [0.1; 0.5; 0], zeros (3, 1));
  z = e.unl(2);
  expect_equal (z, 0.25 + 0.25 * exp (-8 * 0.1), 1e-4);
  e = evaluate_law (element (), [1e4; 0.5; 0], zeros (3, 1));
  expect_equal (e.unl(2), 0.25);
end

function test_unloading_depends_on_beta_less_gamma ()
  % Against z > 0: dz/dx = A + (beta - gamma) z; with beta = gamma a straight line.
  e = evaluate_law (element ([0 1 0 2 4 4 1]), [0.09; 0.2; 0.1], zeros (3, 1));
  expect_equal (e.unl(2), 0.2 - 2 * 0.01, 1e-15);
  e = evaluate_law (element ([0 1 0 2 6 2 1]), [0.09; 0.2; 0.1], zeros (3, 1));
  expect_equal (e.unl(2), -0.5 + 0.7 * exp (-4 * 0.01), 1e-8);
end

function test_groups_are_independent_and_forces_go_to_their_first_places ()
  x = [0.1; 0; 0; -0.2; 0.1; 0.3];
  [e, r] = evaluate_law (element ([0 100 0.25 2 3 5 1], 6), x, zeros (6, 1));
  first = evaluate_law (element (), x(1:3), zeros (3, 1));
  second = evaluate_law (element (), x(4:6), zeros (3, 1));
  expect_equal (e.snl, [first.snl; second.snl]);
  expect_equal (e.snl([2 3 5 6]), zeros (4, 1));
  expect_equal (e.unl([3 6]), [0.1; -0.2]);
  expect_equal (r, e.snl);
end

function test_no_number_as_a_displacement_gives_none ()
  e = evaluate_law (element (), [NaN; 0; 0], zeros (3, 1));
  expect_equal (e.unl, [NaN; NaN; NaN]);
  expect_equal (e.snl, [NaN; 0; 0]);
end

function test_short_arrays_are_refused ()
  head = 'quarn residual : element 1 : ';
  u = zeros (3, 1);
  e = element ();
  e.opt = e.opt(1:8);
  expect_refused (@() evaluate_law (e, u, u), [head '"opt" of law "BoucWen" must hold 9 values or more, got 8']);
  expect_refused (@() evaluate_law (rmfield (element (), 'iopt'), u, u), [head '"iopt" of law "BoucWen" must hold 5 values or more, got 0']);
  expect_refused (@() evaluate_law (element ([0 100 0.25 2 3 5 1], 4), zeros (4, 1), zeros (4, 1)), ...
                  [head '"unl" of law "BoucWen" must hold 6 values or more, got 4']);
  e = element ([0 100 0.25 2 3 5 1], 6);
  e.snl = zeros (3, 1);
  expect_refused (@() evaluate_law (rmfield (e, 'b'), zeros (6, 1), zeros (6, 1)), [head '"snl" of law "BoucWen" must hold 4 values or more, got 3']);
end
