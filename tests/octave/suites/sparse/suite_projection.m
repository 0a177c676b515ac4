% "c<-a'*b" and "abc" by hand-sized cases; random ones are in suite_projection_random, refusals in suite_projection_guards.
function tests = suite_projection ()
  tests = localfunctions ();
end

function a = example_matrix ()
  a = [1 0 2 0; 0 3 0 0; 4 0 5 0];
end

% c<-a'*b

function test_left_product_is_a_transposed_times_b ()
  b = example_matrix ();
  a = [1 2; 3 4; 5 6];
  expect_equal (quarn ('c<-a''*b', a, matrix_lines (b)), a' * b);
end

function test_left_product_with_one_column_is_a_row ()
  b = example_matrix ();
  a = [1; -1; 2];
  expect_equal (quarn ('c<-a''*b', a, matrix_lines (b)), [9 -3 12 0]);
end

function test_left_product_of_a_transposed_structure_takes_its_rows_as_lines ()
  m = example_matrix ();
  a = [1 2; 3 4; 5 6; 7 8];
  expect_equal (quarn ('c<-a''*b', a, matrix_lines (m, true)), (m * a)');
end

function test_left_product_sees_a_matrix_through_a_v_handle ()
  b = example_matrix ();
  a = [1; 2; 3];
  expect_equal (quarn ('c<-a''*b', a, v_handle (matrix_lines (b))), a' * b);
end

function test_left_product_in_place_overwrites_the_fourth_argument ()
  b = example_matrix ();
  a = [1 2; 3 4; 5 6];
  c = zeros (2, 4) + NaN;
  quarn ('c<-a''*b', a, matrix_lines (b), c);
  expect_equal (c, a' * b);
  quarn ('c<-a''*b', a, matrix_lines (b), c);  % assigned, not added
  expect_equal (c, a' * b);
end

function test_left_product_in_place_creates_no_output ()
  b = matrix_lines (example_matrix ());
  c = zeros (1, 4);
  created = true;
  try
    p = quarn ('c<-a''*b', ones (3, 1), b, c); %#ok<NASGU>
  catch
    created = false;
  end
  expect_equal (created, false);
  expect_equal (c, [5 3 7 0]);
end

function test_left_product_with_a_fifth_argument_is_not_in_place ()
  b = matrix_lines (example_matrix ());
  c = zeros (1, 4) + 7;
  p = quarn ('c<-a''*b', ones (3, 1), b, c, 0);
  expect_equal (p, [5 3 7 0]);
  expect_equal (c, [7 7 7 7]);
end

function test_left_product_over_its_own_operand_is_right ()
  b = [1 2; 3 4];
  a = reshape (5:8, 2, 2);
  a = a + 0;
  wanted = a' * b;
  quarn ('c<-a''*b', a, matrix_lines (b), a);
  expect_equal (a, wanted);
end

function test_left_product_over_the_values_of_the_matrix_is_right ()
  s = matrix_lines ([1 2; 3 4]);
  a = [1; 10];
  s.pr = reshape (s.pr, 1, 4);
  s.dims = [2 2];
  t = s;
  t.ir = int32 ([0 0 0 0]);
  t.jc = int32 ([0; 1; 2; 3; 4]);
  t.dims = [1 4];
  v = zeros (1, 4) + [1 3 2 4];
  t.pr = v;
  quarn ('c<-a''*b', 10, t, v);
  expect_equal (v, [10 30 20 40]);
end

function test_left_product_uses_the_real_part_of_a_complex_a ()
  b = example_matrix ();
  a = [1 2; 3 4; 5 6] + 1i * ones (3, 2);
  expect_equal (quarn ('c<-a''*b', a, matrix_lines (b)), real (a)' * b);
end

function test_left_product_of_lines_without_entries_is_zero ()
  b = zeros (3, 4);
  b(2, 2) = 5;
  c = zeros (2, 4) + 9;
  quarn ('c<-a''*b', [1 2; 3 4; 5 6], matrix_lines (b), c);
  expect_equal (c, [0 15 0 0; 0 20 0 0]);
end

function test_left_product_of_a_matrix_without_entries_is_zero ()
  c = zeros (2, 4) + 9;
  quarn ('c<-a''*b', ones (3, 2), matrix_lines (zeros (3, 4)), c);
  expect_equal (c, zeros (2, 4));
end

function test_left_product_without_columns_or_lines_is_empty ()
  s = matrix_lines (example_matrix ());
  expect_equal (quarn ('c<-a''*b', zeros (3, 0), s), zeros (0, 4));
  none = struct ('pr', zeros (0, 1), 'ir', int32 (zeros (0, 1)), 'jc', int32 (0), 'dims', [3 0]);
  expect_equal (quarn ('c<-a''*b', zeros (3, 2), none), zeros (2, 0));
end

function test_left_product_leaves_its_operands_alone ()
  s = matrix_lines (example_matrix ());
  a = [1 2; 3 4; 5 6];
  quarn ('c<-a''*b', a, s);
  expect_equal (a, [1 2; 3 4; 5 6]);
  expect_equal (s.pr, [1; 4; 3; 2; 5]);
  expect_equal (s.ir, int32 ([0; 2; 1; 0; 2]));
end

% abc

function test_triple_product_of_real_bases_is_real ()
  k = [2 1 0; 0 3 4; 5 0 6];
  ta = [1 2; 3 4; 5 6];
  tb = [1 -1; 0 2; 3 1];
  p = quarn ('abc', ta, matrix_lines (k), tb, int32 ([1 0 0]));
  expect_equal (p, ta' * k * tb);
  expect_equal (isreal (p), true);
end

function test_triple_product_of_complex_bases_is_not_conjugated ()
  k = [2 1 0; 0 3 4; 5 0 6];
  ta = [1 2; 3 4; 5 6] + 1i * [0 1; -2 3; 1 1];
  tb = [1 -1; 0 2; 3 1] + 1i * [4 0; 1 -1; 0 2];
  expect_equal (quarn ('abc', ta, matrix_lines (k), tb, int32 ([1 0 0])), ta.' * k * tb);
end

function test_triple_product_with_one_complex_base_has_the_cross_terms_as_imaginary_part ()
  k = [2 1 0; 0 3 4; 5 0 6];
  re = [1 2; 3 4; 5 6];
  im = [0 1; -2 3; 1 1];
  tb = [1 -1; 0 2; 3 1];
  left = quarn ('abc', re + 1i * im, matrix_lines (k), tb, int32 ([1 0 0]));
  expect_equal (real (left), re' * k * tb);
  expect_equal (imag (left), im' * k * tb);
  right = quarn ('abc', tb, matrix_lines (k), re + 1i * im, int32 ([1 0 0]));
  expect_equal (real (right), tb' * k * re);
  expect_equal (imag (right), tb' * k * im);
end

function test_triple_product_of_a_transposed_structure_applies_its_rows ()
  m = [2 1 0; 0 3 4; 5 0 6];
  ta = [1 2; 3 4; 5 6];
  tb = [1 -1; 0 2; 3 1];
  expect_equal (quarn ('abc', ta, matrix_lines (m, true), tb, int32 ([1 0 0])), ta' * m' * tb);
end

function test_triple_product_looks_at_three_flags_only ()
  p = quarn ('abc', [1; 2], matrix_lines ([1 2; 3 4]), [1; 1], int32 ([1 0 0 9]));
  expect_equal (p, 17);
end

function test_triple_product_sees_a_matrix_through_a_v_handle ()
  expect_equal (quarn ('abc', [1; 2], v_handle (matrix_lines ([1 2; 3 4])), [1; 1], int32 ([1 0 0])), 17);
end

% Output columns are as far apart as TB has columns, so a wider TA writes over places of the columns before.
function test_triple_product_with_a_wider_ta_keeps_the_stride_of_tb ()
  k = [1 0; 0 1];
  ta = [1 2 3; 10 20 30];
  tb = [1 0; 0 1];
  pairs = ta' * k * tb;
  wanted = zeros (3, 2);
  for i = 0:2
    for j = 0:1
      wanted(i + j * 2 + 1) = pairs(i + 1, j + 1);
    end
  end
  p = quarn ('abc', ta, matrix_lines (k), tb, int32 ([1 0 0]));
  expect_equal (p, wanted);
  expect_equal (p(:)', [1 2 3 20 30 0]);
  p = quarn ('abc', ta, matrix_lines (k), 1i * tb, int32 ([1 0 0]));
  expect_equal (imag (p), wanted);
end

function test_triple_product_of_a_wide_matrix_uses_as_many_lines_as_it_has_rows ()
  k = [1 2 3 4; 5 6 7 8];
  ta = [1; 2];
  tb = [1; 10; 100; 1000];
  expect_equal (quarn ('abc', ta, matrix_lines (k), tb, int32 ([1 0 0])), ta' * k(:, 1:2) * tb(1:2));
  m = [1 2 0; 3 4 0];
  expect_equal (quarn ('abc', ta, matrix_lines (m, true), tb(1:3), int32 ([1 0 0])), (m(:, 1:2) * ta)' * tb(1:2));
end

function test_triple_product_keeps_a_nan_within_its_pairs ()
  ta = ones (3, 5);
  tb = ones (3, 5);
  ta(2, 4) = NaN;
  tb(1, 2) = Inf;
  p = quarn ('abc', ta, matrix_lines (eye (3)), tb, int32 ([1 0 0]));
  wanted = 3 * ones (5, 5);
  wanted(:, 2) = Inf;
  wanted(4, :) = NaN;
  expect_equal (p, wanted);
end

function test_triple_product_without_columns_is_empty ()
  k = matrix_lines ([1 2; 3 4]);
  flags = int32 ([1 0 0]);
  expect_equal (quarn ('abc', zeros (2, 0), k, zeros (2, 0), flags), zeros (0, 0));
  expect_equal (quarn ('abc', ones (2, 3), k, zeros (2, 0), flags), zeros (3, 0));
  expect_equal (quarn ('abc', zeros (2, 0), k, ones (2, 3), flags), zeros (0, 3));
end

function test_triple_product_leaves_its_operands_alone ()
  ta = [1 2; 3 4] + 1i * [1 0; 0 1];
  tb = [5 6; 7 8];
  s = matrix_lines ([1 2; 3 4]);
  quarn ('abc', ta, s, tb, int32 ([1 0 0]));
  expect_equal (ta, [1 2; 3 4] + 1i * [1 0; 0 1]);
  expect_equal (tb, [5 6; 7 8]);
  expect_equal (s.pr, [1; 3; 2; 4]);
end

function test_left_product_over_values_that_later_columns_need ()
  % Each line's values are read for the first column of a and written over before the second is formed.
  s = matrix_lines ([2 3; 5 7]);
  a = [1 10 100; 1000 1e4 1e5];
  wanted = a' * [2 3; 5 7];
  memory = [s.pr; 0; 0];
  for shift = 0:2
    m = fresh (memory);
    m(shift + (1:4)) = [2; 5; 3; 7];
    s.pr = m(1 + shift:4 + shift);
    quarn ('c<-a''*b', a, s, reshape (m(1:6), 3, 2));
    expect_equal (reshape (m, 3, 2), wanted);
  end
end
