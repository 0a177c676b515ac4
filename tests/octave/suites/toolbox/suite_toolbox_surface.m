% A measured force surface through the toolbox: what it is, how it runs, and what is said of it.
function tests = suite_toolbox_surface ()
  use_toolbox ();
  tests = localfunctions ();
end

% The formula F sampled at the knots X and V.
function law = sampled (f, x, v)
  [u, w] = ndgrid (x, v);
  law = qn.law ('surface', 'displacement', x, 'velocity', v, 'force', f (u, w));
end

function sim = swing (elements, varargin)
  model = qn.modal (1e4, 1);
  rows = repmat ({qn.observe(model, 1)}, numel (elements), 1);
  o = struct ('step', 1e-4, 'until', 0.5, 'v0', 1, 'elements', {[elements(:), rows]});
  for k = 1:2:numel (varargin), o.(varargin{k}) = varargin{k + 1}; end
  args = [fieldnames(o), struct2cell(o)].';
  sim = qn.simulation (model, args{:});
end

function test_a_surface_of_a_spring_and_a_dashpot_runs_as_these_two_do_within_its_grid_and_beyond ()
  whole = qn.run (swing ({qn.law('power', 'stiffness', 3000, 'exponent', 1), qn.damper('damping', 4)}), 'progress', false);
  for reach = [0.02 0.001]
    law = sampled (@(x, v) 3000 * x + 4 * v, reach * [-1 -0.3 0.2 1], 100 * reach * [-1 -0.5 0.7]);
    res = qn.run (swing ({law}), 'progress', false, 'check', false);
    expect_equal (res.q, whole.q, 1e-12);
    expect_equal (res.force, sum (whole.force, 1), 1e-9);
  end
end

function test_what_is_bilinear_between_its_knots_is_met_everywhere ()
  x = [-0.03 -0.004 0.001 0.02 0.5];
  v = [-2 0.3 0.2 -0.1 5];
  expect_equal (qn.force (sampled (@(x, v) 7 * x .* abs (v), [-0.01 0.02], [-1 0 1]), x, v), 7 * x .* abs (v), 1e-13);
  expect_equal (qn.force (sampled (@(x, v) (2 + x) .* max (v, 4 * v), [-1 1], [-3 0 2]), x, v), (2 + x) .* max (v, 4 * v), 1e-13);
end

function test_rows_are_displacements_and_columns_velocities ()
  law = qn.law ('surface', 'displacement', [0 1 3], 'velocity', [-2; 2], 'force', [0 4; 10 18; 30 22]);
  expect_equal (law.parameters.displacement, [0; 1; 3]);
  expect_equal (law.parameters.velocity, [-2; 2]);
  expect_equal (qn.force (law, [0.5 2 1], [-2 2 1]), [5 20 16]);
  expect_equal (qn.describe (law), ['surface of 3 displacements from 0 to 3 m and 2 velocities from -2 to 2 m/s, forces from 0 to 30 N; its ' ...
                                    'outer cells go on']);
end

function test_one_law_on_several_places_takes_the_motion_of_each ()
  law = sampled (@(x, v) 1e3 * x + 20 * x .* v, [-1 0 1], [-1 0.5 1]);
  h = chandle (quarn ('chandleset', 1003, qn.element (law, [1 0 0; 0 1 -1])));
  r = zeros (3, 1);
  quarn ('residual', r, h, [0.1; 0.3; 0.2], [2; 0.5; 0.25], zeros (3, 1));
  delete (h);
  f = [1e3 * 0.1 + 20 * 0.1 * 2; 1e3 * 0.1 + 20 * 0.1 * 0.25];
  expect_equal (r, [f(1); f(2); -f(2)], 1e-12);
end

