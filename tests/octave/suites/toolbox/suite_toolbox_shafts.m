% Laws of shafts in two directions, in the toolbox: rings and oil films in runs, at rest, continued, and in the books of energy.
function tests = suite_toolbox_shafts ()
  use_toolbox ();
  tests = localfunctions ();
end

function film = oil (varargin)
  o = struct ('speed', 200, 'limit', 0.99, 'clearance', 1e-4);
  for k = 1:2:numel (varargin), o.(varargin{k}) = varargin{k + 1}; end
  film = qn.journal ('viscosity', 0.02, 'length', 0.03, 'diameter', 0.1, 'clearance', o.clearance, 'speed', o.speed, 'limit', o.limit);
end

% A shaft of three nodes, x and y side by side: disk in the middle, a film at the first node, a stiff support at the last.
function [model, rows] = rotor ()
  k = 2e7 * [1 -2 1; -2 4 -2; 1 -2 1] + diag ([0 0 1e8]);
  model = qn.modal (blkdiag (k, k), diag ([4 20 4 4 20 4]), 'damping', 0.005);
  rows = qn.observe (model, full (sparse ([1 2], [1 4], [1 1], 2, 6)));
end

function test_recipes_say_what_is_wrong ()
  film = @(varargin) qn.journal ('viscosity', 0.02, 'length', 0.03, 'clearance', 1e-4, 'speed', 10, varargin{:});
  expect_error (@() film (), 'qn:input', 'qn.journal: give "radius" or "diameter", one of them');
  expect_error (@() film ('radius', 1, 'diameter', 2), 'qn:input', 'qn.journal: give "radius" or "diameter", one of them');
  expect_error (@() film ('radius', 1, 'limit', 1), 'qn:input', 'qn.journal: "limit" must be below 1, got 1');
  expect_error (@() film ('radius', 0), 'qn:input', 'qn.journal: "radius" must be above 0, got 0');
  expect_error (@() film ('diameter', -1), 'qn:input', 'qn.journal: "diameter" must be above 0, got -1');
  expect_error (@() qn.radial ('gap', -1, 'stiffness', 1), 'qn:input', 'qn.radial: "gap" must be at least 0, got -1');
  expect_error (@() qn.radial ('gap', 1, 'stiffness', 1, 'exponent', 0.5), 'qn:input', 'qn.radial: "exponent" must be at least 1, got 0.5');
  args = {'viscosity', 1, 'length', 1, 'radius', 1, 'clearance', 1, 'speed', 1, 'limit'};
  expect_error (@() qn.law ('journal', args{:}, 1.5), 'qn:input', 'qn.law, ''journal'': "limit" must be below 1, got 1.5');
  expect_error (@() qn.law ('radial', 'gap', -1, 'stiffness', 1), 'qn:input', 'qn.law, ''radial'': "gap" must be at least 0, got -1');
end

function test_laws_of_two_directions_want_two_rows ()
  expect_error (@() qn.force (oil (), 1e-5, 0), 'qn:input', ...
                'qn.force: the law "journal" observes 2 displacements: "X" must have 2 rows, got 1');
  expect_error (@() qn.force (oil (), [1e-5; 0]), 'qn:input', '~depends on the velocity');
  [model, rows] = rotor ();
  expect_error (@() qn.simulation (model, 'step', 1e-5, 'steps', 1, 'elements', {oil(), rows(1, :)}), 'qn:input', ...
                'qn.simulation: the law "journal" of element 1 observes 2 rows, got 1');
  expect_error (@() qn.harmonic (model, zeros (6, 1), {oil(), rows}, [1 2]), 'qn:input', '~element 1 must have a law of the displacement alone');
end

function test_forces_of_many_columns_and_of_a_bank_are_those_of_each ()
  ring = qn.radial ('gap', 5e-5, 'stiffness', 1e7, 'friction', 0.1, 'radius', 0.05, 'speed', 200);
  rand ('twister', 3);
  x = 1e-4 * (rand (2, 5) - 0.5);
  v = 0.01 * (rand (2, 5) - 0.5);
  both = qn.force ([oil(), ring], x, v);
  for k = 1:5
    expect_equal (both(:, k), qn.force (oil (), x(:, k), v(:, k)) + qn.force (ring, x(:, k), v(:, k)));
  end
