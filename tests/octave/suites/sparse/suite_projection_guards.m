% What "c<-a'*b" and "abc" refuse: defined messages, and calls that would leave an array.
function tests = suite_projection_guards ()
  tests = localfunctions ();
end

function values = odd_values ()
  values = {{1; 2; 3}, @sin, struct('x', {1; 2; 3}), ['a'; 'b'; 'c'], single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), ...
            sparse([1; 2; 3]), containers.Map(), v_handle(1), [], {}, struct('x', {})};
end

% The class as the module names it.
function name = kind (value)
  name = class (value);
  if issparse (value), name = ['sparse ' name]; end
end

function m = matrix_3x4 ()
  m = matrix_lines ([1 0 2 0; 0 3 0 0; 4 0 5 0]);
end

function refused_left (a, b, text)
  expect_error (@() quarn ('c<-a''*b', a, b), '', ['quarn c<-a''*b : ' text]);
end

function refused_triple (ta, k, tb, text)
  expect_error (@() quarn ('abc', ta, k, tb, int32 ([1 0 0])), '', ['quarn abc : ' text]);
end

function test_left_product_wrong_size_carries_its_identifier ()
  text = 'quarn c<-a''*b : vector a has a wrong size';
  expect_error (@() quarn ('c<-a''*b', ones (4, 1), matrix_3x4 ()), 'KORV:quarn:WrongSize', text);
  expect_error (@() quarn ('c<-a''*b', [], matrix_3x4 ()), 'KORV:quarn:WrongSize', text);
end

% The transposed path reports the same text without an identifier; that asymmetry is wanted.
function test_left_product_wrong_size_of_a_transposed_structure_carries_none ()
  m = matrix_lines (ones (3, 4), true);
  expect_error (@() quarn ('c<-a''*b', ones (3, 1), m), '', 'quarn c<-a''*b : vector a has a wrong size');
end

function test_left_product_wrong_size_leaves_the_target_alone ()
  c = zeros (1, 4) + 7;
  expect_error (@() quarn ('c<-a''*b', ones (4, 1), matrix_3x4 (), c), 'KORV:quarn:WrongSize', ...
                'quarn c<-a''*b : vector a has a wrong size');
  expect_equal (c, [7 7 7 7]);
end

function test_native_sparse_matrices_are_refused ()
  expect_error (@() quarn ('c<-a''*b', ones (3, 1), speye (3)), '', 'ir must be int32');
  expect_error (@() quarn ('abc', ones (3, 1), speye (3), ones (3, 1), int32 ([1 0 0])), '', 'ir must be int32');
end

function test_left_product_needs_its_operands ()
  expect_error (@() quarn ('c<-a''*b'), '', '~^quarn c<-a''\*b : .*expected');
  expect_error (@() quarn ('c<-a''*b', 1), '', '~^quarn c<-a''\*b : .*expected');
end

function test_left_product_of_a_dense_matrix_is_refused ()
  text = 'b : "jc" must hold 5 line pointers for 4 lines, got 0';
  refused_left (ones (3, 1), ones (3, 4), text);
  refused_left (ones (3, 1), struct ('pr', ones (3, 4), 'dims', [3 4]), text);
end

function test_left_product_refuses_odd_operands ()
  values = odd_values ();
  for k = 1:numel (values)
    id = 'KORV:quarn:WrongSize';
    text = 'quarn c<-a''*b : vector a has a wrong size';
    if size (values{k}, 1) == 3
      id = '';
      text = ['quarn c<-a''*b : a must be a full double matrix, got ' kind(values{k}) ' 3x1'];
    end
    expect_error (@() quarn ('c<-a''*b', values{k}, matrix_3x4 ()), id, text);
  end
end

function test_left_product_refuses_odd_matrices ()
  text = '~^quarn c<-a''\*b : b must be a full real double array, got ';
  odd = {{1; 2; 3}, @sin, 'abc', single([1; 2; 3]), int32([1; 2; 3]), true(3, 1), containers.Map(), chandle(1)};
  for k = 1:numel (odd), expect_error (@() quarn ('c<-a''*b', ones (3, 1), odd{k}), '', text); end
  % Arrays without elements, and structures without "pr", are no matrix: they fit no a.
  text = 'quarn c<-a''*b : vector a has a wrong size';
  none = {[], struct('x', {}), struct('x', {1; 2; 3}), v_handle([])};
  for k = 1:numel (none), expect_error (@() quarn ('c<-a''*b', ones (3, 1), none{k}), 'KORV:quarn:WrongSize', text); end
  expect_equal (quarn ('c<-a''*b', zeros (0, 2), struct ('x', 1)), zeros (2, 0));
end

