% A measured force over displacement and velocity, bilinear between the knots of a grid.
function tests = suite_law_surface ()
  tests = localfunctions ();
end

% The grid X, V, FORCE (a row for each displacement, a column for each velocity) on PAGE rows.
function e = element (x, v, force, page)
  e = page_element ('Surface', [0; 0; x(:); v(:); force(:)], page);
  e.iopt = int32 ([-1 0 0 0 0, numel(x), numel(v)]);
end

% Displacements 0 1 3, velocities -2 2: 1 m/s is three quarters of the way.
function e = small (page)
  e = element ([0 1 3], [-2 2], [0 4; 10 18; 30 22], page);
end

function f = forces (e, u, v)
  e = evaluate_law (e, u, v);
  f = e.snl;
end

% Everywhere, from two tables: one over the displacements for each velocity, then one over the velocities.
function f = of_tables (x, v, force, u, w)
  along = interp1 (x(:), force, u, 'linear', 'extrap');
  f = diag (interp1 (v(:), along.', w, 'linear', 'extrap'));
end

function test_numbers_that_can_be_followed_by_hand ()
  [e, r] = evaluate_law (small (4), [0.5; 2; 1; 1], [-2; 2; 0; 1]);
  expect_equal (e.snl, [5; 20; 14; 16]);
  expect_equal (r, e.snl);
end

function test_the_knots_have_the_forces_that_were_given ()
  rand ('twister', 71);
  x = cumsum (0.1 + rand (7, 1));
  v = cumsum (0.1 + rand (5, 1)) - 1;
  force = 20 * rand (7, 5) - 10;
  [u, w] = ndgrid (x, v);
  expect_equal (forces (element (x, v, force, 35), u(:), w(:)), force(:));
end

function test_within_the_grid_and_beyond_it_random_surfaces_are_those_of_interp2_and_of_tables ()
  rand ('twister', 72);
  randn ('twister', 72);
  outside = 0;
  for trial = 1:rounds (2000)
    counts = 1 + randi (12, 1, 2);
    x = cumsum (0.05 + rand (counts(1), 1)) - 2;
    v = cumsum (0.05 + rand (counts(2), 1)) - 2;
    force = 100 * randn (counts);
    u = x(1) + (x(end) - x(1)) * (1.6 * rand (9, 1) - 0.3);
    w = v(1) + (v(end) - v(1)) * (1.6 * rand (9, 1) - 0.3);
    got = forces (element (x, v, force, 9), u, w);
    expect_equal (got, of_tables (x, v, force, u, w), 1e-11 * max (abs (force(:))) * 30);
    within = u >= x(1) & u <= x(end) & w >= v(1) & w <= v(end);
    expect_equal (got(within), interp2 (v.', x, force, w(within), u(within), 'linear'), 1e-11 * max (abs (force(:))));
    outside = outside + sum (~within);
  end
  if outside < 3 * trial, error ('only %d motions beyond the grid', outside); end
end

function test_beyond_the_grid_its_outer_cells_go_on ()
  % 10 N/m at -2 m/s beyond 3 m, 14 N/m at 2 m/s below 0 m, 2 N s/m at 1 m beyond 2 m/s.
  expect_equal (forces (small (3), [5; -1; 1], [-2; 2; 4]), [50; -10; 22]);
  % Beyond both: at 2 m/s the force is 26 N at 5 m, at -2 m/s 50 N.
  expect_equal (forces (small (1), 5, 4), 14);
end

function test_a_spring_and_a_dashpot_are_planes_everywhere ()
  [x, v] = ndgrid ([-1 0.25 4], [-3 -1 0 2]);
  u = [-7; -0.5; 0; 1; 9; 2];
  w = [1; -9; 0; 0.5; 20; -2];
  expect_equal (forces (element ([-1 0.25 4], [-3 -1 0 2], 3 * x + 5 * v, 6), u, w), 3 * u + 5 * w, 1e-12);
end

function test_what_was_looked_up_before_plays_no_part ()
  rand ('twister', 73);
  x = cumsum (0.01 + rand (60, 1));
  v = cumsum (0.01 + rand (40, 1));
  e = element (x, v, rand (60, 40), 200);
  u = [x(randi (60, 100, 1)); 70 * rand(100, 1) - 10];       % half of them on knots
  w = [v(randi (40, 100, 1)); 50 * rand(100, 1) - 10];
  f = forces (e, u, w);
  order = randperm (200).';
  expect_equal (forces (e, u(order), w(order)), f(order));
  single = element (x, v, reshape (e.opt(104:end), 60, 40), 1);
  for k = [1 50 101 200], expect_equal (forces (single, u(k), w(k)), f(k)); end
end

function test_the_record_keeps_the_greatest_distances_from_the_grid ()
  e = small (2);
  e = evaluate_law (e, [0; 3], [-2; 2]);
  expect_equal (e.opt(2:3), [0; 0]);
  e = evaluate_law (e, [-0.5; 3.25], [4; 0]);
  expect_equal (e.opt(2:3), [0.5; 2]);
  e = evaluate_law (e, [1; 3.25], [0; -2.5]);
  expect_equal (e.opt(2:3), [0.5; 2]);
  e = evaluate_law (e, [NaN; 4], [NaN; -5]);
  expect_equal (e.opt(2:3), [1; 3]);
end

function test_no_number_in_a_motion_gives_none ()
  expect_equal (forces (small (4), [NaN; 1; 1; NaN], [0; NaN; 0; NaN]), [NaN; NaN; 14; NaN]);
end

function test_forces_of_a_surface_replace_the_displacements_without_snl ()
  [e, r] = evaluate_law (rmfield (small (2), 'snl'), [1; 2], [0; 2]);
  expect_equal (e.unl, [14; 20]);
  expect_equal (r, [14; 20]);
end

function test_a_surface_is_stored_among_the_forces_and_in_a_run_meets_the_grid_of_every_step ()
  e = small (1);
  e.iopt(1) = 1;
  model = struct ('FNL', zeros (3, 1));
  still = struct ('type', 2000, 'r', zeros (1, 2), 'tft', 0:3, 'data', zeros (1, 6));
  [u, v, a] = deal (zeros (1, 1) + 2, zeros (1, 1) + 3, zeros (1, 1));
  quarn ('chandlediagnewmark', {still, e}, model, u, v, a, zeros (1, 2), struct ('uva', struct ('uva', zeros (4, 1))), struct ());
  expect_equal (model.FNL, [0; 20; 0]);
  expect_equal (e.opt(3), 1);
end

function test_surfaces_that_are_none_are_refused_with_numbers ()
  head = 'quarn residual : element 1 : ';
  refused = @(e, text) expect_refused (@() evaluate_law (e, zeros (2, 1), zeros (2, 1)), [head text]);
  e = small (2);
  refused (setfield (e, 'iopt', e.iopt(1:6)), 'iopt must hold 7 values (entries 6 and 7 count displacements and velocities), got 6');
  refused (rmfield (e, 'iopt'), 'iopt must hold 7 values (entries 6 and 7 count displacements and velocities), got 0');
  text = 'a surface needs 2 displacements and 2 velocities or more, iopt(6:7) has %d and %d';
  for counts = [1 3 -4 2; 2 1 2 -2147483647], refused (with (e, 'iopt', 6:7, counts), sprintf (text, counts)); end
  refused (setfield (e, 'opt', e.opt(1:13)), 'a surface of 3 displacements and 2 velocities takes 14 values of opt, got 13');
  most = intmax ('int32');
  refused (with (e, 'iopt', 6:7, [most most]), ...
           'a surface of 2147483647 displacements and 2147483647 velocities takes 4611686018427387906 values of opt, got 14');
  refused (with (e, 'opt', 5, 4), 'the displacements of a surface must ascend, got 3 after 4 at knot 3');
  refused (with (e, 'opt', 5, 0), 'the displacements of a surface must ascend, got 0 after 0 at knot 2');
  refused (with (e, 'opt', 4, NaN), 'the displacements of a surface must ascend, got 1 after nan at knot 2');
  refused (with (e, 'opt', 8, -2), 'the velocities of a surface must ascend, got -2 after -2 at knot 2');
  refused (with (e, 'opt', 8, Inf), 'the velocities of a surface must ascend, got inf after -2 at knot 2');
  refused (with (e, 'opt', 7:8, [-1e308 1e308]), 'the velocities of a surface must ascend, got 1e+308 after -1e+308 at knot 2');
  refused (with (e, 'opt', 10, NaN), 'the forces of a surface must be finite, got nan at displacement 2, velocity 1');
  refused (with (e, 'opt', 14, -Inf), 'the forces of a surface must be finite, got -inf at displacement 3, velocity 2');
  refused (rmfield (e, 'vnl'), '"vnl" of law "Surface" must hold 2 values or more, got 0');
  e.snl = 0;
  refused (rmfield (e, 'b'), 'snl must hold 2 values (as many as a page of unl), got 1');
end

function e = with (e, name, places, values)
  e.(name)(places) = values;
end
