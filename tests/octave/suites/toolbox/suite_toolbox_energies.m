% Works and energies: which have a potential, which depend on the path, and what the residual of the balance says.
function tests = suite_toolbox_energies ()
  use_toolbox ();
  tests = localfunctions ();
end

function model = two_masses ()
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'damping', 0.01);
end

function res = shaken (model, elements, h)
  res = qn.run (qn.simulation (model, 'step', h, 'until', 0.5, 'v0', [1; 0.3], 'elements', elements));
end

% Looking at one mass and pushing the other has no potential: 38 % of the energy was "left over", at every step.
function test_forces_that_act_elsewhere_than_they_look_are_not_stored ()
  model = two_masses ();
  elements = {qn.law('power', 'stiffness', 4e3, 'exponent', 1), qn.observe(model, 1), qn.observe(model, 2)};
  for h = [1e-3 2.5e-4]
    res = shaken (model, elements, h);
    e = qn.energies (res);
    expect_equal (max (abs (e.residual)) / e.kinetic(1) < 1e-12, true);
    expect_equal (e.stored, zeros (size (e.time)));
    f = res.force;
    y = qn.displacement (res, qn.observe (model, 2));
    expect_equal (e.exchanged(end), sum ((f(1:end - 1) + f(2:end)) / 2 .* diff (y)), 1e-12);
    if max (abs (e.exchanged)) < 0.05 * e.kinetic(1), error ('the element exchanges nothing'); end
  end
end

% The same force at twice the place's motion, and against it: a multiple has a potential, the multiple of the law's own.
function test_forces_along_what_is_observed_keep_their_potential ()
  model = two_masses ();
  row = qn.observe (model, 1);
  for share = [2 -0.25]
    res = shaken (model, {qn.cubic('stiffness', 1e7), row, share * row}, 1e-4);
    e = qn.energies (res);
    expect_equal (e.exchanged, zeros (size (e.time)));
    x = row * res.q;
    expect_equal (e.stored, share * 1e7 / 4 * (x .^ 4 - x(1) ^ 4), 1e-10);
    expect_equal (max (abs (e.residual)) / e.kinetic(1) < 1e-3, true);
  end
end

% Two rows of one law, one of them astray: each is counted for itself.
function test_rows_of_one_element_are_told_apart ()
  model = two_masses ();
  c = qn.observe (model, [1 2]);
  law = qn.law ('power', 'stiffness', 2e3, 'exponent', 1);
  both = shaken (model, {law, c, c([1 1], :)}, 2.5e-4);
  apart = shaken (model, {law, c(1, :), []; law, c(2, :), c(1, :)}, 2.5e-4);
  expect_equal (both.q, apart.q, 1e-12);
  e = qn.energies (both);
  f = qn.energies (apart);
  for name = {'stored', 'exchanged', 'dissipated', 'residual'}, expect_equal (e.(name{1}), f.(name{1}), 1e-12); end
  d = qn.dissipated (both);
  expect_equal (d.absorbed, d.stored + d.exchanged + d.dissipated, 1e-12);
  if max (abs (d.stored)) < 1e-3 || max (abs (d.exchanged)) < 1e-3, error ('one of the rows takes no part'); end
end

function test_friction_that_acts_elsewhere_is_exchanged_too ()
  model = two_masses ();
  e = qn.energies (shaken (model, {qn.slider('slip', 10, 'stiffness', 3e4), qn.observe(model, 1), qn.observe(model, 2)}, 1e-4));
  expect_equal ([any(e.stored), any(e.dissipated)], [false false]);
  expect_equal (max (abs (e.residual)) / e.kinetic(1) < 1e-12, true);
end