function test_surfaces_that_are_none_are_refused_in_words ()
  made = @(x, v, f) qn.law ('surface', 'displacement', x, 'velocity', v, 'force', f);
  who = 'qn.law, ''surface'': ';
  expect_error (@() made ([0 1 1], [0 1], zeros (3, 2)), 'qn:input', ...
                [who '"displacement" must ascend: value 2 is 1, value 3 is 1; sort it, and the rows of "force" with it, and merge equal values']);
  expect_error (@() made ([0 1], [3 2], zeros (2)), 'qn:input', ...
                [who '"velocity" must ascend: value 1 is 3, value 2 is 2; sort it, and the columns of "force" with it, and merge equal values']);
  expect_error (@() made (1, [0 1], [1 2]), 'qn:input', [who '"displacement" must be 2 values or more, got 1']);
  expect_error (@() made ([0 1], 5, [1; 2]), 'qn:input', [who '"velocity" must be 2 values or more, got 1']);
  text = [who '"force" must be 3 x 2 numbers, numel (displacement) x numel (velocity), a row for each displacement and a column for each ' ...
          'velocity, got %s'];
  expect_error (@() made ([0 1 2], [0 1], zeros (3)), 'qn:input', sprintf (text, '3 x 3'));
  expect_error (@() made ([0 1 2], [0 1], zeros (2, 3)), 'qn:input', sprintf (text, '2 x 3. It looks transposed: give force.'' instead of force'));
  expect_error (@() made ([0 1 2], [0 1], zeros (6, 1)), 'qn:input', sprintf (text, '6 x 1'));
  expect_error (@() made ([0 1 2], [0 1], zeros (3, 2, 2)), 'qn:input', sprintf (text, '3 x 2 x 2'));
  expect_error (@() made ([0 1 2], [0 1], true (3, 2)), 'qn:input', '~"force" must be numbers, got 3 x 2 of class logical');
  expect_error (@() made ([0 1], [0 1], [1 2; Inf 4]), 'qn:input', [who '"force"(2, 1) is Inf; finite numbers expected']);
  expect_error (@() made ([0 0.5], [-3 1], [1 2; NaN NaN]), 'qn:input', ...
                [who '"force" has 2 NaN among its 4 values, the first at (2, 1), 0.5 m and -3 m/s. griddata leaves points empty that lie ' ...
                 'outside of the measured ones: cut the grid to what was measured, or fill them']);
  expect_error (@() made ([0 Inf], [0 1], zeros (2)), 'qn:input', [who '"displacement"(2) is Inf; finite numbers expected']);
  expect_error (@() made ([0 1], [-1e308 1e308], zeros (2)), 'qn:input', ...
                [who '"velocity" goes from -1e+308 to 1e+308 between value 1 and value 2: the distance is beyond all numbers']);
  expect_error (@() qn.law ('surface', 'displacement', [0 1], 'force', [0 1]), 'qn:input', '~parameter "velocity" is missing');
  expect_error (@() qn.law ('surface', [0 1], [0 1], zeros (2)), 'qn:input', ...
                [who 'names and values expected in pairs, got 3 arguments; the names are displacement, velocity, force']);
  expect_error (@() qn.law ('surface', 'displacement', [0 1], [0 1], zeros (2)), 'qn:input', ...
                [who 'the name of a parameter expected, got an array of class double; there are displacement, velocity, force']);
  expect_error (@() qn.force (made ([0 1], [0 1], zeros (2)), 0.5), 'qn:input', '~depends on the velocity');
end

% What was changed by hand after qn.law.
function test_a_surface_that_was_changed_is_looked_at_again ()
  law = sampled (@(x, v) x + v, [0 1 2], [0 1]);
  law.parameters.force(2, 1) = NaN;
  expect_error (@() swing ({law}), 'qn:input', ...
                '~^qn.simulation: element 1: qn.law, ''surface'': "force" has 1 NaN among its 6 values, .* 1 m and 0 m/s');
end

% At rest it is a table, and stores what that stores; the rest is lost.
function test_energies_of_a_surface ()
  law = sampled (@(x, v) 3000 * x + 4 * v .* (1 + (v > 0)), [-0.02 0.001 0.02], [-2 0 2]);
  res = qn.run (swing ({law}), 'progress', false);
  e = qn.energies (res);
  d = qn.dissipated (res);
  expect_equal (d.stored, 1500 * res.q .^ 2, 1e-12);
  if max (abs (e.residual)) > 1e-12, error ('a residual of %g J', max (abs (e.residual))); end
  if any (diff (d.dissipated) < -1e-6) || d.dissipated(end) < 0.3, error ('%g J are lost', d.dissipated(end)); end
  v = qn.velocity (res, 1);
  expect_equal (d.dissipated(end), sum (4 * v .^ 2 .* (1 + (v > 0))) * 1e-4, 0.01);