end

function test_coefficients_say_what_they_cannot_give ()
  who = 'qn.journal_coefficients: ';
  expect_error (@() qn.journal_coefficients (oil ()), 'qn:input', [who 'a law and a load expected; see help qn.journal_coefficients']);
  expect_error (@() qn.journal_coefficients (qn.cubic ('stiffness', 1), [1 0]), 'qn:input', ...
                [who 'a law from qn.journal expected, got 1 of kind "power"']);
  expect_error (@() qn.journal_coefficients (oil ('speed', 0), [1 0]), 'qn:input', ...
                [who 'the shaft does not turn: a squeeze film carries no steady load']);
  expect_error (@() qn.journal_coefficients (oil (), [0 0]), 'qn:input', '~"LOAD" is zero');
  expect_error (@() qn.journal_coefficients (oil ('limit', 0.5), [1e4 0]), 'qn:input', ...
                '~the film carries 405.2 N at its greatest eccentricity of 0.5, and the load is 1e\+04 N');
end

function test_equilibrium_of_a_journal_holds_the_load_whatever_its_direction_and_sense ()
  for speed = [200 -200]
    for load = [0.01 -300 2e4; 0 400 1e4]
      film = oil ('speed', speed);
      b = qn.journal_coefficients (film, load);
      expect_equal (qn.force (film, b.position, [0; 0]), load, 1e-9 * norm (load));
      ahead = sign (speed) * (atan2 (b.position(2), b.position(1)) - atan2 (load(2), load(1)));
      expect_equal (mod (ahead, 2 * pi), b.attitude, 1e-9);
    end
  end
end

function test_a_journal_away_from_the_middle_stands_as_far_from_its_own ()
  moved = qn.journal ('viscosity', 0.02, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', 200, 'centre', [3e-4 -2e-4]);
  a = qn.journal_coefficients (oil (), [100 200]);
  b = qn.journal_coefficients (moved, [100 200]);
  expect_equal (b.position - [3e-4; -2e-4], a.position, 1e-15);
  expect_equal (b.stiffness, a.stiffness, 1e-6 * norm (a.stiffness));
end

function test_static_equilibrium_of_a_rotor_on_its_film ()
  [model, rows] = rotor ();
  weight = qn.load_at (model, 5) * -200;
  [q, info] = qn.static (model, weight, {oil(), rows});
  expect_equal (info.residual < 1e-9, true);
  % The film carries half of it, as the support does: the beam has its load in the middle.
  expect_equal (info.forces, [0; -100], 1e-6);
  b = qn.journal_coefficients (oil (), [0 -100]);
  expect_equal (rows * q, b.position, 1e-9 * 1e-4 + 1e-6 * norm (b.position));
end

function sim = rubbing (varargin)
  model = qn.modal (4e6 * eye (2), 10 * eye (2), 'damping', 0.02);
  ring = qn.radial ('gap', 1e-4, 'stiffness', 2e7, 'damping', 0.2, 'friction', 0.1, 'radius', 0.05, 'speed', 500);
  w = 500;
  push = 10 * 2e-4 * w ^ 2;
  sim = qn.simulation (model, 'step', 1e-5, 'elements', {ring, qn.observe(model, eye (2))}, varargin{:}, ...
                       'load', {qn.load_at(model, 1), @(t) push * cos(w * t); qn.load_at(model, 2), @(t) push * sin(w * t)});
end

function test_energy_of_a_rub_adds_up ()
  e = qn.energies (qn.run (rubbing ('until', 0.1), 'progress', false));
  scale = max (e.work);
  expect_equal (max (abs (e.residual)) < 1e-9 * scale, true);
  expect_equal (abs (e.dissipated(end)) > 0.1 * scale, true);
  % What the ring stores is given back: none of it is there when the shaft is free.
  expect_equal (min (e.stored), 0, 1e-15);
  expect_equal (max (e.stored) > 0, true);
end

% Friction against a shaft that turns drives its whirl: the ring puts energy in.
function test_a_turning_shaft_feeds_a_whirl_against_its_turn ()
  model = qn.modal (zeros (2), 2 * eye (2));
  ring = qn.radial ('gap', 1e-3, 'stiffness', 1e5, 'friction', 0.01, 'radius', 0.02, 'speed', 5000);
  w = 100;
  r = 1e5 * 1e-3 / (1e5 - 2 * w ^ 2);
  sim = qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'u0', [r; 0], 'v0', [0; -r * w], 'elements', {ring, qn.observe(model, eye (2))});
  e = qn.energies (qn.run (sim, 'progress', false));
  expect_equal (e.dissipated(end) < -1e-3, true);
  expect_equal (e.kinetic(end) > e.kinetic(1), true);
  expect_equal (max (abs (e.residual)) < 1e-9 * max (e.kinetic), true);
