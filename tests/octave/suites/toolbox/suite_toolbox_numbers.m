% What is refused as a number, and how it is said.
function tests = suite_toolbox_numbers ()
  use_toolbox ();
  tests = localfunctions ();
end

function refused (f, text)
  expect_error (f, 'qn:input', text);
end

function sim = loaded (table)
  sim = qn.simulation (qn.modal (4e4, 1), 'step', 1e-3, 'until', 0.2, 'load', {1, table});
end

% Version 0.1 read such a table as no load at all.
function test_a_load_table_with_times_that_are_no_numbers_is_refused ()
  refused (@() loaded ([0 NaN 0.2; 1 2 3]), 'qn.simulation: "load{1, 2}"(1, 2) is NaN; finite numbers expected');
  refused (@() loaded ([0 0.1 Inf; 1 2 3]), 'qn.simulation: "load{1, 2}"(1, 3) is Inf; finite numbers expected');
  refused (@() loaded ([0 0.1 0.2; 1 NaN 3]), 'qn.simulation: "load{1, 2}"(2, 2) is NaN; finite numbers expected');
  refused (@() loaded ([0 0.2 0.1; 1 2 3]), 'qn.simulation: "load{1, 2}(1, :)" must ascend: value 2 is 0.2, value 3 is 0.1');
end

function test_a_transposed_record_is_named_as_such ()
  refused (@() loaded ([0 1; 0.1 2; 0.2 3]), ...
           'qn.simulation: "load{1, 2}" must be 2 x n numbers, [times; values], got 3 x 2. It looks transposed: give X.'' instead of X');
  refused (@() loaded ([1; 2; 3]), '~gives 3 values for 201 time points; a table is \[times; values\], 2 x k');
  expect_equal (getfield (loaded ([0 0.2; 1 3]), 'loads'), 1 + 10 * (0:200) * 1e-3, 1e-15);
end

% 0.2 and 200 steps of 0.001 differ by rounding; so do longer runs.
function test_a_table_that_misses_the_end_of_the_run_by_rounding_covers_it ()
  for off = [-3e-14 0 3e-14]
    sim = loaded ([-off, 0.2 + off; 1 1]);
    expect_equal (sim.notes, {});
    expect_equal (sim.loads, ones (1, 201));
  end
  sim = loaded ([0 0.1995; 1 1]);
  expect_equal (numel (sim.notes), 1);
  expect_equal (sim.loads(end), 0);
end

function test_states_and_dampings_that_are_no_numbers_are_refused ()
  two = qn.modal ([2 -1; -1 1], eye (2));
  start = @(varargin) qn.simulation (two, 'step', 1e-3, 'steps', 2, varargin{:});
  refused (@() start ('u0', [1 NaN]), 'qn.simulation: "u0"(2) is NaN; finite numbers expected');
  refused (@() start ('v0', [1 2i]), 'qn.simulation: "v0"(2) is 0+2i; real numbers expected');
  refused (@() start ('q0', [1 2 3]), 'qn.simulation: "q0" must be 2 values, one a mode, got 1 x 3');
  refused (@() start ('u0', 'ab'), 'qn.simulation: "u0" must be numbers, got 1 x 2 of class char');
  refused (@() start ('u0', [1 0], 'q0', [1 0]), 'qn.simulation: give "u0" or "q0", one of them');
  refused (@() qn.modal (1, 1, 'damping', NaN), 'qn.modal: "damping" must be one finite real number, got NaN');
  refused (@() qn.modal (1, 1, 'rayleigh', [1 Inf]), 'qn.modal: "rayleigh"(2) is Inf; finite numbers expected');
  refused (@() qn.modal (eye (2), eye (2), 'C', [1 0; NaN 1]), 'qn.modal: "C"(2, 1) is NaN; finite numbers expected');
end

