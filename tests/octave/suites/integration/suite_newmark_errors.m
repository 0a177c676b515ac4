% Every defined error of the integrator, and which of two comes first. Nothing may be written, registered handles must answer.
function tests = suite_newmark_errors ()
  tests = localfunctions ();
end

function refused (run, id, text)
  refused_cleanly (run.list, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, id, text);
  if iscell (run.list) && ~isempty (run.list) && isstruct (run.list{1})
    for k = 1:numel (run.list), one{k} = run.list{k}; end
    h = registered (one);
    refused_cleanly (h, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, id, text);
  end
end

function test_list_that_is_neither_cell_nor_handle_vector ()
  run = small_run ();
  for list = {run.list{1}, zeros(3, 1), 'list', int32([1 2])}
    run.list = list{1};
    args = {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
    refused_cleanly (run.list, args, 'KORV:quarn:Invalid', 'Expecting chandle vector');
  end
end

function test_an_empty_list_has_no_integrator ()
  run = small_run ();
  refused_cleanly ({}, {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, '', ...
                   'quarn chandlediagnewmark : the handle list is empty, expected the integrator first');
end

function test_sparse_r ()
  run = small_run ();
  run.list{1}.r = matrix_lines (run.list{1}.r);
  refused (run, 'KORV:quarn:Invalid', 'Full r expected');
  run.list{1}.r = sparse (ones (3, 3));
  refused (run, '', 'ir must be int32');
end

function test_table_rows ()
  run = small_run ();
  tft = run.list{1}.tft;
  run.list{1}.tft = tft(1, :);
  refused (run, 'KORV:quarn:Invalid', 'Inconsistent Nb & NT');
  run.list{1}.tft = tft([1 2 2], :);
  refused (run, 'KORV:quarn:Invalid', 'Inconsistent Nb & NT');
end

function test_data_length ()
  run = small_run ();
  data = run.list{1}.data;
  for wrong = {data(1:5), [data 0], zeros(0, 1)}
    run.list{1}.data = wrong{1};
    refused (run, 'KORV:quarn:Invalid', 'Inconsistent data length');
  end
end

function test_integer_options ()
  run = small_run ();
  for wrong = {0, int64(0), 'a', {int32(0)}}
    run.list{1}.iopt = wrong{1};
    refused (run, 'KORV:quarn:conform', 'iopt must be int32');
  end
end

function test_sparse_table_and_coefficients_are_named_as_such ()
  for name = {'tft', 'data'}
    run = small_run ();
    run.list{1}.(name{1}) = matrix_lines (run.list{1}.(name{1}));
    refused (run, '', ['~' name{1} ' must be a full matrix']);
  end
end

function test_order_of_the_checks_of_the_value ()
  run = small_run ();
  run.list{1}.iopt = 0;
  run.list{1}.data = ones (1, 5);
  refused (run, 'KORV:quarn:Invalid', 'Inconsistent data length');
  run.list{1}.tft = ones (3, 4);
  refused (run, 'KORV:quarn:Invalid', 'Inconsistent Nb & NT');
  run.list{1}.r = matrix_lines (run.list{1}.r);
  refused (run, 'KORV:quarn:Invalid', 'Full r expected');
end

function test_short_work_array ()
  run = small_run ();
  run.mem.uva.uva = zeros (11, 1);
  refused (run, 'KORV:quarn:Invalid', 'wrong uva size');
  run.mem.uva.uva = zeros (12, 1);
  same_as_model (run);
end

function test_work_array_must_hold_three_output_lengths_and_the_modes ()
  run = small_run ();
  run.u = fresh ([run.u; 0; 0]);
  run.v = fresh ([run.v; 0; 0]);
  run.a = fresh ([run.a; 0; 0]);
  run.list = run.list(1);
  run.out.def = zeros (5, 6);
  run.mem.uva.uva = zeros (17, 1);
  refused (run, 'KORV:quarn:Invalid', 'wrong uva size');
end

function test_state_arrays_must_differ ()
  for pairs = {'v', 'a', 'Identical v & a'; 'v', 'u', 'Identical v & u'; 'a', 'u', 'Identical a & u'}'
    run = small_run ();
    shared = zeros (3, 1);
    run.(pairs{1}) = shared;
    run.(pairs{2}) = shared;
    refused (run, 'KORV:quarn:Invalid', pairs{3});
  end
end

function test_all_three_the_same_names_velocity_and_acceleration ()
  run = small_run ();
  run.u = zeros (3, 1);
  run.v = run.u;
  run.a = run.u;
  refused (run, 'KORV:quarn:Invalid', 'Identical v & a');
end

function test_short_work_array_is_found_before_identical_states ()
  run = small_run ();
  run.u = zeros (3, 1);
  run.v = run.u;
  run.mem.uva.uva = zeros (5, 1);
  refused (run, 'KORV:quarn:Invalid', 'wrong uva size');
end

function test_state_block_that_ends_beyond_the_outputs ()
  for last = [3 4 5]
    run = small_run ();
    element = spring_element (1, 1, 3, [law_code('Power') 1 1], int32 ([-1 last 0 1 1]));
    run.list{4} = element;
    if last + 1 > 3 + 1
      refused (run, 'KORV:quarn:Invalid', 'iu+Nistate too large');
    else
      same_as_model (run);
    end
  end
end

function test_complex_state ()
  run = small_run ();
  for name = {'u', 'v', 'a'}
    wrong = run;
    wrong.(name{1}) = run.(name{1}) + 1i;
    refused (wrong, '', 'Real numbers needed.');
  end
end

function test_unknown_type_in_a_cell_list ()
  run = small_run ();
  run.list{2}.type = 4;
  args = {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
  refused_cleanly (run.list, args, 'KORV:quarn:NonHandle', 'Not a valid chandle type');
end

function test_cleared_handle ()
  run = small_run ();
  [h, indices] = registered (run.list);
  quarn ('chandleclear', indices(3));
  args = {run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
  refused_cleanly (h, args, 'KORV:quarn:NonHandle', 'Handle does not exist');
end
