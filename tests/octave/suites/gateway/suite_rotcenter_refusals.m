% The law "rotcenter": bad parameters are refused before anything is written.
function tests = suite_rotcenter_refusals ()
  tests = localfunctions ();
end

function e = rotor (rows)
  rand ('twister', 42);
  randn ('twister', 42);
  e = random_rotor (6, rows, 0);
  e.unl = zeros (1, 1);
  e.c = matrix_lines (ones (1, 6), true);
end

function refused (e, text, n, store)
  if nargin < 3, n = 6; end
  if nargin < 4, store = zeros (4, 1) + 1; end
  value = matrix_lines (speye (3));
  key = quarn ('chandleset', 1, value);
  model = nl_model (e);
  model.K = {[], [], matrix_lines(speye (n))};
  model.FNL = store;
  before = store + 0;
  cursor = e.cur_u + 0;
  r = zeros (n, 1) + 2;
  if isempty (text) || text(1) ~= '~', text = ['quarn residual : ' text]; end
  expect_error (@() quarn ('residual', r, model, ones (n, 1), ones (n, 1), []), '', text);
  expect_equal (r, 2 * ones (n, 1));
  expect_equal (model.FNL, before);
  expect_equal (e.cur_u, cursor);
  expect_equal (e.unl, 0);
  expect_equal (quarn ('chandleget', key), value);
end

function e = with (e, row, value)
  e.Cell{row, 2} = value;
end

function test_good_elements_pass ()
  for rows = [10 14 17]
    model = nl_model (rotor (rows));
    model.FNL = zeros (3, 1);
    quarn ('residual', zeros (6, 1), model, ones (6, 1), ones (6, 1), []);
  end
end

function test_parameter_cell_of_the_wrong_shape ()
  text = '~^quarn residual : NL\{1,3\}\.Cell must be a cell of 10 rows or more and 2 columns, got ';
  e = rotor (10);
  wrong = {[], 5, 'x', @sin, {}, cell(10, 1), cell(9, 2), struct('a', 1)};
  for k = 1:numel (wrong)
    e.Cell = wrong{k};
    refused (e, text);
  end
  refused (rmfield (e, 'Cell'), 'NL{1,3} needs a field "Cell", it has none');
end

function test_fifteen_and_sixteen_rows_lack_the_second_matrix ()
  for rows = 15:16
    e = rotor (17);
    e.Cell = e.Cell(1:rows, :);
    refused (e, 'NL{1,3}.Cell{17,2} is needed by "rotcenter", it is empty or missing');
  end
end

function test_parameters_missing_or_too_short ()
  for row = [1 2 3 4 10]
    refused (with (rotor (10), row, []), sprintf ('NL{1,3}.Cell{%d,2} is needed by "rotcenter", it is empty or missing', row));
    wrong = {int32(ones (9, 1)), {1}, 'abcdefghi', @sin, sparse(ones (9, 1)), single(ones (9, 1)), true(9, 1)};
    for k = 1:numel (wrong)
      refused (with (rotor (10), row, wrong{k}), ...
        sprintf ('~^quarn residual : NL\\{1,3\\}\\.Cell\\{%d,2\\} must be a full real double array, got ', row));
    end
  end
  refused (with (rotor (10), 2, eye (2)), 'NL{1,3}.Cell{2,2} must hold 9 values, got 4');
  for row = [3 4 10]
    refused (with (rotor (10), row, [1 2]), sprintf ('NL{1,3}.Cell{%d,2} must hold 3 values, got 2', row));
  end
end

function test_rotation_dof_outside_the_model ()
  numbers = {0, -1, 0.9, 7, 1e20, NaN, Inf};
  for k = 1:numel (numbers)
    refused (with (rotor (10), 1, numbers{k}), '~^quarn residual : NL\{1,3\}\.Cell\{1,2\} must be the rotation DOF''s number from 1 to 6, got ');
  end
end

