% Matrices of a run that are multiplied by a factor of time, and the gain with pages that goes with them.
function tests = suite_newmark_factor ()
  tests = localfunctions ();
end

function call (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function expect_same_state (got, wanted)
  for name = {'u', 'v', 'a'}, expect_equal (got.(name{1}), wanted.(name{1})); end
  expect_equal (got.out.def, wanted.out.def);
end

% Every entry is stored; the lines of the handle are the rows of A.
function h = full_rows (code, a)
  n = size (a, 1);
  h = struct ('type', code, 'ir', int32 (repmat ((0:n - 1).', n, 1)), 'jc', int32 (n * (0:n).'), 'pr', reshape (a.', [], 1));
end

% Factors at N random times between 0 and ENDING, both included; a jump in some.
function table = random_factor (n, ending)
  t = [0, sort(rand (1, n - 2)) * ending, ending];
  if n > 4 && rand < 0.5, t(3) = t(2); end
  table = [t; randn(1, n)];
end

% Two stiffness and two damping handles, diagonal, sparse and full, some with a factor.
function run = random_run (n, steps)
  h = 0.01;
  [integrator, mem, out] = newmark_setup (1 + rand (n, 1), rand (n, 1), 10 * rand (n, 1), randn (n, 2), randn (2, steps + 1), h, 0.25, ...
                                          0.5, 1:steps + 1);
  integrator.r(:, 3) = -randn (n, 1);
  pages = randi (4);
  if pages > 1
    integrator.gaint = [0, sort(rand (1, pages - 2)) * steps * h, steps * h];
    integrator.gain = 1e-3 * randn (n, n, pages);
  else
    integrator.gain = 1e-3 * randn (n);
  end
  a = randn (n);
  a(rand (n) < 0.6) = 0;
  if nnz (a) == n || nnz (a) == 0, a(1:3) = [1 1 1]; end
  list = {typed(1, diag (rand (n, 1))), typed(3, diag (rand (n, 1))), typed(3, matrix_lines (a)), full_rows(1, randn (n)), ...
          full_rows(3, randn (n))};
  for k = find (rand (1, numel (list)) < 0.7), list{k}.factor = random_factor (2 + randi (6), steps * h); end
  run = struct ('model', struct ('K', []), 'u', randn (n, 1), 'v', randn (n, 1), 'a', randn (n, 1), 'opt', [0.3 0.02], 'mem', mem, 'out', out);
  if rand < 0.5, run.opt = zeros (1, 2); end
  run.list = [{integrator}, list(randperm (numel (list)))];
  run = fresh (run);
end

function test_runs_with_factors_and_gains_with_pages_equal_the_model ()
  rand ('twister', 61);
  randn ('twister', 61);
  for k = 1:rounds (120)
    run = random_run (2 + randi (11), 12);
    try
      same_as_model (run, 1e-12, mod (k, 3) == 0);
    catch err
      error ('run %d: %s', k, err.message);
    end
  end
end

function test_diagonal_matrices_with_factors_have_the_bits_of_the_model ()
  run = small_run ();
  run.list{2}.factor = fresh ([0 0.2 0.2 0.5; 1 -2 3 0.7]);
  run.list{3}.factor = fresh ([-1 0.25 4; 3 0 9]);
  run.opt = [0 0.3];
  same_as_model (run);
  same_as_model (run, [], true);
end

function test_a_factor_of_one_has_the_bits_of_none ()
  rand ('twister', 62);
  randn ('twister', 62);
  for k = 1:20
    plain = random_run (2 + randi (11), 12);
    for j = 2:numel (plain.list)
      if isfield (plain.list{j}, 'factor'), plain.list{j} = rmfield (plain.list{j}, 'factor'); end
    end
    with = fresh (plain);
    for j = 2:numel (with.list), with.list{j}.factor = [0 0.05 1; 1 1 1]; end
    call (plain);
    call (with);
    expect_same_state (with, plain);
  end
end

function test_equal_pages_give_the_gain_that_they_are ()
  run = random_run (5, 12);
  g = 1e-3 * randn (5);
  plain = fresh (run);
  plain.list{1} = rmfield_if_there (plain.list{1}, 'gaint');
  plain.list{1}.gain = fresh (g);
  one = fresh (plain);
  one.list{1}.gain = reshape ([g(:); g(:) * 2], 5, 5, 2);
  one.list{1}.gaint = [0 0];
  call (plain);
  same = fresh (run);
  same.list{1}.gain = repmat (g, [1 1 13]);
  same.list{1}.gaint = same.list{1}.tft(1, :);
  call (same);
  expect_same_state (same, plain);
  between = fresh (run);
  between.list{1}.gain = repmat (g, [1 1 2]);
  between.list{1}.gaint = [0 1];
  call (between);
  expect_equal (between.out.def, plain.out.def, 1e-12);
end

function s = rmfield_if_there (s, name)
  if isfield (s, name), s = rmfield (s, name); end
end

function test_empty_factors_and_times_are_none ()
  plain = small_run ();
  unused = fresh (plain);
  call (plain);
  for none = {[], zeros(2, 0), '', {}, single([]), sparse(0, 0)}
    trial = fresh (unused);
    trial.list{2}.factor = none{1};
    trial.list{3}.factor = none{1};
    trial.list{1}.gaint = none{1};
    call (trial);
    expect_same_state (trial, plain);
  end
end

function test_the_factor_is_that_of_the_time_at_which_the_step_ends ()
  h = 0.125;
  [integrator, mem, out] = newmark_setup (1, 0, 0, 0, zeros (1, 3), h, 0.25, 0.5, 1:3);
  integrator.r(3) = 0.5;
  spring = struct ('type', 1, 'ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 8, 'factor', [0 0.25; 1 3]);
  [u, v, a] = run_newmark ({integrator, spring}, 1, 0, 0, mem, out);
  first = 1 - 0.5 * 8 * 2;
  expect_equal (out.def(2), first);
  d = 0.5 * 8 * 2;
  rate = -(0.5 / (0.25 * h)) * d;
  force = -d / (0.25 * h ^ 2);
  ahead = first + h * rate + 0.25 * h ^ 2 * force;
  expect_equal (u, ahead - 0.5 * (3 * (8 * ahead)));
end

function test_two_equal_times_are_a_jump_with_the_mean_at_it ()
  h = 0.25;
  [integrator, mem, out] = newmark_setup (1, 0, 0, 0, zeros (1, 4), h, 0.25, 0.5, 1:4);
  integrator.data(1:5) = 0;
  integrator.r(3) = 1;
  spring = struct ('type', 1, 'ir', int32 (0), 'jc', int32 ([0; 1]), 'pr', 1, 'factor', [0 0.5 0.5 1; 0.5 0.5 0.25 0.25]);
  run_newmark ({integrator, spring}, 1, 0, 0, mem, out);
  expect_equal (out.def(2:4), cumprod ([0.5, 1 - 0.375, 0.75]));
end

function test_a_run_in_any_cuts_has_the_bits_of_the_whole ()
  rand ('twister', 63);
  randn ('twister', 63);
  for k = 1:10
    run = random_run (2 + randi (10), 24);
    whole = fresh (run);
    call (whole);
    tft = run.list{1}.tft;
    for cut = [2 9 24]
      parts = fresh (run);
      parts.list{1}.tft = fresh (tft(:, 1:cut));
      call (parts);
      parts.list{1}.tft = fresh (tft(:, cut:end));
      call (parts);
      expect_same_state (parts, whole);
    end
  end
end

function test_times_that_go_back_find_their_factor ()
  run = small_run ();
  run.list{2}.factor = [0:0.1:0.5; 1 3 -2 5 7 0.5];
  run.list{1}.tft(1, :) = [0 0.5 0.05 0.33 0.31 0.5];
  run.out.data = zeros (0, 1);
  same_as_model (run);
end

% A rotor with two directions and a disk: M q'' + (C + speed(t) G) q' + (K + slope(t) S) q = unbalance, three degrees of freedom a direction.
function [s, speed, slope] = rotor (ending)
  m = diag ([3 3 0.02 0.02 1 1]);
  k = kron ([8 -0.3 -2; -0.3 0.05 0.1; -2 0.1 3] * 1e4, eye (2));
  g = zeros (6);
  g(3:4, 3:4) = 0.035 * [0 1; -1 0];
  s = struct ('M', m, 'K', k, 'C', 2e-5 * k + 0.4 * m, 'G', g, 'S', zeros (6));
  s.S(3:4, 3:4) = 0.035 * [0 1; 0 0];
  top = 2 * pi * 70;
  speed = [0 ending; 0 top];
  slope = [0 ending; top / ending * [1 1]];
end

% Force of an unbalance that turns by the angle of a steady run-up.
function p = unbalance (time, top, ending)
  angle = top / ending * time .^ 2 / 2;
  w = top / ending * time;
  p = zeros (6, numel (time));
  p(1, :) = 3e-5 * (w .^ 2 .* cos (angle) + top / ending * sin (angle));
  p(2, :) = 3e-5 * (w .^ 2 .* sin (angle) - top / ending * cos (angle));
end

% One call of the module: mass-normalised coordinates, K and C and the two matrices with factors, pages of the gain at equal speeds.
function out = run_up (s, steps, h, speed, slope, pages)
  phi = inv (chol (s.M));
  modal = @(a) phi.' * a * phi;
  top = speed(2, end);
  ending = speed(1, end);
  time = (0:steps) * h;
  p = phi.' * unbalance (time, top, ending);
  integrator = struct ('type', 2000, 'r', [zeros(6, 1), -eye(6), zeros(6, 1)], 'tft', [time; p(:, [2:end end])], ...
                       'data', [h, h ^ 2 / 4, h / 2, 2 / h, 4 / h ^ 2, 0], 'gain', zeros (6, 6, pages), 'gaint', linspace (0, ending, pages));
  for j = 1:pages
    omega = top * (j - 1) / (pages - 1);
    integrator.gain(:, :, j) = inv (4 / h ^ 2 * eye (6) + 2 / h * modal (s.C + omega * s.G) + modal (s.K + slope(2) * s.S));
  end
  list = {integrator, full_rows(1, modal (s.K)), full_rows(3, modal (s.C)), full_rows(3, modal (s.G)), full_rows(1, modal (s.S))};
  list{4}.factor = speed;
  list{5}.factor = slope;
  result = struct ('data', time(:), 'def', zeros (6, steps + 1));
  a = fresh (p(:, 1));
  quarn ('chandlediagnewmark', list, struct (), zeros (6, 1), zeros (6, 1), a, [0 0], struct ('uva', struct ('uva', zeros (24, 1))), result);
  out = phi * result.def;
end

function test_a_run_up_in_one_call_is_the_scheme_with_the_matrix_of_every_step ()
  ending = 1.5;
  [s, speed, slope] = rotor (ending);
  h = 1e-3;
  steps = ending / h;
  wanted = newmark_of_speeds (s, unbalance ((0:steps) * h, speed(2, end), ending), h, linspace (0, speed(2, end), steps + 1), slope(2) * s.S);
  off = zeros (1, 3);
  pages = [9 65 1501];
  for j = 1:3
    got = run_up (s, steps, h, speed, slope, pages(j));
    off(j) = max (abs (got(:) - wanted(:))) / max (abs (wanted(:)));
  end
  fprintf ('off by %.2g, %.2g, %.2g with %d, %d, %d pages\n', off, pages);
  assert (all (off < [5e-4 5e-5 1e-12]));
end

function test_a_run_up_is_of_second_order_against_a_solution_to_small_tolerances ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('what the module does here other tests show the sanitizers; the rest is the host''s'); end
  ending = 0.5;
  [s, speed, slope] = rotor (ending);
  top = speed(2, end);
  rate = @(y, t) [y(7:12); s.M \ (unbalance(t, top, ending) - (s.C + top * t / ending * s.G) * y(7:12) - (s.K + slope(2) * s.S) * y(1:6))];
  before = lsode_options ('integration method');
  back = onCleanup (@() lsode_options ('integration method', before));
  lsode_options ('integration method', 'adams');
  lsode_options ('relative tolerance', 1e-11);
  lsode_options ('absolute tolerance', 1e-14);
  times = (0:50) * 0.01;
  y = lsode (rate, zeros (12, 1), times);
  wanted = y(:, 1:6).';
  e = zeros (1, 3);
  for j = 1:3
    cut = 2 ^ (j - 1);
    h = 5e-4 / cut;
    got = run_up (s, round (ending / h), h, speed, slope, 65);
    got = got(:, 1:20 * cut:end);
    e(j) = max (abs (got(:) - wanted(:))) / max (abs (wanted(:)));
  end
  fprintf ('errors %.2g %.2g %.2g\n', e);
  assert (all (abs (log2 (e(1:2) ./ e(2:3)) - 2) < 0.05));
end

function refused (run, words)
  refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, '', ['quarn chandlediagnewmark : ' words]);
end

function test_factors_that_are_no_tables_of_time_are_refused ()
  names = {'', 'the stiffness matrix', 'the damping matrix'};
  for k = 2:3
    of = sprintf ('element %d : the factor of %s ', k, names{k});
    times = sprintf ('element %d : the times of the factor of %s must be finite and ascend (two equal ones are a jump), got ', k, names{k});
    trials = {[1; 2; 3], [of 'must be 2 x n, times in row 1 and factors in row 2, got double 3x1']
              7, [of 'must be 2 x n, times in row 1 and factors in row 2, got double 1x1']
              [0 1 2 3; 1 1 1 1].', [of 'must be 2 x n, times in row 1 and factors in row 2, got double 4x2']
              single([0 1; 1 1]), [of 'must be a full real double array, got single 2x2']
              int32([0 1; 1 1]), [of 'must be a full real double array, got int32 2x2']
              [0 1; 1 1i], [of 'must be a full real double array, got complex double 2x2']
              sparse([0 1; 1 1]), [of 'must be a full real double array, got sparse double 2x2']
              {1}, [of 'must be a full real double array, got cell 1x1']
              'ab', [of 'must be a full real double array, got char 1x2']
              [0 NaN 1; 1 1 1], [times 'nan in column 2']
              [0 1 Inf; 1 1 1], [times 'inf in column 3']
              [-1e308 0 1e308; 1 1 1], sprintf('element %d : the times of the factor of %s go from -1e+308 to 1e+308: the time between %s', ...
                                               k, names{k}, 'them is beyond all numbers')
              [0 2 1; 1 1 1], [times '1 in column 3']
              [0 1 1 1 2; 1 2 3 4 5], [times '1 in column 4']
              [0 1; 1 NaN], [of 'must be finite, got nan in row 2, column 2']
              [0 1; -Inf 1], [of 'must be finite, got -inf in row 2, column 1']
              [0 1; -1e308 1e308], [of 'must change by a finite number, got 1e+308 after -1e+308 in column 2']
              [0 0.4; 1 1], [of 'must be given for every step: its times go from 0 to 0.4, a step ends at 0.5']
              [0.2 1; 1 1], [of 'must be given for every step: its times go from 0.2 to 1, a step ends at 0.1']};
    for j = 1:size (trials, 1)
      run = small_run ();
      run.list{k}.factor = trials{j, 1};
      refused (run, trials{j, 2});
    end
  end
  run = small_run ();
  run.list{2}.factor = [0 1; 1 1];
  run.list{1}.tft(1, 4) = NaN;
  refused (run, 'element 2 : the factor of the stiffness matrix must be given for every step: its times go from 0 to 1, a step ends at nan');
end

function test_a_factor_is_refused_where_it_has_no_meaning ()
  text = '"factor" of time: the inertia is in the integrator''s gain; stiffness and damping may have one';
  run = small_run ();
  run.list{4} = typed (2, eye (3));
  run.list{4}.factor = [0 1; 1 1];
  refused (run, ['element 4 : a mass matrix has no ' text]);
  k = matrix_lines (diag ([1 2 3]));
  k.factor = [0 1; 1 1];
  names = {'the stiffness matrix', 'the damping matrix'};
  for code = [1 3]
    index = quarn ('chandleset', code, k);
    r = ones (3, 1);
    expect_refused (@() quarn ('residual', r, chandle (index), ones (3, 1), ones (3, 1), ones (3, 1), [0 0]), ...
      sprintf ('quarn residual : element 1 : the factor of %s is one of time, which only a run of the integrator has', names{(code + 1) / 2}));
    expect_equal (r, ones (3, 1));
    quarn ('chandleclear', index);
  end
end

function test_a_handle_serves_runs_and_is_refused_between_them ()
  run = small_run ();
  run.list{2}.factor = [0 1; 1 2];
  [list, indices] = registered (run.list);
  wanted = fresh (run);
  call (wanted);
  for round = 1:2
    trial = fresh (run);
    trial.list = list;
    call (trial);
    expect_same_state (trial, wanted);
    expect_refused (@() quarn ('residual', zeros (3, 1), chandle (indices(2)), run.u, run.v, run.a, [0 0]), '~which only a run');
  end
  for k = indices(:).', quarn ('chandleclear', k); end
end

function test_gains_whose_pages_and_times_do_not_fit_are_refused ()
  pages = zeros (3, 3, 2);
  page = 'the integrator''s gain must be 3 x 3 x %d, a page for each time of gaint, got double %s';
  times = 'the integrator''s gaint must be finite and ascend (two equal times are a jump), got ';
  trials = {pages, [], 'the integrator''s gain must be 3 x 3, a row and a column for each row of r, got double 3x6'
            [], [0 1], 'the integrator''s gaint has 2 times for the pages of a gain, and there is no gain'
            pages, [0 0.5 1], sprintf(page, 3, '3x6')
            zeros(3), [0 1], sprintf(page, 2, '3x3')
            zeros(6, 3), [0 1], sprintf(page, 2, '6x3')
            pages, [0 NaN], [times 'nan in place 2']
            pages, [1 0], [times '0 in place 2']
            pages, [0 Inf], [times 'inf in place 2']
            zeros(3, 3, 3), [1 1 1], [times '1 in place 3']
            pages, [-1e308 1e308], 'the integrator''s gaint goes from -1e+308 to 1e+308: the time between them is beyond all numbers'
            pages, single([0 1]), 'the integrator''s gaint must be a full real double array, got single 1x2'
            pages, 'ab', 'the integrator''s gaint must be a full real double array, got char 1x2'
            NaN(3, 3, 2), [0 1], 'the integrator''s gain must be finite, got nan in row 1, column 1'};
  for j = 1:size (trials, 1)
    run = small_run ();
    run.list{1}.gain = trials{j, 1};
    run.list{1}.gaint = trials{j, 2};
    refused (run, ['element 1 : ' trials{j, 3}]);
  end
end

function test_pages_that_do_not_cover_the_steps_are_refused ()
  text = 'the integrator''s gain must be given for every step: the times of gaint go from %g to %g, a step ends at %g';
  for trial = [0 0.4 0.5; 0.2 1 0.1].'
    run = small_run ();
    run.list{1}.gain = zeros (3, 3, 2);
    run.list{1}.gaint = trial(1:2).';
    refused (run, sprintf (text, trial));
  end
end

function test_a_later_page_in_memory_that_a_step_writes_is_refused ()
  run = small_run ();
  run.out.def = zeros (3, 6);
  run.list{1}.gain = reshape (run.out.def, 3, 3, 2);
  run.list{1}.gaint = [0 1];
  expect_refused (@() call (run), ['quarn chandlediagnewmark : the integrator''s gain must have memory of its own, got that of out.def, ' ...
                                   'which a step writes']);
end

% The run with the memory M as one of the arrays that its steps write.
function run = with_array (run, name, m)
  switch name
    case {'u', 'v', 'a'}, run.(name) = m;
    case 'mem.uva.uva', run.mem.uva.uva = m;
    case 'mem.uva.FNL', run.mem.uva.FNL = m;
    case 'the model''s FNL', run.model.FNL = m;
    case 'out.def', run.out.def = reshape (m, 3, []);
    case 'out.FNL.def', run.out.FNL = struct ('data', 0.1, 'def', m);
    case 'data', run.list{1}.data = m(1:6);
  end
end

% It was read while the steps wrote it: the matrix changed with the motion and not with time.
function test_a_factor_or_times_of_pages_in_memory_that_a_step_writes_are_refused ()
  text = 'must have memory of its own, got that of %s, which a step writes';
  names = {'u', 'v', 'a', 'mem.uva.uva', 'mem.uva.FNL', 'the model''s FNL', 'out.def', 'out.FNL.def', 'data'};
  owners = {'stiffness', 'damping'};
  for k = 1:numel (names)
    for j = 1:2
      m = zeros (12, 1);
      m(1:2:end) = 0:5;
      run = with_array (small_run (), names{k}, m);
      run.list{j + 1}.factor = reshape (m, 2, 6);
      if strcmp (names{k}, 'data'), run.list{j + 1}.factor = reshape (m(1:6), 2, 3); end
      refused (run, sprintf (['element %d : the factor of the %s matrix ' text], j + 1, owners{j}, names{k}));
    end
    m = zeros (12, 1);
    m(1:12) = 0:11;
    run = with_array (small_run (), names{k}, m);
    run.list = run.list(1);
    run.list{1}.gain = zeros (3, 3, 2);
    run.list{1}.gaint = m(1:2);
    refused (run, sprintf (['the integrator''s gaint ' text], names{k}));
  end
end
