% Indices of registered handles: how they are issued, listed and freed. Tests that need a counter at 0 load the module anew.
function tests = suite_registry ()
  tests = localfunctions ();
end

function test_the_first_index_after_a_load_is_0_and_the_second_1 ()
  clear quarn
  expect_equal (quarn ('chandleset', 1, 'first'), 0);
  expect_equal (quarn ('chandleset', 3, 'second'), 1);
  expect_equal (quarn ('chandleget'), [0; 1]);
  expect_equal (quarn ('chandleget', 0), 'first');
  expect_equal (quarn ('chandleget', 1), 'second');
end

function test_an_empty_registry_lists_a_column_of_no_keys ()
  clear quarn
  expect_equal (quarn ('chandleget'), zeros (0, 1));
end

function test_keys_are_listed_in_ascending_order ()
  clear quarn
  filled (2);
  lookup_fails (7);
  lookup_fails (-5);
  lookup_fails (3);
  expect_equal (quarn ('chandleget'), [-5; 0; 1; 3; 7]);
end

function test_a_lookup_of_an_unknown_index_leaves_its_key ()
  clear quarn
  filled (1);
  lookup_fails (7);
  expect_equal (quarn ('chandleget'), [0; 7]);
  lookup_fails (7);
  quarn ('chandleclear', 7);
  expect_equal (quarn ('chandleget'), 0);
  expect_equal (quarn ('chandleset', 1, 5), 1);
end

function test_a_handle_takes_the_key_that_a_lookup_left ()
  clear quarn
  lookup_fails (0);
  expect_equal (quarn ('chandleset', 1, 'taken'), 0);
  expect_equal (quarn ('chandleget'), 0);
  expect_equal (quarn ('chandleget', 0), 'taken');
end

function test_a_call_on_an_unknown_index_leaves_its_key ()
  clear quarn
  expect_error (@() quarn ('chandleget', @isempty, 4), 'KORV:quarn:NonHandle', 'Handle does not exist');
  expect_equal (quarn ('chandleget'), 4);
end

function test_freeing_an_index_erases_its_key_only ()
  clear quarn
  filled (3);
  quarn ('chandleclear', 1);
  expect_equal (quarn ('chandleget'), [0; 2]);
  expect_equal (quarn ('chandleget', 2), {'handle', 2});
  lookup_fails (1);
  expect_equal (quarn ('chandleset', 1, 'next'), 3);
end

function test_freeing_the_last_issued_index_leaves_the_counter ()
  clear quarn
  filled (3);
  quarn ('chandleclear', 2);
  expect_equal (quarn ('chandleset', 1, 'next'), 3);
end

function test_freeing_the_next_index_lowers_the_counter ()
  clear quarn
  filled (3);
  quarn ('chandleclear', 2);
  quarn ('chandleclear', 3);
  expect_equal (quarn ('chandleget'), [0; 1]);
  expect_equal (quarn ('chandleset', 1, 'next'), 2);
  expect_equal (quarn ('chandleset', 1, 'after'), 3);
end

function test_freeing_the_next_index_lets_the_last_handle_be_overwritten ()
  clear quarn
  filled (3);
  quarn ('chandleclear', 3);
  expect_equal (quarn ('chandleget', 2), {'handle', 2});
  expect_equal (quarn ('chandleset', 1, 'usurper'), 2);
  expect_equal (quarn ('chandleget', 2), 'usurper');
  expect_equal (quarn ('chandleget'), [0; 1; 2]);
  expect_equal (quarn ('chandleget', 1), {'handle', 1});
end

function test_freeing_the_next_index_works_step_by_step_down_to_minus_1 ()
  clear quarn
  filled (2);
  quarn ('chandleclear', 2);
  quarn ('chandleclear', 1);
  quarn ('chandleclear', 0);
  expect_equal (quarn ('chandleget'), zeros (0, 1));
  expect_equal (quarn ('chandleset', 1, 'under zero'), -1);
  expect_equal (quarn ('chandleget', -1), 'under zero');
  expect_equal (quarn ('chandleset', 1, 'zero'), 0);
  expect_equal (quarn ('chandleget'), [-1; 0]);
end

