% Contact and friction of a round shaft in a round clearance, in pairs of displacements.
function tests = suite_law_radial ()
  tests = localfunctions ();
end

% gap 2 m, stiffness 10, exponent 2, damping 0.5 s/m, friction 0.25, onset 0, radius 2 m, 3 rad/s, centre 0 unless said.
function e = element (parameters, page)
  if nargin < 1, parameters = [2 10 2 0.5 0.25 0 2 3 0 0]; end
  if nargin < 2, page = 2; end
  e = page_element ('Radial', parameters, page);
end

% The parameters above with value K replaced.
function p = with (k, value)
  p = [2 10 2 0.5 0.25 0 2 3 0 0];
  p(k) = value;
end

function f = force (e, u, v)
  e = evaluate_law (e, u, v);
  f = e.snl;
end

function refused (e, text)
  expect_refused (@() evaluate_law (e, zeros (4, 1), zeros (4, 1)), text);
end

function test_force_along_the_radius_and_friction_across_it ()
  % 3, 4 are a depth of 3 in the direction 0.6, 0.8; deeper at 1 m/s, and 7 m/s around beside the 6 m/s of the surface.
  v = [0.6 - 7 * 0.8, 0.8 + 7 * 0.6];
  [e, r] = evaluate_law (element (), [3; 4], v);
  normal = 10 * 3 ^ 2 * (1 + 0.5);
  expect_equal (e.snl, normal * [0.6 - 0.25 * 0.8; 0.8 + 0.25 * 0.6], 1e-12);
  expect_equal (r, e.snl);
end

function test_nothing_within_the_gap ()
  for at = {[0; 0], [2; 0], [1.2; -1.6], [-1.4; 1.4]}
    expect_equal (force (element (), at{1}, [5; 6]), [0; 0]);
  end
  expect_equal (any (force (element (), [2 + 1e-9; 0], [0; 0])), true);
end

function test_a_gap_of_zero_pushes_everywhere_but_in_the_middle ()
  e = element (with ([1 4 5], [0 0 0]));
  expect_equal (force (e, [0; 0], [1; 1]), [0; 0]);
  expect_equal (force (e, [0; -0.5], [1; 1]), [0; -2.5]);
end

function test_contact_pushes_and_never_pulls ()
  e = element (with (5, 0));
  for speed = [-1 -1.99 -2 -5]
    f = force (e, [5; 0], [speed; 0]);
    expect_equal (f, [90 * max(0, 1 + 0.5 * speed); 0], 1e-12);
  end
  % Nor is there friction where nothing presses.
  expect_equal (force (element (), [5; 0], [-5; 9]), [0; 0]);
end

function test_friction_acts_against_the_sliding_of_the_surfaces ()
  % The shaft's centre at rest: the surface passes at 6 m/s, towards +y where the contact is on +x.
  expect_equal (force (element (with (4, 0)), [3; 0], [0; 0]), [10; 2.5]);
  expect_equal (force (element (with ([4 8], [0 -3])), [3; 0], [0; 0]), [10; -2.5]);
  % Rolling: the centre moves as fast the other way.
  expect_equal (force (element (with (4, 0)), [3; 0], [0; -6]), [10; 0]);
  expect_equal (force (element (with (4, 0)), [3; 0], [0; -7]), [10; -2.5]);
end

function test_onset_smooths_the_friction ()
  e = element (with ([4 6 8], [0 3 2]));
  expect_equal (force (e, [3; 0], [0; 0]), [10; 2.5 * 4 / 5], 1e-14);
  expect_equal (force (e, [3; 0], [0; -4]), [10; 0]);
end

function test_the_centre_may_lie_elsewhere ()
  e = element (with (9:10, [0.5 -0.25]));
  expect_equal (force (e, [3.5; 3.75], [0; 0]), force (element (), [3; 4], [0; 0]), 1e-12);
end

function test_force_turns_with_the_place ()
  rand ('twister', 7);
  for k = 1:20
    turn = 2 * pi * rand ();
    rotation = [cos(turn) -sin(turn); sin(turn) cos(turn)];
    at = 4 * [rand(); rand()];
    v = [rand(); rand()] - 0.5;
    expect_equal (force (element (), rotation * at, rotation * v), rotation * force (element (), at, v), 1e-12);
  end
