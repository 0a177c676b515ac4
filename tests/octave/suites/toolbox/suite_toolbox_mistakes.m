% What a new user gets wrong, and what the toolbox says to it.
function tests = suite_toolbox_mistakes ()
  use_toolbox ();
  tests = localfunctions ();
end

% Three degrees of freedom, COUNT modes.
function [model, res, sim] = chain (count)
  model = qn.modal (1e4 * [2 -1 0; -1 2 -1; 0 -1 1], diag ([1 2 3]), 'modes', count);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 50, 'v0', [0; 0; 1], 'elements', {qn.cubic('stiffness', 1), qn.observe(model, 3)});
  res = qn.run (sim);
end

function refused (f, text)
  expect_error (f, 'qn:input', ['~' text]);
end

function test_numbers_of_degrees_of_freedom_are_never_weights_of_modes ()
  for count = 1:3
    [model, res] = chain (count);
    for dofs = {3, [3 1], [2; 3], [2 1 3], [3; 1; 2]}
      c = dofs{1};
      element = @() qn.simulation (model, 'step', 1, 'steps', 1, 'elements', {qn.cubic('stiffness', 1), c});
      if size (c, 2) == count
        refused (@() qn.displacement (res, c), 'look like numbers of degrees of freedom; write qn.observe \(model, \[?\d');
        refused (@() qn.velocity (res, c), 'look like numbers');
        refused (@() qn.plot.series (res, c), 'look like numbers');
        refused (element, 'element 1: these look like numbers');
        expect_equal (qn.displacement (res, sparse (c)), c * res.q);
      else
        expect_equal (qn.displacement (res, c), qn.displacement (res, qn.observe (model, c)));
        expect_equal (getfield (element (), 'elements', 'observe'), qn.observe (model, c));
      end
    end
    for row = 1:3, expect_equal (qn.displacement (res, qn.observe (model, row)), model.shapes(row, :) * res.q); end
  end
  % A row of whole numbers that says the same as its number passes, and so do rows that cannot be numbers.
  model = qn.modal (diag ([1 2]), eye (2));
  res = qn.run (qn.simulation (model, 'step', 0.1, 'steps', 3, 'q0', [1; 2]));
  expect_equal (qn.displacement (res, eye (2)), res.q);
  expect_equal (qn.displacement (res, [0 1]), res.q(2, :));
  expect_equal (qn.displacement (res, [1 1]), sum (res.q, 1));
end

function test_a_row_of_weights_that_is_taken_for_numbers_is_told_how_to_be_given ()
  model = chain (2);
  refused (@() qn.observe (model, [1 -1 0]), '"DOFS"\(2\) is -1; .* from 1 to 3\. A row of 3 weights is given as sparse \(\[\.\.\.\]\)$');
  refused (@() qn.load_at (model, [0 0 1]), '"DOFS"\(1\) is 0; .* A row of 3 weights');
  refused (@() qn.observe (model, [1 0]), '"DOFS"\(2\) is 0; degrees of freedom are numbered from 1 to 3$');
  expect_equal (qn.observe (model, sparse ([1 -1 0])), qn.observe (model, [1 2], [1 -1]), 1e-15);
end

% In MATLAB a text in double quotes is a string object; a class of that name is in its place here.
function test_texts_in_double_quotes_are_taken_like_those_in_single_ones ()
  place = fullfile (fileparts (which ('fresh')), 'string_objects');
  addpath (place);
  back = onCleanup (@() rmpath (place));
  expect_equal (qn.law (string ('power'), string ('stiffness'), 3, 'exponent', 2), qn.law ('power', 'stiffness', 3, 'exponent', 2));
  expect_equal (qn.scheme (string ('linear')), qn.scheme ('linear'));
  [model, res, sim] = chain (2);
  file = [tempname() '.mat'];
  again = qn.run (sim, string ('save'), string (file));
  expect_equal (again.q, res.q);
  expect_equal (getfield (qn.resume (string (file)), 'q'), res.q);
  delete (file);
  qn.mmwrite (string (file), [1 2; 3 4], string ('by rows'));
  expect_equal (qn.mmread (string (file)), [1 2; 3 4]);
  delete (file);
  expect_error (@() quarn (string ('ismex')), '', 'quarn : a command word is a character vector, got string');
end

