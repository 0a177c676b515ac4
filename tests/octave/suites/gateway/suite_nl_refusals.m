% Bad fields of nonlinear elements are refused before anything is written: not into r, not into the buffers, not into the store.
function tests = suite_nl_refusals ()
  tests = localfunctions ();
end

function e = element ()
  e = two_dof_element ();
  e.StoreFNL = 1;
  e.Fu = @twice_unl;
end

% The call with a good element in front must raise TEXT and leave r, the store and a registered handle as they were.
function refused (bad, text, opt)
  if nargin < 3, opt = []; end
  good = element ();
  good = rmfield (good, 'Fu');
  good.type = '';
  n = 4;
  value = matrix_lines (speye (n));
  key = quarn ('chandleset', 1, value);
  model = nl_model (good, bad);
  model.K = {[], [], matrix_lines(speye (n))};
  model.FNL = zeros (3, 1) + 1;
  r = zeros (n, 1) + 2;
  expect_error (@() quarn ('residual', r, model, [1; 2; 3; 4], [5; 6; 7; 8], [], opt, []), '', text);
  expect_equal (r, 2 * ones (n, 1));
  expect_equal (model.FNL, ones (3, 1));
  expect_equal (good.unl, zeros (2, 1));
  s = quarn ('chandleget', key);
  expect_equal (s, value);
end

function not_an_array (name, text, more)
  wrong = [{int32(1), 'x', {1}, struct('a', 1), true, sparse(1), single(1), @sin, v_handle(1)}, more];
  for k = 1:numel (wrong)
    e = element ();
    e.(name) = wrong{k};
    refused (e, text);
  end
end

function test_row_that_holds_no_structure ()
  wrong = {5, 'abc', {1}, @sin, v_handle(1), chandle(0), int32(3)};
  for k = 1:numel (wrong)
    refused (wrong{k}, '~^quarn residual : NL\{2,3\} must be a struct, got ');
  end
end

function test_element_without_any_law ()
  e = rmfield (element (), 'Fu');
  refused (e, 'quarn residual : NL{2,3} needs a field "type", it has none');
  e.Fu = [0 1; 1 2];
  refused (e, 'quarn residual : NL{2,3} needs a field "type", it has none');
  wrong = {[], 5, {1}, struct('a', 1), true, sparse(1)};
  for k = 1:numel (wrong)
    e.type = wrong{k};
    refused (e, '~^quarn residual : NL\{2,3\}\.type must be a law''s name or a callable, got ');
  end
end

function test_buffers_of_other_classes ()
  not_an_array ('unl', '~^quarn residual : NL\{2,3\}\.unl must be a full real double array, got ', {1i});
  not_an_array ('vnl', '~^quarn residual : NL\{2,3\}\.vnl must be a full real double array, got ', {1i});
  not_an_array ('unl0', '~^quarn residual : NL\{2,3\}\.unl0 must be a full real double array, got ', {});
  not_an_array ('vnl0', '~^quarn residual : NL\{2,3\}\.vnl0 must be a full real double array, got ', {});
end

function test_initial_content_too_short ()
  e = element ();
  e.vnl0 = 1;
  refused (e, 'quarn residual : NL{2,3}.vnl0 must hold as many values as "vnl" (2), got 1');
end

function test_observation_matrix_missing_or_wrong ()
  refused (rmfield (element (), 'c'), 'quarn residual : NL{2,3} needs a field "c", it has none');
  wrong = {'x', int32(1), {1}, @sin, true};
  for k = 1:numel (wrong)
    e = element ();
    e.c = wrong{k};
    refused (e, '~^quarn residual : the element''s c must be a full real double array, got ');
  end
end

function test_observation_matrix_that_leaves_its_arrays ()
  shapes = {zeros(2, 5), zeros(3, 4), matrix_lines(sparse (2, 5, 1, 2, 5), true), matrix_lines(sparse (3, 1, 1, 3, 4), true)};
  texts = {'the observed vector must hold 5 values', 'the observation must hold 3 values', 'index 4 in "ir"', ...
    'the observation must hold 3 values'};
  for k = 1:4
    e = element ();
    e.c = shapes{k};
    refused (e, ['~^quarn residual : .*' texts{k}]);
  end
  e = element ();
  e.c.jc(2) = int32 (7);
  refused (e, '~^quarn residual : the element''s c : "jc"');
  e = element ();
  e.c.ir(1) = int32 (-1);
  refused (e, '~^quarn residual : the element''s c : index -1');
end

