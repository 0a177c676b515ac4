% MATLAB functions as laws of nonlinear elements: their errors, their results, and what they may change.
function tests = suite_nl_callbacks ()
  tests = localfunctions ();
end

function call (r, model, varargin)
  if isempty (varargin), varargin = {[], []}; end
  quarn ('residual', r, model, [1; 2; 3; 4], [5; 6; 7; 8], [], varargin{:});
end

function f = force_of_unl (e, varargin)
  f = 2 * e.unl;
end

function f = fails (varargin)
  error ('structure:broken', 'the spring broke');
end

function f = fails_without_identifier (varargin)
  error ('the spring broke');
end

function f = calls_quarn_wrongly (varargin)
  quarn ('no such word');
end

function without_output (varargin)
end

function f = output_never_set (varargin)
end

function f = gives (value)
  f = @(varargin) value;
end

function test_error_of_a_function_arrives_unchanged_and_sums_stay ()
  good = two_dof_element ();
  good.Fu = @force_of_unl;
  kinds = {'Fu', 'type'};
  for k = 1:2
    bad = two_dof_element ();
    bad.(kinds{k}) = @fails;
    model = nl_model (good, bad, good);
    n = 4;
    model.K = {matrix_lines(speye (n)), [], matrix_lines(speye (n))};
    r = zeros (4, 1);
    expect_error (@() call (r, model), 'structure:broken', 'the spring broke');
    expect_equal (r, [1; 2; 3; 4] + [2; 0; 6; 0]);
    expect_equal (bad.unl, [1; 3]);
    bad.(kinds{k}) = @fails_without_identifier;
    expect_error (@() call (r, nl_model (bad)), '', 'the spring broke');
  end
end

function test_error_of_quarn_inside_a_function_arrives_unchanged ()
  e = two_dof_element ();
  e.Fu = @calls_quarn_wrongly;
  expect_error (@() call (zeros (4, 1), nl_model (e)), '', '~quarn : Unknown command$');
end

function test_error_of_a_law_by_name_arrives_unchanged ()
  global HAPSEL_CALLS
  HAPSEL_CALLS = 1;  % the stub cannot index this as a cell
  e = two_dof_element ();
  e.type = 'law';
  r = zeros (4, 1);
  raised = false;
  try
    call (r, nl_model (e));
  catch
    raised = true;
  end
  HAPSEL_CALLS = {};
  assert (raised);
  expect_equal (r, zeros (4, 1));
end

function test_function_without_output_is_the_hosts_error ()
  e = two_dof_element ();
  e.Fu = @without_output;
  r = zeros (4, 1);
  expect_error (@() call (r, nl_model (e)), 'Octave:invalid-fun-call', '~called with too many outputs');
  expect_equal (r, zeros (4, 1));
end

% An error in Octave 7; Octave 9 and later give the module nothing, like a function whose "varargout" is empty.
function test_function_that_never_sets_its_output_is_the_hosts_error_or_leaves_the_elements_own_force ()
  e = two_dof_element ();
  e.Fu = @output_never_set;
  r = zeros (4, 1);
  sums = [1; 0; 3; 0];
  try
    call (r, nl_model (e));
  catch err
    expect_equal (err.identifier, 'Octave:undefined-function');
    sums = zeros (4, 1);
  end
  expect_equal (r, sums);
end

function test_callable_type_may_have_no_output ()
  e = two_dof_element ();
  e.type = @without_output;
  r = zeros (4, 1);
  call (r, nl_model (e));
  expect_equal (r, [1; 0; 3; 0]);
end

function test_results_of_other_classes_are_refused ()
  wrong = {int32([1; 2]), {1, 2}, 'ab', true(2, 1), single([1; 2]), sparse([1; 2]), @sin, struct('snl', {{1}}), struct('unl', 'x')};
  key = quarn ('chandleset', 1, matrix_lines (speye (2)));
  for k = 1:numel (wrong)
    e = two_dof_element ();
    e.Fu = gives (wrong{k});
    e.StoreFNL = 1;
    model = nl_model (e);
    model.FNL = zeros (2, 1) + 1;
    r = zeros (4, 1);
    expect_error (@() call (r, model), '', '~^quarn residual : NL\{1,3\} : the result of Fu must be a full real double array, got ');
    expect_equal (r, zeros (4, 1));
    expect_equal (model.FNL, [1; 1]);
  end
  s = quarn ('chandleget', key);
  expect_equal (s.dims, [2 2]);
end

function test_result_too_short_for_the_command_matrix_is_refused ()
  short = {[], 1, struct('snl', zeros (0, 1)), struct('x', {})};
  for k = 1:3
    e = two_dof_element ();
    e.Fu = gives (short{k});
    r = zeros (4, 1);
    expect_error (@() call (r, nl_model (e)), '', '~^quarn residual : the force vector must hold 2 values');
    expect_equal (r, zeros (4, 1));
  end
  e.Fu = gives (short{4});
  r = zeros (4, 1);
  call (r, nl_model (e));
  expect_equal (r, zeros (4, 1));
end

