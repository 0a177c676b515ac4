% A handle's value is its own: nothing written elsewhere shows in it, and nothing it does shows elsewhere.
%
% ADD_ONE and "setsparse" write through shared memory, past the host's copy on write; so do handles in use.
function tests = suite_registry_values ()
  tests = localfunctions ();
end

function test_values_of_every_kind_come_back_as_they_were ()
  values = plain_values ();
  for k = 1:numel (values)
    h = quarn ('chandleset', 1, values{k});
    got = quarn ('chandleget', h);
    expect_equal (got, values{k});
    expect_equal (issparse (got), issparse (values{k}));
    wrapped = struct ('deep', {{1, values(k)}});
    h = quarn ('chandleset', 2, wrapped);
    expect_equal (quarn ('chandleget', h), wrapped);
  end
end

% The host makes a complex array without imaginary parts real when a function returns it.
function test_imaginary_parts_of_zero_come_back_as_zeros ()
  h = quarn ('chandleset', 1, complex ([1; 2], 0));
  got = quarn ('chandleget', h);
  expect_equal (real (got), [1; 2]);
  expect_equal (imag (got), [0; 0]);
end

function test_function_handles_and_objects_come_back_usable ()
  offset = 3;
  f = @(x) x + offset;
  h = quarn ('chandleset', 1, f);
  got = quarn ('chandleget', h);
  expect_equal (got (4), 7);
  h = quarn ('chandleset', 1, chandle ([4 9]));
  got = quarn ('chandleget', h);
  expect_equal (class (got), 'chandle');
  expect_equal (remi (got, 2), 9);
  h = quarn ('chandleset', 1, struct ('m', v_handle ([1 2]), 'f', f, 'b', buffer_holder (5)));
  got = quarn ('chandleget', h);
  expect_equal (class (got.m), 'v_handle');
  inside = struct (got.m);
  expect_equal (inside.file, [1 2]);
  expect_equal (got.f (1), 4);
  expect_equal (got.b.c, 5);
  expect_equal (quarn ('chandleget', @(v) {class(v.m), v.b.c, v.f(2)}, h), {'v_handle', 5, 5});
end

function test_an_object_that_hands_out_no_copy_is_refused ()
  keys = quarn ('chandleget');
  expect_refused (@() quarn ('chandleset', 1, gives_no_copy ()), 'quarn chandleset : a value of class gives_no_copy cannot be copied');
  nested = {1, struct('inside', gives_no_copy ())};
  expect_refused (@() quarn ('chandleset', 1, nested), 'quarn chandleset : a value of class gives_no_copy cannot be copied');
  expect_equal (quarn ('chandleget'), keys);
end

function test_a_value_outlives_the_variable_it_came_from ()
  h = quarn ('chandleset', 1, struct ('pr', {{rand(1000, 1) > 2, 'text'}}));
  junk = cell (1, 50);
  for k = 1:50, junk{k} = rand (1000, 1); end
  clear junk
  expect_equal (quarn ('chandleget', h), struct ('pr', {{false(1000, 1), 'text'}}));
end

function test_a_plain_array_is_stored_apart_from_its_source ()
  x = zeros (3, 1) + 5;
  h = quarn ('chandleset', 1, x);
  add_one (x);
  expect_equal (x, [6; 6; 6]);
  expect_equal (quarn ('chandleget', h), [5; 5; 5]);
end

function test_a_returned_array_is_apart_from_the_stored_one ()
  h = quarn ('chandleset', 1, zeros (3, 1) + 5);
  first = quarn ('chandleget', h);
  add_one (first);
  expect_equal (quarn ('chandleget', h), [5; 5; 5]);
  expect_equal (first, [6; 6; 6]);
end

function test_two_handles_of_one_value_are_apart ()
  x = zeros (3, 1) + 5;
  one = quarn ('chandleset', 1, x);
  two = quarn ('chandleset', 1, x);
  got = quarn ('chandleget', one);
  add_one (got);
  expect_equal (quarn ('chandleget', two), [5; 5; 5]);
  expect_equal (x, [5; 5; 5]);
end

function test_nested_arrays_are_stored_apart_at_every_depth ()
  s = nested ();
  h = quarn ('chandleset', 1, s);
  write_everywhere (s);
  expect_equal (s.pr, [6; 6; 6]);
  expect_equal (s.list{2}.inner{1}, [9; 9]);
  expect_equal (s.many(2).x, [4; 4; 4; 4]);
  expect_equal (s.index, int32 ([41; 42; 43]));
  expect_equal (quarn ('chandleget', h), nested ());
end

function test_nested_arrays_are_returned_apart_at_every_depth ()
  h = quarn ('chandleset', 1, nested ());
  got = quarn ('chandleget', h);
  write_everywhere (got);
  expect_equal (got.list{2}.inner{1}, [9; 9]);
  expect_equal (quarn ('chandleget', h), nested ());
end

function test_an_array_that_the_source_holds_twice_is_stored_twice ()
  x = zeros (3, 1) + 5;
  s = struct ('a', x, 'b', x);
  h = quarn ('chandleset', 1, s);
  got = quarn ('chandleget', h);
  add_one (got.a);
  expect_equal (got.a, [6; 6; 6]);
  expect_equal (got.b, [5; 5; 5]);
end

function test_a_call_on_the_value_gets_a_copy_of_its_own ()
  h = quarn ('chandleset', 1, nested ());
  quarn ('chandleget', @write_everywhere, h);
  expect_equal (quarn ('chandleget', h), nested ());
end