function test_too_few_arguments_are_refused_in_words ()
  model = chain (2);
  none = {@() qn.describe(), @() qn.scheme(), @() qn.unpack(), @() qn.sweep(), @() qn.plot.picture(), @() qn.spectrum()};
  for f = [none, {@() qn.sweep(@(p) p), @() qn.plot.picture(1), @() qn.spectrum(1), @() qn.static(model), @() qn.static(model, [0; 0]), ...
                  @() qn.backbone(model), @() qn.backbone(model, {}), @() qn.harmonic(model), @() qn.harmonic(model, [1; 0], {})}]
    refused (f{1}, '^qn\.[a-z.]+: .* expected; see help qn');
  end
end

function test_elements_of_the_wrong_form_are_refused_by_static_as_by_simulation ()
  model = chain (2);
  for list = {5, 'a', struct(), {qn.cubic('stiffness', 1)}}
    refused (@() qn.static (model, [0; 0], list{1}), '^qn.static: "elements" is a cell \{law, rows; ...\}, got');
  end
  refused (@() qn.static (model, [0; 0], {1, qn.cubic('stiffness', 1)}), '^qn.static: element 1 has its law and its rows in the wrong order');
end

function test_what_is_no_name_of_a_file_or_scheme_is_refused_in_words ()
  refused (@() qn.mmwrite (5, [1 2]), '^qn.mmwrite: "FILE" must be the name of a file, got an array of class double');
  refused (@() qn.plot.picture ('a.png', 1), 'a figure and the name of a file expected');
  refused (@() qn.scheme (@sin), 'got class function_handle');
end

function test_a_matrix_of_any_size_is_not_called_square ()
  refused (@() qn.mmwrite ('none.mtx', zeros (0, 3)), '"A" must be a matrix of numbers, got nothing \(0 x 3\)');
  refused (@() qn.mmwrite ('none.mtx', ones (2, 2, 2)), '"A" must be a matrix of numbers, got 2 x 2 x 2');
end