function test_refusal_after_a_function_that_used_quarn_names_the_command ()
  e = two_dof_element ();
  e.Fu = @uses_quarn;
  wanted = 'quarn residual : NL{1,3} : the result of Fu must be a full real double array, got char 1x5';
  expect_error (@() call (zeros (4, 1), nl_model (e)), '', wanted);
end

function f = uses_quarn (varargin)
  quarn ('omp');
  f = 'wrong';
end

function test_functions_need_all_arguments_and_computed_laws_do_not ()
  laws = struct ('Fu', {@force_of_unl, [], []}, 'type', {'', @without_output, 'law'});
  for k = 1:3
    e = two_dof_element ();
    e.type = laws(k).type;
    if k == 1, e.Fu = laws(k).Fu; end
    r = zeros (4, 1);
    n = 4;
    model = nl_model (e);
    model.K = {[], [], matrix_lines(speye (n))};
    for given = 6:7
      extra = cell (1, given - 6);
      expect_error (@() quarn ('residual', r, model, ones (4, 1), ones (4, 1), [], extra{:}), '', ...
        sprintf (['quarn residual : NL{1,3} calls a function that is given all of r, model, u, v, a, opt, extra : 8 arguments expected, ' ...
                  'got %d'], given));
    end
    expect_equal (r, zeros (4, 1));
    expect_equal (e.unl, zeros (2, 1));
  end
  e = two_dof_element ();
  e.type = '';
  quarn ('residual', zeros (4, 1), nl_model (e), [1; 2; 3; 4], zeros (4, 1), []);
  expect_equal (e.unl, [1; 3]);
end

function test_function_may_change_the_data_of_the_call ()
  e = two_dof_element ();
  e.Fu = @rewrites_everything;
  e.snl = zeros (2, 1);
  e.StoreFNL = zeros (1, 1);
  model = nl_model (e);
  model.FNL = zeros (2, 1);
  r = zeros (4, 1);
  call (r, model);
  expect_equal (r, [100 + 10; 100; 100 + 20; 100]);
  expect_equal (model.FNL, [10; 20]);
end

function varargout = rewrites_everything (e, r, model, u, v, a, opt, extra)
  change_in_place (r, 100 * ones (4, 1));
  change_in_place (e.snl, [10; 20]);
  change_in_place (e.StoreFNL, 1);
  e.snl = [];
  model.NL = {};
  varargout = {};
end

function test_function_may_drop_the_scripts_own_variables ()
  global MODEL
  e = two_dof_element ();
  e.Fu = @drops_the_model;
  MODEL = nl_model (e, e);
  e = [];
  r = zeros (4, 1);
  call (r, MODEL);
  expect_equal (r, [4; 0; 12; 0]);
end

function f = drops_the_model (e, varargin)
  global MODEL
  MODEL = [];
  f = 2 * e.unl;
end

function test_function_may_call_residual_itself ()
  e = two_dof_element ();
  e.Fu = @inner_residual;
  r = zeros (4, 1);
  call (r, nl_model (e));
  expect_equal (r, [2; 0; 6; 0]);
end

function f = inner_residual (e, varargin)
  inner = two_dof_element ();
  inner.Fu = @force_of_unl;
  r = zeros (4, 1);
  call (r, nl_model (inner));
  f = r([1 3]);
end

function test_later_element_is_checked_again_after_a_function ()
  first = two_dof_element ();
  first.Fu = @force_of_unl;
  second = two_dof_element ();
  second.Fu = @force_of_unl;
  second.FInd = 0;
  second.StoreFNL = 1;
  model = nl_model (first, second);
  model.FNL = zeros (2, 1);
  r = zeros (4, 1);
  expect_error (@() call (r, model), '', '~^quarn residual : the element''s FInd must be int32, got double 1x1');
  expect_equal (r, [2; 0; 6; 0]);
  expect_equal (second.unl, [0; 0]);
end

function test_law_as_a_function_equals_the_same_law_built_in ()
  rand ('twister', 42);
  for k = 1:50
    n = 6;
    rotor = random_rotor (n);
    u = randn (n, 1);
    v = randn (n, 1);
    built = zeros (n, 1);
    quarn ('residual', built, nl_model (rotor), u, v, [], [], []);
    e = struct ('Fu', @(e, r, model, u, v, a, opt, extra) model_rotcenter (rotor, u, v), 'b', matrix_lines (speye (n)), 'StoreFNL', 0);
    called = zeros (n, 1);
    quarn ('residual', called, nl_model (e), u, v, [], [], []);
    expect_equal (called, built, 1e-13);
  end
end

function f = forces_of_all (e, r, model, varargin)
  f = model.NL{1,3}.unl + 10 * model.NL{2,3}.unl;
end

function test_the_model_that_a_law_is_given_shows_what_has_been_observed_so_far ()
  first = fresh (two_dof_element ());
  second = fresh (two_dof_element ());
  second.unl = zeros (2, 1) + 0.5;
  first.Fu = @forces_of_all;
  second.Fu = @forces_of_all;
  r = zeros (4, 1);
  call (r, nl_model (first, second));
  expect_equal (r, [1 + 5; 0; 3 + 5; 0] + [1 + 10; 0; 3 + 30; 0]);
end
