% "energies": what becomes of the energy of a motion in modal coordinates, and the velocities and accelerations that belong to it.
function tests = suite_energies ()
  tests = localfunctions ();
end

function test_energies_and_rates_are_those_of_the_equation_step_by_step ()
  rand ('twister', 11);
  randn ('twister', 11);
  for trial = 1:rounds (150)
    c = motion (randi ([1, 27]), randi ([1, 25]), randi ([0, 4]), randi ([0, 4]));
    [e, v, a] = quarn ('energies', c{:});
    [we, wv, wa] = step_by_step (c{:});
    for row = 1:4, agree (e(row, :), we(row, :)); end
    agree (v, wv);
    agree (a, wa);
    expect_equal (quarn ('energies', c{:}), e);
    [again, fast] = quarn ('energies', c{:});
    expect_equal (again, e);
    expect_equal (fast, v);
  end
end

function test_velocities_and_accelerations_at_the_end_are_those_of_the_integrator ()
  k = [4; 900; 25; 0.01];
  c = [0.1; 0.6; 0; 0.02];
  for gamma = [0.5, 0.6]
    steps = 200;
    h = 0.01;
    beta = (gamma + 0.5) ^ 2 / 4;
    p = sin (0.3 * (0:steps));
    [newmark, mem, out] = newmark_setup (ones (4, 1), c, k, [1; -2; 3; 0.5], p, h, beta, gamma, 2:steps + 1);
    u = [0.1; 0; 0; 1] + 0;
    v = [0; 0; 2; 0] + 0;
    a = [1; -2; 3; 0.5] * p(1) - k .* u - c .* v;
    [q0, v0, a0] = deal (u * 1, v * 1, a * 1);
    list = {newmark, typed(1, diag (k)), typed(3, diag (c))};
    [~, v_end, a_end] = run_newmark (list, u, v, a, mem, out);
    [e, rates, accelerations] = quarn ('energies', [q0, out.def], k, c, [h, gamma], v0, a0, [1; -2; 3; 0.5], p, [], []);
    agree (rates(:, end), v_end);
    agree (accelerations(:, end), a_end);
    total = sum (e(1:3, :), 1) - e(4, :);
    if gamma == 0.5, expect_equal (total, repmat (total(1), 1, steps + 1), 1e-12 * max (e(2, :))); end
  end
end

function test_sums_over_the_modes_have_the_stated_order ()
  rand ('twister', 12);
  for m = [1, 7, 8, 9, 16, 30, 61, 62, 63, 64]
    v = rand (m, 1);
    e = quarn ('energies', zeros (m, 1), ones (m, 1), zeros (m, 1), [1, 0.5], v, zeros (m, 1));
    s = sum_of_eighths (v .* v);
    expect_equal (e, [(((s(1) + s(5)) + (s(3) + s(7))) + ((s(2) + s(6)) + (s(4) + s(8)))) / 2; 0; 0; 0]);
  end
end

function test_forces_may_be_absent ()
  randn ('twister', 13);
  c = motion (5, 6, 2, 3);
  [we, wv] = step_by_step (c{1:6}, zeros (5, 0), zeros (0, 6), c{9:10});
  [e, v] = quarn ('energies', c{1:6}, [], [], c{9:10});
  agree (e, we);
  agree (v, wv);
  expect_equal (e(4, :), zeros (1, 6));
  [e, v] = quarn ('energies', c{1:8});
  [we, wv] = step_by_step (c{1:8}, zeros (5, 0), zeros (0, 6));
  agree (v, wv);
  without = quarn ('energies', c{1:6});
  expect_equal (quarn ('energies', c{1:6}, '', {}, zeros (5, 0), zeros (0, 6)), without);
  agree (without, step_by_step (c{1:6}, zeros (5, 0), zeros (0, 6), zeros (5, 0), zeros (0, 6)));
end

function test_no_columns_and_no_modes ()
  [e, v, a] = quarn ('energies', zeros (3, 0), ones (3, 1), ones (3, 1), [1, 0.5], ones (3, 1), ones (3, 1));
  expect_equal ({e, v, a}, {zeros(4, 0), zeros(3, 0), zeros(3, 0)});
  [e, v, a] = quarn ('energies', zeros (0, 4), [], [], [1, 0.5], [], []);
  expect_equal ({e, v, a}, {zeros(4, 4), zeros(0, 4), zeros(0, 4)});
  expect_equal (quarn ('energies', zeros (0, 2), [], [], [1, 0.5], [], [], zeros (0, 3), ones (3, 2)), zeros (4, 2));
end

function test_of_complex_arrays_the_real_parts_are_taken_and_nothing_is_written ()
  randn ('twister', 14);
  c = motion (4, 5, 2, 1);
  kept = cellfun (@(x) x * 1, c, 'UniformOutput', false);
  e = quarn ('energies', c{:});
  expect_equal (c, kept);
  for k = 1:10
    other = c;
    other{k} = complex (c{k}, 1);
    expect_equal (quarn ('energies', other{:}), e);
  end
end

