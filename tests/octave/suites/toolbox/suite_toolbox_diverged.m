% Motions that grow beyond all numbers, and runs that end before their time.
function tests = suite_toolbox_diverged ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

% A spring that is far too stiff for the step.
function sim = unstable (steps, varargin)
  model = qn.modal (100, 1);
  list = {qn.law('power', 'stiffness', 1e6, 'exponent', 1), qn.observe(model, 1); qn.slider('slip', 1, 'stiffness', 10), qn.observe(model, 1)};
  sim = qn.simulation (model, 'step', 0.1, 'steps', steps, 'v0', 1, 'elements', list, varargin{:});
end

function res = run_quietly (varargin)
  before = warning ('off', 'qn:diverged');
  also = warning ('off', 'qn:growth');
  back = onCleanup (@() cellfun (@warning, {before, also}));
  res = qn.run (varargin{:}, 'progress', false);
end

function test_a_diverged_run_ends_at_its_last_good_time_with_that_many_columns ()
  for piece = {[], 100, 3, 5000}
    res = run_quietly (unstable (5000), 'piece', piece{1});
    expect_equal (res.diverged, true);
    expect_equal (res.complete, false);
    k = numel (res.time);
    expect_equal ([size(res.q, 2), size(res.force, 2), size(res.state, 2)], [k k k]);
    expect_equal (res.time(end), res.time_end);
    expect_equal (all (isfinite (res.q(:))) && all (abs (res.q(:)) < 1e150), true);
    % It is the last one: with as many steps the run is good, with one more it is not.
    expect_equal (run_quietly (unstable (k - 1)).diverged, false);
    expect_equal (run_quietly (unstable (k - 1)).q, res.q);
    expect_equal (run_quietly (unstable (k)).diverged, true);
  end
  some = run_quietly (unstable (5000, 'every', 7));
  expect_equal (some.time, res.time(1:7:end));
  expect_equal (some.q, res.q(:, 1:7:end));
end

function test_the_warning_names_the_time ()
  warning ('error', 'qn:diverged');
  back = onCleanup (@() warning ('on', 'qn:diverged'));
  expect_error (@() qn.run (unstable (5000)), 'qn:diverged', '~grew beyond all numbers before .* s; the results end at [\d.]+ s');
end

function test_nothing_goes_on_from_a_diverged_run ()
  res = run_quietly (unstable (5000));
  expect_error (@() qn.resume (res), 'qn:input', '~qn.resume: this run diverged, its last good time is [\d.]+ s');
  expect_error (@() unstable (5, 'start', res), 'qn:input', '~this run diverged');
end

% Its file said that an element was damaged.
function test_nothing_goes_on_from_the_file_of_a_diverged_run ()
  [folder, clean] = new_folder ();
  file = fullfile (folder, 'run.mat');
  run_quietly (unstable (5000), 'save', file);
  expect_error (@() qn.resume (file), 'qn:input', '~qn.resume: this run diverged, its last good time is [\d.]+ s');
end

function test_a_stopped_run_has_no_columns_after_its_end ()
  model = qn.modal (100, 1);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'v0', 1, 'every', 3);
  part = qn.run (sim, 'piece', 100, 'stop', @(r) r.time_end > 0.25);
  expect_equal (part.time_end, 0.3, 1e-12);
  expect_equal (part.time, (0:3:300) * 1e-3, 1e-12);
  expect_equal (size (part.q), [1 101]);
  whole = qn.run (sim);
  expect_equal (part.q, whole.q(:, 1:101));
  expect_equal (getfield (qn.resume (part), 'q'), whole.q);
end