function test_a_handle_in_use_writes_into_its_own_value_only ()
  s = power_element (matrix_lines (speye (2), true), [], 2);
  kept = power_element (matrix_lines (speye (2), true), [], 2);
  h = quarn ('chandleset', 1003, s);
  before = quarn ('chandleget', h);
  quarn ('residual', zeros (2, 1), chandle (h), [7; 8], zeros (2, 1), zeros (2, 1));
  after = quarn ('chandleget', h);
  expect_equal (after.snl, [7; 8]);
  expect_equal (after.unl, [7; 8]);
  expect_equal (s, kept);
  expect_equal (before, kept);
  quarn ('residual', zeros (2, 1), chandle (h), [1; 2], zeros (2, 1), zeros (2, 1));
  expect_equal (after.snl, [7; 8]);
end

function test_marking_a_diagonal_matrix_stays_inside_the_handle ()
  m = matrix_lines (speye (3));
  h = quarn ('chandleset', 2, m);
  before = quarn ('chandleget', h);
  quarn ('residual', zeros (3, 1), chandle (h), ones (3, 1), ones (3, 1), ones (3, 1));
  after = quarn ('chandleget', h);
  expect_equal (after.ir, int32 ([-1; 1; 2]));
  expect_equal (m.ir, int32 ([0; 1; 2]));
  expect_equal (before.ir, int32 ([0; 1; 2]));
end

function test_a_value_survives_writes_into_the_matrix_it_came_from ()
  m = matrix_lines (sparse ([1 2; 3 4]));
  h = quarn ('chandleset', 1, m);
  quarn ('setsparse', m, int32 ([1; 1; 1; 1]), [], [9; 9; 9; 9]);
  expect_equal (m.pr, [9; 9; 9; 9]);
  expect_equal (m.ir, int32 ([1; 1; 1; 1]));
  expect_equal (quarn ('chandleget', h), matrix_lines (sparse ([1 2; 3 4])));
end

function test_a_value_is_kept_when_other_handles_are_freed ()
  x = nested ();
  one = quarn ('chandleset', 1, x);
  two = quarn ('chandleset', 1, x);
  three = quarn ('chandleset', 1003, x);
  got = quarn ('chandleget', one);
  quarn ('chandleclear', one);
  quarn ('chandleclear', three);
  expect_equal (got, nested ());
  expect_equal (x, nested ());
  expect_equal (quarn ('chandleget', two), nested ());
end

function test_a_returned_value_survives_an_unload ()
  h = quarn ('chandleset', 1, nested ());
  got = quarn ('chandleget', h);
  clear quarn
  expect_equal (got, nested ());
end

function test_a_freed_element_keeps_its_value_in_memory_and_others_give_theirs_back ()
  not_sanitized ();
  bytes = 8 * 2 ^ 20;
  before = resident ();
  for k = 1:12, quarn ('chandleclear', quarn ('chandleset', 1, ones (bytes / 8, 1))); end
  expect_equal (resident () - before < 3 * bytes, true);
  before = resident ();
  for k = 1:12, quarn ('chandleclear', quarn ('chandleset', 1003, ones (bytes / 8, 1))); end
  expect_equal (resident () - before > 10 * bytes, true);
end

function test_clearing_all_gives_values_back_except_those_of_elements ()
  not_sanitized ();
  bytes = 8 * 2 ^ 20;
  before = resident ();
  for k = 1:12, quarn ('chandleset', 3, ones (bytes / 8, 1)); end
  expect_equal (resident () - before > 10 * bytes, true);
  quarn ('chandleclear');
  expect_equal (resident () - before < 3 * bytes, true);
  for k = 1:12, quarn ('chandleset', 1003, ones (bytes / 8, 1)); end
  quarn ('chandleclear');
  expect_equal (resident () - before > 10 * bytes, true);
end

function s = nested ()
  s = struct ();
  s.pr = zeros (3, 1) + 5;
  s.index = int32 ([1; 2; 3]) + int32 (0);
  s.list = {'text', struct('inner', {{zeros(2, 1) + 8, true}})};
  s.many = struct ('x', {zeros(1, 2) + 1, zeros(4, 1) + 3, []});
  s.none = {};
end

function write_everywhere (s)
  add_one (s.pr);
  add_one (s.list{2}.inner{1});
  add_one (s.many(2).x);
  quarn ('setsparse', struct ('ir', s.index, 'pr', zeros (1, 1), 'dims', [1 1]), int32 ([41; 42; 43]));
end

function v = plain_values ()
  v = {[], zeros(0, 3), zeros(3, 0), zeros(0, 1, 'int32'), '', {}, cell(2, 3), struct(), struct('x', {}), pi, [1 2; 3 4], rand(2, 3, 4), ...
       [NaN Inf -0], 1 + 2i, complex(rand (2, 2, 2), rand (2, 2, 2)), single(1.5), single([1 2i]), int8([-1 2]), ...
       uint8(200), int16([1; -2]), uint16(7), int32([1 2; 3 4]), uint32(9), int64(9007199254740993), uint64(18446744073709551615), ...
       true, logical([1 0; 0 1]), 'text', ['two'; 'row'], char(zeros (0, 4)), {1, 'a', {2, {}}}, ...
       struct('a', {1, 'b', {3}}), reshape(struct ('a', {1, 2, 3, 4}), 2, 2), sparse([1 0; 0 2]), sparse([0 1i; 2 0]), ...
       sparse(logical ([1 0; 0 1])), sparse(3, 0), sparse(4, 5), 1:5};
end

function not_sanitized ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
end

function bytes = resident ()
  f = fopen ('/proc/self/statm', 'r');
  pages = fscanf (f, '%d', 2);
  fclose (f);
  bytes = 4096 * pages(2);
end
