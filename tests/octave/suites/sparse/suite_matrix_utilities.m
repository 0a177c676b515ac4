% "setsparse", "directzr" and the retired "dtkt", "ta'*k*tb", "igsm".
function tests = suite_matrix_utilities ()
  tests = localfunctions ();
end

function values = odd_values ()
  values = {{1; 2; 3}, @sin, struct('x', {1; 2; 3}), 'abc', single(1), int32(1), true, containers.Map(), v_handle(1), ...
            [], {}, struct('x', {}), chandle([])};
end

% setsparse

function test_setsparse_overwrites_indices_and_values ()
  m = matrix_lines ([1 0; 2 3]);
  alias = m.pr;
  quarn ('setsparse', m, int32 ([1; 0; 0]), [], [7; 8; 9]);
  expect_equal (m.ir, int32 ([1; 0; 0]));
  expect_equal (m.pr, [7; 8; 9]);
  expect_equal (m.jc, int32 ([0; 2; 3]));
  expect_equal (alias, [7; 8; 9]);  % shared data changes for everyone
end

function test_setsparse_writes_from_the_start_what_it_is_given ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m, int32 (1), [], [7; 8]);
  expect_equal (m.ir, int32 ([1; 1; 1]));
  expect_equal (m.pr, [7; 8; 3]);
end

function test_setsparse_never_touches_line_pointers ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m, int32 ([0; 1; 1]), int32 ([0; 1; 3]), [7; 8; 9]);
  expect_equal (m.jc, int32 ([0; 2; 3]));
  odd = odd_values ();
  for k = 1:numel (odd), quarn ('setsparse', m, int32 ([0; 1; 1]), odd{k}, [7; 8; 9]); end
  expect_equal (m.jc, int32 ([0; 2; 3]));
end

function test_setsparse_skips_indices_that_are_not_int32 ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m, [1; 0; 0], [], [7; 8; 9]);
  expect_equal (m.ir, int32 ([0; 1; 1]));
  expect_equal (m.pr, [7; 8; 9]);
  skipped = {{1}, @sin, 'ab', single(1), containers.Map(), int64(5), [], struct()};
  for k = 1:numel (skipped), quarn ('setsparse', m, skipped{k}, [], []); end
  expect_equal (m.ir, int32 ([0; 1; 1]));
  expect_equal (m.pr, [7; 8; 9]);
end

function test_setsparse_with_fewer_arguments_does_less ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m);
  expect_equal (m.ir, int32 ([0; 1; 1]));
  quarn ('setsparse', m, int32 ([1; 0; 0]));
  expect_equal (m.ir, int32 ([1; 0; 0]));
  quarn ('setsparse', m, int32 ([1; 1; 1]), 0);
  expect_equal (m.ir, int32 ([1; 1; 1]));
  expect_equal (m.pr, [1; 2; 3]);
end

function test_setsparse_with_empty_values_copies_none ()
  m = matrix_lines ([1 0; 2 3]);
  empties = {[], zeros(0, 3), {}, '', single([]), struct('x', {})};
  for k = 1:numel (empties), quarn ('setsparse', m, [], [], empties{k}); end
  expect_equal (m.pr, [1; 2; 3]);
end

function test_setsparse_takes_the_bits_of_8_byte_integers ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m, [], [], typecast ([4.5 -2 0.25], 'int64'));
  expect_equal (m.pr, [4.5; -2; 0.25]);
end

function test_setsparse_onto_itself_changes_nothing ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', m, m.ir, m.jc, m.pr);
  expect_equal (m.ir, int32 ([0; 1; 1]));
  expect_equal (m.pr, [1; 2; 3]);
end

function test_setsparse_reaches_through_a_v_handle_and_into_full_matrices ()
  m = matrix_lines ([1 0; 2 3]);
  quarn ('setsparse', v_handle (m), int32 ([1; 0; 0]), [], [7; 8; 9]);
  expect_equal (m.ir, int32 ([1; 0; 0]));
  expect_equal (m.pr, [7; 8; 9]);
  full_matrix = zeros (2, 2);
  quarn ('setsparse', full_matrix, [], [], [1 2 3 4]);
  expect_equal (full_matrix, [1 3; 2 4]);
end

function test_setsparse_refuses_sources_longer_than_their_target_before_writing ()
  m = matrix_lines ([1 0; 2 3]);
  expect_error (@() quarn ('setsparse', m, int32 ([0; 0; 0; 0]), [], [7; 8; 9]), '', '~^quarn setsparse : ir holds 4 values.* 3$');
  expect_error (@() quarn ('setsparse', m, int32 ([0; 0; 0]), [], [7; 8; 9; 10]), '', '~^quarn setsparse : pr holds 4 values.* 3$');
  expect_error (@() quarn ('setsparse', zeros (1, 1), int32 (0)), '', '~^quarn setsparse : ir holds 1 values.* 0$');
  expect_error (@() quarn ('setsparse', struct ('x', 1), [], [], 1), '', '~^quarn setsparse : pr holds 1 values.* 0$');
  expect_equal (m.ir, int32 ([0; 1; 1]));
  expect_equal (m.pr, [1; 2; 3]);