function test_freeing_an_unknown_index_changes_nothing ()
  clear quarn
  filled (2);
  quarn ('chandleclear', 17);
  quarn ('chandleclear', -9);
  quarn ('chandleclear', NaN);
  quarn ('chandleclear', 1e300);
  expect_equal (quarn ('chandleget'), [0; 1]);
  expect_equal (quarn ('chandleset', 1, 5), 2);
end

function test_clear_all_keeps_the_keys_and_the_counter ()
  clear quarn
  filled (3);
  quarn ('chandleclear');
  expect_equal (quarn ('chandleget'), [0; 1; 2]);
  for k = 0:2, lookup_fails (k); end
  expect_equal (quarn ('chandleset', 1, 'next'), 3);
  expect_equal (quarn ('chandleget', 3), 'next');
end

function test_clear_all_twice_destroys_nothing_twice ()
  clear quarn
  filled (3);
  for k = 1:5, quarn ('chandleclear'); end
  quarn ('chandleclear', 1);
  expect_equal (quarn ('chandleget'), [0; 2]);
end

function test_an_argument_without_elements_clears_all ()
  nothing = {[], zeros(0, 3), zeros(3, 0), '', {}, zeros(0, 1, 'int32'), struct('x', {})};
  for k = 1:numel (nothing)
    clear quarn
    filled (2);
    quarn ('chandleclear', nothing{k});
    lookup_fails (0);
    lookup_fails (1);
    expect_equal (quarn ('chandleget'), [0; 1]);
  end
end

function test_index_minus_1_clears_all ()
  for index = [-1 -1.9]
    clear quarn
    filled (2);
    quarn ('chandleclear', index);
    lookup_fails (1);
    expect_equal (quarn ('chandleget'), [0; 1]);
    expect_equal (quarn ('chandleset', 1, 5), 2);
  end
end

function test_only_the_first_index_is_freed ()
  clear quarn
  filled (3);
  quarn ('chandleclear', [1 0 2]);
  expect_equal (quarn ('chandleget'), [0; 2]);
  expect_equal (quarn ('chandleget', 0), {'handle', 0});
end

function test_indices_are_truncated ()
  clear quarn
  filled (3);
  expect_equal (quarn ('chandleget', 1.999), {'handle', 1});
  expect_equal (quarn ('chandleget', -0.5), {'handle', 0});
  expect_equal (quarn ('chandleget', @(v) v{2}, 2.7), 2);
  quarn ('chandleclear', 1.5);
  expect_equal (quarn ('chandleget'), [0; 2]);
end

function test_an_index_that_no_integer_holds_is_the_smallest_integer ()
  clear quarn
  values = [NaN, Inf, -Inf, 1e300, 2147483648, -2147483649];
  for k = 1:numel (values), lookup_fails (values(k)); end
  expect_equal (quarn ('chandleget'), -2147483648);
  lookup_fails (2147483647);
  expect_equal (quarn ('chandleget'), [-2147483648; 2147483647]);
  quarn ('chandleclear', NaN);
  expect_equal (quarn ('chandleget'), 2147483647);
end

function test_clearing_returns_nothing ()
  h = quarn ('chandleset', 1, 5);
  returned = true;
  try
    out = quarn ('chandleclear', h);
  catch
    returned = false;
  end
  expect_equal (returned, false);
  expect_equal (quarn ('chandleset', 1, 5) > h, true);
end

function test_many_handles_live_side_by_side ()
  clear quarn
  n = 5000;
  if ~isempty (getenv ('QUARN_SANITIZED')), n = 1000; end
  for k = 0:n - 1, quarn ('chandleset', 1, k); end
  expect_equal (quarn ('chandleget'), (0:n - 1).' + 0);
  for k = 0:2:n - 1, quarn ('chandleclear', k); end
  expect_equal (quarn ('chandleget'), (1:2:n - 1).' + 0);
  for k = 1:2:n - 1, expect_equal (quarn ('chandleget', k), k); end
end

function test_a_reload_starts_with_an_empty_registry ()
  for k = 1:10
    clear quarn
    expect_equal (quarn ('chandleget'), zeros (0, 1));
    filled (4);
    quarn ('chandleset', 1003, power_element (1, 1, 1));
  end
end

function filled (n)
  for k = 0:n - 1, expect_equal (quarn ('chandleset', 1, {'handle', k}), k); end
end

function lookup_fails (index)
  expect_error (@() quarn ('chandleget', index), 'KORV:quarn:NonHandle', 'Handle does not exist');
end
