% Transposed sum: what elements add to the residual, b'*forces. Elements registered as type 1003 and those of a model structure.
%
% A registered element observes its forces itself (c is the identity); in a model structure a callback returns them.
function tests = suite_transposed_sum ()
  tests = localfunctions ();
end

function s = both ()
  s = {@by_handle, @in_model};
end

function test_sum_gathers_the_stored_lines ()
  b = sparse ([1 2 0; 0 3 4; 5 0 6]);
  for spread = both ()
    expect_equal (spread{1} (matrix_lines (b), [1; 10; 100], [7; 8; 9]), [7; 8; 9] + b.' * [1; 10; 100]);
  end
end

function test_sum_leaves_the_residual_where_a_line_is_empty ()
  b = sparse ([1 0 0; 0 0 4; 5 0 6]);
  for spread = both ()
    r = spread{1} (matrix_lines (b), [1; 10; 100], [0.1; 0.2; 0.3]);
    expect_equal (r, [0.1 + 501; 0.2; 0.3 + 640]);
  end
end

function test_sum_takes_as_many_stored_lines_as_rows ()
  b = sparse ([1 2 9; 3 4 9]);   % three lines stored, two rows
  for spread = both (), expect_equal (spread{1} (matrix_lines (b), [1; 10], [0; 0; 0]), [31; 42; 0]); end
end

function test_sum_with_more_rows_than_lines_is_refused ()
  refused (matrix_lines (sparse ([1 2; 3 4; 5 6])), [1; 10; 100], [0; 0; 0], 'NAME : "jc" must hold 4 line pointers for 3 lines, got 3');
end

function test_sum_scatters_the_lines_of_a_transposed_matrix ()
  b = sparse ([1 0 2 0; 0 3 4 0]);
  for spread = both (), expect_equal (spread{1} (matrix_lines (b, true), [1; 10], [7; 8; 9; 0.1]), [8; 38; 51; 0.1]); end
end

function test_sum_of_a_transposed_matrix_without_rows_adds_nothing ()
  b = struct ('ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 5, 'dims', [0 2], 'trans', 1);
  for spread = both (), expect_equal (spread{1} (b, [1; 10], [0.1; 0.2]), [0.1; 0.2]); end
end

function test_scattered_terms_are_collected_before_they_are_added ()
  b = sparse ([1 0; 1 0]);
  for spread = both (), expect_equal (spread{1} (matrix_lines (b, true), [1; 1], [1e16; 3]), [1e16 + 2; 3]); end
end

function test_gathered_terms_are_collected_before_they_are_added ()
  b = sparse ([1 0; 1 0]);
  for spread = both (), expect_equal (spread{1} (matrix_lines (b), [1; 1], [1e16; 3]), [1e16 + 2; 3]); end
end

function test_sum_of_a_dense_row_flagged_transposed_uses_the_first_force_only ()
  b = struct ('pr', [2 3 4], 'dims', [1 3], 'trans', 1);
  for spread = both (), expect_equal (spread{1} (b, [10; NaN], [1; 2; 3]), [21; 32; 43]); end
end

function test_sum_of_a_dense_matrix_flagged_transposed_is_that_of_a_row_whatever_its_rows ()
  b = struct ('pr', [2; 3; 4; 5; 6; 7], 'dims', [2 3], 'trans', 1);
  for spread = both (), expect_equal (spread{1} (b, [10; 1000], [1; 2; 3]), [21; 32; 43]); end
  b.dims = [0 2];
  for spread = both (), expect_equal (spread{1} (b, [10; 1000], [1; 2; 3]), [21; 32; 3]); end
end

function test_sum_of_a_dense_matrix_is_refused ()
  text = 'Add_Mt_u implemented for sparse matrices';
  dense = {eye(2), struct('pr', [1; 2], 'dims', [1 2]), struct('pr', [1; 2], 'dims', [1 2], 'trans', 0), v_handle(eye (2))};
  for spread = both ()
    for b = dense, expect_refused (@() spread{1} (b{1}, [1; 10], [0; 0]), text); end
  end
end

function test_sum_of_a_dense_matrix_leaves_the_residual ()
  text = 'Add_Mt_u implemented for sparse matrices';
  r = [0.1; 0.2] + 0;
  h = quarn ('chandleset', 1003, power_element (eye (2), eye (2), 2));
  expect_error (@() quarn ('residual', r, chandle (h), [1; 2], [0; 0], [0; 0]), '', text);
  expect_equal (r, [0.1; 0.2]);
  expect_error (@() evaluate_in_model (element (eye (2), [0; 0]), [1; 10], [0; 0], r), '', text);
  expect_equal (r, [0.1; 0.2]);
end

function test_sum_of_a_dense_matrix_without_rows_adds_nothing ()
  for spread = both ()
    expect_equal (spread{1} (struct ('pr', [1; 2], 'dims', [0 2]), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
    expect_equal (spread{1} (struct ('pr', [1; 2], 'dims', [-1 2]), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
  end
end

function test_sum_of_a_native_sparse_matrix_is_refused ()
  for spread = both (), expect_refused (@() spread{1} (speye (2), [1; 10], [0; 0]), 'ir must be int32'); end
end

function test_sum_of_a_matrix_without_values_adds_nothing ()
  expect_equal (by_handle (rmfield (matrix_lines (speye (2)), 'pr'), [1; 10], [0.1; 0.2]), [0.1; 0.2]);
  expect_equal (by_handle ([], [1; 10], [0.1; 0.2]), [0.1; 0.2]);
end

function test_sum_through_a_v_handle ()
  b = sparse ([1 2; 3 4]);
  for spread = both ()
    expect_equal (spread{1} (v_handle (matrix_lines (b)), [1; 10], [0; 0]), [31; 42]);
    expect_equal (spread{1} (v_handle (matrix_lines (b, true)), [1; 10], [0; 0]), [31; 42]);
  end
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
    s = sprandn (m, m, 0.3);
    q = randn (m, 1);
    for spread = both ()
      expect_equal (spread{1} (matrix_lines (b, true), f, r), r + full (b.' * f), 1e-13);
      expect_equal (spread{1} (matrix_lines (s), f, q), q + full (s.' * f), 1e-13);
    end
  end
end

function test_sum_that_would_leave_its_vectors_is_refused ()
  b = sparse ([1 2; 3 4]);
  refused (matrix_lines (b, true), 1, [0; 0], 'FORCES must hold 2 values (one for each line of COMMAND), got 1');
  refused (matrix_lines (b), 1, [0; 0], 'NAME : index 1 in "ir" reaches past FORCES of 1 values');
  refused (matrix_lines (b, true), [1; 10], 0, 'the residual must hold 2 values (one for each column of COMMAND), got 1');
  refused (matrix_lines (b), [1; 10], 0, 'the residual must hold 2 values (one for each line of COMMAND), got 1');
  refused (struct ('pr', [1 2], 'dims', [1 3], 'trans', 1), 1, [0; 0; 0], 'NAME must hold 3 values (one for each column), got 2');
  wide = struct ('pr', [1 2 3], 'dims', [1 3], 'trans', 1);
  refused (wide, 1, [0; 0], 'the residual must hold 3 values (one for each column of the command matrix), got 2');
  rows = broken_lines ();
  for k = 1:size (rows, 1), refused (rows{k, 1}, [1; 10], [0; 0], strrep (rows{k, 2}, 'BEYOND', 'its own columns')); end
end

function test_sum_of_a_size_that_is_no_number_adds_nothing ()
  b = matrix_lines (sparse ([1 2; 3 4]), true);
  b.dims = [NaN 2];   % the integer of no number is below zero: no lines
  for spread = both (), expect_equal (spread{1} (b, [1; 10], [0.1; 0.2]), [0.1; 0.2]); end
end

function test_a_refusal_after_a_callback_that_used_the_module_names_the_command ()
  e = element (matrix_lines (speye (2)), [0; 0]);
  e.Fu = @(varargin) quarn ('omp');   % one force where two are spread
  expect_refused (@() evaluate_in_model (e, [1; 10], [0; 0], zeros (2, 1)), ...
                  'quarn residual : the element''s b : index 1 in "ir" reaches past the force vector of 1 values');
end

% Residual r after an element has added the given forces through b.
function r = by_handle (b, forces, r)
  n = numel (forces);
  r = fresh (r);
  u = zeros (max (n, numel (r)), 1);
  u(1:n) = forces;
  h = quarn ('chandleset', 1003, power_element (matrix_lines (speye (n), true), b, n));
  quarn ('residual', r, chandle (h), u, zeros (size (u)), zeros (size (u)));
end

function r = in_model (b, forces, r)
  r = fresh (r);
  e = element (b, forces);
  evaluate_in_model (e, zeros (size (r)), zeros (size (r)), r);
end

function e = element (b, forces)
  e = struct ('unl', zeros (numel (forces), 1), 'StoreFNL', 0, 'FInd', int32 (0), 'type', '', 'c', struct ('dims', [0 0]));
  e.b = b;
  e.Fu = @(varargin) forces;
end

% Both refuse it; NAME, FORCES and COMMAND stand for what each calls the matrix and its forces.
function refused (b, forces, r, words)
  says = @(names) strrep (strrep (strrep (words, 'NAME', names{1}), 'FORCES', names{2}), 'COMMAND', names{3});
  expect_refused (@() by_handle (b, forces, r), ['quarn residual : element 1 : ' says({'b', 'snl', 'b'})]);
  model = {'the element''s b', 'the force vector', 'the command matrix'};
  expect_refused (@() in_model (b, forces, r), ['quarn residual : ' says(model)]);
end
