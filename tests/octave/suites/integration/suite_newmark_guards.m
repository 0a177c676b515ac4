% Bad input to the integrator: refused before anything is written, with a text that says what is wrong; registered handles survive.
function tests = suite_newmark_guards ()
  tests = localfunctions ();
end

function refused (run, words)
  refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, '', ['~^quarn chandlediagnewmark : .*' words]);
end

function test_missing_inputs ()
  run = small_run ();
  args = {run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
  for n = 0:7
    expect_refused (@() quarn ('chandlediagnewmark', args{1:n}), '~^quarn chandlediagnewmark : .*(9|6) inputs');
  end
end

function test_list_without_an_integrator_in_front ()
  run = small_run ();
  good = run.list;
  run.list = {};
  refused (run, 'integrator');
  run.list = good([2 1 3]);
  refused (run, 'integrator.*2000.*type 1');
  run.list = chandle ([]);
  refused (run, 'integrator');
  run.list = registered (good(2));
  refused (run, 'integrator.*2000.*type 1');
end

function test_list_elements_that_are_no_handle ()
  for wrong = {[], 5, 'x', {1}, struct('x', 1), struct('type', {}), int32([1 2]), @sin, cell(1, 1)}
    run = small_run ();
    run.list{2} = wrong{1};
    refused (run, 'element 2 .*"type"');
  end
  run = small_run ();
  run.list{2}.type = {1};
  refused (run, '"type"');
  run.list{2}.type = [];
  refused (run, '"type"');
end

function test_integrator_fields_missing ()
  for name = {'r', 'tft', 'data'}
    run = small_run ();
    run.list{1} = rmfield (run.list{1}, name{1});
    refused (run, ['"' name{1} '"']);
  end
end

function test_integrator_fields_of_other_classes ()
  for name = {'r', 'tft', 'data'}
    run = small_run ();
    value = run.list{1}.(name{1});
    for wrong = {single(value), int32(value), num2cell(value), 'text', true(size (value)), @sin}
      run.list{1}.(name{1}) = wrong{1};
      refused (run, name{1});
    end
  end
end

function test_matrix_gain_of_other_classes_and_sizes ()
  wrong = {single(eye (3)), int32(eye (3)), 1i * ones(3), num2cell(eye (3)), 'text', true(3), @sin, sparse(eye (3)), eye(2), ones(3, 4), ...
           ones(9, 1), 1, struct('pr', ones (9, 1), 'dims', [3 3])};
  for x = wrong
    run = small_run ();
    run.list{1}.gain = x{1};
    refused (run, 'gain must be');
  end
  for x = [NaN Inf -Inf]
    run = small_run ();
    run.list{1}.gain = eye (3);
    run.list{1}.gain(2, 3) = x;
    refused (run, 'gain must be finite, got .* in row 2, column 3');
  end
end

function test_matrix_gain_in_memory_that_a_step_writes ()
  run = small_run ();
  run.list = run.list(1);
  run.list{1}.gain = zeros (3, 3);
  run.out.def = run.list{1}.gain;
  refused (run, 'gain must have memory of its own, got that of out.def');
  run.out.def = zeros (3, 6);
  run.list{1}.gain = zeros (3, 3);
  run.mem.uva.uva = zeros (12, 1);
  run.u = run.mem.uva.uva;
  refused (run, 'mem.uva.uva must have memory of its own');
end

function test_load_matrix_without_a_gain_column ()
  run = small_run ();
  run.list{1}.r = ones (3, 1);
  run.list{1}.tft = zeros (0, 4);
  refused (run, 'r must have 2 columns');
end

function test_structures_that_claim_more_than_they_hold ()
  run = small_run ();
  r = run.list{1}.r;
  run.list{1}.r = struct ('pr', r(:), 'dims', [4 3]);
  refused (run, '\<r\>');
  run = small_run ();
  tft = run.list{1}.tft;
  run.list{1}.tft = struct ('pr', tft(:), 'dims', [2 7]);
  refused (run, 'tft');
  run = small_run ();
  run.list{1}.data = struct ('pr', ones (5, 1), 'dims', [2 3]);
  refused (run, 'data');
end

function test_short_state_arrays ()
  for name = {'u', 'v', 'a'}
    for wrong = {ones(2, 1), ones(1, 1), zeros(0, 1), zeros(3, 0)}
      run = small_run ();
      run.list = run.list(1);
      run.(name{1}) = wrong{1};
      refused (run, ['\<' name{1} '\>']);
    end
  end
end

function test_state_arrays_shorter_than_the_outputs ()
  run = small_run ();
  run.out.def = zeros (4, 6);
  run.mem.uva.uva = zeros (40, 1);
  refused (run, '\<u\>.*4');
end

function test_state_arrays_of_other_classes ()
  for name = {'u', 'v', 'a'}
    for wrong = {single([1; 2; 3]), int32([1; 2; 3]), 'abc', {1; 2; 3}, sparse([1; 2; 3]), true(3, 1), struct('u', 1), @sin}
      run = small_run ();
      run.(name{1}) = wrong{1};
      refused (run, ['\<' name{1} '\>']);
    end
  end
end

function test_work_memory_missing ()
  for mem = {[], struct('x', 1), 5}
    run = small_run ();
    run.mem = mem{1};
    refused (run, 'uva');
  end
  for mem = {struct('uva', {{}}), struct('uva', struct ('FNL', 1)), struct('uva', struct ('uva', []))}
    run.mem = mem{1};
    refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, 'KORV:quarn:Invalid', 'wrong uva size');
  end
