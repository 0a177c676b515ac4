% Transposed sum and product in the elements of a model structure: "c" observes, "b" spreads the forces that a callback returns.
%
% "unl0" stands in the observation before the product is formed, so that it shows which products add and which overwrite.
function tests = suite_transposed_structures ()
  tests = localfunctions ();
end

function test_product_with_a_transposed_sparse_matrix_is_added_to_what_is_there ()
  a = sparse ([1 2; 3 4]);
  expect_equal (observed (matrix_lines (a, true), [1; 10], [100; 200]), [121; 243]);
end

function test_product_with_a_full_matrix_discards_what_is_there ()
  expect_equal (observed ([1 2; 3 4], [1; 10], [100; 200]), [21; 43]);
  expect_equal (observed ([1 2; 3 4], [1; 10], [NaN; Inf]), [21; 43]);
  expect_equal (observed (v_handle ([1 2; 3 4]), [1; 10], [100; 200]), [21; 43]);
end

function test_product_with_a_full_matrix_leaves_the_values_behind_its_rows ()
  expect_equal (observed ([1 2; 3 4], [1; 10], [100; 200; 300]), [21; 43; 300]);
end

function test_velocities_are_observed_alike ()
  e = element (matrix_lines (sparse ([1 2; 3 4]), true), [], [0; 0]);
  e.vnl = zeros (2, 1);
  e.vnl0 = [100; 200];
  evaluate (e, [1; 10], [2; 20], zeros (2, 1));
  expect_equal (e.vnl, [142; 286]);
  expect_equal (e.unl, [21; 43]);
end

function test_product_with_a_sparse_matrix_as_stored_is_refused ()
  expect_refused (@() observed (matrix_lines (sparse ([1 2; 3 4])), [1; 10], [0; 0]), 'Prod_Mt_u implemented for transposed sparse matrices');
end

function test_native_sparse_matrices_are_refused ()
  expect_refused (@() observed (speye (2), [1; 10], [0; 0]), 'ir must be int32');
  expect_refused (@() spread (speye (2), [1; 10], [0; 0]), 'ir must be int32');
end

function test_sum_gathers_the_stored_lines ()
  b = sparse ([1 2 0; 0 3 4; 5 0 6]);
  expect_equal (spread (matrix_lines (b), [1; 10; 100], [7; 8; 9]), [7; 8; 9] + b.' * [1; 10; 100]);
end

function test_sum_leaves_the_residual_where_a_line_is_empty ()
  expect_equal (spread (matrix_lines (sparse ([1 0; 0 0])), [1; 10], [0.1; 0.2]), [1.1; 0.2]);
end

function test_sum_scatters_the_lines_of_a_transposed_matrix ()
  b = sparse ([1 0 2 0; 0 3 4 0]);
  expect_equal (spread (matrix_lines (b, true), [1; 10], [7; 8; 9; 0.1]), [8; 38; 51; 0.1]);
end

function test_scattered_terms_are_collected_before_they_are_added ()
  expect_equal (spread (matrix_lines (sparse ([1 0; 1 0]), true), [1; 1], [1e16; 3]), [1e16 + 2; 3]);
end

function test_sum_of_a_transposed_matrix_without_rows_adds_nothing ()
  b = struct ('ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 5, 'dims', [0 2], 'trans', 1);
  expect_equal (spread (b, [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_sum_of_a_dense_row_flagged_transposed_uses_the_first_force_only ()
  b = struct ('pr', [2 3 4], 'dims', [1 3], 'trans', 1);
  expect_equal (spread (b, [10; NaN], [1; 2; 3]), [21; 32; 43]);
  b = struct ('pr', [2 3 4 5 6 7], 'dims', [2 3], 'trans', 1);
  expect_equal (spread (b, [10; NaN], [1; 2; 3]), [21; 32; 43]);
end

function test_sum_of_a_dense_matrix_is_refused_and_leaves_the_residual ()
  expect_refused (@() spread (eye (2), [1; 10], [0; 0]), 'Add_Mt_u implemented for sparse matrices');
  r = [0.1; 0.2] + 0;
  expect_error (@() evaluate (element ([], eye (2), [0; 0]), [1; 10], [0; 0], r), '', 'Add_Mt_u implemented for sparse matrices');
  expect_equal (r, [0.1; 0.2]);
end

function test_sum_of_a_dense_matrix_without_rows_adds_nothing ()
  expect_equal (spread (struct ('pr', [1; 2], 'dims', [0 2]), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_vectors_and_lines_that_do_not_fit_are_refused ()
  a = sparse ([1 2; 3 4]);
  expect_refused (@() observed (matrix_lines (a, true), 1, [0; 0]), '~^quarn residual : ');
  expect_refused (@() observed (matrix_lines (a, true), [1; 10], 0), '~^quarn residual : ');
  expect_refused (@() observed ([1 2; 3 4], 1, [0; 0]), '~^quarn residual : ');
  expect_refused (@() observed ([1 2; 3 4], [1; 10], 0), '~^quarn residual : ');
  expect_refused (@() spread (matrix_lines (a, true), 1, [0; 0]), '~^quarn residual : ');
  expect_refused (@() spread (matrix_lines (a, true), [1; 10], 0), '~^quarn residual : ');
  expect_refused (@() spread (matrix_lines (a), 1, [0; 0]), '~^quarn residual : ');
  expect_refused (@() spread (matrix_lines (a), [1; 10], 0), '~^quarn residual : ');
  changes = {'jc', int32([0; 2]); 'jc', int32([0; 3; 2]); 'jc', int32([0; 2; 5]); 'ir', int32([0; 1; 0; 2]); 'ir', int32([0; -1; 0; 1]); ...
             'pr', [1; 2; 3]};
  for k = 1:size (changes, 1)
    m = matrix_lines (a, true);
    m.(changes{k, 1}) = changes{k, 2};
    expect_refused (@() observed (m, [1; 10], [0; 0]), '~^quarn residual : ');
    expect_refused (@() spread (m, [1; 10], [0; 0]), '~^quarn residual : ');
  end
end

function test_a_refusal_after_a_callback_that_used_the_module_names_the_command ()
  e = element ([], matrix_lines (speye (2)), [0; 0]);
  e.Fu = @(varargin) quarn ('omp');   % one force where two are spread
  expect_refused (@() evaluate (e, [1; 10], [0; 0], zeros (2, 1)), '~^quarn residual : ');
end

% What an element with the observation matrix c sees of u, start standing in the observation before.
function seen = observed (c, u, start)
  e = element (c, [], start);
  e.unl0 = start;
  evaluate (e, u, zeros (size (u)), zeros (size (u)));
  seen = e.unl;
end

% Residual r after an element has added the given forces through b.
function r = spread (b, forces, r)
  r = fresh (r);
  e = element ([], b, forces);
  e.Fu = @(varargin) forces;
  evaluate (e, zeros (size (r)), zeros (size (r)), r);
end

function e = element (c, b, like)
  e = struct ('unl', zeros (numel (like), 1), 'StoreFNL', 0, 'FInd', int32 (0), 'type', '');
  e.Fu = @(varargin) ones (numel (like), 1);
  if isempty (c), c = struct ('dims', [0 0]); end
  e.c = c;
  if ~isempty (b), e.b = b; end
end

function evaluate (e, u, v, r)
  none = matrix_lines (sparse (numel (u), numel (u)));
  model = struct ('K', {{none, none, none}}, 'NL', {{'element', 1, e}});
  quarn ('residual', r, model, u, v, zeros (size (u)), [0 0], []);
end
