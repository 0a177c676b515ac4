% Power, exponential and table laws through registered elements, the table walk against the model.
function tests = suite_laws_memoryless ()
  tests = localfunctions ();
end

% The element after observing the values Q as they stand.
function [e, r] = observed (word, parameters, q, iopt, snl)
  n = numel (q);
  line = matrix_lines (eye (n), true);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code(word); parameters(:)]);
  e.unl = zeros (n, 1);
  e.snl = zeros (n, 1);
  if nargin > 3, e.iopt = int32 (iopt); end
  if nargin > 4, e.snl = snl; end
  e = fresh (e);
  [e, r] = evaluate_law (e, q, zeros (n, 1));
end

% Table X over the record REC at the end of "opt".
function [e, r] = tabulated (x, rec, nx, ny, q, snl)
  if nargin < 6, snl = zeros (numel (q) * max (ny, 1), 1); end
  [e, r] = observed ('Table', [x(:); rec(:)], q, [-1 0 0 0 0 1 1 + numel(x) nx ny], snl);
end

function test_power ()
  e = observed ('Power', [2 3], [-2; 0; 1.5; Inf]);
  expect_equal (e.snl, [-16; 0; 6.75; Inf]);
  e = observed ('Power', [2 0.5], [-2; 4; -0.25]);
  expect_equal (e.snl, [NaN; 4; NaN]);
  e = observed ('Power', [5 0], [0; -3; 7]);
  expect_equal (e.snl, [5; 5; 5]);
  e = observed ('Power', [1 -1], [0; 2]);
  expect_equal (e.snl, [Inf; 0.5]);
end

function test_expon ()
  e = observed ('Expon', [1 0], [0; 1; -1]);
  expect_equal (e.snl, [1; 0; Inf]);
  e = observed ('Expon', [3 2], [0; 3; -1]);
  expect_equal (e.snl, [3; 24; 1.5]);
  e = observed ('Expon', [1 -2], [2; 3; 0.5]);
  expect_equal (e.snl, [4; -8; NaN]);
end

function test_forces_reach_the_residual ()
  [e, r] = observed ('Power', [2 3], [-2; 1; 3]);
  expect_equal (r, [-16; 2; 54]);
end

function test_power_and_expon_against_the_model ()
  rand ('twister', 42);
  for k = 1:60
    q = 4 * rand (1 + mod (k, 4), 1) - 1;
    p = [3 * rand - 1, round(8 * rand) / 2];
    s = struct ('unl', q, 'opt', [0; p(:)], 'snl', zeros (numel (q), 1));
    wanted = model_law_power (s, 0, struct ('FNL', []));
    expect_equal (observed ('Power', p, q).snl, wanted.snl);
    wanted = model_law_expon (s, 0, struct ('FNL', []));
    expect_equal (observed ('Expon', p, q).snl, wanted.snl);
  end
end

function test_jump_gives_the_mean_whatever_the_start ()
  for start = [-7 0 1 2 3 99 NaN 1e300 2.9 -0.5]
    e = tabulated ([0 1 1 2 10 20 30 40], [start 0 0], 4, 1, 1);
    expect_equal (e.snl, 25);
    expect_equal (e.opt(12), 0.5);
  end
end

function test_extrapolation_at_both_ends ()
  for start = 0:4
    e = tabulated ([0 1 1 2 10 20 30 40], [start 0 0], 4, 1, 3);
    expect_equal (e.snl, 50);
    expect_equal (e.opt(10:12), [3; 3; 2]);
    e = tabulated ([0 1 1 2 10 20 30 40], [start 0 0], 4, 1, -1);
    expect_equal (e.snl, 0);
    expect_equal (e.opt(10:12), [0; -1; -1]);
  end
end

function test_record_of_a_query_on_an_inner_knot_tells_where_it_came_from ()
  x = [0 1 2 3 10 20 30 40];
  for start = 0:3
    e = tabulated (x, [start 0 0], 4, 1, 2);
    expect_equal (e.snl, 30);
    segment = 1 + (start >= 2);
    kept = max (segment, start);
    expect_equal (e.opt(10:12), [kept; 2; 2 - segment]);
  end