end

function test_the_energy_that_a_surface_can_give_back_is_bounded_where_it_only_dissipates ()
  l = qn.impl.law_of ('surface');
  law = sampled (@(x, v) 3000 * x + 4 * v, [-0.02 0.001 0.02], [-2 0 2]);
  expect_equal (l.reserve (law.parameters, 0.01, []), 0.15, 1e-12);
  law.parameters.force(2, 3) = law.parameters.force(2, 2) - 1;
  expect_equal (l.reserve (law.parameters, 0.01, []), Inf);
  % Within its grid it dissipates; farther out its damping falls below zero.
  law = sampled (@(x, v) 3000 * x + (4 - 100 * abs (x)) .* v, [-0.02 0 0.02], [-2 0 2]);
  expect_equal (l.reserve (law.parameters, 0.01, []), Inf);
end

function test_a_table_is_a_surface_whose_forces_do_not_change_with_the_velocity ()
  [x, f] = deal ([-0.02; -0.004; 0.003; 0.01], [-50; -20; 10; 90]);
  table = qn.law ('table', 'displacement', x, 'force', f);
  law = qn.law ('surface', 'displacement', x, 'velocity', [-1 0 4], 'force', [f f f]);
  [one, other] = deal (qn.run (swing ({table}), 'progress', false), qn.run (swing ({law}), 'progress', false, 'check', false));
  expect_equal (other.q, one.q, 1e-13);
  expect_equal (getfield (qn.dissipated (other), 'stored'), getfield (qn.dissipated (one), 'stored'), 1e-12);
  for name = {'stiffest', 'softest', 'reach'}
    of = str2func (['qn.impl.' name{1}]);
    if strcmp (name{1}, 'stiffest'), of = @(law) qn.impl.stiffest (law, [0 0.005]); end
    expect_equal (of (law), of (table), 1e-12);
  end
  expect_equal (qn.impl.viscous (law, [0 0.005], []), 0);
end

function test_a_surface_at_rest ()
  model = qn.modal (1e4, 1);
  law = sampled (@(x, v) 1e5 * x + 300 * v, [-0.1 0.1], [-1 2]);
  expect_equal (qn.static (model, 110, {law, 1}), 1e-3, 1e-9);
  expect_error (@() qn.harmonic (model, 1, {law, 1}, [1 2]), 'qn:input', '~law of the displacement alone');
end

% Its greatest slopes among the displacements that were met decide, as for a spring and a damper.
function test_the_limit_of_the_step_is_that_of_its_greatest_slopes ()
  stiff = sampled (@(x, v) 1e6 * max (abs (x) - 0.02, 0) .* sign (x) + 4 * v, [-0.5 -0.02 0.02 0.5], [-2 2]);
  expect_equal (qn.impl.stiffest (stiff, []), 1e6, 1e-9);
  expect_equal (qn.impl.stiffest (stiff, [-0.01 0.015]), 0, 1e-9);
  damped = sampled (@(x, v) (2e4 + 1e5 * x) .* v, [-0.1 0.1], [-2 2]);
  expect_equal (qn.impl.viscous (damped, [], []), 3e4, 1e-9);
  expect_equal (qn.impl.viscous (damped, [-0.05 0.02], []), 2.2e4, 1e-9);
  expect_equal (qn.impl.viscous (damped, [0 0.5], []), 7e4, 1e-9);              % it goes on
  found = qn.check (swing ({damped}));
  expect_equal (any (strcmp ({found.code}, 'damper_unstable')), true);
  found = qn.check (swing ({stiff}, 'step', 2.1e-3));
  expect_equal (any (strncmp ({found.code}, 'element_unstable', 16)), true);
end

