% Matrices and vectors that do not hold together: refused in words, before anything is written.
function tests = suite_view_refusals ()
  tests = localfunctions ();
end

function test_line_pointers_must_be_there ()
  text = 'A : "jc" must hold 4 line pointers for 3 lines, got 0';
  broken (rmfield (matrix_lines (speye (3)), 'jc'), text);
  broken (with ('jc', zeros (0, 1, 'int32')), text);
end

function test_line_pointers_must_be_enough ()
  broken (with ('jc', int32 ([0; 1; 2])), 'A : "jc" must hold 4 line pointers for 3 lines, got 3');
  broken (with ('jc', int32 (0)), 'A : "jc" must hold 4 line pointers for 3 lines, got 1');
end

function test_line_pointers_must_not_start_below_zero ()
  broken (with ('jc', int32 ([-1; 1; 2; 3])), 'A : "jc" must start at 0, got -1');
  broken (with ('jc', int32 ([intmin('int32'); 1; 2; 3])), 'A : "jc" must start at 0, got -2147483648');
end

function test_line_pointers_must_ascend ()
  broken (with ('jc', int32 ([0; 2; 1; 3])), 'A : "jc" must ascend, got 1 after 2 at position 3');
  broken (with ('jc', int32 ([0; 1; 2; -3])), 'A : "jc" must ascend, got -3 after 2 at position 4');
  broken (with ('jc', int32 ([3; 2; 1; 0])), 'A : "jc" must ascend, got 2 after 3 at position 2');
end

function test_line_pointers_must_end_inside_the_entries ()
  broken (with ('jc', int32 ([0; 1; 2; 4])), 'A : "jc" ends at 4 entries, "ir" and "pr" hold 3 and 3');
  broken (with ('jc', int32 ([0; 1; 2; 1000000])), 'A : "jc" ends at 1000000 entries, "ir" and "pr" hold 3 and 3');
  broken (with ('jc', int32 ([0; 0; 0; intmax('int32')])), 'A : "jc" ends at 2147483647 entries, "ir" and "pr" hold 3 and 3');
  broken (with ('ir', int32 ([0; 1])), 'A : "jc" ends at 3 entries, "ir" and "pr" hold 2 and 3');
  broken (with ('pr', [1; 2]), 'A : "jc" ends at 3 entries, "ir" and "pr" hold 3 and 2');
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
  bad_index (with ('ir', int32 ([0; 1; 3])), 3);
  bad_index (with ('ir', int32 ([0; 1; intmax('int32')])), 3);
end

function test_negative_indices_are_refused ()
  bad_index (with ('ir', int32 ([-1; 1; 2])), 1, ' (the matrix was marked as diagonal by a handle)');
  bad_index (with ('ir', int32 ([0; -1; 2])), 2);
  bad_index (with ('ir', int32 ([0; 1; intmin('int32')])), 3);
end

function test_one_bad_index_in_a_large_matrix_is_found ()
  n = 50000;
  for bad = [1, 999, 1001, 25000, n]
    m = matrix_lines (speye (n));
    m.ir(bad) = n;
    y = zeros (n, 1);
    text = sprintf ('quarn tbbp : A : an index of column %d lies outside x of 50000 values', bad);
    expect_refused (@() quarn ('tbbp', m, ones (n, 1), y), text);
    m.ir(bad) = -1;
    if bad == 1, text = [text ' (the matrix was marked as diagonal by a handle)']; end
    expect_refused (@() quarn ('tbbp', m, ones (n, 1), y), text);
  end
end

function test_indices_of_another_class_are_refused ()
  classes = {@double, @single, @int64, @uint32, @int8, @(i) num2cell (i), @(i) char (i), @(i) i == 0, @sparse, @(i) struct('x', 1), ...
             @(i) v_handle(i), @(i) containers.Map(), @(i) @sin};
  for k = 1:numel (classes)
    convert = classes{k};
    broken (with ('ir', convert ([0; 1; 2])), 'field "ir" must be int32, got ');
    broken (with ('jc', convert ([0; 1; 2; 3])), 'field "jc" must be int32, got ');
  end
end