end

function test_save_times_of_rows_without_values ()
  run = small_run ();
  run.model.FNL = zeros (2, 1);
  run.mem.uva.FNL = zeros (2, 1);
  before = fresh (run.out.def);
  run.out = struct ('data', zeros (3, 0), 'def', before, 'FNL', struct ('data', zeros (3, 0), 'def', zeros (2, 6)));
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  expect_equal (run.out.def, before);
end

function test_memory_and_outputs_of_other_classes ()
  trials = {'mem', struct('uva', struct('uva', int32(zeros (12, 1)))), 'uva'
            'mem', struct('uva', struct('uva', zeros(12, 1), 'FNL', 'x')), 'FNL|snapshot'
            'out', struct('data', int32(1), 'def', zeros(3, 6)), 'times'
            'out', struct('data', 1, 'def', single(zeros (3, 6))), 'def'
            'out', struct('data', 1, 'def', zeros(3, 6), 'FNL', struct('data', 'x', 'def', 1)), 'FNL'
            'out', struct('data', 1, 'def', zeros(3, 6), 'FNL', struct('data', 1, 'def', {{1}})), 'FNL'
            'model', struct('FNL', int32(1)), 'FNL'
            'opt', 'ab', 'Rayleigh'
            'opt', struct('Rayleigh', {{1}}), 'Rayleigh'};
  for k = 1:size (trials, 1)
    run = small_run ();
    run.(trials{k, 1}) = trials{k, 2};
    refused (run, ['(' trials{k, 3} ')']);
  end
end