function test_what_does_not_fit_is_refused_in_words ()
  randn ('twister', 15);
  c = motion (3, 4, 2, 1);
  says (c(1:5), 'expected 7 to 11 inputs (command, Q, K, C, [h gamma], V0, A0, S, L, B, F), got 6');
  says ([c, {1}], 'expected 7 to 11 inputs (command, Q, K, C, [h gamma], V0, A0, S, L, B, F), got 12');
  says ({}, 'expected 7 to 11 inputs (command, Q, K, C, [h gamma], V0, A0, S, L, B, F), got 1');
  names = {'K', 'C', '', 'V0', 'A0'};
  for k = [2 3 5 6]
    says (with (c, k, ones (2, 1)), sprintf ('%s must hold 3 values, one for each row of Q, got 2', names{k - 1}));
    says (with (c, k, ones (4, 1)), sprintf ('%s must hold 3 values, one for each row of Q, got 4', names{k - 1}));
    says (with (c, k, []), sprintf ('%s must hold 3 values, one for each row of Q, got 0', names{k - 1}));
  end
  says (with (c, 4, 0.1), '[h gamma] must hold 2 values, the step and the scheme''s number, got 1');
  for bad = {[0 0.5], [-1 0.5], [NaN 0.5], [Inf 0.5], [1 -0.1], [1 Inf], [1 NaN]}
    says (with (c, 4, bad{1}), sprintf ('[h gamma] must be a finite step above 0 and a finite number from 0 on, got %s and %s', ...
                                      lower (sprintf ('%g', bad{1}(1))), lower (sprintf ('%g', bad{1}(2)))));
  end
  says (with (c, 8, ones (2, 3)), 'L must have 4 columns, one for each of Q, got double 2x3');
  says (with (c, 10, ones (1, 5)), 'F must have 4 columns, one for each of Q, got double 1x5');
  says (with (c, 7, ones (3, 1)), 'S must be 3 x 2, with a row for each of Q and a column for each row of L, got double 3x1');
  says (with (c, 7, ones (2, 2)), 'S must be 3 x 2, with a row for each of Q and a column for each row of L, got double 2x2');
  says (with (c, 7, []), 'S must be 3 x 2, with a row for each of Q and a column for each row of L, got double 0x0');
  says (with (c, 9, ones (2, 1)), 'B must be 3 x 1, with a row for each of Q and a column for each row of F, got double 2x1');
  says (with (c, 8, []), 'L must have 4 columns, one for each of Q, got double 0x0');
  names = {'Q', 'K', 'C', '\[h gamma\]', 'V0', 'A0', 'S', 'L', 'B', 'F'};
  for k = 1:10
    for odd = {single(c{k}), sparse(c{k}), int32(c{k}), 'text', {c{k}}, @sin, struct('a', 1)}
      args = with (c, k, odd{1});
      expect_error (@() quarn ('energies', args{:}), '', ['~^quarn energies : ' names{k} ' must be a full real double array, got ']);
    end
  end
end

% Kinetic energies were NaN where the last modes did not fill a vector of the processor.
function test_what_an_infinite_load_does_is_the_same_for_any_number_of_modes ()
  for m = [1, 7, 8, 9, 16]
    c = {zeros(m, 4), ones(m, 1), ones(m, 1), [1, 0.5], ones(m, 1), ones(m, 1), ones(m, 1), [0 0 0 Inf]};
    [e, v, a] = quarn ('energies', c{:});
    [we, wv, wa] = step_by_step (c{:}, zeros (m, 0), zeros (0, 4));
    expect_equal (e(1:2, 1:2), we(1:2, 1:2), 1e-12 * m);
    expect_equal ([isinf(e); isnan(e)], [isinf(we); isnan(we)]);
    expect_equal ([isinf([v; a]); isnan([v; a])], [isinf([wv; wa]); isnan([wv; wa])]);
  end
end

function test_outputs_that_no_memory_holds_are_refused ()
  expect_error (@() quarn ('energies', zeros (0, 2 ^ 60), [], [], [1, 0.5], [], []), '', ...
                'quarn energies : the output : 4 x 1152921504606846976 values are more than memory can hold');
end

% Arguments of a random motion; forces of random size in random directions.
function c = motion (m, n, loads, elements)
  c = {randn(m, n), 10 .^ (4 * rand (m, 1) - 1), rand(m, 1), [0.05 + rand(), 0.5 + 0.3 * rand() * (rand () < 0.5)], randn(m, 1), ...
       randn(m, 1), randn(m, loads), randn(loads, n), randn(m, elements), randn(elements, n)};
end

% The same in the host's language: the equation of motion and Newmark's rule, solved for the next velocity.
function [e, v, a] = step_by_step (q, k, c, scheme, v0, a0, s, l, b, f)
  h = scheme(1);
  gamma = scheme(2);
  n = size (q, 2);
  [v, a] = deal (zeros (size (q)));
  e = zeros (4, n);
  v(:, 1) = v0;
  a(:, 1) = a0;
  for j = 1:n
    if j > 1
      pull = s * l(:, j) + b * f(:, j) - k .* q(:, j);
      v(:, j) = (v(:, j - 1) + h * (1 - gamma) * a(:, j - 1) + h * gamma * pull) ./ (1 + h * gamma * c);
      a(:, j) = pull - c .* v(:, j);
      moved = q(:, j) - q(:, j - 1);
      e(3, j) = e(3, j - 1) + sum (c .* (v(:, j - 1) + v(:, j)) / 2 .* moved);
      e(4, j) = e(4, j - 1) + sum (s * (l(:, j - 1) + l(:, j)) / 2 .* moved);
    end
    e(1, j) = v(:, j).' * v(:, j) / 2;
    e(2, j) = q(:, j).' * (k .* q(:, j)) / 2;
  end
end

function s = sum_of_eighths (x)
  s = zeros (8, 1);
  for k = 1:numel (x), s(1 + mod (k - 1, 8)) = s(1 + mod (k - 1, 8)) + x(k); end
end

function agree (x, wanted)
  expect_equal (x, wanted, 1e-11 * (max (abs (wanted(:))) + 1e-3));
end

function c = with (c, k, value)
  c{k} = value;
end

function says (args, text)
  expect_refused (@() quarn ('energies', args{:}), ['quarn energies : ' text]);
end
