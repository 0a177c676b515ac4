function tests = suite_toolbox_checks ()
  use_toolbox ();
  tests = localfunctions ();
end

function says (found, level, pattern)
  for k = 1:numel (found)
    if strcmp (found(k).level, level) && ~isempty (regexp (found(k).text, pattern, 'once')), return, end
  end
  error ('no %s "%s" among: %s', level, pattern, strjoin (arrayfun (@(f) [f.level ': ' f.text], found, 'uniformoutput', false), ' | '));
end

function model = oscillator ()
  model = qn.modal (4e4, 1);
end

function test_a_sound_set_up_needs_no_change ()
  model = oscillator ();
  sim = qn.simulation (model, 'step', 1e-4, 'until', 1, 'v0', 1, 'elements', {qn.gap('gap', 0.001, 'stiffness', 1e5), qn.observe(model, 1)});
  expect_equal (numel (qn.check (sim)), 0);
  expect_equal (evalc ('qn.check (sim)'), sprintf ('nothing to change\n'));
end

% The limit that the check names is the one of the module: just below it a run stays bounded, just above it grows.
function test_the_stability_limit_of_the_scheme_is_the_modules ()
  model = oscillator ();
  for ratio = [0.98 1.02]
    sim = qn.simulation (model, 'step', ratio * sqrt (12) / 200, 'steps', 2000, 'q0', 1, 'scheme', 'linear');
    res = qn.run (sim);
    found = qn.check (sim);
    if ratio > 1
      says (found, 'error', 'too long for mode 1 .*below 0.0173');
      if max (abs (res.q)) < 100, error ('the run stays bounded'); end
    else
      if any (strcmp ({found.level}, 'error')), error ('refused: %s', found(1).text); end
      if max (abs (res.q)) > 10, error ('the run grows to %g', max (abs (res.q))); end
    end
  end
end

% The same for an element's stiffness: h sqrt (k / m) = 2 with the mass that the element meets.
function test_the_stability_limit_of_an_element_is_the_modules ()
  model = qn.modal (1e4 * [2 -1; -1 1], diag ([1 3]), 'damping', 0.05);
  row = qn.observe (model, 2);
  for scheme = {'average', 'linear'}
    s = qn.scheme (scheme{1});
    h = 1e-3;
    mass = 1 / (row * (row.' ./ (1 + s.beta * h ^ 2 * model.stiffness + 0.5 * h * model.damping)));
    for ratio = [0.97 1.03]
      law = qn.law ('power', 'stiffness', ratio * 4 * mass / h ^ 2, 'exponent', 1);
      sim = qn.simulation (model, 'step', h, 'steps', 3000, 'v0', [0; 1], 'scheme', scheme{1}, 'elements', {law, row});
      warning ('off', 'qn:diverged');
      res = qn.run (sim);
      warning ('on', 'qn:diverged');
      found = qn.check (sim);
      if ratio > 1
        says (found, 'error', 'too stiff for the step of 0.001 s');
        if max (abs (res.q(:))) < 1e3, error ('the run stays bounded'); end
      else
        says (found, 'warning', 'steps pass in half a period');
        if max (abs (res.q(:))) > 10, error ('the run grows to %g', max (abs (res.q(:)))); end
      end
    end
  end
end

function test_what_is_too_coarse_is_named ()
  model = oscillator ();
  row = qn.observe (model, 1);
  with = @(law, h) qn.check (qn.simulation (model, 'step', h, 'until', 1, 'v0', 1, 'elements', {law, row}));
  says (qn.check (qn.simulation (model, 'step', 5e-3, 'until', 1, 'v0', 1)), 'warning', 'mode 1 .* gets 6.3 steps a period');
  says (with (qn.gap ('gap', 0, 'stiffness', 1e7), 1e-4), 'warning', 'element 1 \(stop behind a gap of 0 m\): only 9 steps');
  says (with (qn.maxwell ('springs', 100, 'times', 1e-3), 1e-3), 'warning', 'shortest relaxation time is only 1.0 steps');
  says (with (qn.maxwell ('springs', 100, 'times', 1e-4), 1e-3), 'error', 'grows without bound; take at most 1e-05 s');
  says (with (qn.law ('power', 'stiffness', 1, 'exponent', 1.5), 1e-3), 'warning', 'not a whole number');
  says (with (qn.law ('stickslip', 'contact', 1, 'slip', 2), 1e-3), 'warning', 'whole newtons');
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 0.01, 'v0', 1)), 'note', 'shorter than the period');
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1)), 'warning', 'neither a load nor an initial motion');
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', {1, [0 0.5; 0 1]})), 'note', 'covers 0 to 0.5 s of a run from 0 to 1');
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'v0', 1, 'elements', {qn.cubic('stiffness', 1), 0})), 'warning', 'does nothing');
end

