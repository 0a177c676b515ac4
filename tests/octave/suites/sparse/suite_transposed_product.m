% Transposed product: what elements observe, c*u. Elements registered as type 1003 and those of a model structure.
%
% The law of a registered element returns what it observes. In a model structure "unl0" stands in the observation before the product is
% formed, so that it shows which products add and which overwrite.
function tests = suite_transposed_product ()
  tests = localfunctions ();
end

% Registered elements

function test_product_with_a_transposed_sparse_matrix_takes_its_stored_lines_as_rows ()
  a = sparse ([1 0 2; 0 3 0; 4 5 6; 0 0 0]);
  expect_equal (by_handle (matrix_lines (a, true), [1; 10; 100], 4), a * [1; 10; 100]);
end

function test_product_leaves_the_values_behind_its_rows_at_zero ()
  expect_equal (by_handle (matrix_lines (sparse ([1 2; 3 4]), true), [1; 10], 4), [21; 43; 0; 0]);
  expect_equal (by_handle ([1 2; 3 4], [1; 10], 4), [21; 43; 0; 0]);
end

function test_product_with_a_full_matrix ()
  expect_equal (by_handle ([1 2 3; 4 5 6], [1; 10; 100], 2), [321; 654]);
end

function test_product_uses_the_leading_columns_of_u ()
  expect_equal (by_handle ([1 2; 4 5], [1; 10; NaN], 2), [21; 54]);
  expect_equal (by_handle (matrix_lines (sparse ([1 2; 4 5]), true), [1; 10; NaN], 2), [21; 54]);
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

function test_product_with_a_dense_matrix_flagged_transposed_is_the_plain_one ()
  c = struct ('pr', [1; 3; 2; 4], 'dims', [2 2], 'trans', 1);
  expect_equal (by_handle (c, [1; 10], 2), [21; 43]);
end

function test_product_of_random_matrices_agrees_with_the_host ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:20
    m = ceil (30 * rand ());
    n = ceil (30 * rand ());
    a = sprandn (m, n, 0.3);
    u = randn (n, 1);
    expect_equal (by_handle (matrix_lines (a, true), u, m), full (a * u), 1e-13);
    expect_equal (by_handle (full (a) + 1, u, m), (full (a) + 1) * u, 1e-13);
  end
end

function test_product_that_would_leave_its_vectors_is_refused ()
  c = matrix_lines (sparse ([1 2; 3 4]), true);
  refused (c, 1, 2, 'c : index 1 in "ir" reaches past u of 1 values');
  refused (c, [1; 10], 1, 'unl must hold 2 values (one for each row of c), got 1');
  refused ([1 2; 3 4], 1, 2, 'the observed vector must hold 2 values (one for each column of the observation matrix), got 1');
  refused ([1 2], 1, 1, 'the observed vector must hold 2 values (one for each column of the observation matrix), got 1');
  refused ([1 2; 3 4], [1; 10], 1, 'the observation must hold 2 values (one for each row of the observation matrix), got 1');
  refused (struct ('pr', [1; 2; 3], 'dims', [2 2]), [1; 10], 2, 'c must hold 4 values (rows x cols of them), got 3');
  refused (struct ('pr', [1; 2; 3], 'dims', [-2 -2]), [1; 10], 2, 'c : size -2x-2 is negative');
  rows = broken_lines ();
  for k = 1:size (rows, 1)
    refused (rows{k, 1}, [1; 10], 2, strrep (strrep (rows{k, 2}, 'NAME', 'c'), 'BEYOND', 'u'));
  end
end

function test_entries_outside_the_line_pointers_are_not_looked_at ()
  c = struct ('ir', int32 ([7; 0; 1; 99]), 'jc', int32 ([1; 2; 3]), 'pr', [9; 2; 3; 4], 'dims', [2 2], 'trans', 1);
  expect_equal (by_handle (c, [1; 10], 2), [2; 30]);
end

function test_product_of_a_size_that_is_no_number_observes_nothing ()
  c = matrix_lines (sparse ([1 2; 3 4]), true);
  c.dims = [NaN 2];   % the integer of no number is below zero: no lines
  expect_equal (by_handle (c, [1; 10], 2), [0; 0]);
