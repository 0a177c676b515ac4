function tests = suite_toolbox_matrices ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_packed_and_unpacked_matrices_are_the_same ()
  rand ('twister', 42);
  for k = 1:20
    a = sprand (ceil (6 * rand ()), ceil (6 * rand ()), 0.4);
    expect_equal (full (qn.unpack (qn.pack (a))), full (a));
    expect_equal (full (qn.unpack (qn.pack (a, 'transposed'))), full (a));
    expect_equal (full (qn.unpack (qn.pack (full (a)))), full (a));
  end
end

function test_the_structure_is_the_one_the_module_reads ()
  a = sparse ([1 0 2; 0 3 0]);
  s = qn.pack (a);
  expect_equal (s.ir, int32 ([0; 1; 0]));
  expect_equal (s.jc, int32 ([0; 1; 2; 3]));
  expect_equal (s.dims, [2 3]);
  y = zeros (3, 1);
  quarn ('tbbp', struct ('ir', s.ir, 'jc', s.jc, 'pr', s.pr), [1; 2; 0], y);
  expect_equal (y(1:2), a(:, 1:2).' * [1; 2]);
  t = qn.pack (a, 'transposed');
  expect_equal (t.ir, int32 ([0; 2; 1]));
  expect_equal (t.jc, int32 ([0; 2; 3]));
  expect_equal (t.trans, 1);
end

function test_a_diagonal_marked_by_the_module_is_read_back ()
  i = quarn ('chandleset', 1, qn.pack (sparse (diag ([3 4 5]))));
  r = zeros (3, 1);
  quarn ('residual', r, chandle (i), ones (3, 1), zeros (3, 1), []);
  value = quarn ('chandleget', i);
  expect_equal (value.ir(1), int32 (-1));
  expect_equal (full (qn.unpack (value)), diag ([3 4 5]));
  if isempty (strfind (qn.describe (value), 'diagonal')), error ('not said to be diagonal: %s', qn.describe (value)); end
  quarn ('chandleclear', i);
end

function test_full_structures_and_objects_unpack ()
  expect_equal (full (qn.unpack (struct ('pr', [1; 2; 3; 4], 'dims', [2 2]))), [1 3; 2 4]);
  expect_equal (full (qn.unpack (v_handle (qn.pack (sparse ([1 2]))))), [1 2]);
  expect_error (@() qn.unpack (struct ('ir', int32 (0))), 'qn:input', '~field "pr" expected');
  expect_error (@() qn.unpack (struct ('ir', int32 (0), 'jc', int32 ([0; 5]), 'pr', 1, 'dims', [1 1])), 'qn:input', '~points to 5');
  expect_error (@() qn.pack (1i), 'qn:input', '~"A" must be one finite real number, got 0\+1i');
end

function test_matrix_market_files_keep_every_bit ()
  rand ('twister', 42);
  file = [tempname() '.mtx'];
  clean = onCleanup (@() delete (file));
  k = sprand (7, 7, 0.3);
  given = {k, k + k.', full(k), full(k + k.'), k + 1i * sprand(7, 7, 0.2), full(k) * (1 + 2i), sparse(3, 4), pi, rand(3, 2)};
  for j = 1:numel (given)
    qn.mmwrite (file, given{j}, 'stiffness [N/m]');
    a = qn.mmread (file);
    expect_equal (full (a), full (given{j}));
    expect_equal (issparse (a), issparse (given{j}));
  end
end

function test_matrix_market_forms_of_other_programs_are_read ()
  file = [tempname() '.mtx'];
  clean = onCleanup (@() delete (file));
  write (file, {'%%MatrixMarket matrix coordinate pattern symmetric', '% comment', '', '3 3 2', '2 1', '3 3'});
  expect_equal (full (qn.mmread (file)), [0 1 0; 1 0 0; 0 0 1]);
  write (file, {'%%MatrixMarket MATRIX coordinate integer skew-symmetric', '2 2 1', '2 1 4'});
  expect_equal (full (qn.mmread (file)), [0 -4; 4 0]);
  write (file, {'%%MatrixMarket matrix array real skew-symmetric', '2 2', '5'});
  expect_equal (qn.mmread (file), [0 -5; 5 0]);
  write (file, {'%%MatrixMarket matrix coordinate complex hermitian', '2 2 2', '1 1 1 0', '2 1 0 3'});
  expect_equal (full (qn.mmread (file)), [1, conj(3i); 3i, 0]);