function test_motion_beyond_a_table_is_found_after_the_run ()
  model = oscillator ();
  law = qn.law ('table', 'displacement', [-1e-3 0 1e-3], 'force', [-1 0 1]);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 1, 'v0', 1, 'elements', {law, qn.observe(model, 1)});
  expect_equal (numel (qn.check (sim)), 0);
  says (qn.check (sim, qn.run (sim)), 'note', 'beyond it the end segments go on');
  stop = qn.simulation (model, 'step', 1e-4, 'until', 1, 'v0', 1, 'elements', {qn.stop('gap', 1e-4, 'stiffness', 1e3), qn.observe(model, 1)});
  expect_equal (numel (qn.check (stop, qn.run (stop))), 0);
end

function test_what_was_changed_by_hand_is_looked_over ()
  model = oscillator ();
  good = qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', {1, @(t) t}, 'elements', {qn.stop('gap', 1, 'stiffness', 1), 1});
  s = good;
  s.time = single (s.time);
  says (qn.check (s), 'error', 'doubles that ascend');
  s = good;
  s.loads(3) = NaN;
  says (qn.check (s), 'error', 'finite and real');
  s = good;
  s.loads = s.loads(1:5);
  says (qn.check (s), 'error', 'one row of 1001 loads');
  s = good;
  s.start.u = [0; 0];
  says (qn.check (s), 'error', '"u" must be 1 finite');
  s = good;
  s.elements.law.parameters.displacement = [0 3 2 4];
  says (qn.check (s), 'error', 'must ascend; sort it');
  s = good;
  s.elements.observe = [1 2];
  says (qn.check (s), 'error', 'rows of 1 modal values');
end

% Linear oscillator: the error that the adviser names is the real one, and the step that it advises keeps the tolerance.
function test_the_advised_step_keeps_the_tolerance ()
  model = oscillator ();
  set_up = @(h) qn.simulation (model, 'step', h, 'until', 0.5, 'v0', 1);
  off = @(h) error_of (qn.run (set_up (h)));
  advice = qn.advise (set_up (1e-3), 'tolerance', 1e-3, 'order', true);
  expect_equal (advice.order, 2, 0.02);
  expect_equal (advice.error / off (1e-3), 1, 0.05);
  expect_equal (advice.error_half / off (5e-4), 1, 0.05);
  if off (0.5 / ceil (0.5 / advice.advised)) > 1.02e-3, error ('the advised step misses the tolerance'); end
  if off (0.5 / ceil (0.25 / advice.advised)) < 1e-3, error ('the advised step is far too short'); end
  damped = qn.simulation (model, 'step', 2e-5, 'until', 0.1, 'v0', 1, 'scheme', {'damped', 0.5});
  expect_equal (getfield (qn.advise (damped, 'order', true), 'order'), 1, 0.1);
end

function e = error_of (res)
  e = max (abs (res.q - sin (200 * res.time) / 200)) * 200;
end

function test_the_adviser_says_what_it_cannot_do ()
  model = oscillator ();
  expect_error (@() qn.advise (qn.simulation (model, 'step', 1e-3, 'steps', 2, 'load', {1, [1 2 3]})), 'qn:input', '~given step by step');
  expect_error (@() qn.advise (qn.simulation (model, 'step', 1e-3, 'steps', 2)), 'qn:input', '~nothing moves');
end