end

function test_energy_of_a_film_adds_up ()
  [model, rows] = rotor ();
  weight = {qn.load_at(model, 5), @(t) -200 * (t >= 0)};
  e = qn.energies (qn.run (qn.simulation (model, 'step', 2e-6, 'until', 0.05, 'load', weight, 'elements', {oil(), rows}), 'progress', false));
  expect_equal (max (abs (e.residual)) < 1e-8 * max (abs (e.work)), true);
  expect_equal (any (abs (e.dissipated) > 1e-3 * max (abs (e.work))), true);
  expect_equal (e.stored, zeros (size (e.time)));
end

function test_a_run_in_pieces_saved_and_continued_has_the_bits_of_one ()
  folder = tempname ();
  mkdir (folder);
  away = onCleanup (@() rmdir (folder, 's'));
  [model, rows] = rotor ();
  weight = {qn.load_at(model, 5), @(t) -200 * (1 + sin (300 * t))};
  sim = qn.simulation (model, 'step', 2e-6, 'steps', 4000, 'load', weight, 'elements', {oil(), rows});
  whole = qn.run (sim, 'progress', false);
  file = fullfile (folder, 'part.mat');
  qn.run (sim, 'progress', false, 'piece', 700, 'save', file, 'interval', 0, 'stop', @(r) r.final.column > 2000);
  resumed = qn.resume (file, 'progress', false);
  expect_equal (resumed.q, whole.q);
  expect_equal (resumed.force, whole.force);
  expect_equal (resumed.final.values{3, 2}.opt(10), whole.final.values{3, 2}.opt(10));
  half = qn.run (qn.simulation (model, 'step', 2e-6, 'steps', 1500, 'load', weight, 'elements', {oil(), rows}), 'progress', false);
  rest = qn.run (qn.simulation (model, 'step', 2e-6, 'steps', 2500, 'load', weight, 'elements', {oil(), rows}, 'start', half), ...
                 'progress', false);
  expect_equal (rest.q, whole.q(:, 1501:end));
end

% The peak lies between the steps that are kept; the module has seen it.
function test_a_film_that_was_left_between_two_kept_steps_is_said ()
  model = qn.modal (1e7 * eye (2), 10 * eye (2));
  sim = qn.simulation (model, 'step', 1e-5, 'steps', 5000, 'times', [0 0.05], 'v0', [0.8; 0], ...
                       'elements', {oil('limit', 0.5, 'speed', 0), qn.observe(model, eye (2))});
  res = qn.run (sim, 'progress', false, 'check', false);
  kept = max (sqrt (sum ((model.shapes * res.q) .^ 2, 1))) / 1e-4;
  most = res.final.values{3, 2}.opt(10);
  expect_equal (kept < 0.1 && most > 0.5, true);
  found = qn.check (sim, res);
  expect_in (found(strcmp ({found.code}, 'film_left')).text, sprintf ('eccentricity of %.3g, beyond the 0.5', most));
end

function test_a_step_too_long_for_a_film_is_said_before_the_run ()
  model = qn.modal (zeros (2), 0.5 * eye (2));
  make = @(h) qn.simulation (model, 'step', h, 'steps', 2000, 'u0', [2e-5; 0], 'elements', {oil(), qn.observe(model, eye (2))});
  found = qn.check (make (3e-5));
  expect_equal (any (strcmp ({found.code}, 'damper_unstable') & strcmp ({found.level}, 'error')), true);
  expect_equal (any (strcmp ({found.code}, 'growth')), true);
  found = qn.check (make (1e-6));
  expect_equal (any (ismember ({found.code}, {'damper_unstable', 'growth'})), false);
