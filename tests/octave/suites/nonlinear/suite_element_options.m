% The options of the nonlinear element: selection of the law, stores into the force vector and the state, the end of a step, refusals.
function tests = suite_element_options ()
  tests = localfunctions ();
end

function e = element (opt)
  e = spring_element (1, 1, 2, opt);
end

function refused (e, id, text)
  expect_refused (@() evaluate_law (e, [1; 2], [3; 4]), text, id);
end

function test_missing_parameters ()
  e = element ([1 2]);
  refused (rmfield (e, 'opt'), 'KORV:quarn:empty', 'ReportEB opt');
  e.opt = [];
  refused (e, 'KORV:quarn:empty', 'ReportEB opt');
  e.iopt = 1;
  refused (e, 'KORV:quarn:empty', 'ReportEB opt');
end

function test_integer_options_must_be_int32 ()
  e = element ([law_code('Power') 1 1]);
  for wrong = {1, int64(1), 'a', {1}}
    e.iopt = wrong{1};
    refused (e, 'KORV:quarn:conform', 'iopt must be int32');
  end
  e.opt = 1;
  refused (e, 'KORV:quarn:conform', 'iopt must be int32');
end

function test_power_needs_three_parameters ()
  code = law_code ('Power');
  refused (element (code), 'KORV:quarn:empty', 'FuPower requires 3 parameters');
  refused (element ([code 2]), 'KORV:quarn:empty', 'FuPower requires 3 parameters');
  got = evaluate_law (element ([code 2 3]), [2; 0], [0; 0]);
  expect_equal (got.snl, 16);
end

function test_a_force_for_each_observed_value_is_needed_without_a_command_matrix_too ()
  for word = {'Power', 'Expon'}
    e = rmfield (element ([law_code(word{1}) 2 3]), 'b');
    e.unl = zeros (2, 1);
    e.vnl = zeros (2, 1);
    refused (e, '', 'quarn residual : element 1 : snl must hold 2 values (as many as a page of unl), got 1');
  end
end

function test_laws_with_pages_refuse_a_flat_state ()
  for word = {'DahlC', 'Clima2'}
    refused (element ([law_code(word{1}) ones(1, 20)]), 'KORV:quarn:empty', 'Incorrect unl');
  end
end

function test_unknown_codes ()
  sts = law_code ('sts');
  for code = {0, 1, NaN, Inf, -Inf, -sts, 1e300, sts - 0.5, sts + 1, law_code('power'), law_code('STS'), law_code('FuFric')}
    refused (element ([code{1} 1 1 1 1 1 1]), 'KORV:quarn:empty', 'Unknown .opt(1) choice');
  end
end

function test_code_is_truncated ()
  expect_equal (law_code ('Power'), 491328597840);
  got = evaluate_law (element ([law_code('Power') + 0.75, 2, 3]), [2; 0], [0; 0]);
  expect_equal (got.snl, 16);
end

% One step of a run with the element alone; states in rows of u after the single mode.
function [run, got] = one_step (e, ndof, fnl)
  [integrator, mem, out] = newmark_setup (1, 0, 0, 1, [0 0], 0.5, 0.25, 0.5, 2, ndof);
  run = struct ('model', struct ('FNL', -ones (fnl, 1)), 'u', (1:ndof)' * 1.5, 'v', -(1:ndof)' * 0.5, 'a', zeros (ndof, 1), 'opt', [0 0]);
  run.mem = mem;
  run.out = out;
  run.list = {integrator, e};
  run = fresh (run);
  got = same_as_model (run);
end

function test_forces_go_into_the_force_store ()
  for offset = [0 2]
    e = spring_element (1, 1, 2, [law_code('Power') 2 1], int32 (offset));
    [run, got] = one_step (e, 2, 4);
    wanted = -ones (4, 1);
    wanted(offset + 1) = got.list{2}.snl;
    expect_equal (got.model.FNL, wanted);
  end
end