% The stiffness of the structure does not hold a contact down: at 1.01 times the limit the motion grows, and the check says so.
function test_a_stiff_structure_does_not_widen_the_limit_of_a_contact ()
  for k = [1e2 1e4 1e5]
    model = qn.modal (k, 1);
    row = qn.observe (model, 1);
    spring = qn.law ('power', 'stiffness', 1e4, 'exponent', 1);
    levels = cell (1, 2);
    for n = 1:2
      step = 2 * sqrt (1 / 1e4) * (0.99 + 0.02 * (n - 1));
      sim = qn.simulation (model, 'step', step, 'until', 400 * step, 'elements', {spring, row}, 'u0', 1e-3);
      found = qn.check (sim);
      levels{n} = any (strcmp ({found.level}, 'error'));
      peak(n) = max (abs (qn.displacement (qn.run (sim), row)));
    end
    if levels{1} || ~levels{2}, error ('k = %g: the check errs about the limit', k); end
    if peak(1) > 2e-3 || peak(2) < 1, error ('k = %g: peaks %g below and %g above the limit', k, peak(1), peak(2)); end
  end
end

function test_a_load_that_falls_between_the_steps_is_named ()
  model = oscillator ();
  pulse = {1, @(t) 5 * (t > 1e-3 & t < 3e-3)};
  says (qn.check (qn.simulation (model, 'step', 5e-3, 'until', 1, 'load', pulse)), 'warning', ...
        'load 1 is zero at every time point; is the step longer than the pulse\?');
  found = qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', pulse));
  if ~isempty (strfind (strjoin ({found.text}, ' '), 'zero at every')), error ('a sampled pulse is called zero'); end
end

% The period that the check announces is the one that a free run shows.
function test_the_announced_period_is_that_of_the_run ()
  model = qn.modal (1, 1);
  for scheme = {'average', 'linear', {'damped', 0.8}, [0.09 0.5]}
    h = 2;
    sim = qn.simulation (model, 'step', h, 'steps', 2000, 'q0', 1, 'scheme', scheme{1});
    q = getfield (qn.run (sim), 'q');
    % q(k+1) + p q(k-1) = s q(k) with two constants; the phase gained in one step follows from them.
    x = [q(2:6).', -q(1:5).'] \ q(3:7).';
    theta = acos (x(1) / (2 * sqrt (x(2))));
    longer = 100 * (h / theta - 1);
    side = 'long';
    if longer < 0, side = 'short'; end
    says (qn.check (sim), 'warning', sprintf ('come out %.0f %% too %s', abs (longer), side));
  end
  says (qn.check (qn.simulation (model, 'step', 2, 'steps', 100, 'q0', 1)), 'warning', ...
        sprintf ('%.0f %% too long', 100 * (1 / atan (1) - 1)));
end

function test_a_ratio_in_percent_and_a_push_without_base_get_a_note ()
  model = qn.modal (1e4 * [2 -1; -1 1], [2 0; 0 3], 'damping', 2);
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', {[1; 1], @sin})), 'note', 'shape of load 1 is whole numbers');
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 1, 'u0', [1; 0])), 'note', 'mode 1 has 2 of critical damping; 2 % is 0.02');
  model = qn.modal (1e4 * [2 -1; -1 1], [2 0; 0 3], 'damping', 0.02);
  sim = qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', {qn.base(model, [1; 1]), @sin; qn.load_at(model, 2), @sin});
  expect_equal (numel (qn.check (sim)), 0);
end

% As met with a contact far above the limit of the step that was touched in one step: the result was right within 4 %, and called useless.
function test_a_stop_that_is_touched_once_is_a_warning_and_no_error ()
  model = oscillator ();
  stop = {qn.gap('gap', 4.99e-3, 'stiffness', 1e7), qn.observe(model, 1)};
  sim = qn.simulation (model, 'step', 1e-3, 'until', 0.02, 'v0', 1, 'elements', stop);
  found = qn.check (sim);
  says (found, 'warning', 'element 1 .* too stiff for the step of 0.001 s where it has 1e\+07 N/m');
  after = qn.check (sim, qn.run (sim, 'check', false, 'progress', false));
  if any (strcmp ({found.level, after.level}, 'error')), error ('an error is announced'); end
  % A spring that is there all the time, and a stop that is pressed for long, grow.
  spring = {qn.law('table', 'displacement', [-1 0 1], 'force', [-1.1e7 0 1e7]), qn.observe(model, 1)};
  says (qn.check (qn.simulation (model, 'step', 1e-3, 'until', 0.02, 'v0', 1, 'elements', spring)), 'error', 'grows without bound');
  x = [0, 1, 1, 0, 1, 1, 1, 0] * 6e-3;
  found = qn.impl.check_law (sim, 1, x, 1, [], [], []);
  expect_equal ({found.code, found.level}, {'element_unstable', 'error'});
  found = qn.impl.check_law (sim, 1, x(1:6), 1, [], [], []);
  expect_equal ({found.code, found.level}, {'element_unstable', 'warning'});
