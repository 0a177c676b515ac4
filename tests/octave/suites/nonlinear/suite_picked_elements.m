% Elements whose observation and command matrices have one entry a line, or none, against the same matrices with stored zeros, which
% take the way of full rows: the same bits.
function tests = suite_picked_elements ()
  tests = localfunctions ();
end

% Lines with the entry factor(i) in column at(i), none where at(i) is 0; wide: two stored zeros in other columns besides.
function s = lines_of (at, factor, cols, wide)
  ir = [];
  pr = [];
  jc = 0;
  for i = 1:numel (at)
    if at(i) > 0
      ir = [ir; at(i) - 1];
      pr = [pr; factor(i)];
      if wide
        ir = [ir; mod(at(i), cols); mod(at(i) + 1, cols)];
        pr = [pr; 0; 0];
      end
    end
    jc = [jc; numel(ir)];
  end
  s = struct ('ir', int32 (ir), 'jc', int32 (jc), 'pr', pr, 'dims', [numel(at) cols], 'trans', 1);
end

% An element with three pages of n values (its law is a power), run for some steps among 64 modes.
function [u, v, a, e] = run_with (seen, gains, spread, loads, wide, rows)
  n = 64;
  e = struct ('type', 1003, 'c', lines_of (seen, gains, n, wide), 'b', lines_of (spread, loads, n, wide));
  e.opt = [law_code('Power'); 30; 2];
  e.unl = ones (rows, 1, 3) * 77;
  e.vnl = ones (rows, 1, 3) * 77;
  e.snl = ones (rows, 1) * 77;
  e = fresh (e);
  w = linspace (5, 90, n)';
  [in, mem, out] = newmark_setup (ones (n, 1), 0.02 * w, w .^ 2, cos (1:n)', sin (0:20), 1e-2, 0.25, 0.5, 20);
  list = {in, merge_type(matrix_lines (diag (w .^ 2)), 1), merge_type(matrix_lines (diag (0.02 * w)), 3), e};
  [u, v, a] = run_newmark (list, sin (1:n)', cos (1:n)', zeros (n, 1), mem, out);
end

function s = merge_type (s, type)
  s.type = type;
end

function expect_same_run (seen, gains, spread, loads, rows)
  [u, v, a, e] = run_with (seen, gains, spread, loads, false, rows);
  [u2, v2, a2, e2] = run_with (seen, gains, spread, loads, true, rows);
  expect_equal ([u v a], [u2 v2 a2]);
  expect_equal (e.unl, e2.unl);
  expect_equal (e.vnl, e2.vnl);
  expect_equal (e.snl, e2.snl);
  expect_equal (all (isfinite (u)), true);
end

function test_random_picks_equal_full_rows ()
  rand ('twister', 31);
  for k = 1:60
    rows = 1 + floor (6 * rand ());
    seen = floor (65 * rand (rows, 1));
    places = randperm (64);
    spread = places(1:rows)' .* (rand (rows, 1) > 0.2);
    expect_same_run (seen, 2 * rand (rows, 1) - 1, spread, rand (rows, 1) - 0.5, rows);
  end
end

function test_a_line_with_one_entry_and_empty_lines_after_it ()
  expect_same_run (7, -1.5, 9, 0.25, 1);
  expect_same_run ([64; 0; 0], [3; 0; 0], [1; 0; 0], [0.1; 0; 0], 3);
  expect_same_run ([7; 0; 0], [-1.5; 0; 0], [0; 7; 0], [0; 0.25; 0], 3);
  expect_same_run ([0; 7; 0], [0; -1.5; 0], [7; 0; 0], [-1.5; 0; 0], 3);
  expect_same_run ([7; 0], [-1.5; 0], [7; 0], [-1.5; 0], 2);  % one matrix for both
end

function test_an_entry_that_belongs_to_no_line_is_not_observed ()
  e = spring_element (4, 1, 9, [law_code('Power') 2 1]);
  e.c.jc = int32 ([0; 0]);
  seen = evaluate_law (e, ones (9, 1), ones (9, 1));
  expect_equal ([seen.unl seen.vnl], [0 0]);
end

function test_a_matrix_that_nothing_is_observed_through_is_not_read ()
  e = rmfield (spring_element (4, 1, 9, [law_code('Power') 2 1]), {'unl', 'vnl'});
  e.snl = 5 * ones (1, 1);
  e.c.jc = zeros (0, 1, 'int32');
  [unused, r] = evaluate_law (e, ones (9, 1), ones (9, 1));
  expect_equal (r, 5 * ((1:9)' == 4));
end

function test_negative_zeros_become_zeros_whatever_few_entries_add ()
  for places = {4, [4 20]}
    for weight = [0 1]
      at = places{1};
      e = spring_element (at, ones (size (at)), 40, [law_code('Power') 2 1]);
      e.c.pr = weight * e.c.pr;
      r = -zeros (40, 1);
      quarn ('residual', r, registered ({e}), ones (40, 1), zeros (40, 1), []);
      wanted = zeros (40, 1);
      wanted(at) = 2 * weight * numel (at);
      expect_equal (1 ./ r, 1 ./ wanted);
    end
  end
end

function test_forces_on_one_degree_of_freedom_are_summed_first ()
  rand ('twister', 32);
  for k = 1:20
    expect_same_run ([3; 7; 9], rand (3, 1), [5; 5; 5], rand (3, 1) / 7, 3);
  end
end

function test_fewer_lines_than_values_leave_zeros ()
  [~, ~, ~, e] = run_with ([3; 7], [1; -2], [5; 6; 8; 9], [0.1; 0.7; -3; 2], false, 4);
  expect_equal (e.snl(3:4), zeros (2, 1));
  expect_equal (all (e.snl(1:2) ~= 0), true);
  expect_same_run ([3; 7], [1; -2], [5; 6; 8; 9], [0.1; 0.7; -3; 2], 4);
end

function test_more_lines_than_values_reach_into_the_next_page ()
  expect_same_run ([3; 7; 11], [1; -2; 0.25], [5; 6], [0.1; 0.7], 2);
end

function test_a_force_of_zero_adds_nothing_to_an_infinite_command ()
  [u, ~, ~, e] = run_with ([0; 4], [1; 1], [5; 6], [Inf; 1], false, 2);
  expect_equal (e.snl(1), 0);
  expect_equal (all (isfinite (u)), true);
end

% Arrays that share memory: slices of vectors do, in Octave.
function expect_same_with_shared (share)
  n = 64;
  for wide = [false true]
    e = struct ('type', 1003, 'c', lines_of ([2; 3], [1; 1], n, wide), 'opt', [law_code('Power'); 1; 1]);
    w = linspace (5, 90, n)';
    [in, mem, out] = newmark_setup (ones (n, 1), 0.02 * w, w .^ 2, cos (1:n)', sin (0:3), 1e-2, 0.25, 0.5, 3);
    u = (1:n)' * 1.5;
    v = zeros (n, 1) + 0.25;
    a = zeros (n, 1);
    if strcmp (share, 'unl')
      e.b = lines_of ([5; 6], [1; 1], n, wide);
      e.snl = zeros (2, 1);
      e.unl = u(2:3);
    elseif strcmp (share, 'vnl')
      e.b = lines_of ([5; 6], [1; 1], n, wide);
      e.unl = zeros (2, 1);
      e.snl = zeros (2, 1);
      e.vnl = v(2:3);
    else
      e.b = lines_of ([6; 5], [1; 1], n, wide);
      e.unl = ones (2, 1) * 7;
      work = mem.uva.uva;
      e.snl = work(3 * n + 5:3 * n + 6);
      clear work
    end
    quarn ('chandlediagnewmark', {in, e}, struct ('K', []), u, v, a, [0 0], mem, out);
    got{1 + wide} = [u v a];
  end
  expect_equal (got{1}, got{2});
end

function test_observed_values_in_the_memory_of_the_state ()
  expect_same_with_shared ('unl');
end

function test_observed_velocities_in_the_memory_of_the_state ()
  expect_same_with_shared ('vnl');
end

function test_forces_in_the_memory_of_the_residual ()
  expect_same_with_shared ('snl');
end

function test_weights_in_the_memory_of_the_observed_velocities_are_cleared_with_them ()
  % The page is set to zero before the product, and with it the weights: nothing is observed.
  n = 64;
  w = linspace (5, 90, n)';
  shared = (1:8)' + 0;
  e = struct ('type', 1003, 'c', lines_of ([2; 3], [1; 1], n, false), 'opt', [law_code('Power'); 1; 1]);
  e.unl = ones (2, 1) * 7;
  e.snl = ones (2, 1) * 7;
  e.c.pr = shared(3:4);
  e.vnl = shared(3:4);
  if ~isequal (address_of (e.c.pr), address_of (e.vnl)), skip_test ('slices of a vector have memory of their own here'); end
  [in, mem, out] = newmark_setup (ones (n, 1), 0.02 * w, w .^ 2, cos (1:n)', sin (0:3), 1e-2, 0.25, 0.5, 3);
  quarn ('chandlediagnewmark', {in, e}, struct ('K', []), (1:n)' * 1.5, ones (n, 1) * 0.25, zeros (n, 1), [0 0], mem, out);
  expect_equal (e.unl, [0; 0]);
  expect_equal (e.vnl, [0; 0]);
end

function test_a_force_of_zero_adds_nothing_to_an_infinite_command_of_any_form ()
  % One entry a line, two of them, a line that holds every column; in a residual and in a run.
  n = 40;
  for entries = [1 2 n]
    e = spring_element (1, 1, n, [law_code('Power') 2 1]);
    e.b = matrix_lines ([Inf, ones(1, entries - 1), zeros(1, n - entries)], true);
    [unused, r] = evaluate_law (e, zeros (n, 1), zeros (n, 1));
    expect_equal (r, zeros (n, 1));
    integrator = struct ('type', 2000, 'r', [zeros(n, 1), ones(n, 1)], 'tft', [0 1], 'data', [0 0 0 0 1 0]);
    mem = struct ('uva', struct ('uva', zeros (4 * n, 1)));
    a = zeros (n, 1);
    quarn ('chandlediagnewmark', {integrator, fresh(e)}, struct (), zeros (n, 1), zeros (n, 1), a, [0 0], mem, struct ());
    expect_equal (abs (a), zeros (n, 1));
  end
end

function test_an_empty_force_on_a_full_row_is_refused ()
  e = struct ('b', struct ('pr', [1 2], 'dims', [1 2], 'trans', 1), 'StoreFNL', 0);
  r = zeros (2, 1);
  for empty = {[], struct('snl', [])}
    e.Fu = @(varargin) empty{1};
    expect_error (@() quarn ('residual', r, nl_model (e), [1; 2], [0; 0], [], [], []), '', ...
      'quarn residual : the force vector must hold 1 values (the one that a full row uses), got 0');
  end
  e.b.dims = [1 0];
  quarn ('residual', r, nl_model (e), [1; 2], [0; 0], [], [], []);
  expect_equal (r, [0; 0]);
end
