function tests = suite_toolbox_runs ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

% Three modes with loads, a stop, a bank of sliders, a stick-slip contact and a Maxwell damper: every kind of memory there is.
function sim = rich (varargin)
  if ~any (strcmp (varargin, 'steps')), varargin = [varargin, {'steps', 1500}]; end
  k = 1e4 * [2 -1 0; -1 2 -1; 0 -1 1];
  model = qn.modal (k, diag ([1 2 1]), 'damping', 0.01);
  tip = qn.observe (model, 3);
  table = struct ('displacement', [-1 1], 'normal', [10 30], 'growth', [2e3 4e3], 'friction', 0.3);
  args = [fieldnames(table), struct2cell(table)].';
  elements = {qn.gap('gap', 0.01, 'stiffness', 1e5), tip; qn.iwan('slip', 20, 'stiffness', 1e4, 'sliders', 3), qn.observe(model, 1); ...
              qn.law('stickslip', 'contact', 1e3, 'slip', 12, 'ground', 100), qn.observe(model, 2); ...
              qn.maxwell('springs', [1e3 5e2], 'dampers', [10 40]), tip; qn.law('clima2', args{:}), qn.observe(model, [1 2 3]); ...
              qn.cubic('stiffness', 1e6), qn.observe(model, [1 2])};
  load = {qn.load_at(model, 3), @(t) 150 * sin(40 * t); qn.base(model, ones (3, 1)), [0 0.2 0.4; 0 20 0]};
  sim = qn.simulation (model, 'step', 5e-4, 'load', load, 'elements', elements, varargin{:});
end

% The run in one piece, from its beginning to its end.
function res = whole_run ()
  persistent whole
  if isempty (whole), whole = qn.run (rich (), 'piece', 1500); end
  res = whole;
end

function same_results (got, wanted)
  expect_equal (got.q, wanted.q);
  expect_equal (got.force, wanted.force);
  expect_equal (got.state, wanted.state);
  expect_equal (got.final.u, wanted.final.u);
  expect_equal (got.final.v, wanted.final.v);
  expect_equal (got.final.a, wanted.final.a);
end

function test_everything_in_the_rich_run_takes_part ()
  res = whole_run ();
  expect_equal (all (max (abs (res.force), [], 2) > 0), true);
  expect_equal (all (max (abs (res.state), [], 2) > 0), true);
  expect_equal (res.complete, true);
end

function test_a_cut_run_has_the_same_bits_as_a_whole_one ()
  for piece = [37 1499]
    same_results (qn.run (rich (), 'piece', piece), whole_run ());
  end
  same_results (qn.run (rich ('steps', 300), 'piece', 1), qn.run (rich ('steps', 300), 'piece', 300));
end

function test_a_stopped_run_goes_on_with_the_same_bits ()
  whole = whole_run ();
  part = qn.run (rich (), 'piece', 10, 'stop', @(r) r.time_end > 0.3);
  expect_equal (part.complete, false);
  expect_equal (part.q(:, 1:600), whole.q(:, 1:600));
  if part.time_end < 0.3 || part.time_end > 0.31, error ('stopped at %g s', part.time_end); end
  same_results (qn.resume (part), whole);
  same_results (qn.resume (qn.resume (part), 'piece', 30), whole);
end

function test_a_run_saved_to_a_file_goes_on_in_another_process_with_the_same_bits ()
  file = [tempname() '.mat'];
  clean = onCleanup (@() delete (file));
  whole = whole_run ();
  qn.run (rich (), 'piece', 50, 'save', file, 'stop', @(r) r.time_end > 0.4);
  toolbox = fileparts (fileparts (which ('qn.run')));
  code = sprintf ('addpath (''%s''); addpath (''%s''); r = qn.resume (''%s'', ''save'', ''%s'');', toolbox, fileparts (which ('quarn')), file, file);
  [status, text] = system (sprintf ('octave-cli --no-history -qf --eval "%s"', code));
  if status ~= 0, error ('the other process failed: %s', text); end
  same_results (load (file), whole);
end

function test_a_state_file_written_in_passing_can_be_resumed ()
  file = [tempname() '.mat'];
  clean = onCleanup (@() delete (file));
  copy = [file 'x'];
  % Takes a copy of the file in the middle of the run, as a crash would leave it.
  qn.run (rich (), 'piece', 300, 'save', file, 'interval', 0, 'stop', @(r) keep (r, file, copy));
  clean_copy = onCleanup (@() delete (copy));
  half = load (copy);
  if half.complete || half.time_end > 0.5, error ('the copy was not taken in passing'); end
  same_results (qn.resume (copy), whole_run ());
