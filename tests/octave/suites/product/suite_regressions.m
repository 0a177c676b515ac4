% What once ended the host, one test each, named after what broke.
function tests = suite_regressions ()
  tests = localfunctions ();
end

function x = clear_the_module (varargin)
  clear ('quarn');
  x = numel (quarn ('chandleget'));
  worker_product ();
end

function clear_and_fail (varargin)
  clear ('quarn');
  error ('own:identifier', 'own text');
end

function test_clearing_the_module_in_its_own_callback ()
  clear ('quarn');  % and with it what earlier suites of the process left
  for k = 1:10
    h = quarn ('chandleset', 1, struct ('round', k));
    expect_equal (quarn ('chandleget', @clear_the_module, h), 1);
    worker_product ();
    expect_equal (quarn ('chandleget', h), struct ('round', k));
    clear ('quarn');
    expect_equal (quarn ('chandleget'), zeros (0, 1));
  end
end

function test_clearing_the_module_in_a_callback_that_fails ()
  h = quarn ('chandleset', 1, struct ('a', 5));
  for k = 1:3, expect_error (@() quarn ('chandleget', @clear_and_fail, h), 'own:identifier', 'own text'); end
  expect_equal (quarn ('chandleget', h), struct ('a', 5));
  expect_equal (mislocked ('quarn'), false);
  clear ('quarn');
  expect_equal (quarn ('chandleget'), zeros (0, 1));
end

function test_clearing_the_module_in_a_law_of_an_element ()
  e = struct ('b', matrix_lines (speye (3)), 'StoreFNL', 0);
  e.Fu = @(varargin) clear_the_module () + [1; 2; 3];
  h = quarn ('chandleset', 1, struct ('a', 5));
  for k = 1:3
    r = zeros (3, 1);
    quarn ('residual', r, nl_model (e, e), ones (3, 1), ones (3, 1), ones (3, 1), [], []);
    expect_equal (r, 2 * (1 + [1; 2; 3]));
  end
  expect_equal (quarn ('chandleget', h), struct ('a', 5));
end

function test_freeing_a_value_whose_clean_up_frees_handles ()
  for k = 1:5
    quarn ('chandleset', 1, struct ('c', onCleanup (@() quarn ('chandleclear'))));
    quarn ('chandleset', 1, struct ('q', rand (1000, 1)));
    quarn ('chandleclear');
    value = struct ('q', rand (1000, 1));
    kept = quarn ('chandleset', 1, value);
    h = quarn ('chandleset', 1, struct ('c', onCleanup (@() quarn ('chandleclear', kept + 1))));
    expect_equal (h, kept + 1);
    quarn ('chandleclear', h);
    expect_equal (quarn ('chandleget', kept), value);
  end
end

function test_handles_freed_while_their_value_is_copied ()
  value = {rand(1000, 1), frees_handles(), rand(1000, 1)};
  h = quarn ('chandleset', 1, value);
  h = quarn ('chandleset', 1, value);
  copy = quarn ('chandleget', h);
  expect_equal (copy{3}, value{3});
  expect_error (@() quarn ('chandleget', h), 'KORV:quarn:NonHandle', 'Handle does not exist');
end

function test_method_struct_of_a_v_handle_while_handles_are_gathered ()
  place = fullfile (fileparts (which ('fresh')), 'own_methods');
  addpath (place);
  back = onCleanup (@() rmpath (place));
  e = spring_element (1, 1, 3, [law_code('Power') 1 1]);
  e.b = v_handle (e.b);
  h = registered ({e, e, typed(1, magic (3))});
  r = zeros (3, 1);
  quarn ('residual', r, h, ones (3, 1), zeros (3, 1), zeros (3, 1));
  expect_equal (r, [17; 15; 15]);
end

function test_sub_steps_of_maxw_that_turn_up_in_shared_memory ()
  n = 30;
  [integrator, mem, out] = newmark_setup (ones (n, 1), zeros (n, 1), ones (n, 1), ones (n, 1), 0:3, 0.1, 0.25, 0.5, 1:4);
  e = state_element ('Maxw', [0.1; 0; 0; ones(26, 1)], [-1 -100000 2000000 10 1000], 2, 3);
  e = rmfield (e, {'b', 'c'});
  u = zeros (n, 1);
  u([1 3]) = [law_code('Maxw') 0.1];
  v = zeros (n, 1);
  v(4) = 1e3;
  e.opt = u;  % opt(4), the number of sub-steps, is u(4): 0 before the first step and 100 in it
  a = zeros (n, 1);
  try
    quarn ('chandlediagnewmark', {integrator, e}, struct ('K', []), u, v, a, zeros (1, 2), mem, out);
  catch err  % a build that checks every step refuses it
    if isempty (regexp (err.message, 'must hold', 'once')), rethrow (err); end
  end
  expect_equal (u(4) >= 1, true);
  expect_equal (e.snl, zeros (2, 1));
end

function test_two_billion_idle_blocks_of_states ()
  for iopt = {[-1 3 1 1 2e9], [-1 3 0 1 2e9], [-1 3 -1 1 2e9], [-1 3 -3 1 2e9], [-1 3 0 0 2e9], [-1 3 1 -1 2e9]}
    e = state_element ('DahlC', [0.1; 3; 1; 0.5; 2], iopt{1}, 2, 3);
    quick = e;
    quick.iopt(5) = min (e.iopt(5), 20);
    e = fresh (e);
    wanted = evaluated (quick);
    start = cputime ();
    got = evaluated (e);
    if cputime () - start > 2, error ('%g s for blocks that copy nothing', cputime () - start); end
    expect_equal (got, wanted);
  end
end

function u = evaluated (e)
  u = (1:6).' + 0;
  line = matrix_lines (eye (2, 6), true);
  e.c = line;
  e.b = line;
  quarn ('residual', zeros (6, 1), registered ({e}), u, ones (6, 1), zeros (6, 1));
end

function test_values_nested_too_deep_for_the_stack ()
  value = {};
  for k = 1:2000, value = {value}; end
  h = quarn ('chandleset', 1, value);
  expect_equal (numel (quarn ('chandleget', h)), 1);
  value = {value};
  expect_refused (@() quarn ('chandleset', 1, value), '~^quarn chandleset : a value may be nested 2000 levels deep');
  for k = 1:20000, value = {value}; end
  expect_refused (@() quarn ('chandleset', 1, value), '~^quarn chandleset : a value may be nested 2000 levels deep');
end
