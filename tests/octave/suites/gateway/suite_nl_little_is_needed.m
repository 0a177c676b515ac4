% What nonlinear list elements may lack: only what an element really uses is looked at, and what is used is used in the stated order.
function tests = suite_nl_little_is_needed ()
  tests = localfunctions ();
end

function call (r, model, u, v)
  quarn ('residual', r, model, u, v, [], [], []);
end

function e = law (f)
  e = struct ('Fu', f, 'b', matrix_lines (eye (2)), 'StoreFNL', 0);
end

function m = without_values (trans)
  m = struct ('pr', [], 'ir', int32 (0), 'jc', int32 ([0; 0; 0]), 'dims', [2 2], 'trans', trans);
end

function test_rows_of_a_list_with_fewer_than_three_columns_are_skipped ()
  model = nl_model (law (@(varargin) [1; 2]));
  for columns = 0:2
    short = model;
    short.NL = model.NL(:, 1:columns);
    r = zeros (2, 1) + 5;
    call (r, short, [1; 2], [3; 4]);
    expect_equal (r, [5; 5]);
  end
  short.NL = {1, law(@(varargin) [1; 2]); 2, 3};
  call (r, short, [1; 2], [3; 4]);
  expect_equal (r, [5; 5]);
end

function test_command_matrix_without_values_whose_form_is_an_error ()
  r = zeros (2, 1);
  for b = {zeros(3, 0), struct('pr', [], 'dims', [1 4])}
    e = law (@(varargin) [1; 2]);
    e.b = b{1};
    expect_error (@() call (r, nl_model (e), [1; 2], [3; 4]), '', 'Add_Mt_u implemented for sparse matrices');
  end
  for b = {zeros(0, 3), [], struct('pr', [], 'dims', [0 4]), struct('pr', [], 'dims', [1 4], 'trans', 1), without_values(0), ...
           without_values(1), struct('dims', [1 4])}
    e = law (@(varargin) [1; 2]);
    e.b = b{1};
    call (r, nl_model (e), [1; 2], [3; 4]);
  end
  expect_equal (r, [0; 0]);
end

function test_observation_matrix_without_values_whose_form_is_an_error ()
  e = struct ('type', '', 'unl', zeros (2, 1) + 7);
  e.c = without_values (0);
  expect_error (@() call (zeros (2, 1), nl_model (e), [1; 2], [3; 4]), '', 'Prod_Mt_u implemented for transposed sparse matrices');
  expect_equal (e.unl, [7; 7]);
  e.c = without_values (1);
  call (zeros (2, 1), nl_model (e), [1; 2], [3; 4]);
  expect_equal (e.unl, [0; 0]);
end