end

function test_a_file_that_cannot_be_written_is_refused_before_the_run ()
  nowhere = fullfile (tempname (), 'x.mat');
  expect_error (@() qn.run (rich (), 'save', nowhere, 'stop', @(r) error ('it ran')), 'qn:input', '~cannot write');
end

function stop = keep (r, file, copy)
  stop = false;
  if r.time_end > 0.35 && ~exist (copy, 'file'), copyfile (file, copy); end
end

function test_a_run_starts_where_another_ended_with_the_same_bits ()
  whole = whole_run ();
  first = qn.run (rich ('steps', 900));
  second = qn.run (rich ('steps', 600, 'start', first));
  expect_equal (second.time, whole.time(901:end));
  expect_equal (second.q, whole.q(:, 901:end));
  expect_equal (second.force(:, 2:end), whole.force(:, 902:end));
end

function test_kept_times_are_part_of_all_times ()
  whole = whole_run ();
  every = qn.run (rich ('every', 7), 'piece', 10);
  expect_equal (every.time, whole.time(1:7:end));
  expect_equal (every.q, whole.q(:, 1:7:end));
  expect_equal (every.force, whole.force(:, 1:7:end));
  some = qn.run (rich ('times', [0.1 0.20003 99]));
  expect_equal (some.time, whole.time([201 401 1501]));
  expect_equal (some.q, whole.q(:, [201 401 1501]));
end

function test_runs_leave_no_handles_behind ()
  qn.run (rich ());
  qn.run (rich (), 'stop', @(r) true);
  try
    qn.run (rich (), 'stop', @(r) error ('stopped by hand'));
  catch err
    if isempty (strfind (err.message, 'stopped by hand')), rethrow (err); end
  end
  expect_equal (numel (quarn ('chandleget')), 0);
end

function test_any_number_of_loads_acts_at_its_own_time ()
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 2]), 'damping', 0.03);
  for n = 0:3
    shapes = [1 0.2 -0.5; -0.3 2 1];
    load = cell (n, 2);
    p = zeros (2, 301);
    for k = 1:n
      signal = @(t) 100 * cos (10 * k * t);
      load(k, :) = {shapes(:, k), signal};
      p = p + shapes(:, k) * signal ((0:300) * 2e-3);
    end
    for scheme = {'average', 'linear', {'damped', 0.7}, [0.3 0.55]}
      s = qn.scheme (scheme{1});
      sim = qn.simulation (model, 'step', 2e-3, 'steps', 300, 'load', load, 'scheme', scheme{1}, 'q0', [0.1; 0], 'dq0', [0; 1]);
      res = qn.run (sim);
      a0 = p(:, 1) - model.damping .* [0; 1] - model.stiffness .* [0.1; 0];
      expect_equal (sim.start.a, a0, 1e-12);
      q = model_predictor_corrector (model.stiffness, model.damping, p, 2e-3, s.beta, s.gamma, [0.1; 0], [0; 1], a0, @(x, y) 0);
      expect_equal (res.q, q, 1e-10);
    end
  end
end

function test_coupled_damping_and_elements_follow_the_plain_scheme ()
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'C', [20 -5; -5 5]);
  row = qn.observe (model, 2);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 500, 'v0', [1; 0], 'elements', {qn.cubic('stiffness', 1e7), row});
  res = qn.run (sim);
  q = model_predictor_corrector (model.stiffness, model.damping, zeros (2, 501), 1e-3, 0.25, 0.5, sim.start.u, sim.start.v, ...
                                 sim.start.a, @(x, y) row.' * 1e7 * (row * x) ^ 3);
  expect_equal (res.q, q, 1e-10);
end

function test_the_initial_acceleration_balances_all_forces ()
  model = qn.modal (100, 2, 'damping', 0.1);
  law = qn.gap ('gap', 0.01, 'stiffness', 1e4);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 1, 'u0', 0.03, 'v0', 2, 'load', {qn.load_at(model, 1), @(t) 7}, ...
                       'elements', {law, qn.observe(model, 1)});
  c = 2 * 0.1 * sqrt (100 * 2);
  expect_equal (sim.start.a * model.shapes, (7 - 100 * 0.03 - c * 2 - 1e4 * 0.02) / 2, 1e-12);
  expect_equal (sim.start.FNL, 200, 1e-12);
  given = qn.simulation (model, 'step', 1e-3, 'steps', 1, 'a0', 5);
  expect_equal (given.start.a, 5);