function test_observation_matrix_of_the_wrong_kind_has_its_own_texts ()
  e = element ();
  e.c = matrix_lines (eye (4));
  e.unl = zeros (4, 1);
  e.vnl = zeros (4, 1);
  model = nl_model (e);
  run = @() quarn ('residual', zeros (4, 1), model, ones (4, 1), ones (4, 1), [], [], []);
  expect_error (run, '', 'Prod_Mt_u implemented for transposed sparse matrices');
  e.c = speye (4);
  model = nl_model (e);
  run = @() quarn ('residual', zeros (4, 1), model, ones (4, 1), ones (4, 1), [], [], []);
  expect_error (run, '', 'ir must be int32');
end

function test_command_matrix_that_leaves_its_arrays ()
  e = rmfield (element (), 'Fu');
  e.type = 'word';
  good = e.b;
  e.b = matrix_lines (sparse (2, 5, 1, 2, 5), true);
  refused (e, '~^quarn residual : the residual must hold 5 values');
  e.b = 'x';
  refused (e, '~^quarn residual : the element''s b must be a full real double array, got char');
  e.b = good;
  e.snl = 1;
  refused (e, '~^quarn residual : the force vector must hold 2 values');
  e.snl = int32 ([1; 2]);
  refused (e, '~^quarn residual : NL\{2,3\} : its force array must be a full real double array, got int32');
end

function test_command_matrix_of_the_wrong_kind_has_its_own_texts ()
  e = element ();
  e.b = ones (4, 2);
  run = @(e) quarn ('residual', zeros (4, 1), nl_model (e), ones (4, 1), ones (4, 1), [], [], []);
  expect_error (@() run (e), '', 'Add_Mt_u implemented for sparse matrices');
  e.b = sparse (4, 2);
  expect_error (@() run (e), '', 'ir must be int32');
end

function test_store_flag_and_offset_missing_or_wrong ()
  refused (rmfield (element (), 'StoreFNL'), 'quarn residual : NL{2,3} needs a field "StoreFNL", it has none');
  refused (rmfield (element (), 'FInd'), 'quarn residual : NL{2,3} needs a field "FInd", it has none');
  wrong = {[], {1}, @sin, struct('a', 1)};
  for k = 1:numel (wrong)
    e = element ();
    e.StoreFNL = wrong{k};
    refused (e, '~^quarn residual : StoreFNL must be a number, got ');
  end
  e = element ();
  e.FInd = 0;
  refused (e, 'quarn residual : the element''s FInd must be int32, got double 1x1');
  e.FInd = int32 ([]);
  refused (e, 'quarn residual : NL{2,3}.FInd must hold an offset in "FNL", got nothing');
end

function e = paged (n)
  e = element ();
  e.unl = zeros (2, 1, n);
  e.vnl = zeros (2, 1, n);
  e.opt = [0 -1];
end

function test_pages_that_the_buffers_do_not_have ()
  e = paged (2);
  e.vnl = zeros (2, 1, 3);
  refused (repmat (e, [1 1 3]), ...
    'quarn residual : NL{2,3}.unl must hold 3 pages of 2 values for an element structure of 3 pages, got 4 values');
  refused (repmat (paged (2), [1 1 3]), ...
    'quarn residual : NL{2,3}.vnl must hold 3 pages of 2 values for an element structure of 3 pages, got 4 values');
  e = rmfield (paged (2), 'Fu');
  e.type = '';
  e.opt = [0 1];
  e = repmat (e, [1 1 3]);
  quarn ('residual', zeros (4, 1), nl_model (e), ones (4, 1), ones (4, 1), [], [], []);
end

function test_switching_values_of_other_classes ()
  e = paged (3);
  e.opt = int32 ([0 -1]);
  refused (repmat (e, [1 1 3]), 'quarn residual : NL{2,3}.opt must be a full real double array, got int32 1x2');
  wrong = {{1}, @sin};
  for k = 1:numel (wrong)
    opt = struct ('tc', {wrong(k)});
    opt.tc = wrong{k};
    refused (repmat (paged (3), [1 1 3]), '~^quarn residual : opt\.tc must be a number, got ', opt);
  end
end

function test_mocirc2_without_a_usable_matrix ()
  e = struct ('type', 'mocirc2');
  refused (e, 'quarn residual : NL{2,3} needs a field "cta", it has none');
  e.cta = ones (3);
  refused (e, 'quarn residual : NL{2,3}.cta must be a sparse matrix structure, got double 3x3');
  e.cta = matrix_lines (ones (4, 1));
  refused (e, 'quarn residual : NL{2,3}.cta has no column 2, it has 1');
  e.cta = matrix_lines (ones (5, 2));
  refused (e, '~^quarn residual : the element''s cta : index 4 in "ir" reaches past u of 4 values');
  e.cta = speye (4);
  refused (e, 'ir must be int32');
end