function test_options_that_contradict_each_other_are_refused ()
  [model, res, sim] = chain (3);
  refused (@() qn.simulation (model, 'step', 1, 'until', 5, 'steps', 3), '"until" or "steps", one of them');
  refused (@() qn.simulation (model, 'step', 1, 'steps', 3, 'Steps', 4), '"steps" is given twice');
  refused (@() qn.simulation (model, 'step', 1, 'steps', 3, 'every', 1.5), '"every" must be a whole number, got 1.5');
  refused (@() qn.simulation (model, 'step', 1, 'steps', 2.5), '"steps" must be a whole number');
  refused (@() qn.simulation (model, 'step', 0, 'steps', 2), '"step" must be above 0, got 0');
  refused (@() qn.simulation (model, 'step', 1, 'until', 0), '"until" must be at least a step after the start at 0 s, got 0');
  refused (@() qn.run (sim, 'save', true), '"save" is the name of a file, got .* class logical');
  refused (@() qn.run (sim, 'stop', 3), '"stop" is a function of the results so far');
  refused (@() qn.simulation (model, 'step', 1, 'steps', 2, 'load', {[1 2 3], @(t) t * t}), 'load 1 fails for a row of times');
  refused (@() qn.simulation (model, 'step', 1, 'steps', 2, 'load', {[1 2 3], @(t) t * t.'}), 'load 1 adds up a row of times');
  sim = qn.simulation (model, 'step', 1, 'steps', 2, 'load', {[1 2 3], @(t) 7});
  expect_equal (sim.loads, [7 7 7]);
  refused (@() qn.simulation (model, 'step', 1, 'steps', 2, 'elements', {qn.observe(model, 1), qn.cubic('stiffness', 1)}), 'wrong order');
  refused (@() qn.plot.series (res, 'force', 9), 'has 1 rows of forces');
end

function test_matrices_and_laws_that_cannot_be_meant_are_refused ()
  refused (@() qn.modal ([2 -1; 0 1], eye (2)), 'K is not symmetric: K differs from its transpose by 0.5 of its greatest entry');
  refused (@() qn.modal (eye (2), sparse ([2 0.1; 0 1])), 'M is not symmetric: .* by 0.05');
  expect_equal (getfield (qn.modal ([2 -1; -1 - 1e-10, 1], eye (2)), 'w'), sqrt ((3 + [-1; 1] * sqrt (5)) / 2), 1e-8);
  refused (@() qn.modal (1, 1, 'damping', '1%'), '"damping" is a number such as 0.02');
  refused (@() qn.stop ('gap', [1 2 3], 'stiffness', 1), 'one value or \[left right\], got 3 and 1');
  refused (@() qn.slider ('slip', NaN, 'stiffness', 1), '^qn.slider: "slip" must be one finite');
  refused (@() qn.slider ('slip', 0, 'stiffness', 1), '^qn.slider: "slip" must be above 0');
end

function test_functions_say_whose_result_they_expect ()
  model = qn.modal (1, 1);
  refused (@() qn.run (model), 'qn.run expects the result of qn.simulation, got another structure; see help qn.run');
  refused (@() qn.check (model), 'qn.check expects the result of qn.simulation');
  refused (@() qn.observe (1), 'qn.observe expects the result of qn.modal, got \[1 1\] of class double');
  refused (@() qn.simulation (1, 'step', 1), 'qn.simulation expects the result of qn.modal');
  refused (@() qn.observe (model), 'see help qn.observe');
  for name = {'run', 'check', 'simulation', 'observe', 'displacement', 'velocity', 'contacts', 'dissipated', 'energies', 'load_at', 'command', ...
              'base', 'advise', 'static', 'harmonic', 'backbone', 'plot.series'}
    refused (@() eval (sprintf ('qn.%s ();', name{1})), ...
             sprintf ('qn.%s expects the result of .*, got nothing; see help qn.%s', name{1}, name{1}));
  end
  refused (@() qn.modal (), 'see help qn.modal');
  refused (@() qn.law (), 'see help qn.law');
  refused (@() qn.gap (), '"gap" is missing; see help qn.gap');
  refused (@() qn.resume (), 'see help qn.resume');
  refused (@() qn.resume ('nothere.mat'), 'there is no file nothere.mat');
end

function test_a_run_taken_up_from_its_file_goes_on_saving_there ()
  [unused, whole, sim] = chain (3);
  file = [tempname() '.mat'];
  clean = onCleanup (@() delete (file));
  qn.run (sim, 'piece', 10, 'save', file, 'stop', @(r) r.time_end > 0.015);
  expect_equal (getfield (load (file), 'complete'), false);
  % A file of the user's own.
  id = fopen ([file '.part'], 'w');
  fprintf (id, 'half');
  fclose (id);
  expect_equal (getfield (qn.resume (file, 'save', ''), 'complete'), true);
  expect_equal (getfield (load (file), 'complete'), false);
  expect_equal (getfield (qn.resume (file), 'q'), whole.q);
  expect_equal (getfield (load (file), 'q'), whole.q);
  expect_equal (fileread ([file '.part']), 'half');
  delete ([file '.part']);
end

function test_a_result_whose_times_were_lengthened_by_hand_does_not_go_on ()
  res = qn.run (qn.simulation (qn.modal (1e4, 1), 'step', 1e-3, 'steps', 20, 'q0', 1), 'check', false, 'progress', false);
  res.complete = false;
  res.sim.time = (0:40) * 1e-3;
  res.sim.saved = 1:41;
  refused (@() qn.resume (res), ['qn.resume: there must be one row of 41 loads for each of the 0 shapes of 1 modal values. A set-up that was changed ' ...
                                 'by hand does not fit together: make one with qn.simulation, and go on with its option "start"']);
end

function test_tables_are_printed_without_an_output_argument ()
  res = struct ('sim', 1, 'q', 1, 'time_end', 1, 'time', 0:4, 'force', [0 2 4 0 0]);
  lines = strsplit (strtrim (evalc ('qn.contacts (res, 1)')), sprintf ('\n'));
  expect_equal (numel (lines), 2);
  expect_equal (str2num (lines{2}), [1 2 4 6]);
  expect_equal (evalc ('qn.contacts (0:2, [0 0 0])'), sprintf ('no contact\n'));
  [model, res] = chain (2);
  lines = strsplit (strtrim (evalc ('qn.dissipated (res)')), sprintf ('\n'));
  d = qn.dissipated (res);
  expect_equal (numel (lines), 2);
  expect_equal (sscanf (lines{2}, '%g', 2), [1; d.absorbed(end)], 1e-3);
end

function test_every_and_times_together_are_refused_and_so_are_steps_without_end ()
  model = qn.modal (1e4, 1);
  refused (@() qn.simulation (model, 'step', 1e-3, 'steps', 9, 'times', 0.002, 'every', 3), 'give "every" or "times"');
  refused (@() qn.simulation (model, 'step', 1e-15, 'until', 4), '"steps" must be from 1 to 2.*, got 4e\+15');
end
