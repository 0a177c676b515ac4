% Stiffness, mass and damping handles through "residual", and the marker that gathering writes into diagonal matrices.
function tests = suite_sparse_handles ()
  tests = localfunctions ();
end

% Contribution of one handle, added to R.
function r = contribution (code, matrix, u, v, a, opt, r)
  if nargin < 7, r = zeros (numel (u), 1); end
  r = fresh (r);
  i = quarn ('chandleset', code, matrix);
  quarn ('residual', r, chandle (i), u, v, a, opt);
  quarn ('chandleclear', i);
end

function a = unsymmetric ()
  a = sparse ([1 2 3 1 3], [1 1 2 3 3], [2 -1 5 4 3], 3, 3);
end

function test_each_column_is_one_dot_product ()
  a = unsymmetric ();
  s = matrix_lines (a);
  x = [1; 2; 3];
  other = [7; 11; -13];
  expect_equal (contribution (1, s, x, other, other, [0 0]), full (a' * x));
  expect_equal (contribution (2, s, other, other, x, [0 0]), full (a' * x));
  expect_equal (contribution (3, s, other, x, other, [0 0]), full (a' * x));
end

function test_contributions_are_added_to_what_the_vector_holds ()
  a = unsymmetric ();
  x = [1; 2; 3];
  for code = 1:3
    expect_equal (contribution (code, matrix_lines (a), x, x, x, [0 0], [10; 20; 30]), [10; 20; 30] + full (a' * x));
  end
end

function test_rayleigh_pair_adds_alpha_mass_and_beta_stiffness_times_velocity ()
  a = unsymmetric ();
  u = [1; 2; 3];
  v = [-1; 0.5; 4];
  expect_equal (contribution (1, matrix_lines (a), u, v, u, [8 0.25]), full (a' * u + (a' * v) * 0.25));
  expect_equal (contribution (2, matrix_lines (a), v, v, u, [0.125 9]), full (a' * u + (a' * v) * 0.125));
  expect_equal (contribution (3, matrix_lines (a), u, v, u, [3 4]), full (a' * v));
  pair = struct ('Rayleigh', [0.125 0.25]);
  expect_equal (contribution (1, matrix_lines (a), u, v, u, pair), full (a' * u + (a' * v) * 0.25));
  expect_equal (contribution (2, matrix_lines (a), v, v, u, struct ('other', 1)), full (a' * u));
end

function test_zero_coefficient_skips_the_rayleigh_columns_of_a_sparse_matrix ()
  s = matrix_lines (unsymmetric ());
  x = [1; 2; 3];
  bad = [Inf; NaN; Inf];
  expect_equal (contribution (1, s, x, bad, x, [1 0]), full (unsymmetric ()' * x));
  expect_equal (contribution (2, s, x, bad, x, [0 1]), full (unsymmetric ()' * x));
end

function test_zero_coefficient_still_multiplies_in_a_diagonal_matrix ()
  s = matrix_lines (diag ([2 3 4]));
  x = [1; 2; 3];
  bad = [Inf; 0; 1];
  expect_equal (contribution (1, s, x, bad, x, [1 0]), [NaN; 6; 12]);
  expect_equal (contribution (2, s, x, bad, x, [0 1]), [NaN; 6; 12]);
end

function test_diagonal_products ()
  d = [2; 3; 4];
  u = [1; 2; 3];
  v = [-1; 0.5; 4];
  s = matrix_lines (diag (d));
  expect_equal (contribution (1, s, u, v, u, [8 0.25]), d .* (u + 0.25 * v));
  expect_equal (contribution (2, s, v, v, u, [0.5 9]), d .* (u + 0.5 * v));
  expect_equal (contribution (3, s, u, v, u, [3 4]), d .* v);
end

function test_as_many_entries_as_columns_means_diagonal_wherever_they_lie ()
  a = sparse ([2 3 1], [1 1 3], [2 3 4], 3, 3);
  x = [1; 10; 100];
  for code = 1:3
    expect_equal (contribution (code, matrix_lines (a), x, x, x, [0 0]), [2; 30; 400]);
  end
end

function test_marker_is_written_into_the_value_of_the_handle_not_into_its_source ()
  s = matrix_lines (diag ([2 3 4]));
  for code = 1:3
    i = quarn ('chandleset', code, s);
    before = quarn ('chandleget', i);
    expect_equal (before.ir, int32 ([0; 1; 2]));
    for again = 1:2
      r = zeros (3, 1);
      quarn ('residual', r, chandle (i), ones (3, 1), ones (3, 1), ones (3, 1), [0 0]);
      expect_equal (r, [2; 3; 4]);
      after = quarn ('chandleget', i);
      expect_equal (after.ir, int32 ([-1; 1; 2]));
    end
    expect_equal (s.ir, int32 ([0; 1; 2]));
    expect_equal (before.ir, int32 ([0; 1; 2]));
  end
end

function test_marker_is_written_into_the_callers_cell_element ()
  run = small_run ();
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  expect_equal (run.list{2}.ir, int32 ([-1; 1; 2]));
  expect_equal (run.list{3}.ir, int32 ([0; 2]));
end

function test_matrix_with_another_count_of_entries_is_not_marked ()
  for a = {unsymmetric(), sparse([1 3], [1 3], [5 6], 3, 3)}
    i = quarn ('chandleset', 1, matrix_lines (a{1}));
    r = zeros (3, 1);
    quarn ('residual', r, chandle (i), [1; 2; 3], zeros (3, 1), zeros (3, 1), [0 0]);
    s = quarn ('chandleget', i);
    expect_equal (s.ir, matrix_lines (a{1}).ir);
    expect_equal (r, full (a{1}' * [1; 2; 3]));
  end
end

function test_entries_are_counted_against_columns_not_rows ()
  a = sparse ([1 2 4], [1 2 3], [5 6 7], 4, 3);
  x = [1; 10; 100];
  expect_equal (contribution (1, matrix_lines (a), x, x, x, [0 0]), [5; 60; 700]);
end

function test_empty_acceleration_skips_the_whole_mass_handle ()
  for matrix = {matrix_lines(unsymmetric()), matrix_lines(eye (3))}
    expect_equal (contribution (2, matrix{1}, ones (3, 1), ones (3, 1), [], [0.5 0.5], [1; 2; 3]), [1; 2; 3]);
  end
end

function test_damping_without_entries_adds_nothing ()
  s = matrix_lines (sparse (3, 3));
  bad = NaN (3, 1);
  expect_equal (contribution (3, s, bad, bad, bad, [0 0], [1; 2; 3]), [1; 2; 3]);
  reserved = struct ('ir', int32 ([5; 6]), 'jc', int32 (zeros (4, 1)), 'pr', [1; 1], 'dims', [3 3], 'trans', 0);
  expect_equal (contribution (3, reserved, bad, bad, bad, [0 0], [1; 2; 3]), [1; 2; 3]);
end

function test_loops_run_over_the_displacements_not_the_matrix ()
  a = sparse ([1 2 1 2 3], [1 1 2 2 3], [2 1 4 3 9], 3, 3);
  x = [1; 10];
  for code = 1:3
    expect_equal (contribution (code, matrix_lines (a), x, x, x, [0 0]), [12; 34]);
  end
  diagonal = matrix_lines (diag ([2 3 4]));
  for code = 1:3
    expect_equal (contribution (code, diagonal, x, x, x, [0 0]), [2; 30]);
  end
end

function test_stiffness_or_damping_without_index_array_adds_nothing ()
  x = [1; 2; 3];
  for code = [1 3]
    expect_equal (contribution (code, magic (3), x, x, x, [0 1], [1; 2; 3]), [1; 2; 3]);
    expect_equal (contribution (code, struct ('dims', [3 3]), x, x, x, [0 1], [1; 2; 3]), [1; 2; 3]);
    expect_equal (contribution (code, matrix_lines (sparse (3, 3)), x, x, x, [0 1], [1; 2; 3]), [1; 2; 3]);
  end
end

function test_mass_without_values_or_indices ()
  x = [1; 2; 3];
  for value = {struct('dims', [3 3]), matrix_lines(sparse (3, 3)), zeros(0, 0)}
    expect_error (@() contribution (2, value{1}, x, x, x, [0 0]), 'KORV:quarn:empty', 'no real part');
  end
  for value = {eye(3), struct('pr', ones (9, 1), 'dims', [3 3])}
    expect_error (@() contribution (2, value{1}, x, x, x, [0 0]), 'KORV:quarn:empty', 'Error not a valid mass');
  end
end

function test_diagonal_stiffness_needs_as_many_velocities_as_rows ()
  h = registered ({typed(1, diag ([1 2 3]))});
  r = zeros (3, 1) + 5;
  expect_error (@() quarn ('residual', r, h, [1; 2; 3], [4; 5], [], [0 0]), '', ...
                'quarn residual : element 1 : v must hold 3 values (one for each row of u), got 2');
  expect_equal (r, [5; 5; 5]);
end

function test_damping_without_entries_looks_at_nothing_and_keeps_negative_zeros ()
  % One value is stored, and no line reaches it.
  h = registered ({struct('type', 3, 'ir', int32 (0), 'jc', zeros (4, 1, 'int32'), 'pr', 5, 'dims', [3 3])});
  r = -zeros (3, 1);
  quarn ('residual', r, h, [1; 2; 3], [4; 5], [], [0 0]);
  expect_equal (r, [-0; -0; -0]);
end

function test_native_sparse_matrix_is_refused_when_it_is_used ()
  for code = 1:3
    i = quarn ('chandleset', code, speye (3));
    x = ones (3, 1);
    expect_error (@() quarn ('residual', zeros (3, 1), chandle (i), x, x, x, [0 0]), '', 'ir must be int32');
  end
end

function test_matrix_that_does_not_fit_is_refused_and_the_vector_kept ()
  short = matrix_lines (unsymmetric ());
  outside = short;
  outside.ir(2) = int32 (3);
  backwards = short;
  backwards.jc(2) = int32 (6);
  cut = short;
  cut.pr = cut.pr(1:4);
  names = {'stiffness', 'mass', 'damping'};
  trials = {short, 4, '"jc" must hold 5 line pointers for 4 lines, got 4'; outside, 3, 'index 3 in "ir" reaches past %s of 3 values'; ...
            backwards, 3, '"jc" must ascend, got 3 after 6 at position 3'; cut, 3, '"jc" ends at 5 entries, "ir" and "pr" hold 5 and 4'};
  vectors = 'uav';
  for k = 1:size (trials, 1)
    for code = 1:3
      n = trials{k, 2};
      r = ones (n, 1) * 7;
      x = ones (n, 1);
      i = quarn ('chandleset', code, trials{k, 1});
      wanted = ['quarn residual : element 1 : the ' names{code} ' matrix : ' strrep(trials{k, 3}, '%s', vectors(code))];
      expect_error (@() quarn ('residual', r, chandle (i), x, x, x, [0 0]), '', wanted);
      expect_equal (r, ones (n, 1) * 7);
      expect_equal (quarn ('chandleget', i).pr, trials{k, 1}.pr);
    end
  end
end

function test_a_registered_matrix_is_looked_at_again_for_more_lines ()
  s = struct ('pr', [1; 2; 3; 4; 5], 'ir', int32 ([0; 1; 0; 1; 9]), 'jc', int32 ([0; 2; 4; 5]), 'dims', [3 3]);
  for code = 1:3
    h = chandle (quarn ('chandleset', code, s));
    r = zeros (2, 1);
    x = [1; 10];
    quarn ('residual', r, h, x, x, x, [0 0]);
    expect_equal (r, [21; 43]);
    x = [1; 10; 100];
    r = zeros (3, 1);
    expect_error (@() quarn ('residual', r, h, x, x, x, [0 0]), '', '~^quarn residual : element 1 : the .* matrix : index 9 in "ir" reaches past');
    s2 = s;
    s2.jc = int32 ([0; 2; 4]);
    s2.dims = [2 2];
    h = chandle (quarn ('chandleset', code, s2));
    quarn ('residual', zeros (2, 1), h, x(1:2), x(1:2), x(1:2), [0 0]);
    expect_error (@() quarn ('residual', r, h, x, x, x, [0 0]), '', '~"jc" must hold 4 line pointers for 3 lines, got 3');
  end
end

function test_a_diagonal_shorter_than_the_state_is_refused ()
  names = {'stiffness', 'mass', 'damping'};
  x = ones (3, 1);
  for code = 1:3
    h = chandle (quarn ('chandleset', code, matrix_lines (diag ([2 3]))));
    expect_error (@() quarn ('residual', zeros (3, 1), h, x, x, x, [0 0]), '', ...
      sprintf ('quarn residual : element 1 : the %s matrix must hold 3 values (one diagonal entry for each row of u), got 2', names{code}));
  end
end