function test_negative_offset_or_no_options_suppress_the_store ()
  e = spring_element (1, 1, 2, [law_code('Power') 2 1], int32 (-1));
  [run, got] = one_step (e, 2, 4);
  expect_equal (got.model.FNL, -ones (4, 1));
  [run, got] = one_step (rmfield (e, 'iopt'), 2, 4);
  expect_equal (got.model.FNL, -ones (4, 1));
end

function test_force_store_behind_its_end_is_left_out ()
  e = spring_element (1, 1, 2, [law_code('Power') 2 1], int32 (4));
  [run, got] = one_step (e, 2, 4);
  expect_equal (got.model.FNL, -ones (4, 1));
end

function test_every_state_block_goes_to_the_same_place ()
  % Two pairs: observed in rows 1 and 3, states (equal to the forces) in rows 2 and 4; each block is one value
  % after one skipped value.
  e = state_element ('DahlC', [0.5 10 1 4 2], [-1 5 1 1 2], 4, 2);
  e.c = matrix_lines ([eye(4) zeros(4, 3)], true);
  e.b = e.c;
  [run, got] = one_step (e, 7, 0);
  forces = got.list{2}.snl;
  expect_equal (got.u(6), forces(3));
  expect_equal (got.u(7), run.u(7));
  if forces(1) == forces(3), error ('the two blocks hold the same value'); end
end

function test_state_store_needs_a_positive_offset_and_blocks ()
  for iopt = {[-1 0 1 1 2], [-1 -3 1 1 2], [-1 5 1 1 0], [-1 5 1 0 2]}
    e = state_element ('DahlC', [0.5 10 1 4 2], iopt{1}, 4, 2);
    e.c = matrix_lines ([eye(4) zeros(4, 3)], true);
    e.b = e.c;
    [run, got] = one_step (e, 7, 0);
    expect_equal (got.u(2:7), run.u(2:7));
  end
end

