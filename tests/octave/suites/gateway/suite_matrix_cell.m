% The linear residual of a cell {M, C, K} through "residual": products, Rayleigh columns, modal damping.
function tests = suite_matrix_cell ()
  tests = localfunctions ();
end

function r = residual_of (k, u, v, a, opt)
  r = zeros (numel (u), 1);
  quarn ('residual', r, k, u, v, a, opt);
end

function [m, c, k] = matrices ()
  m = sparse ([1 2 3 1 3], [1 1 2 3 3], [2 -1 5 4 3], 3, 3);
  c = sparse ([1 3 2 1], [1 1 2 3], [1 0.5 2 -1], 3, 3);
  k = sparse ([1 2 3 1 3], [1 2 2 2 3], [7 6 5 4 -3], 3, 3);
end

function test_sum_of_the_three_transposed_products ()
  [m, c, k] = matrices ();
  u = [1; 2; 3];
  v = [-1; 0.5; 4];
  a = [3; 0.25; -8];
  wanted = full (m' * a + c' * v + k' * u);
  expect_equal (residual_of ({matrix_lines(m), matrix_lines(c), matrix_lines(k)}, u, v, a, [0 0]), wanted);
  wanted = full (m' * a + (m' * v) * 0.5 + c' * v + k' * u + (k' * v) * 0.25);
  expect_equal (residual_of ({matrix_lines(m), matrix_lines(c), matrix_lines(k)}, u, v, a, [0.5 0.25]), wanted);
end

function test_no_diagonal_marker_here ()
  a = sparse ([2 3 1], [1 1 3], [2 3 4], 3, 3);
  k = {matrix_lines(a), matrix_lines(a), matrix_lines(a)};
  x = [1; 10; 100];
  expect_equal (residual_of (k, x, x, x, [0 0]), full (3 * (a' * x)));
  expect_equal (k{1}.ir, matrix_lines (a).ir);
  expect_equal (k{2}.ir, matrix_lines (a).ir);
  expect_equal (k{3}.ir, matrix_lines (a).ir);
end

function test_marked_matrix_is_refused ()
  marked = matrix_lines (diag ([1 2 3]));
  marked.ir(1) = int32 (-1);
  plain = matrix_lines (diag ([1 2 3]));
  x = ones (3, 1);
  names = {'mass', 'damping', 'stiffness'};
  vectors = 'avu';
  for place = 1:3
    k = {plain, plain, plain};
    k{place} = marked;
    r = ones (3, 1) * 5;
    wanted = sprintf (['quarn residual : the %s matrix : an index of column 1 lies outside %s of 3 values ', ...
                       '(the matrix was marked as diagonal by a handle)'], names{place}, vectors(place));
    expect_error (@() quarn ('residual', r, k, x, x, x, [0 0]), '', wanted);
  end
end

function test_empty_acceleration_keeps_the_rayleigh_part_of_the_mass ()
  [m, c, k] = matrices ();
  u = [1; 2; 3];
  v = [-1; 0.5; 4];
  got = residual_of ({matrix_lines(m), matrix_lines(c), matrix_lines(k)}, u, v, [], [0.5 0]);
  expect_equal (got, full ((m' * v) * 0.5 + c' * v + k' * u));
  r = zeros (3, 1);
  quarn ('residual', r, {matrix_lines(m), matrix_lines(c), matrix_lines(k)}, u, v, []);
  expect_equal (r, full (c' * v + k' * u));
end

function test_empty_velocity_skips_the_damping ()
  [m, c, k] = matrices ();
  u = [1; 2; 3];
  expect_equal (residual_of ({matrix_lines(m), matrix_lines(c), matrix_lines(k)}, u, [], u, [0 0]), full (m' * u + k' * u));
end

function test_zero_coefficients_skip_the_rayleigh_columns ()
  [m, ~, k] = matrices ();
  u = [1; 2; 3];
  bad = [Inf; NaN; 1];
  none = matrix_lines (sparse (3, 3));
  expect_equal (residual_of ({matrix_lines(m), none, matrix_lines(k)}, u, bad, u, [0 0]), full (m' * u + k' * u));
end

function test_dense_matrix ()
  [m, c, k] = matrices ();
  x = [1; 2; 3];
  cells = {{full(m), matrix_lines(c), matrix_lines(k)}, {matrix_lines(m), full(c), matrix_lines(k)}, {matrix_lines(m), matrix_lines(c), full(k)}};
  for t = 1:3
    expect_error (@() residual_of (cells{t}, x, x, x, [0 0]), '', 'Implemented for sparse matrices');
  end
end

function s = modal_damping ()
  s = struct ('def', [1 2; 0.5 -1; 3 0.25], 'data', [0.5; 4; NaN; NaN]);
  s = fresh (s);
end

function test_modal_damping_projects_scales_and_spreads ()
  [m, ~, k] = matrices ();
  s = modal_damping ();
  u = [1; 2; 4];
  v = [-1; 0.5; 4];
  w = (s.def' * v) .* [0.5; 4];
  got = residual_of ({matrix_lines(m), s, matrix_lines(k)}, u, v, u, [0 0]);
  expect_equal (got, full (m' * u + k' * u) + s.def * w, 1e-14);
  expect_equal (s.data(1:2), [0.5; 4]);
  expect_equal (s.data(3:4), w, 1e-15);
end

function test_modal_damping_of_a_structure_with_empty_values ()
  v = [-1; 0.5; 4];
  s = modal_damping ();
  wanted = s.def * ((s.def' * v) .* [0.5; 4]);
  for dims = {{}, {'dims', [3 3]}}
    full = fresh (modal_damping ());
    s = struct ('pr', zeros (0, 1), 'def', full.def, 'data', full.data, dims{1}{:});
    expect_equal (residual_of ({[], s, []}, v, v, v, [0 0]), wanted, 1e-14);
  end
end

function test_modal_damping_adds_a_matrix_of_its_own ()
  [m, c, k] = matrices ();
  s = modal_damping ();
  s.K = matrix_lines (c);
  x = [1; 2; 4];
  v = [-1; 0.5; 4];
  w = (s.def' * v) .* [0.5; 4];
  expect_equal (residual_of ({matrix_lines(m), s, matrix_lines(k)}, x, v, x, [0 0]), full (m' * x + k' * x + c' * v) + s.def * w, 1e-14);
end

function test_damping_without_values_or_modes_adds_nothing ()
  [m, c, k] = matrices ();
  x = [1; 2; 4];
  for damping = {[], struct('other', 1), struct('data', [1; 2; 3; 4]), struct('K', matrix_lines (c)), matrix_lines(sparse (3, 3))}
    expect_equal (residual_of ({matrix_lines(m), damping{1}, matrix_lines(k)}, x, x, x, [0 0]), full (m' * x + k' * x));
  end
end

function test_modal_damping_that_does_not_fit_is_refused ()
  [~, ~, k] = matrices ();
  m = sparse (3, 3);
  x = [1; 2; 4];
  short = modal_damping ();
  short.data = short.data(1:3);
  none = rmfield (modal_damping (), 'data');
  tall = modal_damping ();
  tall.def = ones (4, 2);
  alien = modal_damping ();
  alien.def = int32 (alien.def);
  texts = {'field "data" of the damping must hold 4 values (twice the number of modes), got 3', ...
           'field "data" of the damping must hold 4 values (twice the number of modes), got 0', ...
           'v must hold 4 values (one for each row of "def"), got 3', ...
           'field "def" of the damping must be a full real double array, got int32 3x2'};
  for s = [{short, none, tall, alien}; texts]
    r = ones (3, 1) * 5;
    wanted = ['quarn residual : ' s{2}];
    expect_error (@() quarn ('residual', r, {matrix_lines(m), s{1}, matrix_lines(k)}, x, x, x, [0 0]), '', wanted);
    expect_equal (r, ones (3, 1) * 5);
  end
end

function test_order_of_the_terms_is_mass_damping_stiffness ()
  big = matrix_lines (diag ([1e16 1e16]));
  x = ones (2, 1);
  small = matrix_lines (sparse ([1 1 2 2], [1 2 1 2], [1 1 0.25 0.25], 2, 2));
  negative = matrix_lines (diag ([-1e16 -1e16]));
  % (1e16 + 1.25) - 1e16 = 2 loses the quarter; any other order ends elsewhere.
  expect_equal (residual_of ({big, small, negative}, x, x, x, [0 0]), [2; 2]);
  expect_equal (residual_of ({small, big, negative}, x, x, x, [0 0]), [2; 2]);
  expect_equal (residual_of ({big, negative, small}, x, x, x, [0 0]), [1.25; 1.25]);
end

function test_residual_shorter_than_the_modes_of_modal_damping ()
  c = struct ('def', ones (3, 2), 'data', ones (4, 1));
  expect_error (@() quarn ('residual', zeros (2, 1), {[], c, []}, [1; 2], [1; 2; 3], []), '', ...
    'quarn residual : r must hold 3 values (one for each row of "def"), got 2');
end
