% Random runs of the integrator against the model in plain Octave.
function tests = suite_newmark_model ()
  tests = localfunctions ();
end

function x = pick (values)
  x = values(1 + floor (numel (values) * rand));
  if iscell (x), x = x{1}; end
end

% A matrix of at most one entry in a column (the same bits in any order of summation), or, without EXACT, any pattern.
function a = random_matrix (n, exact)
  switch pick (1:3)
    case 1
      a = diag (randn (n, 1));
    case 2
      a = zeros (n);
      for j = 1:n, if rand < 0.6, a(pick (1:n), j) = randn; end, end
    case 3
      a = randn (n) .* (rand (n) < 0.5);
      if exact, a = diag (randn (n, 1) .* (rand (n, 1) < 0.7)); end
  end
  a = 0.5 * a;
end

% A random element whose states fit into the LIMIT rows that an output column has.
function e = random_element (word, n, exact, limit)
  e = random_law_element (word, n, exact);
  if double (e.iopt(2)) + double (e.iopt(4)) > limit + 1, e.iopt(2) = 0; end
end

% Run K with random sizes, handles, loads, save times and force stores; an element of every law comes in turn. EXACT: every sum has one
% term.
function run = random_run (k, exact)
  words = {'Maxw', 'DahlC', 'sts', 'Clima2', 'Power', 'Expon', 'Table'};
  modes = pick (3:6);
  n = modes + pick ([0 0 1 2]);
  nb = pick (0:1 + ~exact);
  points = pick (1:12);
  h = pick ([0.05 0.1 0.3]);
  beta = pick ([0.25 0.3 1 / 6]);
  [integrator, mem, out] = newmark_setup (0.5 + rand (modes, 1), rand (modes, 1), 3 * rand (modes, 1), randn (modes, nb), ...
                                          randn (nb, points), h, beta, 0.5, 1:points, n);
  if nb == 2, integrator.r(:, 3) = 0.01 * integrator.r(:, 3); end
  if mod (k, 2), integrator.gain = random_gain (integrator.r(:, min (3, nb + 2)), exact); end
  keep = rand (points, 1) < 0.7;
  out.data = out.data(keep);
  if rand < 0.3, out.data = out.data + h * 0.5 * (rand (size (out.data)) < 0.3); end
  out.def = zeros (n - pick ([0 0 0 1]), max (0, pick (-1:1) + numel (out.data)));
  run = struct ('u', 0.3 * randn (n, 1), 'v', 0.3 * randn (n, 1), 'a', randn (n, 1), 'opt', [0.1 * rand, 0.1 * rand] * pick ([0 1]), ...
                'mem', mem);
  run.model = struct ('K', []);
  fnl = 0;
  if rand < 0.6
    fnl = pick (2:6);
    run.model.FNL = randn (fnl, 1);
    if rand < 0.7, integrator.iopt = int32 (pick (0:fnl - 2)); end
    if rand < 0.7, run.mem.uva.FNL = zeros (pick (1:6), 1); end
    if rand < 0.7, out.FNL = struct ('data', integrator.tft(1, 1:pick (1:points))', 'def', zeros (fnl, points)); end
  end
  run.out = out;
  run.mem.uva.uva = randn (4 * n, 1) * 0.01;
  limit = size (out.def, 1);
  run.list = {integrator, random_element(words{1 + mod (k, 7)}, n, exact, limit)};
  for handle = 1:pick (0:3)
    if rand < 0.5
      run.list{end + 1} = typed (pick (1:3), nonempty (random_matrix (n, exact)));
    else
      run.list{end + 1} = random_element (pick (words), n, exact, limit);
    end
  end
  if rand < 0.5, run.list(2:end) = run.list(1 + randperm (numel (run.list) - 1)); end
end

% A matrix gain about the diagonal one. EXACT: a permuted diagonal, so that every sum has one term that is not zero. Some are empty.
function g = random_gain (diagonal, exact)
  n = numel (diagonal);
  g = diag (diagonal);
  if exact, g = g(:, randperm (n)); else, g = g + 0.1 * max (diagonal) * randn (n); end
  if rand < 0.1, g = zeros (0, 3); end
end

function a = nonempty (a)
  if nnz (a) == 0, a(1) = 0.25; end
end

function test_same_bits_where_every_sum_has_one_term ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:rounds (240)
    check (k, random_run (k, true), [], mod (k, 3) == 0);
  end
end

function test_any_pattern_within_rounding ()
  rand ('twister', 43);
  randn ('twister', 43);
  for k = 1:rounds (210)
    check (k, random_run (k, false), 1e-13, mod (k, 3) == 0);
  end
end

function check (k, run, tolerance, register)
  try
    same_as_model (run, tolerance, register);
  catch err
    error ('run %d: %s', k, err.message);
  end
end