function test_left_product_refuses_a_target_of_another_size_or_class ()
  m = matrix_3x4 ();
  targets = {zeros(4, 1), zeros(1, 3), zeros(2, 4), zeros(0, 0), zeros(1, 4, 'single'), zeros(1, 4, 'int32'), 1i * ones(1, 4), ...
             sparse(ones(1, 4)), cell(1, 4), @sin, containers.Map(), v_handle(zeros(1, 4)), 'abcd', true(1, 4)};
  for k = 1:numel (targets)
    expect_error (@() quarn ('c<-a''*b', ones (3, 1), m, targets{k}), '', '~^quarn c<-a''\*b : c must be .* 1x4 ');
  end
  c = zeros (1, 3) + 7;
  expect_error (@() quarn ('c<-a''*b', ones (3, 1), m, c), '', '~^quarn c<-a''\*b : c must be ');
  expect_equal (c, [7 7 7]);
end

function test_broken_matrix_structures_are_refused_before_anything_is_written ()
  good = matrix_lines ([1 0 2; 0 3 0; 4 0 5]);
  broken = {'ir', int32([0; 2; 1; 0; 3]), 'NAME : index 3 in "ir" reaches past a column of OTHER of 3 values'; ...
            'ir', int32([0; -2; 1; 0; 2]), 'NAME : index -2 in "ir", expected 0 or more'; ...
            'ir', int32([-1; 2; 1; 0; 2]), 'NAME : index -1 in "ir", expected 0 or more (the matrix was marked as diagonal by a handle)'; ...
            'ir', int32([0; 2; 1; 0]), 'NAME : "jc" ends at 5 entries, "ir" and "pr" hold 4 and 5'; ...
            'pr', [1; 2; 3; 4], 'NAME : "jc" ends at 5 entries, "ir" and "pr" hold 5 and 4'; ...
            'jc', int32([0; 2; 3]), 'NAME : "jc" must hold 4 line pointers for 3 lines, got 3'; ...
            'jc', int32([0; 3; 2; 5]), 'NAME : "jc" must ascend, got 2 after 3 at position 3'; ...
            'jc', int32([-1; 2; 3; 5]), 'NAME : "jc" must start at 0, got -1'; ...
            'jc', int32([0; 2; 3; 6]), 'NAME : "jc" ends at 6 entries, "ir" and "pr" hold 5 and 5'; ...
            'jc', [0; 2; 3; 5], 'field "jc" must be int32, got double 4x1'; ...
            'ir', [0; 2; 1; 0; 2], 'field "ir" must be int32, got double 5x1'; ...
            'pr', single([1; 4; 3; 2; 5]), 'field "pr" must be a full real double array, got single 5x1'; ...
            'pr', {1}, 'field "pr" must be a full real double array, got cell 1x1'; ...
            'dims', 3, 'NAME.dims must hold 2 values (rows, cols), got 1'; ...
            'jc', zeros(0, 1, 'int32'), 'NAME : "jc" must hold 4 line pointers for 3 lines, got 0'};
  for k = 1:size (broken, 1)
    matrix = good;
    matrix.(broken{k, 1}) = broken{k, 2};
    says = @(name, other) strrep (strrep (broken{k, 3}, 'NAME', name), 'OTHER', other);
    c = zeros (1, 3) + 7;
    expect_error (@() quarn ('c<-a''*b', ones (3, 1), matrix, c), '', ['quarn c<-a''*b : ' says('b', 'a')]);
    expect_equal (c, [7 7 7]);
    refused_triple (ones (3, 1), matrix, ones (3, 1), says ('k', 'TA'));
  end
end

function test_a_product_of_one_value_is_checked_as_well ()
  s = struct ('pr', 1, 'ir', int32 (5), 'jc', int32 ([0; 1]), 'dims', [1 1]);
  refused_left (2, s, 'b : index 5 in "ir" reaches past a column of a of 1 values');
end

function test_the_diagonal_marker_is_named ()
  marked = setfield (matrix_lines (eye (3)), 'ir', int32 ([-1; 1; 2]));
  expect_error (@() quarn ('c<-a''*b', ones (3, 1), marked), '', '~marked as diagonal');
end

function test_negative_sizes_are_refused ()
  s = struct ('pr', 1, 'ir', int32 (0), 'jc', int32 ([0; 1]), 'dims', [1 -2]);
  refused_left (1, s, 'b : size 1x-2 is negative');
  negative = setfield (s, 'dims', [-1 1]);
  expect_error (@() quarn ('abc', 1, negative, 1, int32 ([1 0 0])), '', 'abc : a and b have wrong size');
  s.trans = 1;
  s.dims = [-2 1];
  refused_left (1, s, 'b : size -2x1 is negative');
end

