% Registration: type codes, and what is refused before or after an index is issued.
function tests = suite_registry_types ()
  tests = localfunctions ();
end

function test_all_type_codes_register_any_value ()
  clear quarn
  tables = source_tables ();
  codes = str2double (tables.types);
  if numel (codes) < 5, error ('only %d types found in the sources', numel (codes)); end
  for k = 1:numel (codes)
    expect_equal (quarn ('chandleset', codes(k), {}), k - 1);
    expect_equal (quarn ('chandleget', k - 1), {});
  end
end

function test_an_unknown_type_code_is_refused_and_leaves_the_counter ()
  clear quarn
  filled (1);
  codes = [4 0 -1 1002 1004 1999 2001 NaN Inf -Inf 1e300 0.99 -0.5 2 ^ 32 + 1];
  for k = 1:numel (codes)
    expect_error (@() quarn ('chandleset', codes(k), 5), 'KORV:quarn:NonHandle', 'Not a valid chandle type');
  end
  expect_equal (quarn ('chandleget'), 0);
  expect_equal (quarn ('chandleset', 1, 5), 1);
end

function test_the_type_code_is_truncated ()
  clear quarn
  codes = [1.999 2.5 3.0001 1003.7 2000.9];
  for k = 1:5, expect_equal (quarn ('chandleset', codes(k), 1), k - 1); end
end

function test_only_the_first_value_of_the_type_code_counts ()
  clear quarn
  expect_equal (quarn ('chandleset', [1 4], 5), 0);
  expect_error (@() quarn ('chandleset', [4 1], 5), 'KORV:quarn:NonHandle', 'Not a valid chandle type');
end

function test_a_v_handle_value_is_refused_and_consumes_an_index ()
  clear quarn
  filled (1);
  expect_error (@() quarn ('chandleset', 1, v_handle (5)), 'KORV:quarn:NonHandle', 'xxx');
  expect_equal (quarn ('chandleget'), 0);
  expect_equal (quarn ('chandleset', 1, 5), 2);
end

function test_the_type_code_is_looked_at_before_a_v_handle_value ()
  clear quarn
  expect_error (@() quarn ('chandleset', 4, v_handle (5)), 'KORV:quarn:NonHandle', 'Not a valid chandle type');
  expect_equal (quarn ('chandleset', 1, 5), 0);
end

function filled (n)
  for k = 0:n - 1, expect_equal (quarn ('chandleset', 1, {'handle', k}), k); end
end
