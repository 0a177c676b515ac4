% Models, rotors, set-ups and results in words: the whole text of a small case of each, and places against the rows they were made of.
function tests = suite_toolbox_describe ()
  use_toolbox ();
  tests = localfunctions ();
end

function model = chain (n, varargin)
  k = 1e6 * full (spdiags (ones (n, 1) * [-1 2 -1], -1:1, n, n));
  model = qn.modal (k, 3 * eye (n), varargin{:});
end

function expect_text (x, wanted)
  got = regexprep (qn.describe (x), '[0-9.e+-]+ s of computing', '# s of computing');
  wanted = strjoin (wanted, sprintf ('\n'));
  if ~strcmp (got, wanted), error ('got\n%s\nwanted\n%s', got, wanted); end
end

function test_a_model_says_size_frequencies_and_damping ()
  model = chain (2, 'damping', [0.01 0.02]);
  w = sqrt (1e6 * [1 3] / 3) / (2 * pi);
  expect_text (model, {'modal model', '  Model        2 modal coordinates of 2 degrees of freedom', ...
                       sprintf('  Frequencies  %.5g to %.5g Hz', w), '  Damping      0.01 to 0.02 of critical'});
end

function test_what_a_model_has_beyond_that_is_said ()
  free = qn.modal (1e4 * [1 -1; -1 1], eye (2));
  expect_in (qn.describe (free), '0 to 22.508 Hz; 1 rigid motion');
  expect_in (qn.describe (qn.modal (4, 1, 'damping', 0.05)), sprintf ('1 modal coordinate of 1 degree of freedom\n  Frequencies  0.31831 Hz'));
  expect_in (qn.describe (chain (5, 'modes', 2, 'attach', 5)), '3 modal coordinates of 5 degrees of freedom, with 1 attached shape');
  turning = qn.modal (4e6 * eye (2), 3 * eye (2), 'G', [0 1; -1 0], 'speed', 300, 'N', [0 5; -5 0], 'K', [0 2e5; -2e5 0]);
  text = qn.describe (turning);
  for part = {'full damping matrix', 'by a full stiffness matrix', '300 rad/s (2864.8 rpm); gyroscopic matrix, circulatory matrix'}
    expect_in (text, part{1});
  end
end

function [sim, model] = pushed ()
  model = chain (2, 'damping', 0.02);
  stop = {qn.cubic('stiffness', 1e9), 2, []; qn.slider('slip', 2, 'stiffness', 1e5), qn.observe(model, [1 2], [1 -1]), []
          qn.damper('damping', 4), 1, 2};
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.1, 'every', 10, 'load', {qn.load_at(model, 2, -3), @(t) 100 * sin(300 * t)}, ...
                       'base', {[1; 1], @(t) 2}, 'v0', [1; 1], 'elements', stop);
end

function lines = of_pushed ()
  t = (0:1000) * 1e-4;
  y = -300 * sin (300 * t);
  lines = {'Model', '2 modal coordinates of 2 degrees of freedom'; 'Frequencies', '91.888 to 159.15 Hz'; 'Damping', '0.02 of critical'
           'Scheme', 'Newmark, beta 0.25, gamma 0.5 (average acceleration)'; 'Step', '0.0001 s, 1000 steps from 0 to 0.1 s'
           'Start', 'in motion or displaced; kinetic energy 3 J'
           'Kept', '101 times, at one step of 10: 2 modal coordinates, 3 forces of elements, 1 value of memory'
           'Load 1', sprintf('at degree of freedom 2: %.5g to %.5g N, root mean square %.5g N', min (y), max (y), sqrt (mean (y .^ 2)))
           'Load 2', 'motion of the base, which 2 degrees of freedom follow: 2 m/s^2, root mean square 2 m/s^2'
           'Element 1', 'cubic spring: power law, force = 1e+09 * x^3; at degree of freedom 2'
           'Element 2', [qn.describe(qn.slider ('slip', 2, 'stiffness', 1e5)) '; at degree of freedom 1 minus degree of freedom 2']
           'Element 3', [qn.describe(qn.damper ('damping', 4)) '; looks at degree of freedom 1, acts at degree of freedom 2']};
end

function lines = padded (facts)
  width = max (cellfun (@numel, facts(:, 1)));
  lines = cell (1, size (facts, 1));
  for k = 1:numel (lines), lines{k} = ['  ' facts{k, 1}, blanks(width + 2 - numel (facts{k, 1})), facts{k, 2}]; end
end

function test_a_set_up_says_loads_elements_scheme_and_what_is_kept ()
  expect_text (pushed (), [{'set-up of a run'}, padded(of_pushed ())]);
end