function test_dofs_and_positions_outside ()
  lists = [5 6; 7 8];
  for k = 1:2
    dofs = lists(k, 1);
    positions = lists(k, 2);
    e = with (with (rotor (10), dofs, [1 2]), positions, [1 2]);
    numbers = [0 7 -1 NaN 1e20];
    for n = 1:numel (numbers)
      refused (with (e, dofs, [1 numbers(n)]), sprintf ('~^quarn residual : .*Cell\\{%d,2\\}\\(2\\) must be a DOF number from 1 to 6, got ', dofs));
    end
    numbers = [0 4 -1 NaN];
    for n = 1:numel (numbers)
      refused (with (e, positions, [1 numbers(n)]), ...
        sprintf ('~^quarn residual : .*Cell\\{%d,2\\}\\(2\\) must be a component position from 1 to 3, got ', positions));
    end
    refused (with (e, dofs, 1), sprintf ('NL{1,3}.Cell{%d,2} must hold 2 values, got 1', dofs));
    refused (with (e, dofs, []), sprintf ('NL{1,3}.Cell{%d,2} is needed by "rotcenter", it is empty or missing', dofs));
    refused (with (e, dofs, int32 ([1 2])), sprintf ('NL{1,3}.Cell{%d,2} must be a full real double array, got int32 1x2', dofs));
  end
end

function test_vectors_shorter_than_the_dofs_say ()
  e = rmfield (rotor (10), {'unl', 'c'});
  e.Cell(5:8, 2) = {6, 1, 2, 1};
  e.Cell{1, 2} = 1;
  u = ones (6, 1);
  text = '~^quarn residual : .* must be a DOF number from 1 to 5, got 6$';
  expect_error (@() quarn ('residual', zeros (5, 1), nl_model (e), u, u, []), '', text);
  expect_error (@() quarn ('residual', zeros (6, 1), nl_model (e), u, ones (5, 1), []), '', text);
  expect_error (@() quarn ('residual', zeros (6, 1), nl_model (e), ones (5, 1), u, []), '', text);
  expect_error (@() quarn ('residual', zeros (6, 1), nl_model (e), [], [], []), '', '~from 1 to 0, got 1');
end

function test_store_positions_missing_or_outside ()
  for rows = [11 14 17]
    e = rotor (rows);
    refused (e, '~must be a position from 0 in the model''s "FNL" of 0 values, got 2', 6, []);
    refused (e, '~must be a position from 0 in the model''s "FNL" of 2 values, got 2', 6, zeros (2, 1));
    refused (with (e, 11, int32 ([0 1 -1])), '~Cell\{11,2\}\(3\) must be a position');
    refused (with (e, 11, []), 'NL{1,3}.Cell{11,2} is needed by "rotcenter", it is empty or missing');
    refused (with (e, 11, [0 1 2]), 'the element''s Cell{11,2} must be int32, got double 1x3');
    refused (with (e, 11, int32 ([0 1])), 'NL{1,3}.Cell{11,2} must hold 3 positions in "FNL", got 2');
  end
end

function test_tables_and_cursors_missing_or_wrong ()
  tables = {'Fu', 'Fv'};
  cursors = {'cur_u', 'cur_v'};
  for k = 1:2
    refused (rmfield (rotor (10), tables{k}), sprintf ('NL{1,3} needs a field "%s", it has none', tables{k}));
    e = rotor (10);
    e.(tables{k}) = [1; 2];
    refused (e, sprintf ('NL{1,3}.%s must be a table with 2 columns (abscissae, forces), got double 2x1', tables{k}));
    e.(tables{k}) = int32 ([1 2]);
    refused (e, sprintf ('NL{1,3}.%s must be a full real double array, got int32 1x2', tables{k}));
    e = rotor (10);
    e.(cursors{k}) = zeros (2, 1);
    refused (e, sprintf ('NL{1,3}.%s must hold 3 values, got 2', cursors{k}));
  end
  expect_error (@() quarn ('residual', zeros (6, 1), nl_model (rmfield (rotor (10), 'cur_v')), ones (6, 1), ones (6, 1), []), '', ...
    'quarn residual : NL{1,3} needs a field "cur_v", it has none');
end

function test_observation_matrices_of_the_wrong_shape ()
  for row = [15 17]
    refused (with (rotor (17), row, matrix_lines (ones (4, 6), true)), '~the observation must hold 4 values');
    refused (with (rotor (17), row, matrix_lines (ones (3, 7), true)), '~index 6 in "ir"');
    refused (with (rotor (17), row, ones (3, 7)), '~the observed vector must hold 7 values');
    refused (with (rotor (17), row, 'x'), '~must be a full real double array, got char');
  end
end

function test_lists_that_share_memory_with_a_target_stay_inside ()
  shared = zeros (3, 1) + 1;
  e = rmfield (rotor (10), {'unl', 'c'});
  e.Cell([1 5:8], 2) = {1, shared, shared, shared, shared};
  e.cur_u = shared;
  e.cur_v = shared;
  r = shared;
  quarn ('residual', r, nl_model (e), 1e6 * ones (6, 1), ones (6, 1), []);
  assert (numel (r) == 3);
end