% As arithmetic of such classes rounds and saturates, they become doubles at once; truth values are slips.
function test_single_precision_and_integers_are_converted_and_truth_values_refused ()
  model = qn.modal (int16 ([2 -1; -1 1]), single (eye (2)), 'damping', single (0.25), 'modes', uint8 (2));
  whole = qn.modal ([2 -1; -1 1], eye (2), 'damping', 0.25, 'modes', 2);
  expect_equal (model, whole);
  a = qn.simulation (model, 'step', single (0.5), 'steps', int32 (3), 'u0', int8 ([1 2]), 'load', {int8([1 1]), int32([0 9; 1 3])});
  b = qn.simulation (whole, 'step', 0.5, 'steps', 3, 'u0', [1 2], 'load', {[1 1], [0 9; 1 3]});
  expect_equal (a.start, b.start);
  expect_equal (a.loads, b.loads);
  expect_equal (class (a.time), 'double');
  refused (@() qn.observe (whole, [true false]), ...
           'qn.observe: "DOFS" must be numbers, got 1 x 2 of class logical; where 0 and 1 are meant, write double (...)');
end

function test_numbers_of_degrees_of_freedom_out_of_range_are_said_in_words ()
  two = qn.modal ([2 -1; -1 1], eye (2));
  refused (@() qn.observe (two, [1 3]), 'qn.observe: "DOFS"(2) is 3; degrees of freedom are numbered from 1 to 2');
  refused (@() qn.load_at (two, 0), 'qn.load_at: "DOFS"(1) is 0; degrees of freedom are numbered from 1 to 2');
  res = qn.run (qn.simulation (two, 'step', 0.1, 'steps', 3, 'q0', [1; 2]));
  refused (@() qn.displacement (res, 3), 'qn.displacement: "C"(1) is 3; degrees of freedom are numbered from 1 to 2');
  refused (@() qn.displacement (res, [0.5; 0.5]), ['~observation rows of 2 modal values, or the numbers of degrees of freedom, got 2 x 1; ' ...
                                                   'see qn.observe. They look transposed']);
end

function test_options_that_are_true_or_false_take_nothing_else ()
  sim = qn.simulation (qn.modal (4e4, 1), 'step', 1e-3, 'steps', 5, 'v0', 1);
  refused (@() qn.run (sim, 'progress', NaN), 'qn.run: "progress" is true or false, got NaN');
  refused (@() qn.run (sim, 'progress', 'no'), 'qn.run: "progress" is true or false, got [1 2] of class char');
  expect_equal (getfield (qn.run (sim, 'progress', 0), 'complete'), true);
end

function test_a_negative_gap_is_a_preload_and_is_said_so ()
  law = qn.gap ('gap', -1e-3, 'stiffness', 1e5);
  expect_equal (qn.force (law, [-2e-3 0]), [0 100], 1e-12);
  model = qn.modal (4e4, 1);
  found = qn.check (qn.simulation (model, 'step', 1e-4, 'until', 1, 'v0', 1, 'elements', {law, qn.observe(model, 1)}));
  expect_equal (numel (found), 1);
  expect_equal (found(1).level, 'note');
  if isempty (strfind (found(1).text, 'pushes with 100 N at zero displacement: a negative gap is a preload')), error (found(1).text); end
  refused (@() qn.stop ('gap', [1 -2], 'stiffness', 1), '~"gap" must be at least 0, got -2. A negative gap is a preload');
end

function test_laws_that_were_changed_by_hand_are_checked_again ()
  law = qn.bilinear ('first', 1, 'second', 2, 'at', 0.1);
  law.parameters.force(2) = NaN;
  model = qn.modal (1, 1);
  refused (@() qn.force (law, 1), 'qn.force: qn.law, ''table'': "force"(2) is NaN; finite numbers expected');
  refused (@() qn.simulation (model, 'step', 0.1, 'steps', 2, 'elements', {law, 1}), '~element 1: qn.law, ''table'': "force"\(2\) is NaN');
end

function test_a_result_of_some_steps_says_what_it_cannot_give ()
  sim = @(every) qn.simulation (qn.modal (4e4, 1), 'step', 1e-3, 'steps', 20, 'v0', 1, 'every', every);
  some = qn.run (sim (5), 'progress', false);
  whole = qn.run (sim (1), 'progress', false);
  expect_equal (some.q, whole.q(:, 1:5:end));
  for f = {@qn.velocity, @qn.acceleration}
    refused (@() f{1} (some, 1), ['~^' func2str(f{1}) ': the result keeps 5 of 21 steps .*Run it anew without "every" and "times"']);
  end
  refused (@() qn.energies (some), '~^qn.energies: the result keeps 5 of 21 steps');
  refused (@() qn.dissipated (some), '~^qn.dissipated: the result keeps 5 of 21 steps');
end