% Blocks that step on by one value each, from far in front of unl to its beginning: the call took 20 s and more.
function test_counts_of_states_beyond_the_arrays_hold_no_call ()
  e = state_element ('DahlC', [0.5 10 1 4 2], [-1 2 -2^31+2 2^31-1 2^31-1], 4, 2);
  begun = cputime ();
  [got, ~, u] = evaluate_law (e, (1:4)', ones (4, 1));
  if cputime () - begun > 2, error ('it took %g s', cputime () - begun); end
  expect_equal (u, [1; 2; reshape(got.unl(1:2), 2, 1)]);
end

% An element of LENGTH observed values and PAGES pages that holds 101, 102, ... after the first page.
function e = paged_element (len, pages)
  line = [ones(len, 1), zeros(len, 1)];
  e = struct ('type', 1003, 'c', matrix_lines (line, true), 'b', matrix_lines (line, true), 'opt', [law_code('Power'); 0; 1], 'snl', zeros (len, 1));
  e.unl = reshape (100 + (1:len * pages), len, 1, pages);
  e.vnl = reshape (200 + (1:len * pages), len, 1, pages);
  e = fresh (e);
end

function test_end_of_step_copies_from_twice_the_number_of_pages ()
  [run, got] = one_step (paged_element (5, 3), 2, 0);
  expect_equal (got.list{2}.unl(1:5), 107:111);
  expect_equal (got.list{2}.vnl(1:5), 207:211);
  expect_equal (got.list{2}.unl(6:15), 106:115);
  [run, got] = one_step (paged_element (7, 2), 2, 0);
  expect_equal (got.list{2}.unl(4:7), 108:111);
end

function test_end_of_step_leaves_out_what_lies_behind_the_end ()
  % 3 pages of 3: values 7 to 9 are there for a copy of 3; 3 pages of 2: nothing is.
  [run, got] = one_step (paged_element (3, 3), 2, 0);
  expect_equal (got.list{2}.unl(1:3), 107:109);
  [run, got] = one_step (paged_element (2, 3), 2, 0);
  observed = got.list{2}.unl(1);
  expect_equal (got.list{2}.unl(1:6), [observed observed 103:106]);
  % 4 pages of 3: from value 9 on, 3 pages of 2 with a longer vnl.
  e = paged_element (2, 3);
  e.vnl = fresh (200 + (1:9)');
  [run, got] = one_step (e, 2, 0);
  expect_equal (got.list{2}.vnl(1:2), [207; 208]);
end

function test_end_of_step_of_a_flat_state_does_nothing ()
  [run, got] = one_step (paged_element (5, 1), 2, 0);
  observed = got.list{2}.unl(1);
  expect_equal (got.list{2}.unl, observed * ones (5, 1));
end

function test_sizes_that_do_not_fit_are_refused ()
  good = spring_element (2, 1, 2, [law_code('Power') 2 1]);
  bad = cell (0, 2);
  e = good; e.c.ir(1) = int32 (2); bad(end + 1, :) = {e, 'c : index 2 in "ir" reaches past v of 2 values'};
  e = good; e.c.ir(1) = int32 (-1);
  bad(end + 1, :) = {e, 'c : index -1 in "ir", expected 0 or more (the matrix was marked as diagonal by a handle)'};
  e = good; e.c.jc(2) = int32 (5); bad(end + 1, :) = {e, 'c : "jc" ends at 5 entries, "ir" and "pr" hold 1 and 1'};
  e = good; e.c = ones (1, 3);
  bad(end + 1, :) = {e, 'the observed vector must hold 3 values (one for each column of the observation matrix), got 2'};
  e = good; e.c = matrix_lines (ones (2, 2), true); bad(end + 1, :) = {e, 'vnl must hold 2 values (one for each row of c), got 1'};
  e = good; e.c = struct ('pr', 1, 'dims', [1 2]); bad(end + 1, :) = {e, 'c must hold 2 values (rows x cols of them), got 1'};
  e = good; e.b.ir(1) = int32 (7); bad(end + 1, :) = {e, 'b : index 7 in "ir" reaches past its own columns of 2 values'};
  e = good; e.b = matrix_lines (ones (2, 2), true); bad(end + 1, :) = {e, 'snl must hold 2 values (one for each line of b), got 1'};
  e = good; e.b = matrix_lines (ones (1, 4), true); bad(end + 1, :) = {e, 'the residual must hold 4 values (one for each column of b), got 2'};
  e = good; e.b = struct ('pr', ones (4, 1), 'dims', [1 4], 'trans', 1);
  bad(end + 1, :) = {e, 'the residual must hold 4 values (one for each column of the command matrix), got 2'};
  e = good; e.unl = zeros (3, 1); bad(end + 1, :) = {e, 'vnl must hold 3 values (as many as a page of unl), got 1'};
  e = good; e.opt = [law_code('Expon'); 1]; bad(end + 1, :) = {e, 'opt must hold 3 values (code, coefficient, base), got 2'};
  e = good; e.opt = [law_code('Table'); 1; 1]; bad(end + 1, :) = {e, 'iopt must hold 9 values (entries 6 to 9 place the table), got 0'};
  e = good; e.unl = int32 (1); bad(end + 1, :) = {e, 'unl must be a full real double array, got int32 1x1'};
  e = good; e.snl = {1}; bad(end + 1, :) = {e, 'snl must be a full real double array, got cell 1x1'};
  e = good; e.vnl = 'velocity'; bad(end + 1, :) = {e, 'vnl must be a full real double array, got char 1x8'};
  for k = 1:size (bad, 1)
    r = ones (2, 1) * 3;
    h = registered (bad(k, 1));
    expect_refused (@() quarn ('residual', r, h, ones (2, 1), ones (2, 1), ones (2, 1), [0 0]), ['quarn residual : element 1 : ' bad{k, 2}]);
    expect_equal (r, ones (2, 1) * 3);
  end
end

function test_observation_that_reaches_past_shorter_velocities_is_refused ()
  h = registered ({spring_element(3, 1, 3, [law_code('Power') 2 1])});
  expect_refused (@() quarn ('residual', zeros (3, 1), h, ones (3, 1), ones (2, 1), [], [0 0]), ...
                  'quarn residual : element 1 : c : index 2 in "ir" reaches past v of 2 values');
end

function test_a_block_of_states_longer_than_unl_ends_with_it ()
  e = state_element ('sts', [1 0 0 10 0], [-1 1 0 4 1], 2);
  [e, ~, u] = evaluate_law (e, [1; 2; 3; 4; 5], zeros (5, 1));
  expect_equal (u, [1; 1; 2; 4; 5]);
end

function test_extents_that_no_integer_holds_are_refused ()
  e = spring_element (2, 1, 2, [law_code('Power') 2 1]);
  e.unl = zeros (65536, 65536, 0);
  r = ones (2, 1) * 3;
  expect_refused (@() quarn ('residual', r, registered ({e}), ones (2, 1), ones (2, 1), ones (2, 1), [0 0]), ...
                  'quarn residual : element 1 : unl holds 4294967296 values, expected fewer than 2^31');
  expect_equal (r, ones (2, 1) * 3);
end

function test_a_refusal_names_the_element_of_the_list ()
  run = small_run ();
  run.list{4} = spring_element (1, 1, 3, [law_code('Power') 2 1]);
  run.list{5} = spring_element (1, 1, 3, [law_code('Expon') 2]);
  expect_error (@() run_small (run), '', '~^quarn chandlediagnewmark : element 5 : opt must hold 3 values');
  run.list{5} = 7;
  expect_error (@() run_small (run), '', '~^quarn chandlediagnewmark : element 5 : expected a struct with a field "type", got double 1x1$');
  run.list{5} = struct ('opt', 1);
  expect_error (@() run_small (run), '', '~got struct 1x1 without one$');
end

function test_one_array_for_unl_and_vnl_is_refused_where_a_law_has_states ()
  run = small_run ();
  e = spring_element (1, 1, 3, [law_code('DahlC') 1e-3 1 1 1 1 1]);
  shared = zeros (2, 1, 2);
  e.unl = shared;
  e.vnl = shared;
  e.iopt = int32 ([-1 0 0 0 0]);
  run.list{4} = e;
  expect_error (@() run_small (run), '', '~element 4 : "unl" and "vnl" are one array');
end

function test_an_observation_buffer_that_is_the_state_is_refused ()
  run = small_run ();
  e = spring_element (1, 1, 3, [law_code('Power') 2 1]);
  e.unl = run.u;
  run.list{4} = e;
  before = run.u + 0;
  expect_error (@() quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out), '', ...
                '~element 4 : "unl" and u, v or a are one array');
  expect_equal (run.u, before);
end

function test_a_search_record_on_the_table_is_refused ()
  run = small_run ();
  e = spring_element (1, 1, 3, [law_code('Table') 0 1 0 1 0 0 0]);
  e.iopt = int32 ([-1 0 0 0 0 1 4 2 1]);
  run.list{4} = e;
  expect_error (@() run_small (run), '', '~element 4 : the search record at opt\(5\) to \(7\) lies on the table at opt\(2\) to \(5\)');
end

function test_a_table_outside_its_parameters_is_refused ()
  run = small_run ();
  wrong = {[-1 5 2 1], 'iopt(6:8) must not be negative, got -1 5 2'; ...
           [1 -5 2 1], 'iopt(6:8) must not be negative, got 1 -5 2'; ...
           [1 5 -2 1], 'iopt(6:8) must not be negative, got 1 5 -2'; ...
           [5 1 2 1], 'a table of 2 knots and 1 columns at opt(6) ends beyond opt of 8 values'; ...
           [1 5 2147483647 1], 'a table of 2147483647 knots and 1 columns at opt(2) ends beyond opt of 8 values'; ...
           [1 6 2 1], 'the search record at opt(7) ends beyond opt of 8 values'};
  for k = 1:size (wrong, 1)
    e = spring_element (1, 1, 3, [law_code('Table') 0 1 0 1 0 0 0]);
    e.iopt = int32 ([-1 0 0 0 0 wrong{k, 1}]);
    run.list{4} = e;
    refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, '', ...
                     ['quarn chandlediagnewmark : element 4 : ' wrong{k, 2}]);
  end
end

function run_small (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end
