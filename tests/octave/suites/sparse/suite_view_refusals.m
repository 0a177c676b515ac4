% Matrices and vectors that do not hold together: refused in words, before anything is written.
function tests = suite_view_refusals ()
  tests = localfunctions ();
end

function test_line_pointers_must_be_there ()
  broken (rmfield (matrix_lines (speye (3)), 'jc'));
  broken (with ('jc', zeros (0, 1, 'int32')));
end

function test_line_pointers_must_be_enough ()
  broken (with ('jc', int32 ([0; 1; 2])), 'line pointers');
  broken (with ('jc', int32 (0)), 'line pointers');
end

function test_line_pointers_must_not_start_below_zero ()
  broken (with ('jc', int32 ([-1; 1; 2; 3])));
  broken (with ('jc', int32 ([intmin('int32'); 1; 2; 3])));
end

function test_line_pointers_must_ascend ()
  broken (with ('jc', int32 ([0; 2; 1; 3])));
  broken (with ('jc', int32 ([0; 1; 2; -3])));
  broken (with ('jc', int32 ([3; 2; 1; 0])));
end

function test_line_pointers_must_end_inside_the_entries ()
  broken (with ('jc', int32 ([0; 1; 2; 4])));
  broken (with ('jc', int32 ([0; 1; 2; 1000000])));
  broken (with ('jc', int32 ([0; 0; 0; intmax('int32')])));
  broken (with ('ir', int32 ([0; 1])));
  broken (with ('pr', [1; 2]));
end

function test_line_pointers_that_start_behind_the_first_entry_are_taken ()
  y = zeros (2, 1);
  quarn ('tbbp', struct ('ir', int32 ([7; 0; 1]), 'jc', int32 ([1; 2; 3]), 'pr', [9; 2; 3]), [10; 100], y);
  expect_equal (y, [20; 300]);
end

function test_more_entries_than_the_line_pointers_use_are_not_looked_at ()
  y = zeros (3, 1);
  m = matrix_lines (speye (3));
  m.ir = [m.ir; int32(-5); int32(1000)];
  m.pr = [m.pr; NaN];
  quarn ('tbbp', m, [1; 2; 3], y);
  expect_equal (y, [1; 2; 3]);
end

function test_indices_must_lie_inside_the_vector ()
  bad_index (with ('ir', int32 ([0; 1; 3])));
  bad_index (with ('ir', int32 ([0; 1; intmax('int32')])));
end

function test_negative_indices_are_refused ()
  bad_index (with ('ir', int32 ([-1; 1; 2])));
  bad_index (with ('ir', int32 ([0; -1; 2])));
  bad_index (with ('ir', int32 ([0; 1; intmin('int32')])));
end

function test_one_bad_index_in_a_large_matrix_is_found ()
  n = 50000;
  for bad = [1, 999, 1001, 25000, n]
    m = matrix_lines (speye (n));
    m.ir(bad) = n;
    y = zeros (n, 1);
    expect_refused (@() quarn ('tbbp', m, ones (n, 1), y), '~^quarn tbbp : ');
    m.ir(bad) = -1;
    expect_refused (@() quarn ('tbbp', m, ones (n, 1), y), '~^quarn tbbp : ');
  end
end

function test_indices_of_another_class_are_refused ()
  classes = {@double, @single, @int64, @uint32, @int8, @(i) num2cell (i), @(i) char (i), @(i) i == 0, @sparse, @(i) struct('x', 1), ...
             @(i) v_handle(i), @(i) containers.Map(), @(i) @sin};
  for k = 1:numel (classes)
    convert = classes{k};
    broken (with ('ir', convert ([0; 1; 2])));
    broken (with ('jc', convert ([0; 1; 2; 3])));
  end
end

function test_values_of_another_class_are_refused ()
  values = {single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), 'abc', {1, 2, 3}, struct('x', 1), @sin, sparse([1; 2; 3]), ...
            complex([1; 2; 3], 1), v_handle([1; 2; 3]), containers.Map()};
  for k = 1:numel (values), broken (with ('pr', values{k})); end
end

function test_dims_of_another_class_or_too_short_are_refused ()
  values = {3, [], int32([3 3]), single([3 3]), 'no', {3, 3}, struct('x', 1), @sin, sparse([3 3]), 1i * [3 3], v_handle([3 3])};
  for k = 1:numel (values), broken (with ('dims', values{k})); end
end

function test_neither_dims_nor_jc_is_refused ()
  broken (struct ('pr', [1; 2; 3]));
  broken (struct ('pr', [1; 2; 3], 'ir', int32 ([0; 1; 2])));
end

function test_trans_of_another_class_is_refused ()
  values = {{1}, struct('x', 1), @sin, v_handle(1), containers.Map()};
  for k = 1:numel (values), broken (with ('trans', values{k})); end
end

function test_matrices_of_another_class_are_refused ()
  values = {single(eye (3)), int32(eye (3)), true(3), 'abc', {1, 2, 3}, @sin, complex(eye (3), 1), chandle(0), containers.Map(), ...
            buffer_holder(1)};
  for k = 1:numel (values)
    broken (values{k});
    broken (v_handle (values{k}));
  end
end

function test_a_v_handle_holding_a_v_handle_is_refused ()
  broken (v_handle (v_handle (matrix_lines (speye (3)))));
end

function test_vectors_of_another_class_are_refused ()
  m = matrix_lines (speye (3));
  values = {single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), ['a'; 'b'; 'c'], {1; 2; 3}, repmat(struct('x', 1), 3, 1), @sin, ...
            sparse([1; 2; 3]), complex([1; 2; 3], 1), v_handle([1; 2; 3]), containers.Map(), buffer_holder([])};
  for k = 1:numel (values)
    expect_refused (@() quarn ('tbbp', m, values{k}, zeros (3, 1)), '~^quarn tbbp : ');
    expect_refused (@() quarn ('tbbp', m, ones (3, 1), values{k}), '~^quarn tbbp : ');
  end
end

function test_a_result_shorter_than_the_lines_is_refused ()
  m = matrix_lines (speye (3));
  expect_refused (@() quarn ('tbbp', m, ones (3, 1), zeros (2, 1)), '~^quarn tbbp : ');
  expect_refused (@() quarn ('tbbp', m, ones (3, 1), []), '~^quarn tbbp : ');
end

function test_more_rows_of_x_than_lines_are_refused ()
  expect_refused (@() quarn ('tbbp', matrix_lines (speye (3)), ones (4, 1), zeros (4, 1)), '~^quarn tbbp : ');
end

function s = with (name, value)
  s = matrix_lines (speye (3));
  s.(name) = value;
end

% The matrix m is refused in a product of three lines that leaves its result alone.
function broken (m, words)
  if nargin < 2, words = ''; end
  y = [1; 2; 3] + 0.5;
  x = [1; 2; 3] * 2;
  expect_refused (@() quarn ('tbbp', m, x, y), ['~^quarn tbbp : .*' words]);
  expect_equal (y, [1.5; 2.5; 3.5]);
end

% The same for a wrong index, which is met while the lines are summed: lines before it may have been added.
function bad_index (m)
  expect_refused (@() quarn ('tbbp', m, [1; 2; 3], zeros (3, 1)), '~^quarn tbbp : ');
end
