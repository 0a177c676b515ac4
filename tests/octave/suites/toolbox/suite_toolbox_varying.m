% Stiffness and damping that change with time by a table, in models of modes.
function tests = suite_toolbox_varying ()
  use_toolbox ();
  tests = localfunctions ();
end

function [m, k, c] = chain ()
  m = diag ([2 1 3]);
  k = 1e4 * [3 -1 0; -1 2 -1; 0 -1 2];
  c = 0.5 * m + 1e-4 * k;
end

function list = changes ()
  list = {'K', 1e4 * [1 -1 0; -1 1 0; 0 0 0], [0 0.1 0.1 0.25 0.5; 0 0 1.5 -0.5 0.5]
          'C', 20 * [0 0 0; 0 1 1; 0 -1 1], [-1 0.2 1; 0 2 0.5]};
end

function sim = set_up (varargin)
  [m, k, c] = chain ();
  model = qn.modal (k, m, 'C', c);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 500, 'v0', [1; 0; 0.5], 'load', {qn.load_at(model, 3), @(t) 50 * sin(80 * t)}, varargin{:});
end

function f = factor_of (t, table)
  if any (table(1, 2:end) == t & table(1, 1:end - 1) == t)
    f = mean (table(2, table(1, :) == t));
    return
  end
  j = min (sum (table(1, :) <= t), size (table, 2) - 1);
  f = table(2, j) + (table(2, j + 1) - table(2, j)) * (t - table(1, j)) / (table(1, j + 1) - table(1, j));
end

function e = relative (x, wanted)
  e = max (abs (x(:) - wanted(:))) / max (abs (wanted(:)));
end

function test_a_model_of_uncoupled_modes_has_the_matrices_of_every_step ()
  [m, k, c] = chain ();
  list = changes ();
  sim = set_up ('varying', list);
  expect_equal (size (sim.model.stiffness), [3 1]);
  expect_equal (size (sim.model.damping), [3 1]);
  res = qn.run (sim, 'progress', false);
  h = 1e-3;
  [u, v, x] = deal (zeros (3, 1), [1; 0; 0.5], zeros (3, 501));
  a = -(m \ ((c + factor_of (0, list{2, 3}) * list{2, 2}) * v));
  for j = 2:501
    t = sim.time(j);
    kt = k + factor_of (t, list{1, 3}) * list{1, 2};
    ct = c + factor_of (t, list{2, 3}) * list{2, 2};
    u = u + h * v + h ^ 2 / 4 * a;
    v = v + h / 2 * a;
    a = (m + h / 2 * ct + h ^ 2 / 4 * kt) \ ([0; 0; 50 * sin(80 * t)] - ct * v - kt * u);
    u = u + h ^ 2 / 4 * a;
    v = v + h / 2 * a;
    x(:, j) = u;
  end
  e = relative (sim.model.shapes * res.q, x);
  printf ('off by %.2g\n', e);
  assert (e < 1e-5 && relative (sim.model.shapes * getfield (qn.run (set_up (), 'progress', false), 'q'), x) > 0.1);
  pieces = qn.run (sim, 'progress', false, 'piece', 77);
  expect_equal (pieces.q, res.q);
  energy = qn.energies (res);
  assert (max (abs (energy.residual)) < 1e-6 * max (energy.kinetic) && max (abs (energy.circulatory)) > 1e-3 * max (energy.kinetic));
  v = qn.velocity (res, eye (3));
  assert (relative (v(:, end), res.final.v) < 1e-6);
  first = qn.run (set_up ('varying', list), 'progress', false, 'piece', 200, 'stop', @(r) r.time_end > 0.15);
  expect_equal (getfield (qn.resume (first, 'progress', false), 'q'), res.q);
  assert (isinf (qn.impl.energy_limit (sim, sim.start)));
end

% Mathieu: k (1 + e cos 2 w t) grows by e to the power of e w / 4 a second, for small e.
function test_a_stiffness_that_swings_at_twice_the_frequency_drives ()
  w = 10;
  model = qn.modal (w ^ 2, 1);
  t = linspace (0, 20, 4001);
  sim = qn.simulation (model, 'step', 5e-3, 'until', 20, 'q0', 1e-3, 'dq0', -1e-2, 'varying', {'K', w ^ 2, [t; 0.08 * cos(2 * w * t)]});
  res = qn.run (sim, 'progress', false, 'check', false);
  period = 2 * pi / w;
  size_of = @(turns) max (abs (res.q(res.time >= turns * period & res.time < (turns + 2) * period)));
  rate = log (size_of (29) / size_of (15)) / (14 * period);
  assert (abs (rate / (0.08 * w / 4) - 1) < 0.02);