end

function test_bad_matrix_market_files_are_refused ()
  file = [tempname() '.mtx'];
  clean = onCleanup (@() delete (file));
  write (file, {'1 2 3'});
  expect_error (@() qn.mmread (file), 'qn:input', '~header');
  write (file, {'%%MatrixMarket matrix coordinate real general', '2 2 2', '1 1 1'});
  expect_error (@() qn.mmread (file), 'qn:input', '~line 3: the file ends early: 6 numbers expected, got 3');
  write (file, {'%%MatrixMarket matrix coordinate quaternion general', '1 1 1'});
  expect_error (@() qn.mmread (file), 'qn:input', '~quaternion');
  expect_error (@() qn.mmread ([file 'x']), 'qn:input', '~cannot open');
end

function write (file, lines)
  id = fopen (file, 'w');
  fprintf (id, '%s\n', lines{:});
  fclose (id);
end

function test_projections_are_products ()
  randn ('twister', 42);
  k = sprandn (6, 6, 0.5);
  a = randn (6, 3);
  b = randn (6, 2);
  expect_equal (qn.project (a, k), a.' * k * a, 1e-13);
  expect_equal (qn.project (a, k, b), a.' * k * b, 1e-13);
  expect_equal (qn.project (a + 1i, qn.pack (k), a), (a + 1i).' * k * a, 1e-13);
  expect_error (@() qn.project (a, speye (5)), 'qn:input', '~got 5 x 5');
  expect_error (@() qn.project (a * 1i, k, b), 'qn:input', '~same width');
end

function test_handles_say_what_they_are_and_can_be_deleted ()
  h = chandle ([quarn('chandleset', 2, qn.pack (speye (2))), quarn('chandleset', 1003, qn.element (qn.cubic ('stiffness', 7), [1 0]))]);
  lines = strsplit (qn.describe (h), sprintf ('\n'));
  expect_equal (numel (lines), 2);
  if isempty (strfind (lines{1}, 'matrix 2x2')) || isempty (strfind (lines{2}, '7 * x^3')), error ('got %s', qn.describe (h)); end
  text = evalc ('display (h)');
  if isempty (strfind (text, 'chandle vector of 2')) || isempty (strfind (text, '7 * x^3')), error ('got %s', text); end
  delete (h(1));
  expect_equal (quarn ('chandleget'), remi (h, 2));
  delete (h);
  delete (h);
  expect_equal (numel (quarn ('chandleget')), 0);
  if isempty (strfind (qn.describe (h), 'free')), error ('got %s', qn.describe (h)); end
end

function test_a_v_handle_stands_for_its_matrix ()
  v = v_handle (qn.pack (sparse ([4 0; 1 5])));
  y = zeros (2, 1);
  quarn ('tbbp', v, [1; 1], y);
  expect_equal (y, [5; 5]);
  text = evalc ('display (v)');
  if isempty (strfind (text, 'matrix 2x2')), error ('got %s', text); end
end

function test_the_diagonal_of_a_hermitian_matrix_is_real ()
  heads = {'coordinate complex hermitian', '2 2 3', '1 1 4 0', '2 1 0 3', '2 2 5 -1'; 'array complex hermitian', '2 2', '4 0', '0 3', '5 -1'}.';
  for head = heads
    [file, clean] = put_bytes (sprintf ('%s\n', ['%%MatrixMarket matrix ' head{1}], head{2:end}));
    expect_error (@() qn.mmread (file), 'qn:input', '~line 5: the value 5-1i on the diagonal of a hermitian matrix');
  end
end
