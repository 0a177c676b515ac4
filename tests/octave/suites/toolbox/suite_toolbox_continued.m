% Runs that begin where another ended, with something changed.
function tests = suite_toolbox_continued ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

function [k, m] = chain ()
  k = 1e4 * [2 -1 0; -1 2 -1; 0 -1 1];
  m = diag ([1 2 3]);
end

function sim = made (model, varargin)
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 200, varargin{:});
end

function res = first_run (model, varargin)
  res = qn.run (made (model, 'v0', [1; -2; 3] .* (1:size (model.shapes, 1) == 1:size (model.shapes, 1)).', varargin{:}), 'progress', false);
end

function [u, v] = last_state (res)
  m = numel (res.sim.model.w);
  u = res.sim.model.shapes * res.final.u(1:m);
  v = res.sim.model.shapes * res.final.v(1:m);
end

% The motion of a run that continues RES with MODEL and ARGS is that of one from the displacements and velocities at its end.
function continues (res, model, varargin)
  [u, v] = last_state (res);
  got = qn.run (made (model, 'start', res, varargin{:}), 'progress', false);
  wanted = qn.run (made (model, 'u0', u, 'v0', v, varargin{:}), 'progress', false);
  expect_equal (got.q, wanted.q, 1e-10 * max (abs (wanted.q(:))));
  expect_equal (got.time, 0.2 + wanted.time, 1e-12);
  expect_equal (got.sim.start.a, wanted.sim.start.a, 1e-9 * max (abs (wanted.sim.start.a)));
end

function test_another_stiffness_or_damping_acts_from_the_start_on ()
  [k, m] = chain ();
  res = first_run (qn.modal (k, m, 'damping', 0.01));
  continues (res, qn.modal (3 * k, m, 'damping', 0.01));
  continues (res, qn.modal (k, m, 'damping', 0.2));
  continues (res, qn.modal (k, 2 * m));
  continues (res, qn.modal (k + diag ([0 0 5e4]), m, 'rayleigh', [1 1e-4]));
end

function test_more_modes_take_the_state_through_the_displacements ()
  [k, m] = chain ();
  few = qn.modal (k, m, 'modes', 2);
  all_modes = qn.modal (k, m);
  res = first_run (few);
  continues (res, all_modes);
  [u, v] = last_state (res);
  sim = made (all_modes, 'start', res);
  expect_equal (all_modes.shapes * sim.start.u, u, 1e-12);
  expect_equal (all_modes.shapes * sim.start.v, v, 1e-12);
  expect_equal (abs (sim.start.u(3)) < 1e-12, true);
end

function test_modes_that_cannot_hold_the_state_are_refused_with_the_share_that_is_lost ()
  [k, m] = chain ();
  all_modes = qn.modal (k, m);
  few = qn.modal (k, m, 'modes', 2);
  res = qn.run (made (all_modes, 'q0', [1; 0.5; 0.3], 'dq0', [0; 0; 0]), 'progress', false);
  q = res.final.u;
  text = sprintf ('cannot represent %.2g %% of the displacements', 100 * abs (q(3)) / norm (q));
  expect_error (@() made (few, 'start', res), 'qn:input', ['~' text '.* at most 1 % is let pass']);
  % Between 0.01 % and 1 % there is a warning; below nothing is said.
  res.final.u(3) = 0.005 * norm (q(1:2));
  res.final.v(3) = 0;
  warning ('error', 'qn:start');
  back = onCleanup (@() warning ('on', 'qn:start'));
  expect_error (@() made (few, 'start', res), 'qn:start', '~0.5 % of the displacements and .* % of the velocities');
  res.final.u(3) = 1e-5 * norm (q(1:2));
  sim = made (few, 'start', res);
  expect_equal (abs (sim.start.u), abs (res.final.u(1:2)), 1e-9);
end

function test_another_number_of_degrees_of_freedom_is_refused ()
  [k, m] = chain ();
  res = first_run (qn.modal (k, m));
  expect_error (@() made (qn.modal (k(1:2, 1:2), m(1:2, 1:2)), 'start', res), 'qn:input', ...
                '~structure of 3 degrees of freedom and this one has 2');
end

function test_another_gap_and_another_load_act_from_the_start_on ()
  [k, m] = chain ();
  model = qn.modal (k, m);
  row = qn.observe (model, 3);
  res = first_run (model, 'elements', {qn.gap('gap', 0.001, 'stiffness', 1e5), row});
  continues (res, model, 'elements', {qn.gap('gap', 0.002, 'stiffness', 1e4), row});
  continues (res, model, 'elements', {qn.cubic('stiffness', 1e8), row; qn.gap('gap', 0.001, 'stiffness', 1e5), qn.observe(model, 1)});
  continues (res, model);
  continues (res, model, 'load', {qn.load_at(model, 2), @(t) 50 * ones(size (t))});
end

% One mass on a spring with an elastic slider, stepped plainly: F grows with k v h up to the slip force.
function [q, v, a, force] = slider_steps (w2, k, slip, h, n, q, v, a, force)
  for j = 1:n
    x = q + h * v + h ^ 2 / 4 * a;
    y = v + h / 2 * a;
    force = max (-slip, min (slip, force + k * y * h));
    a = -(w2 * x + force) / (1 + h ^ 2 * w2 / 4);
    q = x + h ^ 2 / 4 * a;
    v = y + h / 2 * a;
  end
end

function test_the_memory_of_a_slider_is_right_with_another_step_scheme_or_slip_force ()
  model = qn.modal (100, 1);
  sliding = @(slip) {qn.slider('slip', slip, 'stiffness', 400), 1};
  before = qn.run (qn.simulation (model, 'step', 0.01, 'steps', 60, 'v0', 3, 'elements', sliding (5)), 'progress', false);
  [q, v, a, f] = slider_steps (100, 400, 5, 0.01, 60, 0, 3, 0, 0);
  expect_equal (before.final.u, [q; f], 1e-10);
  for slip = [5 4 9]
    for h = [0.01 0.005 0.02]
      sim = qn.simulation (model, 'step', h, 'steps', 50, 'start', before, 'elements', sliding (slip));
      after = qn.run (sim, 'progress', false);
      a0 = a;
      if slip ~= 5, a0 = -100 * q - max (-slip, min (slip, f)); end
      [qe, ve, ae, fe] = slider_steps (100, 400, slip, h, 50, q, v, a0, f);
      expect_equal (after.final.u, [qe; fe], 1e-9);
    end
  end
end

function test_the_memory_of_a_maxwell_element_goes_on_with_another_step_and_damper ()
  model = qn.modal (100, 1);
  branch = @(c) {qn.maxwell('springs', 300, 'dampers', c), 1};
  before = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 300, 'v0', 3, 'elements', branch (20)), 'progress', false);
  s = before.final.values{3, 2}.unl(2, 1, 3);
  for c = [20 60]
    for h = [1e-3 5e-4]
      after = qn.run (qn.simulation (model, 'step', h, 'steps', 200, 'start', before, 'elements', branch (c)), 'progress', false);
      % The exact motion: u' = v, v' = -100 u - 300 (u - s), s' = 300/c (u - s).
      exact = expm ([0 1 0; -400 0 300; 300 / c, 0, -300 / c] * 200 * h) * [before.final.u(1); before.final.v(1); s];
      expect_equal (after.final.u(1), exact(1), 0.006);
    end
  end