function test_values_of_another_class_are_refused ()
  values = {single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), 'abc', {1, 2, 3}, struct('x', 1), @sin, sparse([1; 2; 3]), ...
            v_handle([1; 2; 3]), containers.Map()};
  for k = 1:numel (values), broken (with ('pr', values{k}), 'field "pr" must be a full real double array, got '); end
end

function test_dims_of_another_class_or_too_short_are_refused ()
  broken (with ('dims', 3), 'A.dims must hold 2 values \(rows, cols\), got 1$');
  broken (with ('dims', []), 'A.dims must hold 2 values \(rows, cols\), got 0$');
  values = {int32([3 3]), single([3 3]), 'no', {3, 3}, struct('x', 1), @sin, sparse([3 3]), v_handle([3 3])};
  for k = 1:numel (values), broken (with ('dims', values{k}), 'field "dims" must be a full real double array, got '); end
end

function test_neither_dims_nor_jc_is_refused ()
  text = 'A needs a field "dims" or a column "jc" to give its size, got neither$';
  broken (struct ('pr', [1; 2; 3]), text);
  broken (struct ('pr', [1; 2; 3], 'ir', int32 ([0; 1; 2])), text);
end

function test_trans_of_another_class_is_refused ()
  values = {{1}, struct('x', 1), @sin, v_handle(1), containers.Map()};
  for k = 1:numel (values), broken (with ('trans', values{k}), 'field "trans" must be a number, got '); end
end

function test_matrices_of_another_class_are_refused ()
  values = {single(eye (3)), int32(eye (3)), true(3), 'abc', {1, 2, 3}, @sin, chandle(0), containers.Map(), ...
            buffer_holder(1)};
  for k = 1:numel (values)
    broken (values{k}, 'A must be a full real double array, got ');
    broken (v_handle (values{k}), 'A must be a full real double array, got ');
  end
end

function test_a_v_handle_holding_a_v_handle_is_refused ()
  broken (v_handle (v_handle (matrix_lines (speye (3)))), 'A must be a full real double array, got v_handle 1x1$');
end

function test_vectors_of_another_class_are_refused ()
  m = matrix_lines (speye (3));
  values = {single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), ['a'; 'b'; 'c'], {1; 2; 3}, repmat(struct('x', 1), 3, 1), @sin, ...
            sparse([1; 2; 3]), v_handle([1; 2; 3]), containers.Map(), buffer_holder([])};
  for k = 1:numel (values)
    expect_refused (@() quarn ('tbbp', m, values{k}, zeros (3, 1)), '~^quarn tbbp : x must be a full real double array, got ');
    expect_refused (@() quarn ('tbbp', m, ones (3, 1), values{k}), '~^quarn tbbp : y must be a full real double array, got ');
  end
end

function test_a_result_shorter_than_the_lines_is_refused ()
  m = matrix_lines (speye (3));
  expect_refused (@() quarn ('tbbp', m, ones (3, 1), zeros (2, 1)), 'quarn tbbp : y must hold 3 values (one for each row of x), got 2');
  expect_refused (@() quarn ('tbbp', m, ones (3, 1), []), 'quarn tbbp : y must hold 3 values (one for each row of x), got 0');
end

function test_more_rows_of_x_than_lines_are_refused ()
  text = 'quarn tbbp : A : "jc" must hold 5 line pointers for 4 lines, got 4';
  expect_refused (@() quarn ('tbbp', matrix_lines (speye (3)), ones (4, 1), zeros (4, 1)), text);
end

function s = with (name, value)
  s = matrix_lines (speye (3));
  s.(name) = value;
end

% The matrix m is refused with these words (a pattern) in a product of three lines that leaves its result alone.
function broken (m, words)
  y = [1; 2; 3] + 0.5;
  x = [1; 2; 3] * 2;
  expect_refused (@() quarn ('tbbp', m, x, y), ['~^quarn tbbp : ' words]);
  expect_equal (y, [1.5; 2.5; 3.5]);
end

% The same for a wrong index in a column, which is met while the lines are summed: lines before it may have been added.
function bad_index (m, column, remark)
  if nargin < 3, remark = ''; end
  text = sprintf ('quarn tbbp : A : an index of column %d lies outside x of 3 values%s', column, remark);
  expect_refused (@() quarn ('tbbp', m, [1; 2; 3], zeros (3, 1)), text);
end
