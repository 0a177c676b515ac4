% What counts as absent, and of what the real part is taken: arrays without elements of whatever class, complex arrays that are read.
function tests = suite_absent_and_complex ()
  tests = localfunctions ();
end

function e = nothings ()
  e = {[], '', {}, single([]), sparse(0, 0), int32([]), struct([]), zeros(0, 3), logical([])};
end

function k = cell_of (m)
  k = {matrix_lines(m), [], matrix_lines(m)};
end

function test_acceleration_without_elements_of_any_class_is_absent ()
  k = cell_of ([2 1; 1 3]);
  for a = nothings ()
    r = zeros (2, 1);
    quarn ('residual', r, k, [1; 2], [3; 4], a{1}, [0 0]);
    expect_equal (r, [4; 7]);
  end
end

function test_rayleigh_source_without_elements_of_any_class_is_absent ()
  k = cell_of ([2 1; 1 3]);
  for opt = [nothings(), {struct('Rayleigh', ''), struct('Rayleigh', {{}})}]
    r = zeros (2, 1);
    quarn ('residual', r, k, [1; 2], [3; 4], [5; 6], opt{1});
    expect_equal (r, [4; 7] + [16; 23]);
  end
end

function test_force_store_without_elements_of_any_class_is_absent ()
  e = struct ('Fu', @(varargin) [1; 2], 'b', matrix_lines (eye (2)), 'StoreFNL', 1);
  for store = nothings ()
    model = nl_model (e);
    model.FNL = store{1};
    r = zeros (2, 1);
    quarn ('residual', r, model, [1; 2], [3; 4], [], [], []);
    expect_equal (r, [1; 2]);
  end
end

function test_fields_of_an_element_handle_without_elements_of_any_class_are_absent ()
  for empty = {'', {}, single([]), int32([])}
    e = spring_element (1, 1, 2, [law_code('Power') 2 1]);
    e.vnl = empty{1};
    e.snl = empty{1};
    e = evaluate_law (e, [1.5; 0], [7; 0]);
    expect_equal (e.unl, 3);  % the force in place of the displacement
    e = spring_element (1, 1, 2, [law_code('Power') 2 1]);
    e.b = empty{1};
    [e, r] = evaluate_law (e, [1.5; 0], [7; 0]);
    expect_equal (e.snl, 3);
    expect_equal (r, zeros (2, 1));
    e.unl = empty{1};
    e.c = empty{1};
    e = evaluate_law (e, [1.5; 0], [7; 0]);
    expect_equal (e.snl, 3);
  end
end

function test_fields_of_a_list_element_without_elements_of_any_class_are_absent ()
  pages = zeros (1, 1, 3);
  for empty = {'', {}, single([]), sparse(0, 0)}
    e = struct ('type', '', 'c', matrix_lines ([1 0], true), 'unl', pages + 1, 'vnl', pages + 2);
    e.opt = empty{1};
    e = fresh (e);
    quarn ('residual', zeros (2, 1), nl_model (repmat (e, [1 1 3])), [5; 6], [7; 8], []);
    expect_equal (e.vnl(:), [9; 2; 2]);
    e = fresh (struct ('type', '', 'c', matrix_lines ([1 0], true), 'unl', 1));
    e.vnl = empty{1};
    e.unl0 = empty{1};
    quarn ('residual', zeros (2, 1), nl_model (e), [5; 6], [7; 8], []);
    expect_equal (e.unl, 5);
  end
end

function test_switching_time_without_elements_is_absent ()
  for tc = {[], '', {}}
    e = fresh (struct ('type', '', 'c', matrix_lines ([1 0], true), 'unl', zeros (1, 1, 3) + 1, 'vnl', zeros (1, 1, 3) + 2));
    e.opt = [0 -1];
    opt = struct ();
    opt.tc = tc{1};
    e.unl(3) = 9;
    quarn ('residual', zeros (2, 1), nl_model (repmat (e, [1 1 3])), [5; 6], [7; 8], [], opt, []);
    expect_equal (e.unl(3), 1);  % the first page is kept in the third where opt(2) is negative
  end
end

function test_index_array_without_elements_of_class_double_means_a_full_matrix ()
  e = spring_element (1, 1, 2, [law_code('Power') 2 1]);
  e.c = struct ('pr', [1 0], 'dims', [1 2], 'ir', [], 'jc', '');
  e = evaluate_law (e, [1.5; 4], [7; 0]);
  expect_equal (e.snl, 3);
end

function test_directzr_without_blocks ()
  z = 1i * ones (2, 2);
  for blocks = nothings ()
    expect_equal (quarn ('directzr', z, blocks{1}, z, z), zeros (2, 4));
  end
  expect_error (@() quarn ('directzr', z, 5, z, z), '', 'quarn directzr : Kc must be a cell row of double matrices, got double 1x1');
end

function test_nlv1_with_a_field_of_a_struct_without_elements ()
  quarn ('nlv1', struct ('unl', {}));
  quarn ('nlv1', struct ('other', 1, 'unl', {}));
  expect_error (@() quarn ('nlv1', struct ('other', {})), '', ...
    'quarn nlv1 : expected a struct with a field "unl", got struct 0x0');
end

function test_native_sparse_matrix_without_elements_in_a_cell_is_refused_like_any ()
  % One for each place that is looked at; without an acceleration and alpha the mass matrix is not.
  empty = sparse (0, 0);
  s = {[1; 2], [3; 4], [5; 6]};
  for place = 1:3
    k = cell_of ([2 1; 1 3]);
    k{place} = empty;
    r = zeros (2, 1) + 1;
    expect_error (@() quarn ('residual', r, k, s{:}), '', 'ir must be int32');
    expect_equal (r, [1; 1]);
  end
  k = cell_of ([2 1; 1 3]);
  k{1} = empty;
  r = zeros (2, 1);
  quarn ('residual', r, k, s{1:2}, []);
  expect_equal (r, [4; 7]);
  expect_error (@() with_energies (r, k, s{1:2}), '', 'ir must be int32');
