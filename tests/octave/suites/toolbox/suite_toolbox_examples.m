% The examples in their short form, each against its reference.
function tests = suite_toolbox_examples ()
  use_toolbox ();
  addpath (examples ());
  tests = localfunctions ();
end

function folder = examples ()
  folder = fullfile (project_folder (), 'toolbox', 'examples');
end

function names = all_examples ()
  files = dir (fullfile (examples (), 'example_*.m'));
  names = regexprep ({files.name}, '\.m$', '');
end

% Runs an example; all of its checks hold, its picture is a picture, no handle remains, and qn.run has nothing to warn of.
function r = run_example (name)
  before = warning ();
  back = onCleanup (@() warning (before));
  for code = qn.impl.finding ('codes'), warning ('error', ['qn:check:' code{1}]); end
  folder = tempname ();
  mkdir (folder);
  figures = numel (get (0, 'children'));
  r = feval (['example_' name], folder, true);
  for c = r.checks.'
    if ~c.ok, error ('%s: "%s" is off by %.3g, %.3g allowed', name, c.text, c.error, c.tolerance); end
  end
  expect_equal (r.ok, true);
  expect_equal (r.picture, fullfile (folder, ['example_' name '.png']));
  picture = imread (r.picture);
  delete (r.picture);
  rmdir (folder);
  dark = mean (picture(:) < 200);
  if dark < 0.005 || dark > 0.3, error ('%s: %g of the picture is dark', name, dark); end
  expect_equal (numel (get (0, 'children')), figures);
  if ~isempty (quarn ('chandleget')), error ('%s leaves handles behind', name); end
end

function test_frame_against_its_stop ()
  r = run_example ('frame_stop');
  expect_equal (numel (r.numbers.contacts) >= 3, true);
  expect_equal (numel (r.checks), 4);
end

function test_pipe_in_its_guides ()
  r = run_example ('pipe_supports');
  % Once the guides are closed the pipe is far stiffer: forty times the weight bends it less than ten times as far.
  expect_equal (r.numbers.sag(3) / r.numbers.sag(1) < 10, true);
end

function test_contact_force_with_an_attached_shape ()
  r = run_example ('contact_modes');
  % Eight modes alone are about as good as three and the shape.
  expect_equal (r.numbers.counts(2), 8);
  expect_equal (r.numbers.alone(2), 1, 0.02);
  expect_equal (r.numbers.attached(1), 1, 0.015);
end

function test_rotor_rubs_in_its_ring ()
  r = run_example ('rotor_rub');
  % Free rotor past its critical speed: e s^2 / |1 - s^2 + 2 i zeta s|, s = 58/50.
  s = 58 / 50;
  expect_equal (r.numbers.free / (20e-6 * s ^ 2 / abs (1 - s ^ 2 + 0.06i * s)), 1, 0.01);
  expect_equal (r.numbers.radius > 2 * r.numbers.free, true);
end

function test_rotor_rubs_with_friction_against_a_stator ()
  r = run_example ('rub_stator');
  % Published for the rigid ring: 1.03884944e-4 and 1.24741702e-4 m. The stator gives way below its own frequency.
  expect_equal (1e4 * r.numbers.rigid, [1.03884944 1.24741702], 1e-3);
  expect_equal (r.numbers.moving > 1e-4, [true true]);
end

function test_rotor_runs_up_through_two_critical_speeds ()
  r = run_example ('run_up');
  expect_equal (numel (r.numbers.rpm), 2);
  % The greatest deflection comes after the critical speed, the later the faster the run-up.
  expect_equal (r.numbers.top > r.numbers.rpm(1) && r.numbers.top < 1.15 * r.numbers.rpm(1), true);
end

function test_oil_whirl_begins_where_linear_theory_says ()
  r = run_example ('oil_whirl');
  % Whirl of a journal bearing is at about half the speed of rotation.
  expect_equal (abs (r.numbers.ratio - 0.5) < 0.05, true);
end

function test_squeeze_film_damper_has_the_orbit_of_its_closed_form ()
  r = run_example ('squeeze_film');
  expect_equal (all (r.numbers.radius < 0.6), true);
end

function test_blades_have_their_best_friction ()
  r = run_example ('bladed_disc');
  expect_equal (r.numbers.best, 14);
  expect_equal (r.numbers.least < 0.15 * 10 / (2 * 0.003 * 0.3 * (2 * pi * 210) ^ 2), true);
end

function test_iwan_joint_follows_masing ()
  r = run_example ('iwan_joint');
  % k = 1e8 N/m, Fs = 5 kN: at half the reach of 0.1 mm k^2 X^3/(3 Fs) = 83.3 mJ.
  expect_equal (r.numbers.energy(2), 1 / 12, 1e-3);
end

function test_dahl_loop_has_its_area ()
  r = run_example ('dahl_loop');
  expect_equal (r.numbers.top / (1000 * tanh (2)), 1, 1e-3);
  expect_equal (r.numbers.area / (40 - 20 * tanh (2)), 1, 6e-3);
end

function test_coulomb_slider_turns_and_sticks ()
  r = run_example ('coulomb_release');
  expect_equal (1e4 * r.numbers.turns, [-6.5 4.5 -2.5 0.5], 1e-3);
  expect_equal (1e4 * r.numbers.rest, 0.5, 1e-3);
