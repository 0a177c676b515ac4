% The residual command on random models of its three forms against plain models.
function tests = suite_residual_random ()
  tests = localfunctions ();
end

function m = random_matrix (n, density)
  m = randn (n) .* (rand (n) < density);
end

function c = random_case (k)
  n = 1 + mod (k * 7, 23);
  densities = [0.02 0.2 0.5 1];
  d = @() densities(1 + floor (4 * rand ()));
  c = struct ('n', n, 'M', random_matrix (n, d ()), 'C', random_matrix (n, d ()), 'K', random_matrix (n, d ()));
  if mod (k, 5) == 0, c.K = diag (randn (n, 1)); end
  c.u = randn (n, 1);
  c.v = randn (n, 1);
  c.a = randn (n, 1);
  c.r = randn (n, 1);
  c.rayleigh = randn (1, 2) .* (rand (1, 2) < 0.5);
end

function check_energies (m, k, c)
  expect_equal (m, 0.5 * (c.v.' * (c.M.' * c.v)), 1e-13);
  expect_equal (k, 0.5 * (c.u.' * (c.K.' * c.u)), 1e-13);
end

function test_matrix_cells_of_every_kind_of_damping ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:rounds (240)
    c = random_case (k);
    damping = matrix_lines (c.C);
    if mod (k, 4) == 1
      modes = 1 + mod (k, 3);
      c.C = struct ('def', randn (c.n, modes), 'data', [randn(modes, 1); zeros(modes, 1)]);
      damping = c.C;
      if mod (k, 8) == 1
        c.C.K = random_matrix (c.n, 0.3);
        damping.K = matrix_lines (c.C.K);
      end
      damping.data = damping.data + 0;
    end
    if mod (k, 3) == 0, c.a = []; end
    r = c.r + 0;
    [kinetic, potential] = quarn ('residual', r, {matrix_lines(c.M), damping, matrix_lines(c.K)}, c.u, c.v, c.a, c.rayleigh);
    expect_equal (r, c.r + model_residual (c.M, c.C, c.K, c.u, c.v, c.a, c.rayleigh), 1e-13);
    check_energies (kinetic, potential, c);
  end
end

function test_handle_vectors_of_any_order_and_number ()
  rand ('twister', 7);
  randn ('twister', 7);
  for k = 1:rounds (240)
    c = random_case (k);
    quarn ('chandleclear');
    wanted = c.r;
    keys = zeros (1, mod (k, 6));
    none = zeros (c.n);
    for i = 1:numel (keys)
      kind = 1 + floor (3 * rand ());
      m = random_matrix (c.n, 0.4);
      m(1) = 1;
      if mod (i, 3) == 0, m = diag (1 + rand (c.n, 1)); end
      keys(i) = quarn ('chandleset', kind, matrix_lines (m));
      matrices = {none, none, none};
      if nnz (m) == c.n, m = diag (nonzeros (m)); end  % taken as the diagonal, wherever the entries lie
      matrices{kind} = m;
      wanted = wanted + model_residual (matrices{2}, matrices{3}, matrices{1}, c.u, c.v, c.a, c.rayleigh);
    end
    r = c.r + 0;
    quarn ('residual', r, chandle (keys), c.u, c.v, c.a, struct ('Rayleigh', c.rayleigh));
    expect_equal (r, wanted, 1e-13);
  end
end

function test_handles_and_matrix_cell_have_the_same_bits ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:60
    c = random_case (k + 1000);
    c.n = 20;
    full = {randn(20), randn(20), randn(20)};
    keys = zeros (1, 3);
    types = [2 3 1];
    matrices = cell (1, 3);
    for i = 1:3
      matrices{i} = matrix_lines (full{i});
      keys(i) = quarn ('chandleset', types(i), matrices{i});
    end
    [u, v, a, start] = deal (randn (20, 1), randn (20, 1), randn (20, 1), randn (20, 1));
    byHandles = start + 0;
    quarn ('residual', byHandles, chandle (keys), u, v, a, c.rayleigh);
    byCell = start + 0;
    quarn ('residual', byCell, matrices, u, v, a, c.rayleigh);
    byStructure = start + 0;
    quarn ('residual', byStructure, struct ('K', {matrices}), u, v, a, struct ('Rayleigh', c.rayleigh));
    expect_equal (byHandles, byCell);
    expect_equal (byStructure, byCell);
    quarn ('chandleclear');
  end
end

function test_structures_with_nonlinear_lists_and_energies ()
  rand ('twister', 42);
  randn ('twister', 42);
  for k = 1:rounds (240)
    c = random_case (k);
    c.n = 6 + mod (k, 9);
    for f = {'M', 'C', 'K'}, c.(f{1}) = random_matrix (c.n, 0.4); end
    for f = {'u', 'v', 'a', 'r'}, c.(f{1}) = randn (c.n, 1); end
    opt = struct ('Rayleigh', c.rayleigh, 'tc', randn ());
    wanted = c.r + model_residual (c.M, c.C, c.K, c.u, c.v, c.a, c.rayleigh);
    store = zeros (20, 1);
    NL = cell (mod (k, 4), 3);
    for j = 1:size (NL, 1)
      [NL{j, 3}, added, store] = random_element (c, j, store);
      wanted = wanted + added;
    end
    model = struct ('K', {{matrix_lines(c.M), matrix_lines(c.C), matrix_lines(c.K)}}, 'NL', {NL}, 'FNL', zeros (20, 1));
    r = c.r + 0;
    [kinetic, potential] = quarn ('residual', r, model, c.u, c.v, c.a, opt, []);
    expect_equal (r, wanted, 1e-13);
    expect_equal (model.FNL, store, 1e-13);
    check_energies (kinetic, potential, c);
    again = c.r + 0;
    quarn ('residual', again, model, c.u, c.v, c.a, opt, []);
    expect_equal (again, r);
  end
end

% A random element, what it adds to the residual, and the force store with its forces.
function [e, added, store] = random_element (c, j, store)
  offset = 5 * (j - 1);
  m = 1 + floor (4 * rand ());
  C = random_matrix (m, 0.6);
  C(m, c.n) = 1;
  B = random_matrix (m, 0.6);
  B(m, c.n) = 1;
  start = randn (m, 1);
  e = struct ('c', matrix_lines (C, true), 'b', matrix_lines (B, true), 'unl', zeros (m, 1), 'vnl', zeros (m, 1), 'unl0', start, 'StoreFNL', 0, ...
              'FInd', int32 (offset));
  x = start + C * c.u;
  y = C * c.v;
  kind = floor (5 * rand ());
  if kind == 0
    rows = [10 12 17];
    e = random_rotor (c.n, rows(1 + floor (3 * rand ())), offset);
    [added, force] = model_rotcenter (e, c.u, c.v);
    if size (e.Cell, 1) > 10, store(offset + [3 1 2]) = force; end
  elseif kind == 1
    e.Fu = @(e, varargin) e.unl .^ 3 + e.vnl;
    e.StoreFNL = 1;
    added = B.' * (x .^ 3 + y);
    store(offset + (1:m)) = x .^ 3 + y;
  elseif kind == 2
    e.type = @(e, varargin) change_in_place (e.unl, e.vnl);
    added = B.' * (x + y);
  elseif kind == 3
    e.type = 'spring';
    added = B.' * x;
  else
    words = {'', 'mocirc2'};
    e.type = words{1 + floor (2 * rand ())};
    e.cta = matrix_lines (ones (c.n, 4));
    added = zeros (c.n, 1);
  end
end