% Two forces of one law have one potential together, which rows at different multiples break: a ring without losses "dissipated" from -0.15 to
% 0.2 J of the 0.55 J at the start, with any step.
function test_rows_that_belong_together_are_stored_together_or_exchanged ()
  model = two_masses ();
  c = qn.observe (model, [1 2]);
  ring = qn.radial ('gap', 1e-3, 'stiffness', 1e5);
  film = qn.journal ('viscosity', 0.1, 'length', 0.03, 'radius', 0.05, 'clearance', 0.04, 'speed', 100, 'limit', 0.9);
  for law = {ring, film, qn.law('function', @(x, v, s, t) [3 4; 4 3] * x, 'rows', 2)}
    for b = {[c(1, :); 2 * c(2, :)], [c(1, :); qn.observe(model, [1 2], [1 1])], [0 * c(1, :); c(2, :)]}
      res = shaken (model, {law{1}, c, b{1}}, 2e-4);
      d = qn.dissipated (res);
      f = res.force;
      work = [0, cumsum(sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* diff (b{1} * res.q, 1, 2), 1))];
      if ~any (work), error ('%s does no work', d.law); end
      expect_equal (d.exchanged, work, 1e-12 * max (abs (work)));
      expect_equal ([any(d.stored), any(d.dissipated)], [false false]);
      e = qn.energies (res);
      expect_equal (max (abs (e.residual)) / max (e.kinetic) < 1e-11, true);
      expect_equal (e.exchanged, d.exchanged);
    end
  end
  still = [c(1, :); 0 * c(2, :)];
  for rows = {{c, 1}, {c, 0.5}, {still, 1}, {still, 0.5}}
    [row, share] = rows{1}{:};
    res = shaken (model, {ring, row, share * row}, 2e-4);
    d = qn.dissipated (res);
    x = row * res.q;
    depth = max (0, sqrt (sum (x .^ 2, 1)) - 1e-3);
    if ~any (depth), error ('the ring is not met'); end
    expect_equal (d.stored, share * 1e5 / 2 * depth .^ 2, 1e-9);
    expect_equal (d.exchanged, zeros (size (d.stored)));
  end
end

% One thing remains in the residual with average acceleration: memoryless forces from the predictor against their potential.
function test_the_residual_is_what_forces_miss_of_their_potential ()
  model = two_masses ();
  stop = {qn.gap('gap', 2e-3, 'stiffness', 4e4), qn.observe(model, 1)};
  for h = [4e-4 1e-4]
    res = shaken (model, stop, h);
    e = qn.energies (res);
    d = qn.dissipated (res);
    expect_equal (e.residual, -d.dissipated, 1e-12);
    left(1 + (h == 1e-4)) = max (abs (e.residual));
  end
  if left(2) > left(1) / 3, error ('%g with a step, %g with a quarter', left); end
  printed = evalc ('qn.dissipated (res)');
  if isempty (strfind (printed, 'exchanged [J]')), error ('%s', printed); end
end

% A rotor on bearings with cross terms: the gyroscopic matrix does no work, the skew stiffness drives the whirl.
function test_gyroscopic_and_circulatory_works_are_named ()
  k = 1e4 * [2 0.3; 0.3 1];
  skew = 300 * [0 1; -1 0];
  dashpot = [3 1; 1 2];
  model = qn.modal (k, eye (2), 'C', dashpot, 'G', [0 1; -1 0], 'speed', 40, 'K', skew + 1e3 * [1 -1; -1 1]);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'until', 1, 'u0', [1; 0]));
  e = qn.energies (res);
  scale = e.strain(1);
  expect_equal (max (abs (e.residual)) / scale < 1e-11, true);
  expect_equal (max (abs (e.gyroscopic)) / scale < 1e-11, true);
  u = qn.displacement (res, qn.observe (model, [1 2]));
  whole = k + 1e3 * [1 -1; -1 1];
  expect_equal (e.strain, sum (u .* (whole * u), 1) / 2, 1e-9);
  between = @(f) sum (sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* diff (u, 1, 2)));
  expect_equal (e.circulatory(end), between (skew * u), 1e-9);
  expect_equal (e.damped(end), between (dashpot * qn.velocity (res, qn.observe (model, [1 2]))), 1e-9);
  if abs (e.circulatory(end)) < 0.01 * scale, error ('the cross terms do no work'); end
