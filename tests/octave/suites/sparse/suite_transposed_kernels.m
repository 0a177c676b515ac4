% Transposed sum and product, as elements of type 1003 use them: they observe c*u and add b'*forces to the residual.
%
% The element's law returns what it observes, so with b absent the forces show c*u, and with c the identity r shows the sum.
function tests = suite_transposed_kernels ()
  tests = localfunctions ();
end

% Observation: product

function test_product_with_a_transposed_sparse_matrix_takes_its_stored_lines_as_rows ()
  a = sparse ([1 0 2; 0 3 0; 4 5 6; 0 0 0]);
  expect_equal (observed (matrix_lines (a, true), [1; 10; 100], 4), a * [1; 10; 100]);
end

function test_product_leaves_the_values_behind_its_rows_at_zero ()
  expect_equal (observed (matrix_lines (sparse ([1 2; 3 4]), true), [1; 10], 4), [21; 43; 0; 0]);
  expect_equal (observed ([1 2; 3 4], [1; 10], 4), [21; 43; 0; 0]);
end

function test_product_with_a_full_matrix ()
  expect_equal (observed ([1 2 3; 4 5 6], [1; 10; 100], 2), [321; 654]);
end

function test_product_uses_the_leading_columns_of_u ()
  expect_equal (observed ([1 2; 4 5], [1; 10; NaN], 2), [21; 54]);
  expect_equal (observed (matrix_lines (sparse ([1 2; 4 5]), true), [1; 10; NaN], 2), [21; 54]);
end

function test_product_discards_what_was_observed_before ()
  forms = {[1 2; 3 4], matrix_lines(sparse ([1 2; 3 4]), true)};
  for k = 1:2
    h = quarn ('chandleset', 1003, power_element (forms{k}, [], 2));
    apply (h, [5; 7], 2);
    apply (h, [1; 10], 2);
    s = quarn ('chandleget', h);
    expect_equal (s.unl, [21; 43]);
    expect_equal (s.snl, [21; 43]);
  end
end

