% Every form in which a matrix may be passed.
%
% The dimensions of a view show through an element of type 1003: its law returns c*u unchanged, and rows decides how many
% values are observed, cols how many of u are used.
function tests = suite_views ()
  tests = localfunctions ();
end

function test_a_full_matrix_is_a_dense_view_of_its_size ()
  c = [1 2 3; 4 5 6];
  expect_equal (observed (c, [1; 10; 100], 2), c * [1; 10; 100]);
end

function test_a_struct_without_indices_is_a_dense_view ()
  c = struct ('pr', [1; 4; 2; 5; 3; 6], 'dims', [2 3]);
  expect_equal (observed (c, [1; 10; 100], 2), [1 2 3; 4 5 6] * [1; 10; 100]);
end

function test_the_values_of_a_dense_struct_may_have_any_shape ()
  c = struct ('pr', [1 4; 2 5; 3 6].', 'dims', [2 3]);
  expect_equal (observed (c, [1; 10; 100], 2), [1 2 3; 4 5 6] * [1; 10; 100]);
end

function test_dims_are_truncated ()
  c = struct ('pr', (1:6).', 'dims', [3.9 2.1]);
  expect_equal (observed (c, [1; 10; 100], 3), reshape (1:6, 3, 2) * [1; 10]);
end

function test_further_dims_are_not_read ()
  c = struct ('pr', (1:6).', 'dims', [3 2 7 NaN]);
  expect_equal (observed (c, [1; 10], 3), reshape (1:6, 3, 2) * [1; 10]);
end

function test_dims_as_a_column_are_read_alike ()
  c = struct ('pr', (1:6).', 'dims', [3; 2]);
  expect_equal (observed (c, [1; 10], 3), reshape (1:6, 3, 2) * [1; 10]);
end

function test_trans_zero_leaves_the_orientation ()
  c = matrix_lines (sparse ([1 2; 3 4]));
  expect_refused (@() observed (c, [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
  c.trans = -0;
  expect_refused (@() observed (c, [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_a_missing_or_empty_trans_is_zero ()
  c = rmfield (matrix_lines (sparse ([1 2; 3 4])), 'trans');
  expect_refused (@() observed (c, [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
  c.trans = [];
  expect_refused (@() observed (c, [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_trans_not_zero_transposes ()
  values = {1, -1, 2, 0.25, 1e-300, NaN, Inf, -Inf, [3 0], [NaN; 0]};
  for k = 1:numel (values)
    c = matrix_lines (sparse ([1 2; 3 4]), true);
    c.trans = values{k};
    expect_equal (observed (c, [1; 10], 2), [21; 43]);
  end
end

function test_only_the_first_value_of_trans_counts ()
  c = matrix_lines (sparse ([1 2; 3 4]), true);
  c.trans = [0 1];
  expect_refused (@() observed (c, [1; 10], 2), 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_without_dims_a_column_jc_gives_a_square_view ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  c = rmfield (matrix_lines (a, true), 'dims');
  expect_equal (observed (c, [1; 10; 100], 3), a * [1; 10; 100]);
end

function test_without_dims_the_rows_of_jc_count_and_not_its_elements ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  c = rmfield (matrix_lines (a, true), 'dims');
  c.jc = [c.jc c.jc];
  expect_equal (observed (c, [1; 10; 100], 3), a * [1; 10; 100]);
end

function test_without_dims_a_row_jc_gives_an_empty_view ()
  c = rmfield (matrix_lines (sparse ([1 2 0; 0 3 4; 5 0 6]), true), 'dims');
  c.jc = c.jc.';
  expect_equal (observed (c, [1; 10; 100], 3), zeros (3, 1));
end

function test_with_dims_jc_may_be_a_row ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  c = matrix_lines (a, true);
  c.jc = c.jc.';
  c.ir = c.ir.';
  c.pr = c.pr.';
  expect_equal (observed (c, [1; 10; 100], 3), a * [1; 10; 100]);
end

function test_a_struct_array_is_read_at_its_first_element ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  m = [matrix_lines(a), matrix_lines(2 * a)];
  y = zeros (3, 1);
  quarn ('tbbp', m, [1; 10; 100], y);
  expect_equal (y, a.' * [1; 10; 100]);
end

function test_a_struct_without_values_is_no_matrix ()
  m = rmfield (matrix_lines (speye (3)), 'pr');
  y = [1; 2; 3] + 0.5;
  quarn ('tbbp', m, [1; 1; 1], y);
  expect_equal (y, [1.5; 2.5; 3.5]);
  expect_equal (observed (m, [1; 10; 100], 3), zeros (3, 1));
end

function test_without_values_the_other_fields_are_not_looked_at ()
  m = struct ('ir', {@sin}, 'jc', {{1}}, 'dims', 'no', 'trans', {{}});
  y = [1; 2; 3] + 0.5;
  quarn ('tbbp', m, [1; 1; 1], y);
  expect_equal (y, [1.5; 2.5; 3.5]);
end

function test_a_native_sparse_matrix_is_refused ()
  expect_refused (@() quarn ('tbbp', speye (3), ones (3, 1), zeros (3, 1)), 'ir must be int32');
  expect_refused (@() quarn ('tbbp', sparse (3, 3), ones (3, 1), zeros (3, 1)), 'ir must be int32');
  expect_refused (@() quarn ('tbbp', sparse (true), ones (1, 1), zeros (1, 1)), 'ir must be int32');
  expect_refused (@() quarn ('tbbp', sparse (1i), ones (1, 1), zeros (1, 1)), 'ir must be int32');
  expect_refused (@() observed (speye (3), ones (3, 1), 3), 'ir must be int32');
end

function test_a_v_handle_is_read_through_its_file ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  y = zeros (3, 1);
  quarn ('tbbp', v_handle (matrix_lines (a)), [1; 10; 100], y);
  expect_equal (y, a.' * [1; 10; 100]);
  expect_equal (observed (v_handle (matrix_lines (a, true)), [1; 10; 100], 3), a * [1; 10; 100]);
end

function test_a_v_handle_may_hold_a_full_matrix ()
  expect_equal (observed (v_handle ([1 2 3; 4 5 6]), [1; 10; 100], 2), [321; 654]);
end

function test_a_v_handle_of_a_native_sparse_matrix_is_refused ()
  expect_refused (@() quarn ('tbbp', v_handle (speye (3)), ones (3, 1), zeros (3, 1)), 'ir must be int32');
end

function test_a_v_handle_of_a_struct_without_values_is_no_matrix ()
  y = [1; 2; 3] + 0.5;
  quarn ('tbbp', v_handle (struct ('dims', [3 3])), [1; 1; 1], y);
  expect_equal (y, [1.5; 2.5; 3.5]);
end

function test_dense_matrices_have_no_parallel_product ()
  expect_refused (@() quarn ('tbbp', eye (3), ones (3, 1), zeros (3, 1)), 'Implemented for sparse matrices');
  expect_refused (@() quarn ('tbbp', v_handle (eye (3)), ones (3, 1), zeros (3, 1)), 'Implemented for sparse matrices');
  m = struct ('pr', ones (9, 1), 'dims', [3 3]);
  expect_refused (@() quarn ('tbbp', m, ones (3, 1), zeros (3, 1)), 'Implemented for sparse matrices');
end

function test_a_view_borrows_and_leaves_the_matrix_alone ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  m = matrix_lines (a, true);
  quarn ('tbbp', m, [1; 10; 100], zeros (3, 1));
  expect_equal (m, matrix_lines (a, true));
end

function test_an_object_holding_no_address_is_refused_as_a_writable_array ()
  contents = {[], 'abc', 'seven b', int32(5), single(5), struct('x', 1), {}, {1}, @sin, true, sparse(1), zeros(0, 1, 'uint64'), ...
              v_handle(1)};
  for k = 1:numel (contents)
    expect_refused (@() residual_into (buffer_holder (contents{k})), no_address ('buffer_holder'));
  end
  expect_refused (@() residual_into (v_handle (zeros (3, 1))), no_address ('v_handle'));
  expect_refused (@() residual_into (containers.Map ()), no_address ('containers.Map'));
end

function text = no_address (name)
  text = sprintf ('quarn residual : r is an object of class %s whose property "c" holds no 64-bit address', name);
end

function test_an_object_holding_the_address_zero_is_refused_as_a_writable_array ()
  expect_refused (@() residual_into (buffer_holder (uint64 (0))), 'quarn residual : r must hold 3 values (one for each row of u), got 0');
end

% What an element with the observation matrix c sees of u.
function seen = observed (c, u, n)
  h = quarn ('chandleset', 1003, power_element (c, [], n));
  quarn ('residual', zeros (numel (u), 1), chandle (h), u, zeros (numel (u), 1), zeros (numel (u), 1));
  s = quarn ('chandleget', h);
  seen = s.snl;
end

function residual_into (r)
  k = matrix_lines (speye (3));
  quarn ('residual', r, {k, k, k}, ones (3, 1), ones (3, 1), ones (3, 1));
end