end

function test_a_ring_that_is_out_of_reach_is_said ()
  model = qn.modal (4e4 * eye (2), eye (2), 'damping', 0.02);
  far = qn.simulation (model, 'step', 1e-4, 'until', 0.1, 'v0', [1; 0], 'elements', {qn.radial('gap', 1, 'stiffness', 1e5), qn.observe(model, eye (2))});
  found = qn.check (far);
  expect_equal (any (strcmp ({found.code}, 'gap_far')), true);
  res = qn.run (far, 'progress', false, 'check', false);
  found = qn.check (far, res);
  expect_equal (any (strcmp ({found.code}, 'never_closes')), true);
end

function test_films_are_swept_like_other_laws ()
  cases = qn.grid ('speed', [100 200 400]);
  stands = @(p) getfield (qn.journal_coefficients (qn.journal ('viscosity', 0.02, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, ...
                                                               'speed', p.speed), [0 -300]), 'eccentricity');
  e = qn.sweep (stands, cases, 'engine', 'serial', 'progress', false);
  for k = 1:3, expect_equal (e{k}, stands (cases(k))); end
  expect_equal (all (diff ([e{:}]) < 0), true);
end

% Nothing but the ring gives the motion its end: an energy beyond what it began with would be said.
function test_a_ring_that_takes_nothing_keeps_the_energy ()
  model = qn.modal (zeros (2), eye (2));
  ring = qn.radial ('gap', 1e-3, 'stiffness', 1e6);
  sim = qn.simulation (model, 'step', 1e-5, 'until', 1, 'v0', [0.3; 0.1], 'u0', [2e-4; -1e-4], 'elements', {ring, qn.observe(model, eye (2))});
  expect_equal (isfinite (qn.impl.energy_limit (sim, sim.start)), true);
  e = qn.energies (qn.run (sim, 'progress', false));
  expect_equal (max (abs (e.kinetic + e.stored - e.kinetic(1))) < 1e-3 * e.kinetic(1), true);
  rubs = sim;
  rubs.elements.law = qn.radial ('gap', 1e-3, 'stiffness', 1e6, 'friction', 0.1, 'radius', 0.02, 'speed', 10);
  expect_equal (qn.impl.energy_limit (rubs, sim.start), Inf);
end

function test_friction_without_the_speed_of_the_surface_is_refused ()
  ring = @(varargin) qn.radial ('gap', 1e-4, 'stiffness', 1e6, varargin{:});
  expect_error (@() ring ('friction', 0.1), 'qn:input', '~"friction" of 0.1 needs "radius" and "speed"');
  expect_error (@() ring ('friction', 0.1, 'radius', 0.02), 'qn:input', '~of a shaft that does not turn give "speed", 0');
  expect_error (@() ring ('friction', 0.1, 'speed', 30), 'qn:input', '~at the "speed" of 30 rad/s needs a "radius" above 0');
  expect_error (@() ring ('friction', 0.1, 'speed', 30, 'radius', 0), 'qn:input', '~needs a "radius" above 0');
  still = ring ('friction', 0.1, 'speed', 0);
  expect_equal (qn.force (still, [2e-4; 0], [0; 1]), [100; 10 / sqrt(1 + 1e-4)], 1e-9);
  expect_equal (qn.force (ring (), [2e-4; 0], [0; 1]), [100; 0], 1e-12);
end

function test_a_clearance_that_no_bearing_has_is_said ()
  film = @(c) qn.journal ('viscosity', 0.02, 'length', 0.03, 'radius', 0.05, 'clearance', c, 'speed', 10);
  expect_error (@() film (0.05), 'qn:input', '~"clearance" of 0.05 m is not below the radius of the journal, 0.05 m');
  said = @(film, c) regexprep (evalc ('film (c);'), '\s+', ' ');
  expect_equal ([said(film, 4.9e-4), said(film, 5.1e-6)], '');
  expect_in (said (film, 5.1e-4), '"clearance" is 0.01 of the radius of the journal, where bearings have 1e-4 to 1e-2');
  expect_in (said (film, 0.08e-6), '"clearance" is 1.6e-06 of the radius');
end