end

% Dahl's law doubles its stiffness where it turns at full slip; where the force stays small beside the slip force it does not, and the run
% was right.
function test_friction_far_from_slip_is_judged_by_the_force_that_occurred ()
  model = oscillator ();
  h = 1e-3;
  law = qn.law ('dahl', 'stiffness', 3e6, 'slip', 1e6);
  sim = qn.simulation (model, 'step', h, 'until', 0.1, 'v0', 1, 'elements', {law, qn.observe(model, 1)});
  says (qn.check (sim), 'warning', 'too stiff for the step of 0.001 s where it has 6e\+06 N/m');
  res = qn.run (sim, 'check', false, 'progress', false);
  found = qn.check (sim, res);
  if any (strcmp ({found.code}, 'element_unstable')), error ('%s', found(1).text); end
  expect_equal (qn.impl.stiffest (law, [], [0 2.5e5 -5e5]), 4.5e6, 1e-12);
  if max (abs (res.q)) > 1 / sqrt (3e6), error ('the run grows to %g', max (abs (res.q))); end
end

% A cubic stop that acts elsewhere than it observes: how long it stays at its stiffest is not known, and a run that came out right was
% called useless before it began.
function test_growth_with_an_element_at_its_stiffest_is_an_error_only_where_it_always_is ()
  model = qn.modal (1e4 * [2 -1; -1 2], eye (2), 'C', [30 -10; -10 10]);
  rows = qn.observe (model, 1);
  set_up = @(law) qn.simulation (model, 'step', 1e-3, 'until', 0.05, 'v0', [1; 0], 'elements', {law, rows});
  found = qn.check (set_up (qn.gap ('gap', 1e-3, 'stiffness', 1e8)));
  says (found, 'warning', 'with element 1 at its stiffest, 1e\+08 N/m, the linear model grows');
  if any (strcmp ({found.level}, 'error')), error ('an error is announced'); end
  says (qn.check (set_up (qn.law ('power', 'stiffness', 1e8, 'exponent', 1))), 'error', 'with element 1 at its stiffest');
end

% 20 steps a period over 8 periods gave a wrong phase, 39 % of the displacement, without a word. The share that is told is the real one.
function test_a_phase_that_falls_behind_over_many_periods_is_told_with_its_error ()
  model = oscillator ();
  set_up = @(periods, steps) qn.simulation (model, 'step', 2 * pi / 200 / steps, 'steps', periods * steps, 'v0', 1);
  for c = [8 20; 12 39; 5 20; 2 12].'
    sim = set_up (c(1), c(2));
    found = qn.check (sim);
    expect_equal ({found.code, found.level}, {'phase', 'warning'});
    told = sscanf (found.text(strfind (found.text, 'up to'):end), 'up to %g') / 100;
    expect_equal (told / error_of (qn.run (sim, 'check', false, 'progress', false)), 1, 0.05);
  end
  expect_equal (numel (qn.check (set_up (1, 30))), 0);
  % Nothing is said of a mode that falls behind and is not moved, or whose motion is damped away before.
  two = qn.modal (diag ([1e4 1e6]), eye (2));
  expect_equal (numel (qn.check (qn.simulation (two, 'step', 5e-4, 'until', 0.1, 'v0', [1; 0]))), 0);
  damped = qn.modal (4e4, 1, 'damping', 0.1);
  expect_equal (numel (qn.check (qn.simulation (damped, 'step', 8e-4, 'until', 3, 'v0', 1))), 0);
end