end

function with_energies (r, k, u, v)
  [kinetic, strain] = quarn ('residual', r, k, u, v, []);
end

function test_real_part_of_a_complex_vector_in_tbbp ()
  y = zeros (2, 1) + 1;
  quarn ('tbbp', matrix_lines ([2 1; 1 3]), [1 + 5i; 2 - 1i], y);
  expect_equal (y, [5; 8]);
  expect_error (@() quarn ('tbbp', matrix_lines ([2 1; 1 3]), [1; 2], [1i; 2]), '', ...
    'quarn tbbp : y must be a full real double array, got complex double 2x1');
end

function test_real_part_of_complex_matrix_values ()
  m = matrix_lines ([2 1; 1 3]);
  m.pr = complex (m.pr, 7);
  y = zeros (2, 1);
  quarn ('tbbp', m, [1; 2], y);
  expect_equal (y, [4; 7]);
  expect_equal (quarn ('c<-a''*b', [1; 2], m), [4 7]);
  expect_error (@() quarn ('setsparse', m, [], [], 1), '', 'quarn setsparse : the values of M must be real to be overwritten, got complex ones');
  expect_error (@() quarn ('setsparse', [1i 2], [], [], 1), '', ...
    'quarn setsparse : the values of M must be real to be overwritten, got complex ones');
end

function test_real_part_of_a_complex_element ()
  e = spring_element (1, 1, 2, [law_code('Power') 2 1]);
  e.c = complex ([1 0], 3);
  e.opt = complex (e.opt, [0; 5; 6]);
  e = evaluate_law (e, [1.5; 4], [7; 0]);
  expect_equal (e.snl, 3);
end

function test_real_part_of_complex_integrator_fields ()
  run = small_run ();
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  other = small_run ();
  for name = {'r', 'tft', 'data'}
    other.list{1}.(name{1}) = complex (other.list{1}.(name{1}), 1);
  end
  other.out.data = complex (other.out.data, 2);
  quarn ('chandlediagnewmark', other.list, other.model, other.u, other.v, other.a, complex (other.opt, 1), other.mem, other.out);
  expect_equal (other.u, run.u);
  expect_equal (other.out.def, run.out.def);
end

function test_real_part_of_a_complex_force_store ()
  run = small_run ();
  run.list{1}.iopt = int32 (1);
  run.model.FNL = complex (zeros (3, 1), 4);
  run.mem.uva.FNL = zeros (3, 1);
  run.out.FNL = struct ('data', run.out.data, 'def', zeros (3, 6));
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  expect_equal (run.out.FNL.def(2, 2:end), run.list{1}.tft(2, 1:end - 1));
end

function test_real_part_of_a_complex_callback_result ()
  e = struct ('b', matrix_lines (eye (2)), 'StoreFNL', 1, 'FInd', int32 (0));
  for result = {[1 + 2i; 3], struct('snl', [1 + 2i; 3]), struct('unl', [1 + 2i; 3])}
    e.Fu = @(varargin) result{1};
    model = nl_model (e);
    model.FNL = zeros (2, 1);
    r = zeros (2, 1);
    quarn ('residual', r, model, [1; 2], [3; 4], [], [], []);
    expect_equal (r, [1; 3]);
    expect_equal (model.FNL, [1; 3]);
  end
end

function test_real_part_of_a_complex_rayleigh_pair ()
  k = cell_of ([2 1; 1 3]);
  for opt = {[0.5 + 1i, 0.25], struct('Rayleigh', [0.5 + 1i, 0.25 - 3i]), sparse([0.5 + 1i, 0.25])}
    r = zeros (2, 1);
    quarn ('residual', r, k, [1; 2], [3; 4], [5; 6], opt{1});
    expect_equal (r, [4; 7] + [16; 23] + 0.75 * [10; 15]);
  end
end

function test_sparse_rayleigh_pair ()
  k = cell_of ([2 1; 1 3]);
  pairs = [0.5 0.25; 0 0.25; 0.5 0; 0 0];
  for n = 1:rows (pairs)
    for opt = {sparse(pairs(n, :)), sparse(pairs(n, :)).', struct('Rayleigh', sparse (pairs(n, :)))}
      r = zeros (2, 1);
      quarn ('residual', r, k, [1; 2], [3; 4], [5; 6], opt{1});
      expect_equal (r, [4; 7] + [16; 23] + sum (pairs(n, :)) * [10; 15]);
    end
  end
end

function test_sparse_scalar_as_index_or_type_code ()
  h = quarn ('chandleset', sparse (1), matrix_lines ([2 1; 1 3]));
  expect_equal (quarn ('chandleget', sparse (h)).pr, [2; 1; 1; 3]);
  expect_equal (quarn ('chandleget', @(value) value.dims, sparse (h)), [2 2]);
  r = zeros (2, 1);
  quarn ('residual', r, chandle (sparse (h)), [1; 2], [0; 0], []);
  expect_equal (r, [4; 7]);
  run = small_run ();
  run.list{1}.type = sparse (2000);
  same = small_run ();
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  quarn ('chandlediagnewmark', same.list, same.model, same.u, same.v, same.a, same.opt, same.mem, same.out);
  expect_equal (run.u, same.u);
  quarn ('chandleclear', sparse (h));
  expect_error (@() quarn ('chandleget', h), 'KORV:quarn:NonHandle', 'Handle does not exist');
  expect_error (@() quarn ('chandleget', sparse ([h 0])), '', ...
    'quarn chandleget : the handle''s index must be a number, got sparse double 1x2');
end