end

function test_setsparse_refuses_values_that_are_not_8_bytes_each ()
  m = matrix_lines ([1 0; 2 3]);
  others = {single([1; 2; 3]), 'abc', true(3, 1), {1}, @sin, struct('x', 1), sparse([1; 2; 3]), containers.Map(), v_handle(1)};
  for k = 1:numel (others)
    expect_error (@() quarn ('setsparse', m, [], [], others{k}), '', '~^quarn setsparse : pr must be ');
  end
  expect_equal (m.pr, [1; 2; 3]);
end

function test_setsparse_refuses_odd_matrices ()
  expect_error (@() quarn ('setsparse'), '', '~^quarn setsparse : .*expected');
  expect_error (@() quarn ('setsparse', speye (2), [], [], 1), '', 'ir must be int32');
  odd = {{1}, @sin, 'abc', single(1), int32(1), true, containers.Map(), chandle(1)};
  for k = 1:numel (odd)
    expect_error (@() quarn ('setsparse', odd{k}, [], [], 1), '', '~^quarn setsparse : M must be a full real double array, got ');
  end
end

% directzr

function test_directzr_returns_zeros_of_r_by_p_times_n ()
  b = ones (3, 2) + 1i * ones (3, 2);
  kc = {eye(3), 2 * eye(3)};
  a = ones (5, 3) * 1i;
  for f = {ones(4, 3), ones(4, 3) * 1i, ones(4, 9)}
    x = quarn ('directzr', a, kc, b, f{1});
    expect_equal (complex (x), complex (zeros (5, 8)));
  end
  expect_equal (b, ones (3, 2) + 1i * ones (3, 2));
end

function test_directzr_takes_any_list_of_matrices ()
  z = 1i;
  lists = {{}, {1}, {[], 1i}, cell(1, 3), {sparse(1)}, {1; 2}, cell(0, 3), {1 'a'; 2 'b'}};  % as many matrices as the list has columns, in storage order
  for k = 1:numel (lists)
    x = quarn ('directzr', z, lists{k}, z, 1);
    expect_equal (size (x), [1 1]);
    expect_equal (abs (x), 0);
  end
end

function test_directzr_needs_complex_a_and_b ()
  text = 'Complex numbers needed.';
  expect_error (@() quarn ('directzr', 1, {1}, 1i, 1), '', text);
  expect_error (@() quarn ('directzr', 1i, {1}, 1, 1), '', text);
  expect_error (@() quarn ('directzr', 1, {1}, 1, 1), '', text);
  expect_error (@() quarn ('directzr'), '', text);
  expect_error (@() quarn ('directzr', 1i), '', text);
  expect_error (@() quarn ('directzr', 1i, {1}), '', text);
  odd = odd_values ();
  for k = 1:numel (odd)
    expect_error (@() quarn ('directzr', odd{k}, {1}, 1i, 1), '', text);
    expect_error (@() quarn ('directzr', 1i, {1}, odd{k}, 1), '', text);
  end
end

function test_directzr_refuses_what_it_cannot_pack ()
  b = ones (3, 2) * 1i;
  expect_error (@() quarn ('directzr', 1i, {1}, b, ones (4, 2)), '', '~^quarn directzr : F must hold 3 values .* got 2$');
  expect_error (@() quarn ('directzr', 1i, {1}, [1i; 1i], 1), '', '~^quarn directzr : F must hold 2 values .* got 1$');
  expect_error (@() quarn ('directzr', 1i, {1}, b), '', '~^quarn directzr : F must be ');
  expect_error (@() quarn ('directzr', 1i, {1}, single (b), ones (4, 3)), '', '~^quarn directzr : B must be ');
  expect_error (@() quarn ('directzr', 1i, {1}, sparse (b), ones (4, 3)), '', '~^quarn directzr : B must be ');
  expect_error (@() quarn ('directzr', 1i, 1, b, ones (4, 3)), '', '~^quarn directzr : Kc must be ');
  expect_error (@() quarn ('directzr', 1i, {1, @sin}, b, ones (4, 3)), '', '~^quarn directzr : Kc\{2\} must be ');
  odd = odd_values ();
  for k = 1:numel (odd)
    if isempty (odd{k}) && isa (odd{k}, 'double'), continue, end
    expect_error (@() quarn ('directzr', 1i, {1}, b, odd{k}), '', '~^quarn directzr : F must be ');
    if ~iscell (odd{k}) && ~isempty (odd{k})
      expect_error (@() quarn ('directzr', 1i, odd{k}, b, ones (4, 3)), '', '~^quarn directzr : Kc must be ');
    end
  end
end

function test_directzr_refuses_outputs_that_no_memory_holds ()
  wide = complex (zeros (0, 2 ^ 40));
  text = 'quarn directzr : the output : 1099511627776 x 1099511627776 values are more than memory can hold';
  expect_error (@() quarn ('directzr', complex (zeros (2 ^ 40, 0)), {}, wide, zeros (2 ^ 40, 0)), '', text);