end

function test_memories_follow_their_elements_when_the_list_changes ()
  [k, m] = chain ();
  model = qn.modal (k, m);
  slide = @(place, slip) {qn.slider('slip', slip, 'stiffness', 1e4), qn.observe(model, place)};
  stop = {qn.gap('gap', 0.01, 'stiffness', 1e4), qn.observe(model, 3)};
  bank = {qn.iwan('slip', 9, 'stiffness', 3e3, 'sliders', 3), qn.observe(model, 2)};
  list = [slide(1, 3); stop; slide(2, 4); bank; slide(3, 5)];
  res = first_run (model, 'elements', list);
  whole = qn.run (made (model, 'start', res, 'elements', list), 'progress', false);
  for order = {[5 4 3 2 1], [3 1 2 5 4]}
    again = qn.run (made (model, 'start', res, 'elements', list(order{1}, :)), 'progress', false);
    expect_equal (again.q, whole.q, 1e-12);
  end
  % An element more or fewer: the others keep theirs.
  more = made (model, 'start', res, 'elements', [stop; list]);
  expect_equal (more.start.u(4:end), res.final.u(4:end));
  fewer = made (model, 'start', res, 'elements', list([1 3 4 5], :));
  expect_equal (fewer.start.u(4:end), res.final.u(4:end));
  fewer = made (model, 'start', res, 'elements', list([2 5 3], :));
  expect_equal (fewer.start.u(4:end), res.final.u(3 + [6 2]));
  % A bank of which one law is left, known by its parameters.
  one = bank;
  one{1} = one{1}(2);
  fewer = made (model, 'start', res, 'elements', one);
  expect_equal (fewer.start.u(4), res.final.u(3 + 4));
