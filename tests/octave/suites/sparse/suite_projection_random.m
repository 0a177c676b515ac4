% Projections of random sparse matrices against the host's own products.
function tests = suite_projection_random ()
  tests = localfunctions ();
end

function s = random_matrix (n, m, whole)
  s = full (sprandn (n, m, 0.3 * rand ()));
  if whole, s = round (3 * s); end
  s(:, rand (1, m) < 0.2) = 0;
  if ~any (s(:)), s(1, 1) = 2; end
end

function b = random_base (n, m, is_complex, whole)
  b = randn (n, m);
  if is_complex, b = b + 1i * randn (n, m); end
  if whole, b = round (3 * b); end
end

% Every element within 1e-13 of the sum of the sizes of its terms; whole numbers to the bit.
function compare (got, wanted, sizes, whole)
  if whole
    expect_equal (got, wanted);
    return
  end
  expect_equal (size (got), size (wanted));
  off = abs (got - wanted) - 1e-13 * sizes;
  if any (off(:) > 0), error ('off by %g beyond the tolerance', max (off(:))); end
end

function test_triple_products_of_random_bases ()
  rand ('twister', 42);
  randn ('twister', 42);
  for round_no = 1:rounds (240)
    n = ceil (rand () * 60);
    cols = ceil (rand () * 20);
    whole = rand () < 0.5;
    s = random_matrix (n, n, whole);
    ta = random_base (n, cols, mod (round_no, 2) == 1, whole);
    tb = random_base (n, cols, mod (round_no, 4) >= 2, whole);
    transposed = rand () < 0.5;
    k = matrix_lines (s, transposed);
    if transposed, s = s.'; end
    p = quarn ('abc', ta, k, tb, int32 ([1 0 0]));
    compare (p, ta.' * s * tb, 4 * abs (ta).' * abs (s) * abs (tb), whole);
  end
end

function test_left_products_of_random_bases ()
  rand ('twister', 43);
  randn ('twister', 43);
  for round_no = 1:rounds (240)
    n = ceil (rand () * 60);
    m = ceil (rand () * 60);
    cols = ceil (rand () * 20);
    whole = rand () < 0.5;
    s = random_matrix (n, m, whole);
    a = random_base (n, cols, false, whole);
    k = matrix_lines (s);
    if rand () < 0.5, k = matrix_lines (s.', true); end
    wanted = a.' * s;
    sizes = abs (a).' * abs (s);
    compare (quarn ('c<-a''*b', a, k), wanted, sizes, whole);
    c = randn (cols, m);
    quarn ('c<-a''*b', a, k, c);
    compare (c, wanted, sizes, whole);
  end
end

function test_columns_together_have_the_bits_of_columns_alone ()
  rand ('twister', 44);
  randn ('twister', 44);
  for round_no = 1:60
    n = ceil (rand () * 90);
    cols = ceil (rand () * 20);
    k = matrix_lines (random_matrix (n, n, false));
    ta = random_base (n, cols, mod (round_no, 2) == 1, false);
    tb = random_base (n, cols, mod (round_no, 4) >= 2, false);
    p = quarn ('abc', ta, k, tb, int32 ([1 0 0]));
    c = quarn ('c<-a''*b', real (ta), k);
    i = ceil (rand () * cols);
    j = ceil (rand () * cols);
    expect_equal (p(i, j), quarn ('abc', ta(:, i), k, tb(:, j), int32 ([1 0 0])));
    expect_equal (c(i, :), quarn ('c<-a''*b', real (ta(:, i)), k));
  end
end