function test_matrices_that_do_not_fit_the_state ()
  full_matrix = sparse ([1 2 3 1 3], [1 1 2 3 3], [2 -1 5 4 3], 3, 3);
  outside = matrix_lines (full_matrix);
  outside.ir(2) = int32 (3);
  negative = matrix_lines (full_matrix);
  negative.ir(3) = int32 (-2);
  backwards = matrix_lines (full_matrix);
  backwards.jc(3) = int32 (1);
  long = matrix_lines (full_matrix);
  long.jc(4) = int32 (6);
  cut = matrix_lines (full_matrix);
  cut.jc = cut.jc(1:3);
  values = matrix_lines (full_matrix);
  values.pr = values.pr(1:4);
  small = matrix_lines (full_matrix(1:2, 1:2));
  marked = matrix_lines (eye (2));
  alien = matrix_lines (full_matrix);
  alien.ir = int64 (alien.ir);
  sizes = matrix_lines (full_matrix);
  sizes.dims = 3;
  names = {'stiffness', 'mass', 'damping'};
  rows = {outside, 'MATRIX : index 3 in "ir" reaches past [uva] of 3 values'; negative, 'MATRIX : index -2 in "ir", expected 0 or more'; ...
          backwards, 'MATRIX : "jc" must ascend, got 1 after 2 at position 3'; ...
          long, 'MATRIX : "jc" ends at 6 entries, "ir" and "pr" hold 5 and 5'; ...
          cut, '"jc" must hold 4 values \(one more than the matrix has columns\), got 3'; ...
          values, 'MATRIX : "jc" ends at 5 entries, "ir" and "pr" hold 5 and 4'; ...
          small, 'MATRIX must hold 3 values \(one diagonal entry for each row of u\), got 2'; ...
          marked, 'MATRIX must hold 3 values \(one diagonal entry for each row of u\), got 2'; ...
          alien, 'field "ir" must be int32, got int64 5x1'; sizes, 'MATRIX.dims must hold 2 values \(rows, cols\), got 1'};
  for s = rows.'
    for code = 1:3
      run = small_run ();
      run.list = {run.list{1}, typed(code, s{1})};
      refused (run, ['element 2 : ' strrep(s{2}, 'MATRIX', ['the ' names{code} ' matrix'])]);
    end
  end
end

function test_elements_that_do_not_fit_the_state ()
  good = spring_element (1, 1, 3, [law_code('Power') 2 1]);
  far = good;
  far.c.ir(1) = int32 (3);
  into = good;
  into.b.ir(1) = int32 (12);
  wide = good;
  wide.b = matrix_lines (ones (1, 5), true);
  wide.b.dims = [1 20];
  short = good;
  short.opt = [law_code('Expon') 2];
  bare = good;
  bare.opt = [law_code('DahlC') 0 0.1 1 1 1 1];
  bare.unl = zeros (1, 1, 2);
  rows = {far, 'c : index 3 in "ir" reaches past v of 3 values'; into, 'b : index 12 in "ir" reaches past its own columns of 3 values'; ...
          wide, 'the residual must hold 20 values \(one for each column of b\), got 3'; ...
          short, 'opt must hold 3 values \(code, coefficient, base\), got 2'; ...
          bare, '"iopt" of law "DahlC" must hold 5 values or more, got 0'};
  for e = rows.'
    run = small_run ();
    run.list{4} = e{1};
    refused (run, ['element 4 : ' e{2}]);
  end
end

function test_later_handles_are_checked_before_the_first_step ()
  run = small_run ();
  e = spring_element (1, 1, 3, [law_code('Power') 2 1]);
  bad = e;
  bad.c.ir(1) = int32 (3);
  run.list = [run.list, {e, bad}];
  refused (run, 'element 5 : c : index 3 in "ir" reaches past v of 3 values');
  expect_equal (run.list{4}.snl, 0);
  expect_equal (run.list{1}.data(6), 0);
end

function test_random_nonsense_never_ends_the_host ()
  rand ('twister', 42);
  values = hostile_values ();
  names = {'list', 'model', 'u', 'v', 'a', 'opt', 'mem', 'out'};
  fields = {'r', 'tft', 'data', 'iopt', 'gain'};
  calls = rounds (1500);
  refusals = 0;
  for k = 1:calls
    run = small_run ();
    for spoiled = 1:1 + (rand < 0.3)
      x = values{1 + floor (numel (values) * rand)};
      switch mod (k, 4)
        case 0, run.(names{1 + floor (8 * rand)}) = x;
        case 1, if iscell (run.list), run.list{1}.(fields{1 + floor (5 * rand)}) = x; end
        case 2, if iscell (run.list), run.list{1 + floor (3 * rand)} = x; end
        case 3, run.mem = struct ('uva', struct ('uva', zeros (12, 1), 'FNL', x)); run.out.FNL = struct ('data', x, 'def', x);
      end
    end
    try
      quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
    catch err
      refusals = refusals + 1;
    end
  end
  if refusals < calls / 3, error ('only %d of %d calls were refused', refusals, calls); end
  expect_equal (quarn (), 1.0001);
