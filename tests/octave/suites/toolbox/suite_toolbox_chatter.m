% Dampers with an exponent below 1 near rest: the motion of two steps that qn.check foretells, against runs, and when it is said.
function tests = suite_toolbox_chatter ()
  use_toolbox ();
  tests = localfunctions ();
end

% N masses of 2 kg in a row, the first three modes at most, with a damper at the first that chatters below SPEED.
function [sim, s, mu] = row_of (n, exponent, speed, scheme, steps, v0)
  model = qn.modal (1e4 * (2 * eye (n) - diag (ones (n - 1, 1), 1) - diag (ones (n - 1, 1), -1)), 2 * eye (n), 'damping', 0.05, ...
                    'modes', min (n, 3));
  h = 1e-3;
  row = model.shapes(1, :);
  p = qn.scheme (scheme);
  mu = sum (row .^ 2 ./ (1 + (p.gamma - 0.5) * h * model.damping.' + (p.beta - p.gamma / 2) * h ^ 2 * model.stiffness.'));
  c = 2 / (h * mu) * speed ^ (1 - exponent);
  s = speed;
  law = qn.law ('damper', 'damping', c, 'exponent', exponent);
  sim = qn.simulation (model, 'step', h, 'steps', steps, 'scheme', scheme, 'v0', v0 * ones (n, 1), 'elements', {law, 1});
end

function f = chatter_of (varargin)
  f = qn.check (varargin{:});
  f = f(strcmp ({f.code}, 'damper_chatter'));
end

% Half of the jump from step to step: of what has one sign in one step and the other in the next, its amplitude.
function x = alternating (x)
  x = max (abs (x(1:end - 2) - 2 * x(2:end - 1) + x(3:end))) / 4;
end

% Force +-c s^a, acceleration +-2 s/h, velocity and displacement by the parameters of the scheme; beside it several modes still swing a little.
function test_amplitudes_of_the_chatter_are_those_of_runs ()
  for scheme = {'average', 'linear', 'damped'}
    p = qn.scheme (scheme{1});
    for exponent = [0 0.3 0.5 0.8]
      for n = [1 5]
        [sim, s, mu] = row_of (n, exponent, 1e-3, scheme{1}, 4000, 0.02);
        res = qn.run (sim, 'progress', false, 'check', false);
        [v, a] = qn.velocity (res, 1);
        u = qn.displacement (res, 1);
        h = sim.step;
        last = 3001:4001;
        f = res.force(last);
        if any (f(1:end - 1) .* f(2:end) >= 0), error ('exponent %g: the force does not change its sign in each step', exponent); end
        expect_equal (alternating (f) / (2 * s / (h * mu)), 1, 1e-6);
        expect_equal (alternating (a(last)) / (2 * s / h), 1, 1e-6);
        expect_equal (alternating (v(last)) / s, 2 * p.gamma - 1, 1e-5);
        expect_equal (alternating (u(last)) / (h * s), 2 * abs (p.beta - p.gamma / 2), 2e-4);
        found = chatter_of (sim);
        wanted = {sprintf('below about %.2g m/s, with %g kg', s, 1 / mu), sprintf('plus and minus %.2g N', 2 * s / (h * mu)), ...
                  sprintf('%.2g m/s^2 to both sides', 2 * s / h)};
        switch scheme{1}
          case 'average', wanted{end + 1} = 'which velocity and displacement do not show';
          case 'linear', wanted{end + 1} = sprintf ('both sides, the displacement by %.2g m.', h * s / 6);
          case 'damped', wanted{end + 1} = sprintf ('the velocity by %.2g m/s, the displacement by %.2g m.', (2 * p.gamma - 1) * s, ...
                                                    2 * h * abs (p.beta - p.gamma / 2) * s);
        end
        for part = wanted, expect_in (found.text, part{1}); end
      end
    end
  end
end

% A step of h 0.1^(1-a), as the text says.
function test_the_step_that_is_named_brings_the_speed_down_to_a_tenth ()
  sim = row_of (5, 0.4, 2e-3, 'linear', 100, 0.02);
  found = chatter_of (sim);
  expect_in (found.text, 'A step of 0.00025 s brings that speed down to a tenth');
  shorter = qn.simulation (sim.model, 'step', 1e-3 * 0.1 ^ 0.6, 'until', 0.1, 'scheme', 'linear', 'v0', 0.02 * ones (5, 1), 'elements', ...
                           {sim.elements.law, 1});
  expect_in (chatter_of (shorter).text, 'below about 0.0002 m/s');