end

function test_memories_follow_their_elements_into_a_changed_model ()
  [k, m] = chain ();
  list = @(model) {qn.slider('slip', 3, 'stiffness', 1e4), qn.observe(model, 1); qn.slider('slip', 4, 'stiffness', 1e4), qn.observe(model, 3)};
  before = qn.modal (k, m);
  res = first_run (before, 'elements', list (before));
  model = qn.modal (1.3 * k, m + eye (3));
  turned = list (model);
  sim = made (model, 'start', res, 'elements', turned([2 1], :));
  expect_equal (sim.start.u(4:5), res.final.u([5 4]));
  expect_equal (sim.start.FNL([1 3]), res.final.u([5 4]), 1e-12);
end

function test_an_element_whose_memory_is_not_found_is_refused_or_begins_afresh_when_that_is_said ()
  [k, m] = chain ();
  model = qn.modal (k, m);
  slide = @(place) {qn.slider('slip', 3, 'stiffness', 1e4), qn.observe(model, place)};
  res = first_run (model, 'elements', slide (1));
  expect_error (@() made (model, 'start', res, 'elements', slide (2)), 'qn:input', ...
                '~element 1 \(dahl\) has a memory and finds none in the earlier run: it had 1: dahl. At its place are 1 .* "fresh", 1');
  maxwell = {qn.maxwell('springs', 1e3, 'dampers', 10), qn.observe(model, 1)};
  expect_error (@() made (model, 'start', res, 'elements', [slide(1); maxwell]), 'qn:input', '~element 2 \(maxwell\) has a memory');
  both = made (model, 'start', res, 'elements', [slide(1); maxwell], 'fresh', 2);
  expect_equal (both.start.u(4), res.final.u(4));
  expect_equal (made (model, 'start', res, 'elements', slide (1), 'fresh', 1).start.u(4), 0);
  bank = @(n) {qn.iwan('slip', 9, 'stiffness', 3e3, 'sliders', n), qn.observe(model, 2)};
  res = first_run (model, 'elements', bank (3));
  expect_error (@() made (model, 'start', res, 'elements', bank (4)), 'qn:input', '~At its place are 4 of that kind now, and');
  expect_error (@() made (model, 'start', res, 'elements', bank (3), 'fresh', 2), 'qn:input', '~"fresh" must be from 1 to 1, got 2');
  expect_error (@() made (model, 'elements', bank (3), 'fresh', 1), 'qn:input', '~there is no "start"');
end

function test_initial_values_beside_an_earlier_run_are_refused ()
  model = qn.modal (100, 1);
  res = qn.run (qn.simulation (model, 'step', 0.01, 'steps', 5, 'v0', 1), 'progress', false);
  for name = {'u0', 'v0', 'q0', 'dq0'}
    expect_error (@() qn.simulation (model, 'step', 0.01, 'steps', 5, 'start', res, name{1}, 1), 'qn:input', ['~leave out "' name{1} '"']);
  end
  expect_error (@() qn.simulation (model, 'step', 0.01, 'steps', 5, 'start', 3), 'qn:input', '~"start" expects the result of qn.run');
  expect_error (@() qn.simulation (model, 'step', 0.03, 'steps', 5, 'start', res), 'qn:input', ...
                '~no multiple of the step; a step of 0.025.* fits');
  expect_equal (getfield (qn.simulation (model, 'step', 0.01, 'steps', 5, 'start', res, 'a0', 7), 'start', 'a'), 7);
end