end

function test_not_a_number_stops_the_search_where_it_began ()
  e = tabulated ([0 1 2 3 10 20 30 40], [2 0 0], 4, 1, NaN);
  expect_equal (e.opt(10:12), [2; NaN; NaN]);
  expect_equal (e.snl, NaN);
end

function test_one_knot_returns_its_value ()
  for q = [-1 4 9 NaN]
    e = tabulated ([4 7], [3 9 9], 1, 1, q);
    expect_equal (e.snl, 7);
    expect_equal (e.opt(4:6), [0; q; 0]);
  end
  e = tabulated ([4 7 8], [0 0 0], 1, 2, [1; 5]);
  expect_equal (e.snl, [7; 7; 8; 8]);
end

function test_no_column_gives_segment_numbers ()
  e = tabulated ([0 1 2 3], [0 0 0], 4, 0, [-5; 0.5; 1.5; 2.5; 9]);
  expect_equal (e.snl, [1; 1; 2; 3; 3]);
end

function test_no_knot_gives_no_value ()
  e = tabulated (zeros (1, 0), [1 2 3], 0, 1, [1; 2], [8; 9]);
  expect_equal (e.snl, [8; 9]);
end

function test_further_columns_lie_behind_the_forces ()
  [e, r] = tabulated ([0 1 2, 10 20 30, -1 -2 -5], [0 0 0], 3, 2, [0.5; 1.5]);
  expect_equal (e.snl, [15; 25; -1.5; -3.5]);
  expect_equal (r, [15; 25]);
end

function test_record_keeps_the_first_query_and_the_last_fraction ()
  e = tabulated ([0 1 2 3 10 20 30 40], [0 0 0], 4, 1, [0.25; 2.5]);
  expect_equal (e.opt(10:12), [2; 0.25; 0.5]);
end

function test_without_force_vector_the_table_is_applied_to_its_own_results ()
  x = [-8 0 8, -4 0 4];
  e = tabulated (x, [0 0 0], 3, 1, 6, []);
  expect_equal (e.unl, 3);
  e = tabulated (x, [0 0 0], 3, 1, [6; -4; 8], []);
  expect_equal (e.unl, [6; -4; 8] / 8);
  % First and last query stay where they are, and so does the record; the one between them is halved three times nevertheless.
  e = tabulated (x, [0 0 0], 3, 1, [0; 8; 0], []);
  expect_equal (e.unl, [0; 1; 0]);
end

function test_random_tables_against_the_model ()
  rand ('twister', 42);
  for k = 1:rounds (300)
    nx = 1 + floor ((8 + 60 * (mod (k, 5) == 0)) * rand);   % some are long enough for a search by halves
    ny = 1 + floor (3 * rand);
    n = 1 + floor (4 * rand);
    knots = sort (floor (6 * rand (nx, 1)) / 2 + (mod (k, 3) == 0) * rand (nx, 1));
    x = [knots; 10 * randn(nx * ny, 1)];
    rec = [floor(12 * rand) - 3 + 0.5 * mod(k, 2); 0; 0];
    q = 4 * rand (n, 1) - 0.5;
    on_knots = rand (n, 1) < 0.5;
    hits = knots(1 + floor (nx * rand (n, 1)));
    q(on_knots) = hits(on_knots);
    s = struct ('unl', q, 'snl', zeros (n * ny, 1), 'opt', [0; x; rec], 'iopt', int32 ([-1 0 0 0 0 1 1 + numel(x) nx ny]));
    wanted = model_law_table (s, 0, struct ('FNL', []));
    e = tabulated (x, rec, nx, ny, q);
    expect_equal (e.snl, wanted.snl);
    expect_equal (e.opt(2:end), wanted.opt(2:end));
    if ny == 1
      wanted = model_law_table (rmfield (s, 'snl'), 0, struct ('FNL', []));
      e = tabulated (x, rec, nx, ny, q, []);
      expect_equal (e.unl, wanted.unl);
      expect_equal (e.opt(2:end), wanted.opt(2:end));
    end
  end
