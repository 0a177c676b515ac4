% What qn.advise promises: the step that it proposes keeps the tolerance, measured against a run with a sixteenth of it.
function tests = suite_toolbox_advice ()
  use_toolbox ();
  tests = localfunctions ();
end

function e = error_with (set_up, h)
  res = qn.run (set_up (h));
  fine = qn.run (set_up (h / 16));
  n = numel (res.time);
  same = 1 + 16 * (0:n - 1);
  same = same(same <= size (fine.q, 2));
  e = max (max (abs (res.q(:, 1:numel (same)) - fine.q(:, same)))) / max (abs (fine.q(:)));
end

function model = two_masses (varargin)
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 2]), varargin{:});
end

% Set-ups whose error falls in ways of their own.
function list = set_ups ()
  m = two_masses ('damping', 0.01);
  row = qn.observe (m, 2);
  simulate = @(model, elements) @(h) qn.simulation (model, 'step', h, 'until', 0.4, 'v0', [0; 1], 'elements', elements);
  list = {'linear', simulate(m, {}), 2; ...
          'cubic', simulate(m, {qn.cubic('stiffness', 1e7), row}), 2; ...
          'Zener', simulate(m, {qn.zener('stiffness', 1e3, 'spring', 1e4, 'damper', 60), row}), 1; ...
          'Zener, weak', simulate(m, {qn.zener('stiffness', 1e3, 'spring', 300, 'damper', 3), row}), 1.3; ...
          'slider', simulate(m, {qn.slider('slip', 20, 'stiffness', 1e4), row}), []; ...
          'stop', simulate(m, {qn.gap('gap', 5e-3, 'stiffness', 5e4), row}), []; ...
          'dashpot', simulate(two_masses ('C', [60 -60; -60 60]), {}), []};
end

function test_the_advised_step_keeps_the_tolerance_in_every_kind_of_set_up ()
  list = set_ups ();
  for k = 1:size (list, 1)
    set_up = list{k, 2};
    for h = [2e-3 2e-4]
      a = qn.advise (set_up (h), 'tolerance', 2e-3, 'rows', eye (2));
      if ~a.sure, continue, end
      e = error_with (set_up, a.advised);
      if e > 1.3 * 2e-3, error ('%s from %g s: error %g with the advised step (%s)', list{k, 1}, h, e, a.text); end
      if abs (a.advised - h) > 0 && a.advised > h / 64 && e < 2e-3 / 12, error ('%s from %g s: %g is far too good (%s)', list{k, 1}, h, ...
              e, a.text); end
    end
    if ~isempty (list{k, 3}), expect_equal (a.order, list{k, 3}, 0.35); end
  end
end

function test_the_order_is_measured_and_only_then_stated ()
  list = set_ups ();
  sim = list{3, 2}(1e-3);
  a = qn.advise (sim);
  if isempty (strfind (a.text, sprintf ('order %.2f', a.order))) || a.order > 1.2, error ('a Maxwell element has order %g', a.order); end
  a = qn.advise (sim, 'order', false);
  expect_equal (a.order, NaN);
  expect_equal (a.sure, false);
  if isempty (strfind (a.text, 'order not measured')), error ('%s', a.text); end
  % The first order is on the safe side.
  if a.error < error_with (list{3, 2}, 1e-3), error ('two runs give an error that is too small'); end
end

% A contact whose step is beyond its limit: runs grow to Inf, or two of three do.
function test_runs_that_grow_give_the_limit_and_a_step_within_it ()
  m = two_masses ();
  row = qn.observe (m, 1);
  spring = qn.law ('power', 'stiffness', 1e6, 'exponent', 1);
  % 1 kg on 1e6 N/m: 2 sqrt (m / k).
  limit = 2e-3;
  for h = [3e-3 5e-3 9e-3 0.1]
    sim = qn.simulation (m, 'step', h, 'steps', 400, 'v0', [1; 0], 'elements', {spring, row});
    a = qn.advise (sim);
    expect_equal (a.limit / limit, 1, 0.02);
    if ~(a.advised > 0 && a.advised <= limit / 2), error ('%s', a.text); end
    if isempty (strfind (a.text, 'beyond the limit')), error ('%s', a.text); end
    expect_equal ([isnan(a.error), isnan(a.order), a.sure], [true true false]);
  end
end

% The stiffness of a cubic spring depends on the motion: qn.check knows a limit from the run that does not grow.
function test_a_limit_that_depends_on_the_motion ()
  m = qn.modal (4e4, 1);
  set_up = @(h) qn.simulation (m, 'step', h, 'until', 0.5, 'v0', 1, 'elements', {qn.cubic('stiffness', 1e12), qn.observe(m, 1)});
  a = qn.advise (set_up (2e-3));
  if ~(a.limit < 2e-3 && a.advised < a.limit), error ('%s', a.text); end
  again = qn.advise (set_up (a.advised));
  if isnan (again.advised) || again.advised > a.limit, error ('%s', again.text); end
end

function test_unstable_structures_are_not_called_a_matter_of_the_step ()
  m = two_masses ();
  m.damping = -20 * ones (2, 1);
  sim = qn.simulation (m, 'step', 1e-2, 'until', 100, 'v0', [1; 0]);
  a = qn.advise (sim);
  if ~(a.advised > 0 && isfinite (a.advised)), error ('a step of %g', a.advised); end
end

% Chaos of a two-well oscillator: no error, no order, a step to ask again from.
function test_chaos_gives_no_error_and_no_order ()
  m = qn.modal (1, 1, 'damping', 0.05);
  row = qn.observe (m, 1);
  wells = {qn.cubic('stiffness', 1), row; qn.law('power', 'stiffness', -2, 'exponent', 1), row};
  sim = qn.simulation (m, 'step', 0.05, 'until', 200, 'u0', 0.1, 'load', {qn.load_at(m, 1), @(t) 1.5 * cos(1.2 * t)}, 'elements', wells);
  a = qn.advise (sim);
  expect_equal ([a.error, a.order], [NaN NaN]);
  expect_equal (a.sure, false);
  if ~(a.advised > 1e-3 && a.advised < 0.05), error ('a step of %g', a.advised); end
  if isempty (strfind (a.text, 'no order and no error can be told')), error ('%s', a.text); end
end

function test_a_motion_without_error_of_the_step_has_no_order ()
  m = qn.modal (0, 1);
  a = qn.advise (qn.simulation (m, 'step', 0.1, 'steps', 50, 'v0', 1));
  expect_equal (a.order, NaN);
  if ~(a.advised > 0 && a.error < 1e-9) || isempty (strfind (a.text, 'rounding')), error ('%s', a.text); end
end

function test_steps_are_not_given_for_motion_of_a_base_step_by_step ()
  m = qn.modal (1, 1);
  sim = qn.simulation (m, 'step', 0.1, 'steps', 3, 'base', {1, [1 2 3 4]});
  expect_error (@() qn.advise (sim), 'qn:input', '~base 1 is given step by step');
  expect_error (@() qn.advise (sim, 'tolerance', -1), 'qn:input', '~tolerance');
  expect_error (@() qn.advise (sim, 'tolerance', NaN), 'qn:input', '~tolerance');
end
