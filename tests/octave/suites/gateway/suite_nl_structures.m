% The nonlinear list in the residual command: which law an element gets, and what is assembled.
function tests = suite_nl_structures ()
  tests = localfunctions ();
end

function f = in_struct (e, varargin)
  f = struct ('unl', -e.unl, 'snl', 3 * e.unl);
end

function f = in_struct_unl (e, varargin)
  f = struct ('unl', -e.unl);
end

function f = empty_struct (varargin)
  f = struct ('other', 1);
end

function varargout = no_value (varargin)
  varargout = {};
end

function add_one_in_place (e, varargin)
  change_in_place (e.unl, ones (numel (e.unl), 1));
end

function test_row_without_an_element_is_skipped ()
  e = two_dof_element ();
  e.Fu = @twice_unl;
  model = nl_model ([], e, []);
  r = zeros (4, 1) + 1;
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [3; 1; 7; 1]);
end

function test_list_without_rows_adds_nothing ()
  model = struct ('K', {cell(1, 3)}, 'NL', {{}});
  r = zeros (4, 1) + 5;
  add_model (r, model, ones (4, 1), zeros (4, 1));
  model.NL = cell (0, 3);
  add_model (r, model, ones (4, 1), zeros (4, 1));
  expect_equal (r, 5 * ones (4, 1));
end

function test_result_vector_is_the_force ()
  e = two_dof_element ();
  e.Fu = @twice_unl;
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [2; 0; 6; 0]);
end

function test_result_structure_gives_snl_before_unl ()
  e = two_dof_element ();
  e.Fu = @in_struct;
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [3; 0; 9; 0]);
  e.Fu = @in_struct_unl;
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [-1; 0; -3; 0]);
end

function test_result_structure_without_forces_contributes_nothing ()
  e = two_dof_element ();
  e.Fu = @empty_struct;
  e.StoreFNL = 1;
  model = nl_model (e);
  model.FNL = zeros (2, 1) + 8;
  r = zeros (4, 1);
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, zeros (4, 1));
  expect_equal (model.FNL, [8; 8]);
end

function test_no_result_leaves_the_elements_own_force ()
  e = two_dof_element ();
  e.Fu = @no_value;
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [1; 0; 3; 0]);
  e.snl = zeros (2, 1) + [5; 6];
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [5; 0; 6; 0]);
  r = zeros (4, 1);
  add_model (r, nl_model (rmfield (e, {'snl', 'unl'})), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, zeros (4, 1));
end

function test_element_without_b_adds_nothing_and_still_stores ()
  e = rmfield (two_dof_element (), 'b');
  e.Fu = @twice_unl;
  e.StoreFNL = 1;
  model = nl_model (e);
  model.FNL = zeros (3, 1);
  r = zeros (4, 1);
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, zeros (4, 1));
  expect_equal (model.FNL, [2; 6; 0]);
end

function test_function_handle_in_Fu_wins_over_the_type ()
  e = two_dof_element ();
  e.Fu = @twice_unl;
  e.type = 'rotcenter';
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [2; 0; 6; 0]);
end

function test_callable_type_works_on_the_element_in_place ()
  e = two_dof_element ();
  e.type = @add_one_in_place;
  e.StoreFNL = 1;
  model = nl_model (e);
  model.FNL = zeros (2, 1);
  r = zeros (4, 1);
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [2; 0; 4; 0]);
  expect_equal (model.FNL, zeros (2, 1));
end

function test_callable_type_without_unl_or_b_assembles_nothing ()
  e = two_dof_element ();
  e.type = @no_value;
  e.snl = zeros (2, 1) + 4;
  r = zeros (4, 1);
  add_model (r, nl_model (rmfield (e, 'unl'), rmfield (e, 'b')), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, zeros (4, 1));
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [4; 0; 4; 0]);
end

function test_empty_type_does_nothing_but_observe ()
  global HAPSEL_CALLS
  HAPSEL_CALLS = {};
  e = two_dof_element ();
  e.type = '';
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (numel (HAPSEL_CALLS), 0);
  expect_equal (r, zeros (4, 1));
  expect_equal (e.unl, [1; 3]);