end

function test_a_table_that_ends_one_value_late_and_a_record_on_its_first_value_are_refused ()
  tail = [0 0 0, 0 1 2, 10 20];   % the record first, and a table of three knots whose last force is missing
  expect_refused (@() observed ('Table', tail, 1, [-1 0 0 0 0 4 1 3 1]), ...
                  'quarn residual : element 1 : a table of 3 knots and 1 columns at opt(5) ends beyond opt of 9 values');
  expect_refused (@() observed ('Table', [0 0 0, 1 2, 10 20 30], 1, [-1 0 0 0 0 3 1 3 1]), ...
                  'quarn residual : element 1 : the search record at opt(2) to (4) lies on the table at opt(4) to (9)');
end

function test_tables_that_do_not_lie_in_the_parameters_are_refused ()
  x = [0 1 2 10 20 30];
  bad = {[-1 0 0 0 0 1 7 5 1], [-1 0 0 0 0 5 7 3 1], [-1 0 0 0 0 1 8 3 1], [-1 0 0 0 0 1 7 3 3], [-1 0 0 0 0 -1 7 3 1], ...
         [-1 0 0 0 0 1 -1 3 1], [-1 0 0 0 0 1 7 -3 1], [-1 0 0 0 0 1 7 3], ...
         [-1 0 0 0 0 1 7 2147483647 1], [-1 0 0 0 0 1 7 3 2147483647]};
  for k = 1:numel (bad)
    expect_refused (@() observed ('Table', [x 0 0 0], 1, bad{k}), '~^quarn residual : .*(opt|iopt)');
  end
  expect_refused (@() observed ('Table', [x 0 0 0], 1), '~^quarn residual : .*iopt');
  expect_refused (@() observed ('Table', [2 1 0 10 20 30 0 0 0], 1, [-1 0 0 0 0 1 7 3 1]), '~^quarn residual : .*ascend');
  expect_refused (@() tabulated ([x 5 5 5], [0 0 0], 3, 2, [1; 2], zeros (2, 1)), '~^quarn residual : .*snl');
end

function test_a_repetition_that_finds_another_segment_counts ()
  % The first pass comes to the query 1 from below, where 0 times infinity is not a number; the second from above.
  e = tabulated ([0; 1; 2; Inf; 20; 30], [0; 0; 0], 3, 1, [1; 2]);
  expect_equal (e.snl, [20; 30]);
end

function test_search_record_beyond_2_31_walks_back_from_the_top ()
  % Reached from above, an inner knot belongs to the segment that starts there.
  x = [0 1 2 3; 0 10 20 30].';
  for start = [2 ^ 31, 2 ^ 31 + 1, 1e300, Inf, 2 ^ 31 - 1, 3]
    e = tabulated (x, [start; 0; 0], 4, 1, 1);
    expect_equal (e.opt(end - 2:end), [1; 1; 0]);
    expect_equal (e.snl, 10);
  end
  for start = [-2 ^ 31 - 1, -Inf, NaN, 0]
    e = tabulated (x, [start; 0; 0], 4, 1, 1);
    expect_equal (e.opt(end - 2:end), [0; 1; 1]);
  end
end

function test_table_without_knots_keeps_its_record ()
  % The fraction is that of the two values at the table's place.
  e = observed ('Table', [1 5 7 8 9], [2; 3], [-1 0 0 0 0 1 3 0 1]);
  expect_equal (e.opt(4:6), [-1; 2; (3 - 1) / 4]);
  expect_equal (e.snl, [0; 0]);
  % Where "opt" ends before them, both count as 0.
  for place = [6 5]
    e = observed ('Table', [1 5 7 8 9], [2; 3], [-1 0 0 0 0 place 3 0 1]);
    expect_equal (e.opt(4:6), [-1; 2; 0.5]);
  end
  e = observed ('Table', [1 5 7 8 9], [2; 3], [-1 0 0 0 0 1 3 0 0]);
  expect_equal (e.snl, [1; 1]);  % without columns the number of the segment
