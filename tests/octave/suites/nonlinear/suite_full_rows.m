% Elements whose rows have an entry for every mode, or for a run of them: the stated order of summation, the same bits wherever such a line is
% used, and what may not change because of it.
function tests = suite_full_rows ()
  tests = localfunctions ();
end

% Lines given as rows: {first place (from 1), values}; none where the values are empty.
function s = runs_of (rows, cols)
  ir = [];
  pr = [];
  jc = 0;
  for k = 1:size (rows, 1)
    n = numel (rows{k, 2});
    ir = [ir; rows{k, 1} - 1 + (0:n - 1)'];
    pr = [pr; rows{k, 2}(:)];
    jc = [jc; numel(ir)];
  end
  s = struct ('ir', int32 (ir), 'jc', int32 (jc), 'pr', pr, 'dims', [size(rows, 1) cols], 'trans', 1);
end

function y = sums_of (rows, x)
  y = zeros (size (rows, 1), 1);
  for k = 1:size (rows, 1)
    n = numel (rows{k, 2});
    values = rows{k, 2};
    if n >= 8
      y(k) = model_full_line (values, x(rows{k, 1} - 1 + (1:n)));
    elseif n > 0
      y(k) = dot (values(:), x(rows{k, 1} - 1 + (1:n)'));
    end
  end
end

% Residual plus the forces through the rows: the products of a place are summed first.
function r = spread_of (rows, f, r)
  w = zeros (size (r));
  for k = 1:size (rows, 1)
    at = rows{k, 1} - 1 + (1:numel (rows{k, 2}));
    if f(k) ~= 0, w(at) = w(at) + f(k) * rows{k, 2}(:); end
  end
  r = r + w;
end

function e = element_of (c, b, n, cols)
  e = struct ('type', 1003, 'c', runs_of (c, cols), 'b', runs_of (b, cols), 'opt', [law_code('Power'); 1; 1]);
  e.unl = ones (n, 1) * 77;
  e.vnl = ones (n, 1) * 77;
  e.snl = ones (n, 1) * 77;
  e = fresh (e);
end

function rows = random_rows (n, first, count)
  rows = cell (n, 2);
  for k = 1:n, rows(k, :) = {first, randn(count, 1)}; end
end

function [r, e] = residual_of (e, u, v, r)
  h = registered ({e});
  r = fresh (r);
  quarn ('residual', r, h, u, v, []);
  e = quarn ('chandleget', remi (h, 1));
end

function test_rows_are_summed_in_the_stated_order ()
  randn ('seed', 51);
  tried = 0;
  for count = [8:17 23 24 31 40 64 100 257]
    for n = [1 2 3 4 5 9]
      tried = tried + 1;
      if passed_over (tried, 4), continue, end
      cols = count + 7;
      c = random_rows (n, 3, count);
      b = random_rows (n, 2, count);
      u = randn (cols, 1);
      v = randn (cols, 1);
      r = randn (cols, 1);
      [got, e] = residual_of (element_of (c, b, n, cols), u, v, r);
      expect_equal (e.unl, sums_of (c, u));
      expect_equal (e.vnl, sums_of (c, v));
      expect_equal (got, spread_of (b, e.unl, r));
    end
  end
end

function test_a_row_has_the_same_sum_in_every_command ()
  randn ('seed', 52);
  cols = 53;
  rows = random_rows (cols, 1, cols);
  x = randn (cols, 1);
  wanted = sums_of (rows, x);
  m = runs_of (rows, cols);
  y = zeros (cols, 1);
  quarn ('tbbp', m, x, y);
  expect_equal (y, wanted);
  expect_equal (quarn ('c<-a''*b', x, m).', wanted);
  r = zeros (cols, 1);
  quarn ('residual', r, registered ({typed(1, m)}), x, zeros (cols, 1), []);
  expect_equal (r, wanted);
  e = fresh (struct ('c', m, 'b', m, 'unl', zeros (cols, 1), 'type', ''));
  quarn ('residual', zeros (cols, 1), nl_model (e), x, x, [], [], []);
  expect_equal (e.unl, wanted);
  [unused, e] = residual_of (element_of (rows, rows, cols, cols), x, x, zeros (cols, 1));
  expect_equal (e.unl, wanted);
end

% More lines than sums are formed at once, and a matrix whose lines are full in some of its places only.
function test_full_matrices_of_handles_have_the_same_sums ()
  randn ('seed', 55);
  sizes = [9 64 67 131];
  if ~isempty (getenv ('QUARN_SANITIZED')), sizes = [9 67]; end
  for cols = sizes
    rows = random_rows (cols, 1, cols);
    part = random_rows (cols, 2, 8);
    x = randn (cols, 1);
    y = randn (cols, 1);
    z = randn (cols, 1);
    r = fresh (randn (cols, 1));
    before = fresh (r);
    h = registered ({typed(1, runs_of (rows, cols)), typed(3, runs_of (part, cols)), typed(2, runs_of (rows, cols))});
    quarn ('residual', r, h, x, y, z);
    expect_equal (r, ((before + sums_of (rows, x)) + sums_of (part, y)) + sums_of (rows, z));
  end
end

function test_a_full_matrix_that_multiplies_the_residual_itself_takes_its_lines_one_by_one ()
  randn ('seed', 56);
  cols = 12;
  rows = random_rows (cols, 1, cols);
  r = fresh (randn (cols, 1));
  wanted = fresh (r);
  for k = 1:cols, wanted(k) = wanted(k) + sums_of (rows(k, :), wanted); end
  quarn ('residual', r, registered ({typed(1, runs_of (rows, cols))}), r, zeros (cols, 1), []);
  expect_equal (r, wanted);
end

function test_a_run_with_full_matrices_takes_the_stated_sums ()
  randn ('seed', 57);
  cols = 21;
  k = random_rows (cols, 1, cols);
  c = random_rows (cols, 1, cols);
  [in, mem, out] = newmark_setup (ones (cols, 1), ones (cols, 1), ones (cols, 1), cos (1:cols)', sin (0:1), 1e-2, 0.25, 0.5, 2);
  u = sin (1:cols)';
  v = cos (1:cols)';
  a = randn (cols, 1);
  run_newmark ({in, typed(1, runs_of (k, cols)), typed(3, runs_of (c, cols))}, u, v, a, mem, out);
  d = in.data;
  predicted = (d(2) * a + d(1) * v) + u;
  rate = d(3) * a + v;
  expect_equal (mem.uva.uva(3 * cols + (1:cols)), ((0 + in.r(:, 2) * in.tft(2, 1)) + sums_of (k, predicted)) + sums_of (c, rate));
end

function test_the_integrator_observes_like_the_residual ()
  randn ('seed', 53);
  cols = 30;
  n = 6;
  c = random_rows (n, 1, cols);
  b = random_rows (n, 1, cols);
  e = element_of (c, b, n, cols);
  w = linspace (5, 90, cols)';
  [in, mem, out] = newmark_setup (ones (cols, 1), 0.02 * w, w .^ 2, cos (1:cols)', sin (0:1), 1e-2, 0.25, 0.5, 2);
  u = sin (1:cols)';
  v = cos (1:cols)';
  a = randn (cols, 1);
  run_newmark ({in, e}, u, v, a, mem, out);
  d = in.data;
  predicted = (d(2) * a + d(1) * v) + u;
  rate = d(3) * a + v;
  expect_equal (e.unl, sums_of (c, predicted));
  expect_equal (e.vnl, sums_of (c, rate));
  % The modal force: the load first, then what the element adds.
  expect_equal (mem.uva.uva(3 * cols + (1:cols)), spread_of (b, e.unl, 0 + in.r(:, 2) * in.tft(2, 1)));
end

function test_lines_of_all_kinds_in_one_element ()
  randn ('seed', 54);
  rand ('twister', 54);
  for round = 1:60
    cols = 40;
    n = 1 + floor (7 * rand ());
    c = cell (n, 2);
    b = cell (n, 2);
    for k = 1:n
      for which = 1:2
        count = [0 1 3 7 8 9 20 40](1 + floor (8 * rand ()));
        row = {1 + floor((cols - count + 1) * rand ()), randn(count, 1)};
        if which == 1, c(k, :) = row; else b(k, :) = row; end
      end
    end
    u = randn (cols, 1);
    v = randn (cols, 1);
    r = randn (cols, 1);
    e = element_of (c, b, n, cols);
    if mod (round, 2) == 0, e = rmfield (e, 'vnl'); end  % a law that needs no velocities
    [got, e] = residual_of (e, u, v, r);
    expect_equal (e.unl, sums_of (c, u), 1e-14);
    if isfield (e, 'vnl'), expect_equal (e.vnl, sums_of (c, v), 1e-14); end
    expect_equal (got, spread_of (b, e.unl, r), 1e-14);
  end
end

function test_a_force_of_zero_adds_nothing_through_infinite_entries ()
  for n = 1:3
    b = repmat ({1, [Inf; ones(8, 1)]}, n, 1);
    c = repmat ({1, zeros(9, 1)}, n, 1);
    [r, e] = residual_of (element_of (c, b, n, 9), ones (9, 1), ones (9, 1), (1:9)');
    expect_equal (e.snl, zeros (n, 1));
    expect_equal (r, (1:9)');
  end
end

function test_negative_zeros_that_no_row_reaches_become_zeros ()
  for n = 1:2
    [r, e] = residual_of (element_of (random_rows (n, 4, 9), random_rows (n, 4, 9), n, 15), ones (15, 1), ones (15, 1), -zeros (15, 1));
    expect_equal (1 ./ r([1:3, 13:15]), Inf (6, 1));
  end
end

function test_negative_zeros_that_a_force_of_zero_reaches_become_zeros ()
  for n = 1:2
    e = element_of (repmat ({4, zeros(9, 1)}, n, 1), random_rows (n, 4, 9), n, 15);
    expect_equal (1 ./ residual_of (e, ones (15, 1), ones (15, 1), -zeros (15, 1)), Inf (15, 1));
  end
end

function test_a_row_and_empty_lines_after_it ()
  randn ('seed', 60);
  c = [random_rows(1, 3, 9); {1, []}];
  b = [random_rows(1, 2, 9); {1, []}];
  u = randn (15, 1);
  r = randn (15, 1);
  [got, e] = residual_of (element_of (c, b, 2, 15), u, -u, r);
  expect_equal (e.unl, sums_of (c, u));
  expect_equal (e.vnl, sums_of (c, -u));
  expect_equal (got, spread_of (b, e.unl, r));
end

function test_forces_that_share_memory_with_the_residual_are_read_first ()
  n = 3;
  cols = 9;
  b = random_rows (n, 1, cols);
  c = random_rows (n, 1, cols);
  e = rmfield (element_of (c, b, n, cols), 'vnl');
  u = sin (1:cols)';
  [in, mem, out] = newmark_setup (ones (cols, 1), zeros (cols, 1), ones (cols, 1), ones (cols, 1), 0:1, 0.1, 0.25, 0.5, 2);
  e.snl = mem.uva.uva;  % its first values are copies of the state, which the law overwrites
  e.b = runs_of (b, cols);
  apart = e;
  apart.snl = zeros (n, 1);
  apart = fresh (apart);
  [in2, mem2, out2] = newmark_setup (ones (cols, 1), zeros (cols, 1), ones (cols, 1), ones (cols, 1), 0:1, 0.1, 0.25, 0.5, 2);
  [u1, v1, a1] = run_newmark ({in, e}, u, u, u, mem, out);
  [u2, v2, a2] = run_newmark ({in2, apart}, u, u, u, mem2, out2);
  expect_equal ([u1 v1 a1], [u2 v2 a2]);
end

function test_a_row_in_the_memory_of_the_force_store_goes_its_own_way ()
  % It is equal to that of the command until the force is stored in it.
  n = 9;
  store = ones (n + 1, 1);
  e = element_of ({1, ones(n, 1)}, {1, ones(n, 1)}, 1, n);
  e.c.pr = store(2:end);
  e.iopt = int32 (1);
  if isempty (which ('address_of')), skip_test ('there is no address_of beside this module'); end
  if double (address_of (e.c.pr)) - double (address_of (store)) ~= 8, skip_test ('slices of a vector have memory of their own here'); end
  still = struct ('type', 2000, 'r', zeros (n, 2), 'tft', [0 1], 'data', zeros (1, 6));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1)));
  quarn ('chandlediagnewmark', {still, e}, struct ('FNL', store), ones (n, 1), zeros (n, 1), zeros (n, 1), [0 0], mem, struct ());
  expect_equal (store(2), n);
  expect_equal (mem.uva.uva(3 * n + (1:n)), n * ones (n, 1));
end

function test_a_row_in_the_memory_of_the_work_array_goes_its_own_way ()
  % The step copies the state on it.
  n = 9;
  work = ones (4 * n, 1);
  e = element_of ({1, ones(n, 1)}, {1, ones(n, 1)}, 1, n);
  e.c.pr = work(1:n);
  if isempty (which ('address_of')), skip_test ('there is no address_of beside this module'); end
  if ~isequal (address_of (e.c.pr), address_of (work)), skip_test ('slices of a vector have memory of their own here'); end
  still = struct ('type', 2000, 'r', zeros (n, 2), 'tft', [0 1], 'data', zeros (1, 6));
  u = 2 * ones (n, 1);
  quarn ('chandlediagnewmark', {still, e}, struct (), u, zeros (n, 1), zeros (n, 1), [0 0], struct ('uva', struct ('uva', work)), struct ());
  expect_equal (work(3 * n + (1:n)), 4 * n * ones (n, 1));
end

function test_observed_values_that_overlap_observed_velocities_are_written_last ()
  n = 9;
  shared = (1:8)' + 0;
  e = element_of ({1, 1:n; 1, n:-1:1}, {1, 1:n; 1, 1:n}, 2, n);
  e.vnl = shared(2:3);
  e.unl = shared(3:4);
  if isempty (which ('address_of')), skip_test ('there is no address_of beside this module'); end
  if double (address_of (e.unl)) - double (address_of (e.vnl)) ~= 8, skip_test ('slices of a vector have memory of their own here'); end
  [in, mem, out] = newmark_setup (ones (n, 1), zeros (n, 1), zeros (n, 1), zeros (n, 1), zeros (1, 2), 0.5, 0.25, 0.5, 2);
  quarn ('chandlediagnewmark', {in, e}, struct ('K', []), ones (n, 1), zeros (n, 1), zeros (n, 1), [0 0], mem, out);
  expect_equal (e.unl, [45; 45]);
  expect_equal (e.vnl, [0; 45]);
end

% The element's row and its command as full matrices of one row, as scripts write them.
function e = full_row_element (c, b)
  e = struct ('type', 1003, 'c', c(:).', 'b', struct ('pr', b(:), 'dims', [1 numel(b)], 'trans', 1), 'opt', [law_code('Power'); 1; 1], ...
              'unl', 77 * ones (1, 1), 'vnl', 77 * ones (1, 1), 'snl', 77 * ones (1, 1));
  e = fresh (e);
end

function test_a_full_matrix_of_one_row_is_summed_like_a_line ()
  randn ('seed', 58);
  for cols = [1:18 40 257]
    c = randn (cols, 1);
    b = randn (cols, 1);
    u = randn (cols, 1);
    v = randn (cols, 1);
    r = randn (cols, 1);
    [got, e] = residual_of (full_row_element (c, b), u, v, r);
    expect_equal (e.unl, model_full_line (c, u));
    expect_equal (e.vnl, model_full_line (c, v));
    expect_equal (got, r + b * e.unl);
    seen = fresh (struct ('c', c.', 'b', b.', 'unl', zeros (1, 1), 'type', ''));
    quarn ('residual', zeros (cols, 1), nl_model (seen), u, v, [], [], []);
    expect_equal (seen.unl, model_full_line (c, u));
  end
end

function test_a_run_with_full_matrices_of_one_row_takes_the_same_sums ()
  randn ('seed', 59);
  for cols = [1 7 8 21]
    e = full_row_element (randn (cols, 1), randn (cols, 1));
    [in, mem, out] = newmark_setup (ones (cols, 1), ones (cols, 1), ones (cols, 1), cos (1:cols)', sin (0:1), 1e-2, 0.25, 0.5, 2);
    u = sin (1:cols)';
    v = cos (1:cols)';
    a = randn (cols, 1);
    run_newmark ({in, e}, u, v, a, mem, out);
    d = in.data;
    expect_equal (e.unl, model_full_line (e.c, (d(2) * a + d(1) * v) + u));
    expect_equal (e.vnl, model_full_line (e.c, d(3) * a + v));
    expect_equal (mem.uva.uva(3 * cols + (1:cols)), (0 + in.r(:, 2) * in.tft(2, 1)) + e.b.pr * e.unl);
  end
end

function test_a_force_of_zero_through_an_infinite_entry_of_a_full_row ()
  % Lines of sparse matrices leave a force of zero out, full rows do not.
  e = full_row_element (zeros (9, 1), [Inf; ones(8, 1)]);
  wanted = [NaN; (2:9)'];
  expect_equal (residual_of (fresh (e), ones (9, 1), ones (9, 1), (1:9)'), wanted);
  [in, mem, out] = newmark_setup (ones (9, 1), ones (9, 1), ones (9, 1), -(1:9)', ones (1, 2), 1e-2, 0.25, 0.5, 2);
  run_newmark ({in, e}, ones (9, 1), ones (9, 1), zeros (9, 1), mem, out);
  expect_equal (mem.uva.uva(28:36), wanted);
end