end

function test_pairs_have_forces_of_their_own ()
  both = force (element (with (1, 2), 4), [3; 4; -1; 2.5], [1; 2; 3; 4]);
  expect_equal (both, [force(element (), [3; 4], [1; 2]); force(element (), [-1; 2.5], [3; 4])]);
end

function test_what_is_not_a_number_does_not_vanish ()
  expect_equal (force (element (), [NaN; 0], [0; 0]), [NaN; NaN]);
  expect_equal (force (element (), [3; 0], [0; NaN])(2), NaN);
end

% Squares of what is beyond 1.3e154 are beyond all numbers, those of what is below 1.5e-162 are 0.
function test_squares_may_be_beyond_all_numbers ()
  far = element ([1e200 1e-180 1 0 0.25 0 2 3 0 0]);
  expect_equal (force (far, [3e200; 4e200], [0; 0]), 4e20 * [0.6 - 0.25 * 0.8; 0.8 + 0.25 * 0.6], 1e6);
  expect_equal (force (far, [0.6e200; -0.7e200], [0; 0]), [0; 0]);
  % And those of the speed of sliding, and of its onset.
  expect_equal (force (element (with ([4 6], [0 3e200])), [3; 0], [0; 4e200]), [10; 2.5 * 0.8], 1e-12);
end

function test_squares_may_be_below_all_numbers ()
  near = element ([0 1e180 1 0 0.25 0 2 3 0 0]);
  expect_equal (force (near, [3e-170; 4e-170], [0; 0]), 5e10 * [0.6 - 0.25 * 0.8; 0.8 + 0.25 * 0.6], 1e-4);
  expect_equal (force (element (with ([4 6 8], [0 3e-200 0])), [3; 0], [0; 4e-200]), [10; 2.5 * 0.8], 1e-12);
end

function test_forces_go_over_the_displacements_where_there_is_no_place_for_them ()
  e = element ();
  [~, want] = evaluate_law (e, [3; 4], [1; 2]);
  [e, r] = evaluate_law (rmfield (e, 'snl'), [3; 4], [1; 2]);
  expect_equal (r, want);
  expect_equal (e.unl, want);
end

function test_what_is_too_short_is_refused ()
  e = element (with (1, 2), 4);
  short = e;
  short.opt = e.opt(1:10);
  refused (short, 'quarn residual : element 1 : "opt" of law "Radial" must hold 11 values or more, got 10');
  short = e;
  short.vnl = zeros (3, 1);
  refused (short, '~^quarn residual : .*vnl');
  refused (rmfield (e, 'vnl'), 'quarn residual : element 1 : "vnl" of law "Radial" must hold 4 values or more, got 0');
  short = e;
  short.b = [];
  short.snl = zeros (3, 1);
  refused (short, 'quarn residual : element 1 : "snl" of law "Radial" must hold 4 values or more, got 3');
end

function test_half_a_pair_is_refused ()
  refused (element (with (1, 2), 3), 'quarn residual : element 1 : "unl" of law "Radial" must hold pairs of displacements, got 3 values');
end

function test_a_clearance_below_zero_is_refused ()
  refused (element (with (1, -1e-6)), 'quarn residual : element 1 : the clearance of law "Radial", opt(2), must be 0 or more, got -1e-06');
  refused (element (with (1, NaN)), '~^quarn residual : element 1 : the clearance of law "Radial"');
end

function test_one_array_for_both_observations_is_refused ()
  e = element ();
  e.unl = zeros (2, 1);
  e.vnl = e.unl;
  integrator = struct ('type', 2000, 'r', zeros (2, 2), 'tft', [0 1], 'data', zeros (1, 6));
  mem = struct ('uva', struct ('uva', zeros (8, 1)));
  expect_refused (@() quarn ('chandlediagnewmark', {integrator, e}, struct (), zeros (2, 1), zeros (2, 1), zeros (2, 1), [0 0], mem, struct ()), ...
                  '~"unl" and "vnl" are one array: law "Radial" needs each');
end