end

function test_expon_without_displacements_does_nothing ()
  for e = {struct('opt', law_code ('Expon')), struct('opt', law_code ('Expon'), 'unl', []), ...
           struct('opt', law_code ('Expon'), 'unl', zeros (0, 1), 'vnl', 4, 'iopt', int32 (0))}
    h = e{1};
    h.type = 1003;
    h.snl = 6;
    [h, r] = evaluate_law (h, [1; 2], [3; 4]);
    expect_equal (h.snl, 6);
    expect_equal (r, [0; 0]);
  end
  e = struct ('type', 1003, 'opt', law_code ('Expon'), 'unl', 0);
  expect_error (@() evaluate_law (e, 1, 1), '', '~^quarn residual : element 1 : opt must hold 3 values');
end

function test_table_with_a_negative_column_count_updates_its_record_only ()
  x = [0 1 2 3];
  for snl = {[7; 7], []}
    e = tabulated (x, [0; 0; 0], 4, -1, [0.25; 2.5], snl{1});
    expect_equal (e.opt(end - 2:end), [2; 0.25; 0.5]);
    if isempty (snl{1}), expect_equal (e.unl, [0.25; 2.5]); else, expect_equal (e.snl, snl{1}); end
  end
  e = tabulated (x, [0; 0; 0], 4, -2147483648, 0.25, 7);
  expect_equal (e.opt(end - 2:end), [0; 0.25; 0.25]);
end

function test_one_knot_without_columns_counts_its_segment ()
  e = tabulated (5, [3; 9; 9], 1, 0, [2; 7]);
  expect_equal (e.snl, [1; 1]);
  expect_equal (e.opt(end - 2:end), [0; 2; 0]);
end

% Evaluates a table element in place, without a copy: nothing moves in a run whose coefficients are zero.
function evaluate_in_place (e, u)
  n = numel (u);
  e.c = matrix_lines (eye (n), true);
  e.type = 1003;
  integrator = struct ('type', 2000, 'r', zeros (n, 2), 'tft', [0 1], 'data', zeros (1, 6));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1)));
  quarn ('chandlediagnewmark', {integrator, e}, struct (), fresh (u), zeros (n, 1), zeros (n, 1), [0 0], mem, struct ());
end

% The same on places of the memory: table of nx knots at 2, record after it; queries at AT, results at TO.
function m = table_on (m, nx, u, at, to)
  n = numel (u);
  rec = 2 + 2 * nx;
  m(at + (0:n - 1)) = u;
  for repetition = 1:n
    for j = 1:n
      first = m(at);
      [value, record] = model_lin_interp (m(2:1 + 2 * nx), m(at + j - 1), m(rec + (0:2)), nx, 1);
      record(2) = first;
      m(rec + (0:2)) = record;
      m(to + j - 1) = value;
    end
  end
end

function test_table_results_and_queries_that_are_slices_of_its_parameters ()
  nx = 3;
  u = [0.25; 1.5];
  start = [law_code('Table'); 0; 1; 2; 1; -3; 5; 0; 0; 0; zeros(6, 1)];
  iopt = int32 ([-1 0 0 0 0 1 7 nx 1]);
  for at = [5 6 8 9 11]
    for to = [5 6 8 9 11 13]
      m = fresh (start);
      e = struct ('opt', m(1:10), 'iopt', iopt, 'unl', m(at:at + 1), 'snl', m(to:to + 1));
      wanted = table_on (start, nx, u, at, to);
      evaluate_in_place (e, u);
      try
        expect_equal (m, wanted);
      catch err
        error ('queries at %d, results at %d: %s', at, to, err.message);
      end
    end
  end
end
