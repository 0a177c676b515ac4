% Every law with states against its plain model: random sizes, parameters, states and options, in "residual" and in the integrator.
function tests = suite_laws_random ()
  tests = localfunctions ();
end

function test_maxwell_in_residual (), residual_like_model (@random_maxwell, 1); end
function test_maxwell_in_the_integrator (), newmark_like_model (@random_maxwell, 2); end
function test_dahl_in_residual (), residual_like_model (@random_dahl, 3); end
function test_dahl_in_the_integrator (), newmark_like_model (@random_dahl, 4); end
function test_stick_slip_in_residual (), residual_like_model (@random_stick_slip, 5); end
function test_stick_slip_in_the_integrator (), newmark_like_model (@random_stick_slip, 6); end
function test_clima2_in_residual (), residual_like_model (@random_clima2, 7); end
function test_clima2_in_the_integrator (), newmark_like_model (@random_clima2, 8); end
function test_power_in_residual (), residual_like_model (@random_power, 9); end
function test_power_in_the_integrator (), newmark_like_model (@random_power, 10); end
function test_exponential_in_residual (), residual_like_model (@random_exponential, 11); end
function test_exponential_in_the_integrator (), newmark_like_model (@random_exponential, 12); end
function test_table_in_residual (), residual_like_model (@random_table, 13); end
function test_table_in_the_integrator (), newmark_like_model (@random_table, 14); end

% 150 set-ups, three evaluations of each, to the bit.
function residual_like_model (generate, seed)
  randomize (seed);
  for trial = 1:150
    [e, u] = generate ();
    v = round (16 * randn (size (u))) / 8;
    expect_law_like_model (e, u, v);
  end
end

% 60 set-ups, six steps of each.
function newmark_like_model (generate, seed)
  randomize (seed);
  for trial = 1:60
    [e, u] = generate ();
    ndof = size (u, 1);
    modes = randi (ndof);
    mass = 1 + rand (modes, 1);
    p = randn (1, 7);
    [integrator, mem, out] = newmark_setup (mass, 0.1 * mass, 0 * mass, randn (modes, 1), p, 0.01, 0.25, 0.5, [3 6], ndof);
    mem.uva.FNL = zeros (ndof + 4, 1);
    model = struct ('FNL', randn (ndof + 4, 1));
    u0 = 0.1 * u(:, 1);
    v0 = randn (ndof, 1);
    a0 = randn (ndof, 1);
    want = model_newmark ({integrator, fresh(e)}, fresh (model), u0, v0, a0, [0 0], fresh (mem), fresh (out));
    [got_u, got_v, got_a] = run_newmark ({integrator, e}, u0, v0, a0, mem, out, model, zeros (1, 2));
    close (got_u, want.u);
    close (got_v, want.v);
    close (got_a, want.a);
    close (model.FNL, want.model.FNL);
    close (out.def, want.out.def);
    close (mem.uva.uva, want.mem.uva.uva);
    expect_same_element (e, want.list{2}, 1e-12);
  end
end

function close (got, wanted)
  bad = ~isfinite (wanted);
  expect_equal (got(bad), wanted(bad));
  expect_equal (got(~bad), wanted(~bad), 1e-12);
end

function randomize (seed)
  rand ('twister', 420 + seed);
  randn ('twister', 420 + seed);
end

% The element around the law: one entry in each row of c and of b, sometimes no snl, sometimes forces and states stored.
function [e, u] = wrap (word, parameters, page, pages, places, values)
  ndof = page + randi (4) - 1;
  e = struct ('type', 1003, 'opt', [law_code(word); 0; parameters(:)]);
  e.c = matrix_lines (single_entries (page, ndof), true);
  e.unl = values (page, 1, pages);
  e.vnl = values (page, 1, pages);
  if rand < 0.8
    forces = max (page, 3);
    e.snl = randn (forces, 1);
  else
    forces = page;
  end
  e.b = matrix_lines (single_entries (min (forces, ndof), ndof), true);
  e.iopt = int32 ([randi(4) - 2; places(:)]);
  if numel (places) >= 4 && places(1) > 0, e.iopt(2) = int32 (min (places(1), ndof)); end
  e = fresh (e);
  u = randn (ndof, 3);