end

% Both

function test_product_with_a_sparse_matrix_as_stored_is_refused ()
  for observed = {@by_handle, @(c, u, n) in_model(c, u, zeros (n, 1))}
    expect_refused (@() observed{1} (matrix_lines (sparse ([1 2; 3 4])), [1; 10], 2), ...
                    'Prod_Mt_u implemented for transposed sparse matrices');
    expect_refused (@() observed{1} (speye (2), [1; 10], 2), 'ir must be int32');
  end
end

% Elements of a model structure

function test_product_in_a_model_with_a_transposed_sparse_matrix_is_added_to_what_is_there ()
  a = sparse ([1 2; 3 4]);
  expect_equal (in_model (matrix_lines (a, true), [1; 10], [100; 200]), [121; 243]);
end

function test_product_in_a_model_with_a_full_matrix_discards_what_is_there ()
  expect_equal (in_model ([1 2; 3 4], [1; 10], [100; 200]), [21; 43]);
  expect_equal (in_model ([1 2; 3 4], [1; 10], [NaN; Inf]), [21; 43]);
  expect_equal (in_model (v_handle ([1 2; 3 4]), [1; 10], [100; 200]), [21; 43]);
end

function test_product_in_a_model_with_a_full_matrix_leaves_the_values_behind_its_rows ()
  expect_equal (in_model ([1 2; 3 4], [1; 10], [100; 200; 300]), [21; 43; 300]);
end

function test_velocities_in_a_model_are_observed_alike ()
  e = element (matrix_lines (sparse ([1 2; 3 4]), true), [0; 0]);
  e.vnl = zeros (2, 1);
  e.vnl0 = [100; 200];
  evaluate_in_model (e, [1; 10], [2; 20], zeros (2, 1));
  expect_equal (e.vnl, [142; 286]);
  expect_equal (e.unl, [21; 43]);
end

function test_product_in_a_model_that_would_leave_its_vectors_is_refused ()
  a = matrix_lines (sparse ([1 2; 3 4]), true);
  refused_in_model (a, 1, [0; 0], 'the element''s c : index 1 in "ir" reaches past the observed vector of 1 values');
  refused_in_model (a, [1; 10], 0, 'the observation must hold 2 values (one for each row of the observation matrix), got 1');
  refused_in_model ([1 2; 3 4], 1, [0; 0], 'the observed vector must hold 2 values (one for each column of the observation matrix), got 1');
  refused_in_model ([1 2; 3 4], [1; 10], 0, 'the observation must hold 2 values (one for each row of the observation matrix), got 1');
  rows = broken_lines ();
  for k = 1:size (rows, 1)
    words = strrep (strrep (rows{k, 2}, 'NAME', 'the element''s c'), 'BEYOND', 'the observed vector');
    refused_in_model (rows{k, 1}, [1; 10], [0; 0], words);
  end
end

% Forces of a registered element that observes c*u in n values.
function seen = by_handle (c, u, n)
  h = quarn ('chandleset', 1003, power_element (c, [], n));
  apply (h, u, numel (u));
  s = quarn ('chandleget', h);
  seen = s.snl;
end

function apply (h, u, n)
  quarn ('residual', zeros (n, 1), chandle (h), u, zeros (n, 1), zeros (n, 1));
end

function refused (c, u, n, words)
  expect_refused (@() by_handle (c, u, n), ['quarn residual : element 1 : ' words]);
end

% What an element of a model sees of u, start standing in the observation before.
function seen = in_model (c, u, start)
  e = element (c, start);
  e.unl0 = start;
  evaluate_in_model (e, u, zeros (size (u)), zeros (size (u)));
  seen = e.unl;
end

function e = element (c, like)
  e = struct ('unl', zeros (numel (like), 1), 'StoreFNL', 0, 'FInd', int32 (0), 'type', '');
  e.Fu = @(varargin) ones (numel (like), 1);
  e.c = c;
end

function refused_in_model (c, u, start, words)
  expect_refused (@() in_model (c, u, start), ['quarn residual : ' words]);
end