end

% Long results are gone through in blocks, and matrices step in many places at once: against the formulas, a step at a time and for the whole.
function test_velocities_and_energies_of_many_steps_are_those_of_the_formulas ()
  rand ('twister', 61);
  randn ('twister', 61);
  n = 130;
  K = 1e4 * (2 * eye (n) - diag (ones (n - 1, 1), 1) - diag (ones (n - 1, 1), -1));
  g = randn (n);
  for more = {{'damping', 0.02}, {'C', eye(n) + 0.1 * (g - g.'), 'K', 10 * (g - g.')}}
    model = qn.modal (K, eye (n), more{1}{:});
    [extents, steps] = deal (numel (model.w), 3300);
    assert (size (qn.impl.blocks ([extents, steps + 1]), 2) == 3);
    sim = qn.simulation (model, 'step', 2e-3, 'steps', steps, 'v0', randn (n, 1), 'load', {qn.load_at(model, 7), @(t) 30 * sin(40 * t)}, ...
                         'elements', {qn.cubic('stiffness', 1e6), qn.observe(model, 3)});
    res = qn.run (sim, 'check', false, 'progress', false);
    [c, k] = deal (qn.impl.matrix (model.damping), qn.impl.matrix (model.stiffness));
    p = sim.shapes * sim.loads;
    forces = p - k * res.q - sim.elements.command.' * res.force;
    implicit = inv (eye (n) + sim.step / 2 * c);
    [v, a] = deal (zeros (size (res.q)));
    [v(:, 1), a(:, 1)] = deal (sim.start.v, sim.start.a);
    for j = 2:steps + 1
      v(:, j) = implicit * (v(:, j - 1) + sim.step / 2 * (a(:, j - 1) + forces(:, j)));
      a(:, j) = forces(:, j) - c * v(:, j);
    end
    rows = qn.observe (model, [2 50 130]);
    [got_v, got_a] = qn.velocity (res, rows);
    expect_equal (got_v, rows * v, 1e-11 * max (max (abs (rows * v))));
    expect_equal (got_a, rows * a, 1e-11 * max (max (abs (rows * a))));
    e = qn.energies (res);
    between = @(f) [0, cumsum(sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* diff (res.q, 1, 2), 1))];
    top = max (e.kinetic);
    expect_equal (e.kinetic, sum (v .^ 2, 1) / 2, 1e-11 * top);
    expect_equal (e.strain, sum (res.q .* (k * res.q), 1) / 2, 1e-11 * top);
    expect_equal (e.damped, between ((c + c.') / 2 * v), 1e-11 * top);
    expect_equal (e.gyroscopic, between ((c - c.') / 2 * v), 1e-11 * top);
    expect_equal (e.circulatory, between ((k - k.') / 2 * res.q), 1e-11 * top);
    expect_equal (e.work, between (p), 1e-11 * top);
  end
end

function test_results_of_other_classes_give_the_same ()
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'damping', 0.02);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 50, 'load', {qn.load_at(model, 2), @(t) 50 * sin(30 * t)}, ...
                               'elements', {qn.cubic('stiffness', 1e6), qn.observe(model, 1)}));
  wanted = qn.energies (res);
  res.q = double (single (res.q));
  res.force = double (single (res.force));
  rounded = qn.energies (res);
  expect_equal (rounded.kinetic, wanted.kinetic, 1e-5 * max (wanted.kinetic));
  [res.q, res.force] = deal (single (res.q), single (res.force));
  res.sim.model.damping = sparse (res.sim.model.damping);
  res.sim.loads = sparse (res.sim.loads);
  other = qn.energies (res);
  for name = {'kinetic', 'strain', 'damped', 'work'}, expect_equal (other.(name{1}), rounded.(name{1})); end
  expect_equal (qn.velocity (res, 2), qn.velocity (setfield (res, 'q', double (res.q)), 2));
end

function test_linear_steps_in_blocks_are_those_of_one_step_after_another ()
  randn ('twister', 63);
  for steps = [1 2 3 200 901]
    n = 1 + mod (steps, 4);
    out = 1 + mod (steps, 3);
    a = randn (n);
    a = a / max (abs (eig (a))) * (0.9 + 0.02 * n);
    [b, c, d, w, z] = deal (randn (n, 5), randn (out, n), randn (out, 5), randn (5, steps), randn (n, 1));
    s = qn.impl.block_form (a, b, c, d, steps, [2 3]);
    start = z;
    y = qn.impl.in_blocks (s, {w(1:2, :), w(3:5, :)}, z);
    whole = s.long * floor (steps / s.long);
    wanted = zeros (out, steps);
    for k = 1:steps
      wanted(:, k) = c * z + d * w(:, k);
      z = a * z + b * w(:, k);
      if k == whole, [y_whole, after] = qn.impl.in_blocks (s, {w(1:2, 1:k), w(3:5, 1:k)}, start); wanted_after = z; end
    end
    expect_equal (y, wanted, 1e-12 * max (abs (wanted(:))));
    expect_equal (y_whole, y(:, 1:whole), 1e-12 * max (abs (wanted(:))));
    expect_equal (after, wanted_after, 1e-12 * max (abs (wanted(:))));
  end
end

% A long result's velocities at few places are computed without those of all modes, by sums in another order.
function test_velocities_of_a_few_places_are_those_among_many ()
  n = 20;
  K = 1e4 * (2 * eye (n) - diag (ones (n - 1, 1), 1) - diag (ones (n - 1, 1), -1));
  g = zeros (n);
  g(2, 5) = 8;
  for more = {{'damping', 0.02}, {'C', 2 * eye(n) + g - g.'}}
    model = qn.modal (K, eye (n), more{1}{:});
    list = {qn.cubic('stiffness', 1e6), qn.observe(model, 3); qn.slider('slip', 5, 'stiffness', 1e4), qn.observe(model, 9)};
    for drive = {{'load', {qn.load_at(model, 7), @(t) 50 * sin(30 * t)}}, {}}
      sim = qn.simulation (model, 'step', 1e-3, 'steps', 51000, 'v0', ones (n, 1), 'elements', list, drive{1}{:});
      res = qn.run (sim, 'progress', false, 'check', false);
      [v, a] = qn.velocity (res, (1:n - 1).');
      [few, fast] = qn.velocity (res, [4; 7]);
      expect_equal (few, v([4 7], :), 1e-12 * max (abs (v(:))));
      expect_equal (fast, a([4 7], :), 1e-12 * max (abs (a(:))));
      expect_equal (qn.velocity (res, 4), few(1, :), 1e-13 * max (abs (v(:))));
      expect_equal (few(:, end), qn.observe (model, [4 7]) * res.final.v(1:n), 1e-12 * max (abs (v(:))));
    end
  end
end

function test_a_recurrence_in_blocks_is_that_of_one_step_after_another ()
  randn ('twister', 62);
  for steps = [0 1 2 3 15 16 17 300 1025]
    n = 1 + mod (steps, 4);
    a = randn (n);
    a = a / max (abs (eig (a))) * (0.9 + 0.01 * n);
    [p, z] = deal (randn (n, steps), randn (n, 1));
    wanted = [z, zeros(n, steps)];
    for k = 1:steps, wanted(:, k + 1) = a * wanted(:, k) + p(:, k); end
    expect_equal (qn.impl.recurrence (a, p, z, n), wanted, 1e-11 * max (abs (wanted(:))));
    expect_equal (qn.impl.recurrence (a, p, z, 1), wanted(1, :), 1e-11 * max (abs (wanted(:))));
  end
  % What would grow beyond all numbers, and does not move.
  still = qn.impl.recurrence (diag ([0.5, 1e30]), [ones(1, 1000); zeros(1, 1000)], [1; 0], 2);
  expect_equal (still(:, end), [2; 0], 1e-12);
end