end

function test_a_stiffness_that_changes_goes_with_a_rotor_that_runs_up ()
  g = [0 1; -1 0];
  model = qn.modal (diag ([1e4 2e4]), eye (2), 'G', g, 'C', eye (2), 'speed', 0);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 300, 'v0', [1; 0], 'speed', [0 1; 0 300], ...
                       'varying', {'K', [1 0.2; 0.2 0] * 1e4, [0 0.15 0.5; 1 0 0.7]});
  res = qn.run (sim, 'progress', false, 'check', false);
  s = struct ('M', eye (2), 'C', eye (2), 'K', diag ([1e4 2e4]), 'G', g);
  changing = zeros (2, 2, 301);
  for j = 1:301, changing(:, :, j) = factor_of (sim.time(j), [0 0.15 0.5; 1 0 0.7]) * [1 0.2; 0.2 0] * 1e4; end
  [u, v] = deal ([0; 0], [1; 0]);
  a = -(s.C * v);
  for j = 2:301
    [k, c] = deal (s.K + changing(:, :, j), s.C + 300 * sim.time(j) * g);
    u = u + 1e-3 * v + 2.5e-7 * a;
    v = v + 5e-4 * a;
    a = (eye (2) + 5e-4 * c + 2.5e-7 * k) \ (-c * v - k * u);
    u = u + 2.5e-7 * a;
    v = v + 5e-4 * a;
  end
  assert (norm (model.shapes * res.q(:, end) - u) < 1e-5 * max (abs (res.q(:))));
end

function test_the_check_looks_at_matrices_as_they_become ()
  sim = @(f) set_up ('varying', {'K', -4e4 * eye(3), [0 0.5; 0 f]});
  found = qn.check (sim (1));
  k = find (strcmp ({found.code}, 'model_grows'));
  assert (numel (k) == 1 && ~isempty (regexp (found(k).text, '^at [\d.]+ s the model itself is unstable', 'once')));
  found = qn.check (sim (0.1));
  assert (~any (strcmp ({found.code}, 'model_grows')));
  stiff = set_up ('varying', {'K', 1e6 * eye(3), [0 0.5; 0 1]});
  found = qn.check (stiff);
  assert (any (strcmp ({found.code}, 'step_coarse')) && ~any (strcmp ({found.code}, 'step_unstable')));
end

function test_what_cannot_vary_is_refused_in_words ()
  trials = {{'M', eye(3), [0 1; 0 1]}, '~"varying\{1, 1\}" must be ''K'' or ''C'': stiffness and damping change with time, a mass stays'
            {3, eye(3), [0 1; 0 1]}, '~"varying\{1, 1\}" must be ''K'' or ''C'''
            {'K', eye(2), [0 1; 0 1]}, '~"varying\{1, 2\}" must be 3 x 3 numbers'
            {'K', eye(3), [0 0.3; 0 1]}, 'qn.simulation: "varying{1, 3}" covers 0 to 0.3 s of a run from 0 to 0.5 s; give it for all of the run'
            {'K', eye(3), [0 0.3 0.2 1; 0 1 2 3]}, 'qn.simulation: the times of "varying{1, 3}" must ascend: value 2 is 0.3, value 3 is 0.2'
            {'K', eye(3), [0 0.3 0.3 0.3 1; 0 1 2 3 4]}, 'qn.simulation: "varying{1, 3}" has the time 0.3 three times; two are a jump'
            {'K', eye(3)}, '~"varying" must be a cell {''K'' or ''C'', matrix, \[times; factors\]; ...}, got \[1 2\] of class cell'
            eye(3), '~"varying" must be a cell .* got \[3 3\] of class double'};
  for k = 1:size (trials, 1)
    expect_error (@() set_up ('varying', trials{k, 1}), 'qn:input', trials{k, 2});
  end
end