function test_sizes_that_no_memory_holds_are_refused ()
  s = struct ('pr', 1, 'ir', int32 (0), 'jc', int32 ([0; 1]), 'dims', [0 2147483647]);
  refused_left (zeros (0, 2 ^ 40), s, 'a''*b : 1099511627776 x 2147483647 values are more than memory can hold');
end

function test_triple_product_defined_messages ()
  k = matrix_lines ([1 2; 3 4]);
  flags = int32 ([1 0 0]);
  one = [1; 1];
  sparse_text = 'quarn abc : b must be int32 sparse';
  expect_error (@() quarn ('abc', one, [1 2; 3 4], one, flags), '', sparse_text);
  expect_error (@() quarn ('abc', one, struct ('pr', ones (2), 'dims', [2 2]), one, flags), '', sparse_text);
  expect_error (@() quarn ('abc', one, struct ('x', 1), one, flags), '', sparse_text);
  flags_text = 'int32 needed : quarn(''abc'',TA,k,TB,int32([1 0 0]));';
  expect_error (@() quarn ('abc', one, k, one, [1 0 0]), '', flags_text);
  expect_error (@() quarn ('abc', one, k, one), '', flags_text);
  expect_error (@() quarn ('abc', one, k), '', flags_text);
  expect_error (@() quarn ('abc', one, k, one, {1}), '', flags_text);
  others = {[1 0 1], [1 1 0], [0 0 0], [2 0 0], [1 0], 1, zeros(1, 0)};
  for i = 1:numel (others)
    expect_error (@() quarn ('abc', one, k, one, int32 (others{i})), '', 'quarn(''abc'')');
  end
  expect_error (@() quarn ('abc', [1; 1; 1], k, one, flags), '', 'abc : a and b have wrong size');
  expect_error (@() quarn ('abc', one, k, [1; 1; 1], flags), '', 'abc : b and c have wrong size');
end

function test_triple_product_checks_in_order ()
  k = matrix_lines ([1 2; 3 4]);
  expect_error (@() quarn ('abc', 1, [1 2; 3 4], 1, 1), '', 'quarn abc : b must be int32 sparse');
  expect_error (@() quarn ('abc', 1, k, 1, 1), '', 'int32 needed : quarn(''abc'',TA,k,TB,int32([1 0 0]));');
  expect_error (@() quarn ('abc', 1, k, 1, int32 (0)), '', 'quarn(''abc'')');
  expect_error (@() quarn ('abc', 1, k, 1, int32 ([1 0 0])), '', 'abc : a and b have wrong size');
end

% A matrix whose index array holds nothing has no pattern for "abc".
function test_triple_product_without_any_entry_is_not_sparse ()
  expect_error (@() quarn ('abc', 1, matrix_lines (0), 1, int32 ([1 0 0])), '', 'quarn abc : b must be int32 sparse');
end

function test_triple_product_needs_its_operands ()
  expect_error (@() quarn ('abc'), '', '~^quarn abc : .*expected');
  expect_error (@() quarn ('abc', 1), '', '~^quarn abc : .*expected');
end

function test_triple_product_with_a_narrower_ta_is_refused ()
  expect_error (@() quarn ('abc', [1; 1], matrix_lines ([1 2; 3 4]), ones (2, 3), int32 ([1 0 0])), '', ...
                'quarn abc : TA must have as many columns as TB (3), got 1');
end

function test_triple_product_of_a_tall_matrix_is_refused ()
  text = 'k must have at least as many columns as rows, got 3x2';
  refused_triple (ones (3, 1), matrix_lines (ones (3, 2)), ones (2, 1), text);
  refused_triple (ones (3, 1), matrix_lines (ones (3, 2), true), ones (2, 1), text);
end

function test_triple_product_with_an_index_past_ta_is_refused ()
  refused_triple (ones (2, 1), matrix_lines (ones (2, 3), true), ones (3, 1), 'k : index 2 in "ir" reaches past a column of TA of 2 values');
end

function test_triple_product_refuses_odd_bases ()
  values = odd_values ();
  k = matrix_lines (ones (3, 3));
  for i = 1:numel (values)
    texts = {'abc : a and b have wrong size', 'abc : b and c have wrong size'};
    if size (values{i}, 1) == 3
      text = ['must be a full double matrix, got ' kind(values{i}) ' 3x1'];
      texts = {['quarn abc : TA ' text], ['quarn abc : TB ' text]};
    end
    expect_error (@() quarn ('abc', values{i}, k, ones (3, 1), int32 ([1 0 0])), '', texts{1});
    expect_error (@() quarn ('abc', ones (3, 1), k, values{i}, int32 ([1 0 0])), '', texts{2});
    if ~isa (values{i}, 'int32')
      expect_error (@() quarn ('abc', ones (3, 1), k, ones (3, 1), values{i}), '', 'int32 needed : quarn(''abc'',TA,k,TB,int32([1 0 0]));');
    end
  end
end