end

function test_directzr_of_empty_matrices_is_empty ()
  x = quarn ('directzr', complex (zeros (2, 0)), {}, complex (zeros (0, 3)), zeros (0, 0));
  expect_equal (size (x), [2 0]);
end

% Retired commands

function test_dtkt_checks_and_stops ()
  expect_error (@() quarn ('dtkt', ones (2, 1), ones (2, 2)), '', 'quarn dtkt : b must be sparse');
  expect_error (@() quarn ('dtkt', ones (2, 1), matrix_lines (eye (2))), '', 'quarn dtkt : b must be sparse');
  expect_error (@() quarn ('dtkt', ones (2, 1), sparse (ones (2, 3))), '', 'quarn  : k must be square');
  expect_error (@() quarn ('dtkt', ones (3, 1), speye (2)), '', 'base has a wrong size');
  expect_error (@() quarn ('dtkt', ones (2, 1), speye (2)), '', 'quarn  : reimplement for mkls');
end

function test_dtkt_of_a_base_without_columns_returns_an_empty_column ()
  expect_equal (quarn ('dtkt', zeros (2, 0), speye (2)), zeros (0, 1));
end

function test_triple_product_of_native_matrices_checks_and_stops ()
  word = 'ta''*k*tb';
  expect_error (@() quarn (word, ones (2, 1), ones (2, 3), ones (3, 1)), '', 'quarn ta''*k*tb : k must be sparse');
  k = sparse (ones (2, 3));
  expect_error (@() quarn (word, ones (3, 1), k, ones (3, 1)), '', 'ta and k : Wrong size');
  expect_error (@() quarn (word, ones (2, 1), k, ones (2, 1)), '', 'k and tb :Wrong size');
  expect_error (@() quarn (word, ones (2, 1), k, ones (3, 1)), '', 'ir problem');
  expect_error (@() quarn (word, 1i * ones (2, 1), k, ones (3, 1)), '', 'ir problem');
  expect_error (@() quarn (word, zeros (2, 0), k, zeros (3, 0)), '', 'ir problem');
end

function test_igsm_checks_and_stops ()
  expect_error (@() quarn ('igsm', 1), '', 'Three inputs required.');
  expect_error (@() quarn ('igsm', 1, speye (1), 1), '', 'Three inputs required.');
  expect_error (@() quarn ('igsm', speye (2), speye (2)), '', 'phi must be full');
  expect_error (@() quarn ('igsm', speye (2), eye (2)), '', 'phi must be full');
  expect_error (@() quarn ('igsm', eye (2), eye (2)), '', 'k must be sparse');
  expect_error (@() quarn ('igsm', eye (3), speye (2)), '', 'Inner matrix dimensions must agree.');
  expect_error (@() quarn ('igsm', ones (2, 1), sparse (ones (2, 3))), '', 'Inner matrix dimensions must agree.');
  expect_error (@() quarn ('igsm', ones (3, 1), sparse (ones (2, 3))), '', 'ir problem');
end

function test_igsm_without_columns_returns_a_row_as_wide_as_k ()
  expect_equal (quarn ('igsm', zeros (3, 0), sparse (ones (2, 3))), zeros (1, 3));
  expect_equal (quarn ('igsm', zeros (0, 0), sparse (zeros (2, 0))), zeros (1, 0));
end

function test_retired_commands_take_odd_values_without_harm ()
  odd = odd_values ();
  for k = 1:numel (odd)
    expect_error (@() quarn ('dtkt', 1, odd{k}), '', 'quarn dtkt : b must be sparse');
    expect_error (@() quarn ('dtkt', odd{k}, speye (7)), '', 'base has a wrong size');
    expect_error (@() quarn ('ta''*k*tb', 1, odd{k}, 1), '', 'quarn ta''*k*tb : k must be sparse');
    expect_error (@() quarn ('ta''*k*tb', odd{k}, speye (7), 1), '', 'ta and k : Wrong size');
    expect_error (@() quarn ('ta''*k*tb', ones (7, 1), speye (7), odd{k}), '', 'k and tb :Wrong size');
    expect_error (@() quarn ('igsm', odd{k}, odd{k}), '', 'k must be sparse');
    expect_error (@() quarn ('igsm', odd{k}, speye (7)), '', 'Inner matrix dimensions must agree.');
  end
end

function test_retired_commands_need_their_operands ()
  expect_error (@() quarn ('dtkt'), '', 'quarn dtkt : b must be sparse');
  expect_error (@() quarn ('dtkt', 1), '', 'quarn dtkt : b must be sparse');
  expect_error (@() quarn ('ta''*k*tb'), '', 'quarn ta''*k*tb : k must be sparse');
  expect_error (@() quarn ('ta''*k*tb', 1, speye (1)), '', '~^quarn ta''\*k\*tb : .*expected');
  expect_error (@() quarn ('igsm'), '', 'Three inputs required.');
end