function test_a_result_says_what_happened ()
  [sim, model] = pushed ();
  res = qn.run (sim, 'progress', false, 'check', false);
  u = model.shapes * res.q;
  [unused, k] = max (abs (u(:)));
  [dof, at] = ind2sub (size (u), k);
  facts = [of_pushed(); {'Outcome', 'The run is complete: 0.1 s in # s of computing.'; 'Largest motion', ...
           sprintf('%.5g m (rad, if that is a rotation) at degree of freedom %d, at %.6g s', u(k), dof, res.time(at))}];
  for j = 1:3
    f = res.force(j, :);
    [unused, at] = max (abs (f));
    facts(end + 1, :) = {sprintf('Force %d', j), sprintf('of element %d: %.5g to %.5g N, the greatest amount at %.6g s', j, min (f), max (f), ...
                                                         res.time(at))};
  end
  facts(end + 1, :) = {'Findings', 'none'};
  expect_text (res, [{'result of a run'}, padded(facts)]);
end

function test_a_quiet_and_an_unfinished_result_are_said ()
  sim = qn.simulation (qn.modal (4e4, 1, 'damping', 0.02), 'step', 1e-4, 'steps', 2000, 'u0', 1e-3);
  text = qn.describe (qn.run (sim, 'progress', false));
  for part = {'Loads           none', 'Elements        none: the model is linear', 'Largest motion  0.001 m at degree of freedom 1, at 0 s', ...
              'Findings        none', '2001 times, at every step: 1 modal coordinate'}
    expect_in (text, part{1});
  end
  part = qn.run (sim, 'progress', false, 'piece', 30, 'stop', @(r) true);
  expect_in (qn.describe (part), 'Not complete: the run came to 0.003 s of 0.2 s.');
  part.q = part.q(:, []);
  expect_in (qn.describe (part), 'Largest motion  no time was kept');
  grew = part;
  grew.diverged = true;
  expect_in (qn.describe (grew), 'The motion grew beyond all numbers: the run ended at 0.003 s of 0.2 s.');
  sim = qn.simulation (sim.model, 'step', 1e-3, 'times', [0.01 0.03 0.04], 'until', 0.1, 'u0', 1, 'varying', {'K', 1, [0 1; 0 1]});
  expect_in (qn.describe (sim), '3 times, at chosen steps');
  expect_in (qn.describe (sim), '  Changes with time  1 matrix of stiffness, by tables');
end

% The greatest of all entries, as the whole product gives it, where few of the rows and columns are multiplied.
function test_the_largest_motion_is_that_of_all_degrees_of_freedom_and_times ()
  model = chain (60, 'modes', 4, 'damping', 0.01);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 5000, 'load', {qn.load_at(model, 23), @(t) sin(9 * t) .* t});
  res = qn.run (sim, 'progress', false, 'check', false);
  for spike = [0 1]
    if spike, res.q(:, 3001) = -50 * model.shapes(37, :).'; end     % none of the times that are looked at first
    u = model.shapes * res.q;
    [unused, k] = max (abs (u(:)));
    [dof, at] = ind2sub (size (u), k);
    expect_in (qn.describe (res), sprintf ('%.5g m (rad, if that is a rotation) at degree of freedom %d, at %.6g s', u(k), dof, res.time(at)));
  end
end

function test_places_are_those_that_the_rows_were_made_of ()
  for model = {chain(6), chain(6, 'modes', 4), chain(300, 'modes', 5)}
    m = model{1};
    at = @(varargin) qn.impl.words.place (m, qn.observe (m, varargin{:}));
    expect_equal (at (3), 'degree of freedom 3');
    expect_equal (at (3, -1), 'minus degree of freedom 3');
    expect_equal (at (3, 0.25), '0.25 times degree of freedom 3');
    expect_equal (at ([2 5], [1 -1]), 'degree of freedom 2 minus degree of freedom 5');
    expect_equal (at ([2 5], [-1 1]), 'degree of freedom 5 minus degree of freedom 2');
    expect_equal (at ([1 2 3 4 5 6]), ['degree of freedom 1, degree of freedom 2, degree of freedom 3, degree of freedom 4 and 2 more']);
    expect_equal (qn.impl.words.place (m, zeros (1, numel (m.w))), 'nothing (a row of zeros)');
  end
  m = chain (6);
  expect_equal (qn.impl.words.place (m, qn.observe (m, [1 4 6], [2 -3 1])), ...
                '2 times degree of freedom 1 plus degree of freedom 6 minus 3 times degree of freedom 4');
  expect_equal (qn.impl.words.place (m, qn.observe (m, 1:6, 1:6)), '6 degrees of freedom, weighted');
  m = chain (6, 'modes', 3);
  expect_equal (qn.impl.words.place (m, qn.observe (m, 1:6, 1:6)), 'a row of its own');
  expect_equal (qn.impl.words.place (m, m.shapes(2, :) * 1.0001 + [1e-3 0 0]), 'a row of its own');
  alike = qn.modal (1e4 * [2 -1; -1 2], eye (2), 'modes', 1);
  alike.shapes = round (1e9 * abs (alike.shapes)) / 1e9;
  expect_equal (qn.impl.words.place (alike, alike.shapes(1)), 'degree of freedom 1 or degree of freedom 2');