end

function test_any_other_word_goes_to_hapsel_with_eight_inputs ()
  global HAPSEL_CALLS
  words = {'nl_spring', 'Rotcenter', 'rotcenter2', 'mocirc', 'mocirc22'};
  for k = 1:numel (words)
    HAPSEL_CALLS = {};
    e = two_dof_element ();
    e.type = words{k};
    e.snl = zeros (2, 1) + [5; 6];
    model = nl_model (e);
    r = zeros (4, 1);
    u = [1; 2; 3; 4];
    v = [5; 6; 7; 8];
    a = [9; 10; 11; 12];
    quarn ('residual', r, model, u, v, a, [0 0], {'x'});
    expect_equal (numel (HAPSEL_CALLS), 1);
    in = HAPSEL_CALLS{1};
    expect_equal (numel (in), 8);
    expect_equal (in{1}.type, words{k});
    expect_equal (in{3}, model);
    expect_equal (in(4:8), {u, v, a, [0 0], {'x'}});
    expect_equal (r, [10; 0; 12; 0]);
  end
end

function test_function_gets_the_element_and_the_seven_arguments ()
  global SEEN
  SEEN = {};
  e = two_dof_element ();
  e.Fu = @remember;
  model = nl_model (e);
  opt = struct ('Rayleigh', [0 0], 'tc', 2);
  quarn ('residual', zeros (4, 1) + 3, model, [1; 2; 3; 4], [5; 6; 7; 8], [], opt, 'extra');
  expect_equal (numel (SEEN), 8);
  expect_equal (SEEN{1}.unl, [1; 3]);
  expect_equal (SEEN{1}.vnl, [5; 7]);
  expect_equal (SEEN(2:2), {3 * ones(4, 1)});
  expect_equal (SEEN(4:8), {[1; 2; 3; 4], [5; 6; 7; 8], [], opt, 'extra'});
end

function f = remember (varargin)
  global SEEN
  SEEN = varargin;
  SEEN{2} = SEEN{2} + 0;
  f = zeros (2, 1);
end

function test_mocirc2_adds_and_stores_nothing ()
  e = two_dof_element ();
  e.type = 'mocirc2';
  e.cta = matrix_lines (sparse ([1 2 3 4], [1 1 2 2], [1 2 3 4], 4, 4));
  model = nl_model (e, e);
  model.FNL = zeros (3, 1) + 9;
  r = zeros (4, 1) + 2;
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  e.cta = matrix_lines (sparse (4, 4));
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, 2 * ones (4, 1));
  expect_equal (model.FNL, [9; 9; 9]);
end

% A sum for each of two billion rows, seen by nobody, took a minute.
function test_mocirc2_of_two_billion_rows_holds_no_call ()
  e = struct ('type', 'mocirc2', 'cta', matrix_lines (sparse ([1 2 3 4], 1, [1 2 3 4], 4, 1)));
  e.cta.dims = [2^31 - 1, 1];
  r = zeros (4, 1) + 2;
  start = cputime ();
  for k = 1:10, add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1)); end
  expect_equal (r, 2 * ones (4, 1));
  if cputime () - start > 60, error ('ten calls took %g s of the processor', cputime () - start); end
end

function test_elements_add_in_the_order_of_the_rows ()
  e = two_dof_element ();
  e.Fu = @(e, varargin) [1e16; 0];
  f = two_dof_element ();
  f.Fu = @(e, varargin) [1; 0];
  g = two_dof_element ();
  g.Fu = @(e, varargin) [-1e16; 0];
  r = zeros (4, 1);
  add_model (r, nl_model (e, f, g), zeros (4, 1), zeros (4, 1));
  expect_equal (r(1), (1e16 + 1) - 1e16);
  r = zeros (4, 1);
  add_model (r, nl_model (e, g, f), zeros (4, 1), zeros (4, 1));
  expect_equal (r(1), 1);
end