end

% What is slower than the chatter is damped as by a dashpot of 2 a m/h; a mass on a spring creeps home along the slower root.
function test_slow_motion_sees_the_dashpot_that_is_named ()
  for exponent = [0.3 0.5 0.8]
    sim = row_of (1, exponent, 1e-3, 'average', 2000, 0.02);
    res = qn.run (sim, 'progress', false, 'check', false);
    u = qn.displacement (res, 1);
    c = 2 * exponent * 2 / 1e-3 + 2 * sim.model.damping;
    rate = (c - sqrt (c ^ 2 - 4 * 2 * 2e4)) / 4;
    expect_equal (log (u(1201) / u(1601)) / 0.4 / rate, 1, 0.01);
    expect_in (chatter_of (sim).text, sprintf ('damped as by a dashpot of %.3g N s/m', 2 * exponent * 2 / 1e-3));
  end
end

% Friction of one size stops nothing that is slower than its chatter.
function test_friction_as_a_damper_lets_slow_motion_swing_on ()
  model = qn.modal (2e4, 2);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 6000, 'v0', 4e-4, 'elements', {qn.law('damper', 'damping', 4, 'exponent', 0), 1});
  res = qn.run (sim, 'progress', false, 'check', false);
  u = qn.displacement (res, 1);
  expect_equal (max (abs (u(5001:6001))) / max (abs (u(1001:2001))), 1, 0.01);
  expect_in (chatter_of (sim, res).text, 'What moves slower is not damped at all; qn.slider is the law that sticks');
  expect_equal (chatter_of (sim, res).level, 'warning');
end

% A note where the chatter is small beside the motion, with numbers of the result; a run says notes to nobody.
function test_the_level_is_that_of_the_motion ()
  sim = row_of (1, 0.5, 1e-3, 'average', 1000, 1);
  expect_equal (chatter_of (sim).level, 'note');
  res = qn.run (sim, 'progress', false);
  found = chatter_of (sim, res);
  expect_equal (found.level, 'note');
  expect_in (found.text, 'of the result ');
  sim = row_of (1, 0.5, 1e-3, 'average', 1000, 0.02);
  said = evalc ('res = qn.run (sim, ''progress'', false);');
  expect_in (said, 'it chatters below about 0.001 m/s');
  before = warning ('off', 'qn:check:damper_chatter');
  back = onCleanup (@() warning (before));
  said = evalc ('qn.run (sim, ''progress'', false);');
  if ~isempty (strfind (said, 'chatters')), error ('said though switched off: %s', said); end
  [u, h] = deal (res.q / sqrt (2), sim.step);
  share = mean (abs (diff (u)) / h < 1e-3);
  expect_in (chatter_of (sim, res).text, sprintf ('of the result %.0f %% is slower', 100 * share));
  % Faster than the structure moves at all: said before the run.
  sim = row_of (1, 0.5, 1.1, 'average', 1000, 1);
  expect_equal (chatter_of (sim).level, 'warning');
  expect_in (chatter_of (sim).text, 'and the structure moves there at 1 m/s at most');
  expect_equal (chatter_of (row_of (1, 0.5, 0.9, 'average', 1000, 1)).level, 'note');
  pressed = {sim.elements.law, 1; qn.gap('gap', -1e-3, 'stiffness', 1e5), 1};
  sim = qn.simulation (sim.model, 'step', 1e-3, 'steps', 1000, 'v0', 1, 'elements', pressed);
  expect_equal (chatter_of (sim).level, 'note');
end

function test_dampers_that_do_not_chatter_are_left_alone ()
  sim = @(c, a, varargin) qn.simulation (qn.modal (1e4, 1), 'step', 1e-3, 'steps', 10, 'v0', 1, 'elements', ...
                                         [{qn.law('damper', 'damping', c, 'exponent', a), 1}, varargin]);
  for one = {sim(3, 1), sim(3, 2), sim(-3, 0.5), sim(0, 0.5), sim(3, 0.9), sim(3, 0.5, -1)}, expect_equal (numel (chatter_of (one{1})), 0); end
  expect_equal (numel (chatter_of (sim (3, 0.5))), 1);
end