function e = rotor ()
  c = cell (17, 2);
  c([1 2 3 4 10], 2) = {1, eye(3), [0.5; 0; 0], [0.25; 0; 0], [0 0.5 0]};
  c{11, 2} = int32 ([0 1 2]);
  c{15, 2} = matrix_lines (sparse ([1 2], [2 3], [1 1], 3, 3), true);
  c{17, 2} = c{15, 2};
  x = [-2; 3];
  e = struct ('type', 'rotcenter', 'Cell', {c}, 'Fu', [x 2*x], 'Fv', [x 4*x], 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
end

function [r, store] = of_rotor (e)
  model = nl_model (e);
  model.FNL = zeros (3, 1);
  r = zeros (3, 1);
  call (r, model, [0; 0.125; 0.5], [2; 1; 3]);
  store = model.FNL;
end

function test_rotcenter_rows_15_and_17_without_rows_are_points_without_motion ()
  none = matrix_lines (sparse (3, 3), true);
  for row = [15 17]
    e = rotor ();
    e.Cell{row, 2} = none;
    [wanted, store] = of_rotor (e);
    for empty = {[], zeros(0, 3), '', struct('pr', [], 'dims', [0 3], 'trans', 1), struct('other', 1)}
      e = rotor ();
      e.Cell{row, 2} = empty{1};
      [r, got] = of_rotor (e);
      expect_equal (r, wanted);
      expect_equal (got, store);
    end
    assert (any (wanted ~= 0));
    e.Cell{row, 2} = sparse (0, 3);
    expect_error (@() of_rotor (e), '', 'ir must be int32');
  end
end

function test_rotcenter_takes_the_real_part_of_complex_parameters ()
  e = rotor ();
  wanted = of_rotor (e);
  for row = [1 2 3 4 10], e.Cell{row, 2} = complex (e.Cell{row, 2}, 1); end
  e.Fu = complex (e.Fu, 1);
  e.Fv = complex (e.Fv, 1);
  expect_equal (of_rotor (e), wanted);
  e.cur_u = complex (e.cur_u, 1);
  expect_error (@() of_rotor (e), '', 'quarn residual : NL{1,3}.cur_u must be a full real double array, got complex double 3x1');
end

function test_mocirc2_looks_at_the_column_of_its_row_only ()
  e = struct ('type', 'mocirc2', 'cta', matrix_lines (ones (2, 3)));
  e.cta.ir([1 2 5 6]) = int32 ([-1 9 99 -7]);
  e.cta.jc([1 4]) = int32 ([5 1]);
  model = nl_model ([], e);
  r = zeros (2, 1);
  call (r, model, [1; 2], [3; 4]);
  expect_equal (r, [0; 0]);
  e.cta.ir(3) = int32 (2);
  expect_error (@() call (r, nl_model ([], e), [1; 2], [3; 4]), '', ...
    'quarn residual : the element''s cta : index 2 in "ir" reaches past u of 2 values');
  e.cta.jc = e.cta.jc(1:2);
  expect_error (@() call (r, nl_model ([], e), [1; 2], [3; 4]), '', ...
    'quarn residual : the element''s cta : "jc" must hold 3 line pointers for 2 lines, got 2');
end

function test_law_that_adds_nothing_does_not_need_its_command_matrix ()
  bad = {'x', speye(2), matrix_lines(ones (9, 9)), ones(2), int32(1)};
  for k = 1:numel (bad)
    for result = {struct('other', 1), struct()}
      e = law (@(varargin) result{1});
      e.b = bad{k};
      r = zeros (2, 1);
      call (r, nl_model (e), [1; 2], [3; 4]);
      expect_equal (r, [0; 0]);
    end
  end
end

function test_command_matrix_of_a_function_is_looked_at_when_it_adds ()
  e = law (@(varargin) [1; 2]);
  e.b = 'x';
  expect_error (@() call (zeros (2, 1), nl_model (e), [1; 2], [3; 4]), '', ...
    'quarn residual : the element''s b must be a full real double array, got char 1x1');
  e.b = matrix_lines (sparse (2, 5, 1, 2, 5), true);
  expect_error (@() call (zeros (2, 1), nl_model (e), [1; 2], [3; 4]), '', ...
    'quarn residual : the residual must hold 5 values (one for each column of the command matrix), got 2');
end

function test_force_array_of_another_class_without_a_command_matrix_is_not_looked_at ()
  for snl = {int32([1; 2]), 'xy', {1}}
    e = struct ('type', 'nl_add', 'unl', zeros (2, 1), 'c', matrix_lines (eye (2), true));
    e.type = @(varargin) [];
    e.snl = snl{1};
    r = zeros (2, 1);
    call (r, nl_model (e), [1; 2], [3; 4]);
    expect_equal (e.unl, [1; 2]);
    e = rmfield (law (@(varargin) snl{1}), 'b');
    call (r, nl_model (e), [1; 2], [3; 4]);
    expect_equal (r, [0; 0]);
    e.StoreFNL = 1;
    e.FInd = int32 (0);
    model = nl_model (e);
    model.FNL = zeros (2, 1);
    expect_error (@() call (r, model, [1; 2], [3; 4]), '', '~the result of Fu must be a full real double array');
  end
end

function test_forces_are_stored_in_index_order ()
  % The store is the force array itself: each value is the one that was stored just before.
  store = fresh ([3; 5; 7; 9]);
  e = law (@nothing);
  e.snl = store;
  e.StoreFNL = 1;
  e.FInd = int32 (1);
  e = rmfield (e, 'b');
  model = nl_model (e);
  model.FNL = store;
  call (zeros (2, 1), model, [1; 2], [3; 4]);
  expect_equal (store, [3; 3; 3; 3]);
end

function varargout = nothing (varargin)
  varargout = {};
end