end

% Row k has one entry, in a column of its own where there are enough columns.
function m = single_entries (rows, columns)
  m = zeros (rows, columns);
  order = randperm (columns);
  for k = 1:rows, m(k, order(mod (k - 1, columns) + 1)) = randi (4) / 2; end
end

% [place in u, skip, length, blocks] of the state store; the place and the block fit into n rows.
function p = random_store (n)
  p = [randi([-1, n]), randi([0, 3]), 0, randi([0, 3])];
  if p(1) > 0, p(3) = randi ([0, n + 1 - p(1)]); end
end

% The time increment of a law, sometimes left to the first step time.
function h = increment (most)
  h = most * rand * (rand < 0.7);
end

function [e, u] = random_maxwell ()
  q = randi ([0, 4]);
  m = randi ([0, 3]);
  elements = randi ([0, 3]);
  page = max (q * elements + randi ([0, 2]), 1);
  pages = 3;
  while pages * page < 2 * page + max (elements - 1, 0) * q + max (q, m) + 1, pages = pages + 1; end
  pages = pages + (rand < 0.2);
  count = 2 * (q + m) * q + q * m + m * m + q + q + 2;
  weights = 0.5 * randn (count, 1);
  place = 0;
  if rand < 0.5, place = 1; end
  [e, u] = wrap ('Maxw', [increment(0.02); randi([0, 3]) + rand / 2; 0; weights], page, pages, [place q m elements], @randn);
  if double (e.iopt(2)) + m > size (u, 1) + 1, e.iopt(2) = int32 (0); end
end

function [e, u] = random_dahl ()
  page = randi (7);
  exponents = [0 1 2 2*rand];
  p = [increment(0.1), 50 * rand, exponents(randi (4)), 0.5 + rand, 2 * rand];
  [e, u] = wrap ('DahlC', p, page, 1 + randi (2), random_store (page), @randn);
end

function [e, u] = random_stick_slip ()
  page = randi (7);
  pages = randi (3);
  if pages == 1, page = 2 * ceil (page / 2); end
  [e, u] = wrap ('sts', [increment(0.1), 5 * rand, 5 * rand, 6 * rand, 3 * rand * (rand < 0.7)], page, pages, random_store (page), @randn);
end

function [e, u] = random_clima2 ()
  page = randi (11);
  pages = 2;
  while page * pages < 5 * ceil (page / 5), pages = pages + 1; end
  knots = randi (6);
  columns = randi (3);
  table = [sort(round (4 * randn (knots, 1)) / 2); randn(knots * columns, 1) + 1];
  count = numel (table);
  p = [increment(0.1); rand; 2 * rand; rand; randn; table; randi([-1, knots + 2]); 0; 0];
  store = random_store (page);
  [e, u] = wrap ('Clima2', p, page, pages, [store, 7, 7 + count, knots, columns], @randn);
  if ~isfield (e, 'snl') && page < 3, e.snl = randn (3, 1); end
end

function [e, u] = random_power ()
  page = randi (6);
  exponents = [0 1 2 3 -1 3*rand];
  [e, u] = wrap ('Power', [0; 0], page, randi (3), [0 0 0 0], @randn);
  e.opt(2:3) = [randn; exponents(randi (6))];
end

function [e, u] = random_exponential ()
  page = randi (6);
  [e, u] = wrap ('Expon', [0; 0], page, randi (3), [0 0 0 0], @randn);
  e.opt(2:3) = [randn; 3 * rand];
end

function [e, u] = random_table ()
  page = randi (6);
  knots = randi (6);
  table = [sort(round (4 * randn (knots, 1)) / 2); randn(knots, 1)];
  places = [0 0 0 0 2 2 + 2 * knots knots 1];
  [e, u] = wrap ('Table', [table; randi([-1, knots + 2]); 0; 0], page, randi (3), places, @randn);
end
