% Random runs of the integrator against the model in plain Octave.
function tests = suite_newmark_model ()
  tests = localfunctions ();
end

function x = pick (values)
  x = values(1 + floor (numel (values) * rand));
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

function e = random_element (n, modes, exact, fnl)
  count = pick (1:3);
  c = zeros (count, n);
  for i = 1:count, c(i, pick (1:n)) = randn; end
  b = zeros (count, n);
  for i = 1:count, b(i, i) = randn; end
  b = b(:, 1:n);
  if ~exact
    c = c + randn (count, n) .* (rand (count, n) < 0.4);
    b = randn (count, n);
  end
  e = struct ('type', 1003, 'c', matrix_lines (c, true), 'b', matrix_lines (b, true));
  if rand < 0.3, e.c = full (c); end
  e.unl = zeros (count, 1, pick ([1 1 2 3]));
  if rand < 0.7, e.vnl = zeros (size (e.unl)); end
  e.snl = zeros (count, 1);
  iopt = [pick(-1:fnl), 0 0 0 0];
  switch pick (1:4)
    case 1
      e.opt = [law_code('Power'); 0.2 * randn; pick([1 2 3])];
    case 2
      e.opt = [law_code('Expon'); 0.2 * randn; 0.5 + rand];
    case 3
      x = [sort(randn(4, 1)); 0.2 * randn(4, 1)];
      e.opt = [law_code('Table'); x; pick(-1:5); 0; 0];
      iopt = [iopt, 1, 9, 4, 1];
    case 4
      e.opt = [law_code('DahlC'); 0; pick([0 0.05]); 1; pick([0 1 2]); 0.3; 1];
      e.unl = zeros (count, 1, pick ([2 3]));
      e.vnl = zeros (size (e.unl));
      if mod (count, 2) == 1
        e.unl = zeros (count + 1, 1, size (e.unl, 3));
        e.vnl = zeros (size (e.unl));
        e.snl = zeros (count + 1, 1);
      end
      iopt(2:5) = [pick([0 modes]), 1, pick(0:n - modes), pick(0:1)];
  end
  e.iopt = int32 (iopt);
end

% A run with random sizes, handles, loads, save times and force stores. EXACT: every sum has one term.
function run = random_run (exact)
  modes = pick (3:6);
  n = modes + pick ([0 0 1 2]);
  nb = pick (0:1 + ~exact);
  points = pick (1:12);
  h = pick ([0.05 0.1 0.3]);
  beta = pick ([0.25 0.3 1 / 6]);
  [integrator, mem, out] = newmark_setup (0.5 + rand (modes, 1), rand (modes, 1), 3 * rand (modes, 1), randn (modes, nb), ...
                                          randn (nb, points), h, beta, 0.5, 1:points, n);
  if nb == 2, integrator.r(:, 3) = 0.01 * integrator.r(:, 3); end
  keep = rand (points, 1) < 0.7;
  out.data = out.data(keep);
  if rand < 0.3, out.data = out.data + h * 0.5 * (rand (size (out.data)) < 0.3); end
  out.def = zeros (n - pick ([0 0 0 1]), max (0, pick (-1:1) + numel (out.data)));
  run = struct ('u', 0.3 * randn (n, 1), 'v', 0.3 * randn (n, 1), 'a', randn (n, 1), 'opt', [0.1 * rand, 0.1 * rand] * pick ([0 1]), 'mem', mem);
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
  run.list = {integrator};
  for k = 1:pick (0:4)
    if rand < 0.5
      run.list{end + 1} = typed (pick (1:3), nonempty (random_matrix (n, exact)));
    else
      run.list{end + 1} = random_element (n, modes, exact, fnl);
    end
  end
end

function a = nonempty (a)
  if nnz (a) == 0, a(1) = 0.25; end
end

function test_same_bits_where_every_sum_has_one_term ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:240
    check (k, random_run (true), [], mod (k, 3) == 0);
  end
end

function test_any_pattern_within_rounding ()
  rand ('twister', 43);
  randn ('twister', 43);
  for k = 1:160
    check (k, random_run (false), 1e-11, mod (k, 3) == 0);
  end
end

function check (k, run, tolerance, register)
  try
    same_as_model (run, tolerance, register);
  catch err
    error ('run %d: %s', k, err.message);
  end
end