end

function test_a_rotor_says_shaft_supports_and_speed ()
  at_speed = [100 1e6 2e6; 200 1e6 3e6];
  r = qn.rotor ('nodes', [0 0.2 0.5], 'outer', 0.05, 'disks', [2 7 0.01 0.02], 'internal', 1e-5, 'stator', struct ('M', eye (2), 'K', 1e7 * eye (2)), ...
                'bearings', {1, 1e6, 100; 2, [1e6 2e6; 3e6 4e6], [10 20]; [3 1 2], at_speed, 0}, 'seals', {2, 1e3, [], 2});
  mass = 7 + 7850 * pi * 0.05 ^ 2 / 4 * 0.5;
  facts = {'Shaft', '3 nodes, 14 degrees of freedom, from 0 to 0.5 m'; 'Mass', sprintf('%.5g kg along x, shaft and disks', mass)
           'Internal damping', 'yes: circulatory matrix'; 'Stator', '2 degrees of freedom'
           'Speed', 'none: M, K and C are not formed, as supports depend on it; tables over 100 to 200 rad/s'
           'Support 1', 'node 1, stiffness 1e+06 N/m, damping 100 N s/m'
           'Support 2', 'node 2, stiffness [1e+06 2e+06; 3e+06 4e+06] N/m, damping 10 and 20 N s/m (x and y)'
           'Support 3', 'node 3 against the stator, stiffness by speed'
           'Support 4', 'node 2, stiffness 1000 N/m, added mass 2 kg'};
  expect_text (r, [{'rotor'}, padded(facts)]);
  facts{5, 2} = 'matrices at 150 rad/s (1432.4 rpm); tables over 100 to 200 rad/s';
  expect_text (qn.rotor (r, 'speed', 150), [{'rotor'}, padded(facts)]);
  bare = qn.rotor ('nodes', 0:0.1:0.3, 'outer', 0.02);
  expect_in (qn.describe (bare), 'its matrices are the same at all speeds');
  expect_in (qn.describe (bare), 'Supports  none');
end

function test_a_rotor_is_run_in_words_with_its_nodes ()
  r = qn.rotor ('nodes', [0 0.2 0.5], 'outer', 0.05, 'bearings', {1, 1e6, 100; 3, 1e6, 100});
  model = qn.modal (r, 'modes', 6, 'speed', 0);
  sim = qn.simulation (model, 'step', 1e-4, 'steps', 100, 'load', qn.unbalance (model, [5 6], 1e-3, 'profile', [0 0.01; 10 20]), ...
                       'speed', [0 0.01; 10 20], 'elements', {qn.radial('gap', 1e-3, 'stiffness', 1e6), [5 6]});
  text = qn.describe (qn.run (sim, 'progress', false, 'check', false));
  for part = {'10 to 20 rad/s (95.493 to 190.99 rpm); gyroscopic matrix', 'at node 2 x (degree of freedom 5), unbalance at 10 to 20 rad/s: ', ...
              '; at node 2 x (degree of freedom 5), node 2 y (degree of freedom 6)', ' m at node ', 'of element 1: none at the times', ...
              'Finding         warning never_closes: element 1 (round clearance of 0.001 m) never acts'}
    expect_in (text, part{1});
  end
end

function test_it_is_printed_where_no_output_is_taken ()
  model = chain (2);
  printed = evalc ('qn.describe (model)');
  expect_equal (printed, [qn.describe(model) sprintf('\n')]);
end

function test_other_things_are_refused_or_said_to_be_structures ()
  model = chain (2);
  expect_error (@() qn.describe ('model'), 'qn:input', '~a law, a handle or its value, a model, a set-up or a result expected, got class char');
  expect_error (@() qn.describe ({model}), 'qn:input', '~got class cell');
  expect_error (@() qn.describe ([model model]), 'qn:input', '~one structure or laws expected, got \[1 2\] structures; describe them one by one');
  expect_equal (qn.describe (rmfield (model, 'damping')), ...
                ['structure with the fields ' strjoin(fieldnames (rmfield (model, 'damping')).', ', ')]);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 3);
  expect_in (qn.describe (rmfield (sim, 'scheme')), 'structure with the fields');
end