end

function test_a_long_run_says_how_far_it_is ()
  sim = qn.simulation (qn.modal (100, 1), 'step', 1e-3, 'steps', 1000, 'v0', 1);
  text = evalc ('qn.run (sim, ''piece'', 250, ''stop'', @wait);');
  said = regexp (text, '(\d+) %  step (\d+) of 1000, (\d+) s, (\d+) s left', 'tokens');
  if isempty (said), error ('it said "%s"', text); end
  for k = 1:numel (said)
    numbers = str2double (said{k});
    percent = numbers(1);  step = numbers(2);  took = numbers(3);  left = numbers(4);
    expect_equal (percent, step / 10, 0.5);
    % Both times are whole seconds: half a second of what the run took is this much of what it has left.
    ratio = (1000 - step) / step;
    if abs (left - took * ratio) > 0.5 + 0.5 * ratio, error ('it said "%s"', text); end
  end
  quiet = evalc ('qn.run (sim, ''piece'', 500, ''progress'', false, ''stop'', @wait);');
  expect_equal (quiet, '');
end

function stop = wait (res)
  pause (0.7);
  stop = false;
end

function test_a_run_that_diverges_ends_with_a_warning ()
  model = qn.modal (100, 1);
  sim = qn.simulation (model, 'step', 0.1, 'steps', 5000, 'v0', 1, 'elements', {qn.law('power', 'stiffness', 1e6, 'exponent', 1), qn.observe(model, 1)});
  warning ('error', 'qn:diverged');
  back = onCleanup (@() warning ('on', 'qn:diverged'));
  expect_error (@() qn.run (sim, 'piece', 100), 'qn:diverged', '~grew beyond all numbers before');
end

function test_mistakes_in_simulations_are_explained ()
  model = qn.modal (100, 1);
  law = qn.cubic ('stiffness', 1);
  refused = @(text, varargin) expect_error (@() qn.simulation (model, varargin{:}), 'qn:input', text);
  refused ('~"step" is missing', 'steps', 1);
  refused ('~"until" or "steps"', 'step', 1);
  refused ('~"load\{1, 1\}" must be 1 value, one a mode .*, got 1 x 2', 'step', 1, 'steps', 1, 'load', {[1 2], @sin});
  refused ('~gives 3 values for 2 time points', 'step', 1, 'steps', 1, 'load', {1, [1 2 3]});
  refused ('~is Inf; finite numbers expected', 'step', 1, 'steps', 1, 'load', {1, @(t) 1 ./ t});
  refused ('~"elements\{1, 2\}"\(2\) is 2; degrees of freedom are numbered from 1 to 1', 'step', 1, 'steps', 1, 'elements', {law, [1 2]});
  refused ('~needs a law', 'step', 1, 'steps', 1, 'elements', {1, 1});
  refused ('~''average'', ''linear''', 'step', 1, 'steps', 1, 'scheme', 'euler');
  refused ('~"u0" must be 1 value, one a degree of freedom, got 1 x 2', 'step', 1, 'steps', 1, 'u0', [1 2]);
end

% The histories are written in place; what the function of 'stop' was given is not.
function test_a_result_that_the_function_of_stop_keeps_stays_as_it_was ()
  model = qn.modal ([2 -1; -1 2] * 100, eye (2));
  for element = {{}, {qn.slider('slip', 1, 'stiffness', 50), qn.observe(model, 1)}}
    sim = qn.simulation (model, 'step', 1e-2, 'steps', 50, 'v0', [1; 0], 'elements', element{1});
    keeps ([]);
    whole = qn.run (sim, 'piece', 10, 'stop', @keeps, 'progress', false);
    seen = keeps ([]);
    expect_equal (numel (seen), 5);
    for k = 1:5
      n = 10 * k + 1;
      expect_equal (seen{k}.q, [whole.q(:, 1:n), NaN(2, 51 - n)]);
      expect_equal (seen{k}.force, [whole.force(:, 1:n), NaN(size (whole.force, 1), 51 - n)]);
      expect_equal (seen{k}.state, [whole.state(:, 1:n), NaN(size (whole.state, 1), 51 - n)]);
      expect_equal (fieldnames (seen{k}), fieldnames (whole));
    end
  end
end

function stop = keeps (res)
  persistent seen
  stop = false;
  if isempty (res)
    stop = seen;
    seen = {};
  else
    seen{end + 1} = res;
  end
end