end

function test_duffing_resonance_and_its_jumps ()
  r = run_example ('duffing_backbone');
  % First harmonic: the tip is where the damping alone carries the load, A = F/(2 zeta w0 w), on w^2 = w0^2 (1 + 3/4 A^2).
  w = 2 * pi * r.numbers.tip(1);
  w0 = 20 * pi;
  expect_equal (r.numbers.tip(2) / (0.1 * w0 ^ 2 * 1e-3 / (0.05 * w0 * w)), 1, 0.03);
  expect_equal (w / w0 / sqrt (1 + 0.75 * (1e3 * r.numbers.tip(2)) ^ 2), 1, 0.03);
end

function test_isolator_meets_the_common_point ()
  r = run_example ('isolator');
  expect_equal (r.numbers.found(:, 1), [5; 5; 5] / 3, 0.01);
end

function test_shock_spectrum_of_a_half_sine ()
  r = run_example ('shock_spectrum');
  % Soft parts feel the velocity step 2/pi peak last alone: w times it.
  soft = r.numbers.maximax(1) / (2 * pi * 10 * 2 / pi * 50 * 9.81 * 0.011);
  expect_equal (soft, 1, 0.03);
  % The known highest amplification.
  expect_equal (max (r.numbers.exact) / (50 * 9.81), 1.768, 0.01);
end

function test_beam_on_a_shock_table ()
  r = run_example ('beam_shock');
  % Thickness 5 mm, aluminium: 1.8751^2/(2 pi) sqrt (E h^2/(12 rho)) / l^2.
  expect_equal (r.numbers.hertz(1) / (1.8751041 ^ 2 / (2 * pi) * sqrt (70e9 * 25e-6 / 12 / 2700) / 0.25), 1, 1e-5);
end

function test_a_brace_in_c_pulls_its_storey_back ()
  r = run_example ('self_centring');
  % The slider stays where it slid to; the brace is back.
  expect_equal (abs (r.numbers.rest(2)) > 0.02, true);
  expect_equal (abs (r.numbers.rest(1)) < 1e-4, true);
end

function test_every_example_is_run_here ()
  here = fileread ([mfilename('fullpath') '.m']);
  names = all_examples ();
  if numel (names) < 8, error ('only %d examples', numel (names)); end
  for k = 1:numel (names)
    if isempty (strfind (here, ['run_example (''' names{k}(9:end) '''']))
      error ('%s is not run', names{k});
    end
  end
end

% What says that a check holds must be able to say that it does not.
function test_a_wrong_value_fails_its_check ()
  before = pwd ();
  back = onCleanup (@() cd (before));
  cd (fullfile (examples (), 'private'));
  checks = {'right', [1 2], [1 2.01], 0.01; 'wrong', [1 2], [1 2.1], 0.01; 'NaN', NaN, 1, 0.01; 'too few', 1, [1 1], 0.01; ...
            'none', [], [], 0.01; 'about zero', 0.02, 0, 0.01};
  fig = figure ('visible', 'off');
  r = finish ('x', fig, '', checks, struct ());
  close (fig);
  expect_equal ([r.checks.ok], [true false false false false false]);
  expect_equal (r.ok, false);
end

function test_every_example_says_what_it_is_and_stands_in_the_gallery ()
  gallery = fileread (fullfile (project_folder (), 'docs', 'gallery.md'));
  names = all_examples ();
  for k = 1:numel (names)
    text = fileread (fullfile (examples (), [names{k} '.m']));
    for heading = {'Story', 'Reference', 'Checked', 'Calls'}
      if isempty (strfind (text, sprintf ('\n%% %s\n', heading{1}))), error ('%s has no section "%s"', names{k}, heading{1}); end
    end
    story = regexp (text, '\n% Story\n(.*?)\n%\n', 'tokens', 'once');
    story = regexprep (story{1}, '(^|\n)%   ', '$1');
    if isempty (strfind (gallery, story)), error ('%s: its story is not in the gallery; make it anew', names{k}); end
    picture = dir (fullfile (project_folder (), 'docs', 'images', [names{k} '.png']));
    if isempty (picture) || picture.bytes > 120e3, error ('%s: no picture in the gallery, or one above 120 kB', names{k}); end
    if isempty (strfind (gallery, ['(images/' names{k} '.png)'])), error ('%s: its picture is not shown', names{k}); end
  end
end

function test_an_example_called_without_output_prints_one_line_a_check ()
  folder = fullfile (tempname (), 'new');
  text = evalc (sprintf ('example_coulomb_release (''%s'', true);', folder));
  lines = strsplit (strtrim (text), sprintf ('\n'));
  r = example_coulomb_release (folder, true);
  expect_equal (numel (lines), numel (r.checks));
  for k = 1:numel (lines)
    good = regexp (lines{k}, '^example_coulomb_release: .* off by [-+.e\d]+, allowed [-+.e\d]+: ok$', 'once');
    if isempty (good), error ('"%s"', lines{k}); end
  end
  expect_equal (exist (r.picture, 'file'), 2);
  delete (r.picture);
  rmdir (folder);
  rmdir (fileparts (folder));
  expect_error (@() example_coulomb_release (7), 'qn:input', '~folder of the picture');
end