function test_product_with_a_sparse_matrix_as_stored_is_refused ()
  expect_refused (@() observed (matrix_lines (sparse ([1 2; 3 4])), [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_product_with_a_native_sparse_matrix_is_refused ()
  expect_refused (@() observed (sparse ([1 2; 3 4]), [1; 10], 2), 'ir must be int32');
end

function test_product_with_a_dense_matrix_flagged_transposed_is_the_plain_one ()
  c = struct ('pr', [1; 3; 2; 4], 'dims', [2 2], 'trans', 1);
  expect_equal (observed (c, [1; 10], 2), [21; 43]);
end

function test_product_of_random_matrices_agrees_with_the_host ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:20
    m = ceil (30 * rand ());
    n = ceil (30 * rand ());
    a = sprandn (m, n, 0.3);
    u = randn (n, 1);
    expect_equal (observed (matrix_lines (a, true), u, m), full (a * u), 1e-13);
    expect_equal (observed (full (a) + 1, u, m), (full (a) + 1) * u, 1e-13);
  end
end

function test_product_that_would_leave_its_vectors_is_refused ()
  c = matrix_lines (sparse ([1 2; 3 4]), true);
  expect_refused (@() observed (c, 1, 2), '~^quarn residual : ');           % columns beyond u
  expect_refused (@() observed (c, [1; 10], 1), '~^quarn residual : ');     % rows beyond the observed values
  expect_refused (@() observed ([1 2; 3 4], 1, 2), '~^quarn residual : ');
  expect_refused (@() observed ([1 2; 3 4], [1; 10], 1), '~^quarn residual : ');
  short = struct ('pr', [1; 2; 3], 'dims', [2 2]);
  expect_refused (@() observed (short, [1; 10], 2), '~^quarn residual : ');
  negative = struct ('pr', [1; 2; 3], 'dims', [-2 -2]);
  expect_refused (@() observed (negative, [1; 10], 2), '~^quarn residual : ');
  broken_lines (@(m) observed (m, [1; 10], 2));
end

% Command: sum

function test_sum_gathers_the_stored_lines ()
  b = sparse ([1 2 0; 0 3 4; 5 0 6]);
  expect_equal (spread (matrix_lines (b), [1; 10; 100], [7; 8; 9]), [7; 8; 9] + b.' * [1; 10; 100]);
end

function test_sum_leaves_the_residual_where_a_line_is_empty ()
  b = sparse ([1 0 0; 0 0 4; 5 0 6]);
  r = spread (matrix_lines (b), [1; 10; 100], [0.1; 0.2; 0.3]);
  expect_equal (r(2), 0.2);
  expect_equal (r([1 3]), [0.1; 0.3] + [501; 640]);
end

function test_sum_takes_as_many_stored_lines_as_rows ()
  b = sparse ([1 2 9; 3 4 9]);   % three lines stored, two rows
  expect_equal (spread (matrix_lines (b), [1; 10], [0; 0; 0]), [31; 42; 0]);
end

function test_sum_with_more_rows_than_lines_is_refused ()
  expect_refused (@() spread (matrix_lines (sparse ([1 2; 3 4; 5 6])), [1; 10; 100], [0; 0; 0]), '~^quarn residual : ');
end

function test_sum_scatters_the_lines_of_a_transposed_matrix ()
  b = sparse ([1 0 2 0; 0 3 4 0]);
  expect_equal (spread (matrix_lines (b, true), [1; 10], [7; 8; 9; 0.1]), [8; 38; 51; 0.1]);
end

function test_sum_of_a_transposed_matrix_without_rows_adds_nothing ()
  b = struct ('ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 5, 'dims', [0 2], 'trans', 1);
  expect_equal (spread (b, [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_scattered_terms_are_collected_before_they_are_added ()
  b = sparse ([1 0; 1 0]);
  expect_equal (spread (matrix_lines (b, true), [1; 1], [1e16; 3] + 0), [1e16 + 2; 3]);
end

function test_gathered_terms_are_collected_before_they_are_added ()
  b = sparse ([1 0; 1 0]);
  expect_equal (spread (matrix_lines (b), [1; 1], [1e16; 3] + 0), [1e16 + 2; 3]);
end

function test_sum_of_a_dense_row_flagged_transposed_uses_the_first_force_only ()
  b = struct ('pr', [2 3 4], 'dims', [1 3], 'trans', 1);
  expect_equal (spread (b, [10; NaN], [1; 2; 3]), [21; 32; 43]);
end

function test_sum_of_a_dense_matrix_flagged_transposed_is_that_of_a_row_whatever_its_rows ()
  b = struct ('pr', [2; 3; 4; 5; 6; 7], 'dims', [2 3], 'trans', 1);
  expect_equal (spread (b, [10; 1000], [1; 2; 3]), [21; 32; 43]);
  b.dims = [0 2];
  expect_equal (spread (b, [10; 1000], [1; 2; 3]), [21; 32; 3]);
end

function test_sum_of_a_dense_matrix_is_refused ()
  text = 'Add_Mt_u implemented for sparse matrices';
  expect_refused (@() spread (eye (2), [1; 10], [0; 0]), text);
  expect_refused (@() spread (struct ('pr', [1; 2], 'dims', [1 2]), [1; 10], [0; 0]), text);
  expect_refused (@() spread (struct ('pr', [1; 2], 'dims', [1 2], 'trans', 0), [1; 10], [0; 0]), text);
  expect_refused (@() spread (v_handle (eye (2)), [1; 10], [0; 0]), text);
end

function test_sum_of_a_dense_matrix_leaves_the_residual ()
  r = [0.1; 0.2] + 0;
  h = quarn ('chandleset', 1003, power_element (eye (2), eye (2), 2));
  expect_error (@() quarn ('residual', r, chandle (h), [1; 2], [0; 0], [0; 0]), '', 'Add_Mt_u implemented for sparse matrices');
  expect_equal (r, [0.1; 0.2]);
end

function test_sum_of_a_dense_matrix_without_rows_adds_nothing ()
  expect_equal (spread (struct ('pr', [1; 2], 'dims', [0 2]), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
  expect_equal (spread (struct ('pr', [1; 2], 'dims', [-1 2]), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_sum_of_a_native_sparse_matrix_is_refused ()
  expect_refused (@() spread (speye (2), [1; 10], [0; 0]), 'ir must be int32');
end

function test_sum_of_a_matrix_without_values_adds_nothing ()
  expect_equal (spread (rmfield (matrix_lines (speye (2)), 'pr'), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
  expect_equal (spread ([], [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_sum_through_a_v_handle ()
  b = sparse ([1 2; 3 4]);
  expect_equal (spread (v_handle (matrix_lines (b)), [1; 10], [0; 0]), [31; 42]);
  expect_equal (spread (v_handle (matrix_lines (b, true)), [1; 10], [0; 0]), [31; 42]);
end

function test_sum_of_random_matrices_agrees_with_the_host ()
  rand ('twister', 43);
  randn ('twister', 43);
  for k = 1:20
    m = ceil (30 * rand ());
    n = ceil (30 * rand ());
    b = sprandn (m, n, 0.3);
    f = randn (m, 1);
    r = randn (n, 1);
    expect_equal (spread (matrix_lines (b, true), f, r), r + full (b.' * f), 1e-13);
    s = sprandn (m, m, 0.3);
    r = randn (m, 1);
    expect_equal (spread (matrix_lines (s), f, r), r + full (s.' * f), 1e-13);
  end
end

function test_sum_that_would_leave_its_vectors_is_refused ()
  b = sparse ([1 2; 3 4]);
  expect_refused (@() spread (matrix_lines (b, true), 1, [0; 0]), '~^quarn residual : ');      % more rows than forces
  expect_refused (@() spread (matrix_lines (b), 1, [0; 0]), '~^quarn residual : ');            % index beyond the forces
  expect_refused (@() spread (matrix_lines (b, true), [1; 10], 0), '~^quarn residual : ');     % more columns than the residual
  expect_refused (@() spread (matrix_lines (b), [1; 10], 0), '~^quarn residual : ');           % more rows than the residual
  short = struct ('pr', [1 2], 'dims', [1 3], 'trans', 1);
  expect_refused (@() spread (short, 1, [0; 0; 0]), '~^quarn residual : ');
  long = struct ('pr', [1 2 3], 'dims', [1 3], 'trans', 1);
  expect_refused (@() spread (long, 1, [0; 0]), '~^quarn residual : ');
  broken_lines (@(m) spread (m, [1; 10], [0; 0]));
end

function broken_lines (use)
  good = matrix_lines (sparse ([1 2; 3 4]), true);
  changes = {'jc', int32([0; 2]); 'jc', int32([0; 3; 2]); 'jc', int32([0; 2; 5]); 'jc', int32([-1; 2; 4]); 'jc', [0; 2; 4]; ...
             'ir', int32([0; 1; 0; 2]); 'ir', int32([0; -1; 0; 1]); 'ir', int32([0; 1; 0]); 'ir', [0; 1; 0; 1]; 'pr', [1; 2; 3]; ...
             'pr', single([1; 2; 3; 4]); 'dims', [3 2]; 'dims', 2; 'dims', [NaN 2]; 'trans', {1}};
  for k = 1:size (changes, 1)
    m = good;
    m.(changes{k, 1}) = changes{k, 2};
    if isequaln (m.dims, [NaN 2])
      use (m);   % a size that is no number is one below zero: no lines
    else
      expect_refused (@() use (m), '~^quarn residual : ');
    end
  end
end

% Forces of an element that observes c*u in n values.
function seen = observed (c, u, n)
  h = quarn ('chandleset', 1003, power_element (c, [], n));
  apply (h, u, numel (u));
  s = quarn ('chandleget', h);
  seen = s.snl;
end

% Residual r after an element has added the given forces through b.
function r = spread (b, forces, r)
  n = numel (forces);
  r = fresh (r);
  u = zeros (max (n, numel (r)), 1);
  u(1:n) = forces;
  h = quarn ('chandleset', 1003, power_element (matrix_lines (speye (n), true), b, n));
  quarn ('residual', r, chandle (h), u, zeros (size (u)), zeros (size (u)));
end

function apply (h, u, n)
  quarn ('residual', zeros (n, 1), chandle (h), u, zeros (n, 1), zeros (n, 1));
end