% Against fine runs: several modes, loads, both ways of computing (uncoupled, coupled), both schemes.
function test_the_error_of_the_linear_model_that_is_told_is_that_of_the_run ()
  rand ('twister', 31);
  randn ('twister', 31);
  for round = 1:12
    n = 1 + mod (round, 4);
    more = {'damping', 0.02 * rand()};
    if round > 6, g = randn (n); more = {'C', 5 * eye(n) + 3 * (g - g.')}; end
    model = qn.modal (1e4 * (2 * eye (n) - diag (ones (n - 1, 1), 1) - diag (ones (n - 1, 1), -1)), diag (0.5 + rand (1, n)), more{:});
    schemes = {'average', 'linear'};
    h = 0.3 / max (model.w);
    given = {'v0', randn(n, 1), 'scheme', schemes{1 + mod(round, 2)}, 'load', {qn.load_at(model, n), @(t) 100 * sin(70 * t)}};
    sim = qn.simulation (model, 'step', h, 'steps', 300, given{:});
    coarse = qn.run (sim, 'check', false, 'progress', false);
    fine = qn.run (qn.simulation (model, 'step', h / 32, 'steps', 300 * 32, given{:}, 'every', 32), 'check', false, 'progress', false);
    exact = model.shapes * fine.q;
    off = max (max (abs (model.shapes * coarse.q - exact))) / max (abs (exact(:)));
    % The fine run sees the load between the coarse steps, which are told of as if it were straight there.
    expect_equal (qn.impl.linear_error (sim) / off, 1, 0.15);
  end
end

% A friction element that acts elsewhere than it observes, and a stiff spring: the linear model alone was right, the run was not.
function test_a_phase_that_an_element_makes_is_told_after_the_run ()
  model = qn.modal (100, 1);
  spring = {qn.law('power', 'stiffness', 4e4, 'exponent', 1), qn.observe(model, 1)};
  sim = qn.simulation (model, 'step', 4e-4, 'until', 0.65, 'v0', 1, 'elements', spring);
  expect_equal (numel (qn.check (sim)), 0);
  res = qn.run (sim, 'check', false, 'progress', false);
  found = qn.check (sim, res);
  expect_equal (any (strcmp ({found.code}, 'phase')), false);
  sim = qn.simulation (model, 'step', 1.2e-3, 'until', 3, 'v0', 1, 'elements', spring);
  res = qn.run (sim, 'check', false, 'progress', false);
  found = qn.check (sim, res);
  told = found(find (strcmp ({found.code}, 'phase'), 1));
  told = sscanf (told.text(strfind (told.text, 'up to'):end), 'up to %g') / 100;
  w = sqrt (40100);
  off = max (abs (res.q - sin (w * res.time) / w)) * w;
  expect_equal (told / off, 1, 0.1);
end

% A cubic spring with its force elsewhere ran away, and nothing was said before.
function test_a_spring_that_feeds_the_motion_from_elsewhere_is_named_before_the_run ()
  model = qn.modal (1e4 * [2 -1; -1 2], eye (2));
  [here, there] = deal (qn.observe (model, 1), qn.observe (model, 2));
  for law = {qn.cubic('stiffness', 1e9), qn.law('power', 'stiffness', 3e4, 'exponent', 1)}
    % The force on 2 of the displacement of 1: a stiffness of which the coupling is not symmetric, with poles on the right.
    sim = qn.simulation (model, 'step', 1e-4, 'until', 0.5, 'v0', [1; 0], 'elements', {law{1}, here, there});
    found = qn.check (sim);
    says (found, 'warning', 'element 1 acts elsewhere than it observes, and at its stiffest, .* lets the motion itself grow');
    found = qn.check (qn.simulation (model, 'step', 1e-4, 'until', 0.5, 'v0', [1; 0], 'elements', {law{1}, here}));
    if any (strcmp ({found.code}, 'model_grows')), error ('one that acts where it observes feeds nothing'); end
  end
end

% Modes that nothing moves get a note.
function test_a_fast_mode_is_a_warning_only_where_something_moves_it ()
  model = qn.modal (diag ([100 4e4]), eye (2));
  level_of = @(varargin) getfield (qn.check (qn.simulation (model, 'step', 5e-3, 'until', 1, 'v0', [1e-3; 0], varargin{:})), {1}, 'level');
  expect_equal (level_of (), 'note');
  expect_equal (level_of ('load', {qn.load_at(model, 1), @sin}), 'note');
  expect_equal (level_of ('load', {qn.load_at(model, 2), @sin}), 'warning');
  expect_equal (level_of ('elements', {qn.cubic('stiffness', 1), qn.observe(model, 1)}), 'note');
  expect_equal (level_of ('elements', {qn.cubic('stiffness', 1), qn.observe(model, [1 2], [1 -1])}), 'warning');
end