% An error says that the motion grows: that is sure where no velocity is calmer.
function test_an_error_is_announced_only_where_every_slope_is_too_great ()
  steep = @(least) qn.law ('surface', 'displacement', [-1 1], 'velocity', [-2 0 2], 'force', [-2*least 0 5e4; -2*least 0 5e4]);
  expect_equal (level_of (qn.check (swing ({steep(2.1e4)})), 'damper_unstable'), 'error');
  expect_equal (level_of (qn.check (swing ({steep(1.9e4)})), 'damper_unstable'), 'warning');
  % Stiff at all velocities or at one of them: 2.1e-3 s bear 9e5 N/m on 1 kg.
  law = @(k) qn.law ('surface', 'displacement', [-1 1], 'velocity', [-2 0 2], 'force', [-k -1e6 -1e6; k 1e6 1e6]);
  expect_equal (level_of (qn.check (swing ({law(9.5e5)}, 'step', 2.1e-3)), 'element_unstable'), 'error');
  sim = swing ({law(8.5e5)}, 'step', 2.1e-3);
  expect_equal (level_of (qn.check (sim), 'element_unstable'), 'warning');
  expect_equal (qn.impl.at_least (law (8.5e5), [0.5; -3], []), 8.5e5, 1e-9);
  bent = sampled (@(x, v) 10 * max (x, 0) + 3 * x .* v, [-1 0 1], [-2 2]);
  expect_equal (qn.impl.at_least (bent, [], []), 0);
  expect_equal (qn.impl.at_least (bent, 0.5, []), 4, 1e-12);
  expect_equal (qn.impl.at_least (bent, [0.5; -3], []), 4, 1e-12);
end

function level = level_of (found, code)
  level = found(strcmp ({found.code}, code)).level;
end

% The module notes it at every step, kept or not. The motion goes to 0.01 m.
function test_a_run_says_by_how_much_it_left_the_grid ()
  law = sampled (@(x, v) 10 * x + v, [-0.008 0.008], [-1.1 1.1]);
  sim = swing ({law}, 'every', 1000);
  found = qn.check (sim, qn.run (sim, 'progress', false, 'check', false));
  text = found(strcmp ({found.code}, 'table_left')).text;
  expect_in (text, 'from -0.008 to 0.008 m and from -1.1 to 1.1 m/s, by up to 0.0019');
  expect_equal (isempty (strfind (text, ' and 0 m/s')), true);
  expect_in (text, ' m; beyond it');
  lastwarn ('');
  evalc ('qn.run (sim, ''progress'', false)');
  expect_in (lastwarn (), 'the motion leaves its grid');
  found = qn.check (sim);
  expect_equal (any (strcmp ({found.code}, 'table_left')), false);
end

function test_a_start_outside_of_the_grid_is_said_before_the_run ()
  law = @(x, v) sampled (@(x, v) 10 * x + v, x, v);
  found = qn.check (swing ({law([-0.1 0.1], [-0.4 0.4])}, 'v0', 3));
  expect_in (text_of (found, 'table_left', 'warning'), ...
             'it starts at 0 m and 3 m/s, outside of its grid, from -0.1 to 0.1 m and from -0.4 to 0.4 m/s');
  found = qn.check (swing ({law([-0.1 0.1], [-0.4 0.4])}, 'v0', 0, 'u0', -0.101));
  expect_in (text_of (found, 'table_left', 'note'), 'it starts at -0.101 m and 0 m/s');
  found = qn.check (swing ({law([5e-3 20e-3], [-4 4])}));
  expect_in (text_of (found, 'table_left', 'warning'), 'it starts at 0 m and 1 m/s, outside of its grid, from 0.005 to 0.02 m');
  found = qn.check (swing ({law([0 20e-3], [-4 1])}));
  expect_equal (any (strcmp ({found.code}, 'table_left')), false);
end

