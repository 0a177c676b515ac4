% The parallel sparse product through "tbbp": y(i) gains column i of the stored matrix times x.
function tests = suite_tbbp ()
  tests = localfunctions ();
end

function test_a_result_that_is_not_zero_is_added_to ()
  a = sparse ([1 2 0; 0 3 4; 5 0 6]);
  y = [100; 200; 300] + zeros (3, 1);
  quarn ('tbbp', matrix_lines (a), [1; 10; 100], y);
  expect_equal (y, [100; 200; 300] + a.' * [1; 10; 100]);
end

function test_lines_are_the_stored_columns ()
  a = sparse ([1 2 3; 0 0 0; 0 0 0]);
  y = zeros (3, 1);
  quarn ('tbbp', matrix_lines (a), [1; 0; 0], y);
  expect_equal (y, [1; 2; 3]);
  y = zeros (3, 1);
  quarn ('tbbp', matrix_lines (a, true), [1; 1; 1], y);
  expect_equal (y, [6; 0; 0]);
end

function test_a_matrix_without_values_changes_nothing ()
  y = [1; 2; 3] * sqrt (2);
  kept = y + 0;
  m = matrix_lines (speye (3));
  quarn ('tbbp', rmfield (m, 'pr'), [1; 1; 1], y);
  expect_equal (y, kept);
  quarn ('tbbp', struct (), [1; 1; 1], y);
  expect_equal (y, kept);
end

function test_a_matrix_without_entries_changes_nothing ()
  y = [1; 2; 3] * sqrt (2);
  kept = y + 0;
  quarn ('tbbp', matrix_lines (sparse (3, 3)), [1; 1; 1], y);
  expect_equal (y, kept);
end

function test_no_lines_change_nothing ()
  m = matrix_lines (speye (3));
  y = [1; 2; 3] * sqrt (2);
  kept = y + 0;
  quarn ('tbbp', m, zeros (0, 1), y);
  quarn ('tbbp', m, zeros (0, 3), y);
  quarn ('tbbp', m, [], y);
  expect_equal (y, kept);
  quarn ('tbbp', m, zeros (0, 1), []);
end

function test_an_empty_line_adds_nothing ()
  a = sparse ([0 0 0 1; 0 2 0 0; 0 0 0 0; 0 4 0 0]);
  y = (1:4).' * pi;
  quarn ('tbbp', matrix_lines (a), [1; 1; 1; 1], y);
  expect_equal (y, [pi; 2 * pi + 6; 3 * pi; 4 * pi + 1]);
end

function test_the_line_count_is_the_row_count_of_x ()
  a = sparse ([1 2 3; 4 5 6; 7 8 9]);
  y = zeros (3, 1);
  quarn ('tbbp', matrix_lines (a), [1 1 1] + 0, y);
  expect_equal (y, [12; 0; 0]);
  y = zeros (3, 1);
  quarn ('tbbp', matrix_lines (a), [1 0; 1 0] + 0, y);   % two lines; the entries find their factors in all four values
  expect_equal (y, [5; 7; 0]);
  y = zeros (1, 3);
  quarn ('tbbp', matrix_lines (a), [1; 1; 1], y);
  expect_equal (y, [12 15 18]);
end

function test_values_behind_the_last_line_stay ()
  y = (1:6).' + 0.5;
  quarn ('tbbp', matrix_lines (speye (3)), [10; 20; 30], y);
  expect_equal (y, [11.5; 22.5; 33.5; 4.5; 5.5; 6.5]);
end

function test_not_a_number_and_infinity_stay_in_their_lines ()
  a = sparse ([1 0 0; 0 1 0; 0 0 1]);
  y = zeros (3, 1);
  quarn ('tbbp', matrix_lines (a), [NaN; 1; -Inf], y);
  expect_equal (y, [NaN; 1; -Inf]);
end

function test_each_line_is_summed_before_it_is_added ()
  a = sparse ([1 0; 1 0]);
  y = 1e16 * ones (2, 1);
  quarn ('tbbp', matrix_lines (a), [1; 1], y);
  expect_equal (y, [1e16 + 2; 1e16]);
end

function test_a_large_product_of_whole_numbers_is_exact ()
  rand ('twister', 42);
  n = 20000;
  a = sparse (ceil (n * rand (30 * n, 1)), ceil (n * rand (30 * n, 1)), ceil (100 * rand (30 * n, 1)), n, n);
  x = ceil (100 * rand (n, 1));
  y = ceil (100 * rand (n, 1));
  wanted = y + a.' * x;
  quarn ('tbbp', matrix_lines (a), x, y);
  expect_equal (y, wanted);
end

function test_all_threads_give_the_bits_of_the_serial_sum ()
  [m, x, n] = large_case ();
  serial = zeros (n, 1);
  for first = 1:1000:n
    serial(first:first + 999) = short_product (m, x, first, 1000);
  end
  for k = 1:60
    y = zeros (n, 1);
    quarn ('tbbp', m, x, y);
    expect_equal (y, serial);
  end
end

function test_line_counts_around_the_grain_give_the_bits_of_the_serial_sum ()
  [m, x] = large_case ();
  for n = [1 2 999 1000 1001 1999 2000 2001 3000 7777]
    serial = zeros (n, 1);
    for first = 1:500:n
      part = min (500, n + 1 - first);
      serial(first:first + part - 1) = short_product (m, x, first, part);
    end
    y = zeros (n, 1);
    quarn ('tbbp', head_of (m, n), spread (x, n), y);
    expect_equal (y, serial);
  end
end

function test_the_residual_of_matrices_and_handles_has_the_bits_of_the_product ()
  [m, x, n] = large_case ();
  product = zeros (n, 1);
  quarn ('tbbp', m, x, product);
  r = zeros (n, 1);
  none = matrix_lines (sparse (n, n));
  quarn ('residual', r, {none, none, m}, x, zeros (n, 1), zeros (n, 1));
  expect_equal (r, product);
  r = zeros (n, 1);
  h = chandle (quarn ('chandleset', 1, m));
  quarn ('residual', r, h, x, zeros (n, 1), zeros (n, 1));
  expect_equal (r, product);
  quarn ('residual', r, h, x, zeros (n, 1), zeros (n, 1));
  expect_equal (r, product + product);
  r = zeros (n, 1);
  quarn ('residual', r, {none, m, m}, x, x, zeros (n, 1));
  expect_equal (r, product + product);
end

function test_the_result_is_the_same_after_a_reload ()
  [m, x, n] = large_case ();
  first = zeros (n, 1);
  quarn ('tbbp', m, x, first);
  for k = 1:20
    clear quarn
    y = zeros (n, 1);
    quarn ('tbbp', m, x, y);
    expect_equal (y, first);
  end
end

function test_a_longer_line_does_not_disturb_its_neighbours ()
  n = 5000;
  a = sparse (n, n);
  a(:, 17) = 1;
  a(3, :) = 2;
  x = ones (n, 1);
  y = zeros (n, 1);
  quarn ('tbbp', matrix_lines (a), x, y);
  wanted = 2 * ones (n, 1);
  wanted(17) = n + 1;
  expect_equal (y, wanted);
end

function [m, x, n] = large_case ()
  rand ('twister', 7);
  randn ('twister', 7);
  n = 20000;
  a = sparse (ceil (n * rand (30 * n, 1)), ceil (n * rand (30 * n, 1)), randn (30 * n, 1), n, n);
  m = matrix_lines (a);
  x = randn (n, 1) .* 10 .^ (6 * randn (n, 1));   % badly scaled: another order of summation shows in the last bits
end

% Lines first ... first+count-1 alone: so few are never shared out to several threads.
function y = short_product (m, x, first, count)
  from = double (m.jc(first));
  upto = double (m.jc(first + count));
  part = struct ('ir', m.ir(from + 1:upto), 'jc', m.jc(first:first + count) - m.jc(first), 'pr', m.pr(from + 1:upto), ...
                 'dims', [m.dims(1) count], 'trans', 0);
  y = zeros (count, 1);
  quarn ('tbbp', part, spread (x, count), y);
end

% x as a matrix of count rows, filled up with zeros: the product then takes count lines.
function s = spread (x, count)
  s = zeros (count, ceil (numel (x) / count));
  s(1:numel (x)) = x;
end

function h = head_of (m, n)
  h = struct ('ir', m.ir, 'jc', m.jc(1:n + 1), 'pr', m.pr, 'dims', [m.dims(1) n], 'trans', 0);
end

function test_of_several_bad_lines_the_first_is_named ()
  [s, n] = long_lines ();
  for k = [n - 3, 2 * n, 100, 25 * n], s.ir(k) = int32 (n); end
  expect_refused (@() quarn ('tbbp', s, ones (n, 1), zeros (n, 1)), 'quarn tbbp : A : an index of column 4 lies outside x of 20000 values');
end

function test_good_lines_beside_a_bad_one_are_added ()
  m = matrix_lines ([1 2 3 4; 5 6 7 8; 9 1 2 3; 4 5 6 7]);
  x = [1; 10; 100; 1000];
  for bad = 1:4
    s = m;
    s.ir(4 * bad - 1) = int32 (4);
    y = zeros (4, 1) + 0.5;
    wanted = [1 2 3 4; 5 6 7 8; 9 1 2 3; 4 5 6 7]' * x + 0.5;
    wanted(bad) = 0.5;
    expect_error (@() quarn ('tbbp', s, x, y), '', sprintf ('quarn tbbp : A : an index of column %d lies outside x of 4 values', bad));
    expect_equal (y, wanted);
  end
end

function test_a_full_matrix_without_lines_to_multiply_is_no_error ()
  y = [7; 8];
  quarn ('tbbp', ones (2), zeros (0, 1), y);
  quarn ('tbbp', ones (2), [], y);
  expect_equal (y, [7; 8]);
  expect_error (@() quarn ('tbbp', ones (2), [1; 2], y), '', 'Implemented for sparse matrices');
end