end

function go (run)
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function test_a_second_stiffness_where_a_damping_could_be_is_a_stiffness ()
  run = small_run ();
  run.list{3} = typed (1, diag ([7; 8; 9]));
  same_as_model (run);
  run.list = {run.list{1}, typed(3, diag ([0.3 0.2 0.1])), typed(1, diag ([7; 8; 9]))};
  same_as_model (run);
end

function test_a_row_of_displacements_lets_the_handles_act_on_its_one_row ()
  run = small_run ();
  run.u = run.u.';
  go (run);
  one = small_run ();
  one.list(2:3) = {typed(1, diag ([4 0 0])), typed(3, diag ([0.3 0 0]))};
  one.list{2} = full_diagonal (one.list{2}, [4; 0; 0]);
  one.list{3} = full_diagonal (one.list{3}, [0.3; 0; 0]);
  one.list = fresh (one.list);
  go (one);
  expect_equal (run.u.', one.u);
  expect_equal (run.out.def, one.out.def);
end

% Zeros stored on the diagonal.
function h = full_diagonal (h, values)
  h.pr = values;
  h.ir = int32 ((0:2)');
  h.jc = int32 ((0:3)');
end

function test_state_arrays_as_long_as_the_output_has_rows ()
  for name = {'u', 'v', 'a'}
    run = small_run ();
    run.mem.uva.uva = zeros (16, 1);
    run.out.def = zeros (4, 6);
    for k = {'u', 'v', 'a'}, run.(k{1}) = [run.(k{1}); 0]; end
    run.(name{1}) = zeros (3, 1);
    refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, '', ...
      sprintf (['quarn chandlediagnewmark : %s must hold 4 values (one for each mode or row of out.def, whose columns are the save ' ...
                'times), got 3'], name{1}));
  end
end

function test_one_time_point_does_not_look_at_what_no_step_would_use ()
  run = small_run ();
  run.list{1}.tft = fresh (run.list{1}.tft(:, 1));
  run.list{2} = struct ('type', 1, 'pr', 1, 'ir', int32 ([9; 9]), 'jc', int32 ([0; 5; 2; 2]), 'dims', [3 3]);
  run.v = 1;
  before = fresh (run);
  go (run);
  expect_equal (run.u, before.u);
  expect_equal (run.out.def, before.out.def);
  run.list{1}.tft = fresh (small_run ().list{1}.tft(:, 1:2));
  expect_error (@() go (run), '', '~^quarn chandlediagnewmark : v must hold 3 values');
end

function test_observed_values_and_a_state_vector_in_one_array ()
  for name = {'u', 'v', 'a'}
    for field = {'unl', 'vnl'}
      run = small_run ();
      e = state_element ('Power', [2 1], [], 3);
      e.(field{1}) = run.(name{1});
      run.list{4} = e;
      expect_error (@() go (run), '', ['quarn chandlediagnewmark : element 4 : "' field{1} '" and u, v or a are one array: the ' ...
                                       'observation would overwrite the state']);
    end
  end
end

function test_texts_name_no_element_once_the_list_is_gathered ()
  run = small_run ();
  text = 'quarn chandlediagnewmark : the first handle must be the integrator (type 2000), got type 1';
  run.list = run.list([2 1]);
  expect_error (@() go (run), '', text);
  run.list = registered (run.list);
  expect_error (@() go (run), '', text);
end