% Which axis it is, in words, and what every tenth or thousandth step still says of it.
function test_an_axis_in_the_wrong_unit_is_told_from_a_small_motion ()
  model = qn.modal (5e3, 2, 'damping', 0.01);
  [x, v] = deal (linspace (-7e-3, 7e-3, 5), [-0.4 0 0.4]);
  [u, w] = ndgrid (x, v);
  made = @(a, b) qn.law ('surface', 'displacement', a * x, 'velocity', b * v, 'force', 2e4 * u + 500 * w);
  sim = @(law, v0, varargin) qn.simulation (model, 'step', 1e-4, 'until', 0.1, 'v0', v0, 'elements', {law, 1}, varargin{:});
  after = @(s) qn.check (s, qn.run (s, 'progress', false, 'check', false));
  unused = @(found) {found(strcmp ({found.code}, 'surface_unused')).level};
  for every = [1 10]
    found = after (sim (made (1, 1e3), 0.3, 'every', every));
    expect_in (text_of (found, 'surface_unused', 'warning'), ' % of its velocities, from -400 to 400 m/s, and ');
    expect_in (text_of (found, 'surface_unused', 'warning'), 'are the velocities in m/s? 200 mm/s are 0.2');
    found = after (sim (made (1e3, 1), 0.3, 'every', every));
    expect_in (text_of (found, 'surface_unused', 'warning'), 'are the displacements in m? 20 mm are 0.02');
    expect_equal (unused (after (sim (made (1, 1), 0.3, 'every', every))), {});
  end
  found = after (sim (made (1e3, 1e3), 0.3));
  expect_in (text_of (found, 'surface_unused', 'note'), 'from -7 to 7 m and from -400 to 400 m/s: a small motion, or a grid that is in mm and mm/s?');
  found = after (sim (made (1, 1), 1e-3));
  expect_in (text_of (found, 'surface_unused', 'note'), 'covers only 0.0');
  % Between two of these steps it may have been as fast as it likes.
  expect_equal (unused (after (sim (made (1, 1e3), 0.3, 'every', 500))), {});
  % An axis that is not used much beside one that is used by not even 30 times as much.
  expect_equal (unused (after (sim (made (1, 80), 0.3))), {'warning'});
  expect_equal (unused (after (sim (made (4, 80), 0.3))), {});
end

% A run that goes on when its motion has gone.
function test_a_good_surface_is_not_suspected_when_the_motion_has_decayed ()
  law = sampled (@(x, v) 3000 * x + 150 * v, [-0.02 0.001 0.02], [-2 0 2]);
  first = qn.run (swing ({law}, 'until', 0.15), 'progress', false);
  sim = swing ({law}, 'v0', [], 'start', first, 'until', 0.3);
  res = qn.run (sim, 'progress', false);
  assert (max (abs (res.q)) < 4e-5);
  found = qn.check (sim, res);
  expect_equal ({found(~strcmp ({found.level}, 'note')).code}, {});
  expect_in (text_of (found, 'surface_unused', 'note'), 'a small motion');
end

% Its damping falls below zero outside: no limit of a step for 1e71 m, and no such distance, but what the law does out there.
function test_a_motion_without_bound_is_said_to_have_left_the_grid_without_numbers_of_its_own ()
  law = sampled (@(x, v) 3000 * x + (10 - 1e4 * abs (x)) .* v, [-0.007 0 0.007], [-0.4 0 0.4]);
  sim = swing ({law}, 'v0', 3);
  before = warning ('off', 'qn:diverged');
  back = onCleanup (@() warning (before));
  res = qn.run (sim, 'progress', false, 'check', false);
  expect_equal (res.diverged, true);
  found = qn.check (sim, res);
  expect_in (text_of (found, 'table_left', 'warning'), ...
             'grew without bound beyond its grid, from -0.007 to 0.007 m and from -0.4 to 0.4 m/s. There the outer cells go on');
  expect_equal (any (strcmp ({found.code}, 'damper_unstable')), false);
end

function text = text_of (found, code, level)
  one = found(strcmp ({found.code}, code));
  expect_equal ({one.level}, {level});
  text = one.text;
end

function test_a_run_with_a_surface_goes_on_where_it_was_and_comes_back_from_a_file ()
  law = sampled (@(x, v) 3000 * x + 4 * v .* abs (v), linspace (-0.02, 0.02, 5), linspace (-2, 2, 9));
  whole = qn.run (swing ({law}), 'progress', false);
  [folder, away] = new_folder ();
  file = fullfile (folder, 'run.mat');
  first = qn.run (swing ({law}), 'progress', false, 'piece', 500, 'save', file, 'stop', @(r) r.time_end > 0.2);
  expect_equal (first.complete, false);
  expect_equal (getfield (qn.resume (file, 'progress', false), 'q'), whole.q);
  second = qn.run (swing ({law}, 'v0', [], 'start', first), 'progress', false);
  expect_equal (second.q, whole.q(size (first.q, 2):end));
end
