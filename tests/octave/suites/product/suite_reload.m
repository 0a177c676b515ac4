% The module is loaded, used with its worker threads, and cleared again and again in one process.
function tests = suite_reload ()
  tests = localfunctions ();
end

function test_the_product_of_these_tests_has_worker_threads ()
  clear ('quarn');
  before = threads ();
  worker_product ();
  expect_equal (threads () > before, true);
  clear ('quarn');
  expect_equal (threads (), before);
end

function n = threads ()
  n = numel (dir ('/proc/self/task'));
end

function test_load_multiply_in_parallel_clear_again_and_again ()
  for k = 1:rounds (300)
    if quarn ('ismex') ~= 1, error ('round %d: not loaded', k); end
    worker_product ();
    clear ('quarn');
  end
end

function test_registry_starts_afresh_behind_a_reload ()
  first = quarn ('chandleset', 1, matrix_lines (eye (2)));
  second = quarn ('chandleset', 2, matrix_lines (eye (2)));
  expect_equal (second, first + 1);
  clear ('quarn');
  expect_equal (quarn ('chandleget'), zeros (0, 1));
  expect_equal (quarn ('chandleset', 1, matrix_lines (eye (2))), 0);
  expect_equal (quarn ('chandleset', 1003, struct ('opt', 1)), 1);
  clear ('quarn');
  expect_error (@() quarn ('chandleget', 0), 'KORV:quarn:NonHandle', 'Handle does not exist');
end

function test_a_method_that_returns_no_index_does_not_mean_the_first_handle ()
  clear ('quarn');
  h = chandle (quarn ('chandleset', 1, matrix_lines (sparse (3))));
  expect_equal (remi (h, 1), 0);
  silent = fullfile (fileparts (which ('registered')), 'silent');
  addpath (silent);
  undo = onCleanup (@() rmpath (silent));
  r = 0;
  expect_refused (@() quarn ('residual', r, h, 1, 0, 0), 'Handle does not exist', 'KORV:quarn:NonHandle');
end

function test_clear_all_with_live_handles_and_workers ()
  n = 6000;
  for k = 1:20
    h = registered ({typed(1, speye (n)), typed(2, sparse ([1 1:n], [2 1:n], ones (1, n + 1), n, n)), spring_element(1, 1, n, [law_code('Power') 2 1])});
    r = zeros (n, 1);
    x = ones (n, 1);
    quarn ('residual', r, h, x, x, x, [0 0]);
    expect_equal (r(3), 2);
    worker_product ();
    clear ('quarn');
  end
end
