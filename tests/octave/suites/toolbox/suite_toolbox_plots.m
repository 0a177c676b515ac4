function tests = suite_toolbox_plots ()
  use_toolbox ();
  tests = localfunctions ();
end

function [model, res] = orbiting ()
  model = qn.modal (1e4 * eye (2), eye (2), 'damping', 0.02);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 800, 'u0', [2e-3; 0], 'v0', [0; 0.1], 'elements', ...
                               {qn.stop('gap', 1e-3, 'stiffness', 5e4), qn.observe(model, 1); qn.iwan('slip', 2, 'stiffness', 1e4), qn.observe(model, 2)}));
end

% Labels and curves of the current axes.
function [across, up, lines] = looks ()
  across = get (get (gca (), 'xlabel'), 'string');
  up = get (get (gca (), 'ylabel'), 'string');
  lines = findobj (gca (), 'type', 'line');
end

function test_time_histories_are_drawn_in_fitting_units ()
  [model, res] = orbiting ();
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  qn.plot.series (res, qn.observe (model, [1 2]), {'across', 'up'});
  [across, up, lines] = looks ();
  expect_equal ({across, up}, {'Time [ms]', 'Displacement [mm]'});
  y = get (lines(end), 'ydata');
  u = qn.displacement (res, 1);
  expect_equal (y(:), 1e3 * u(:), 1e-12);
  qn.plot.series (res, 'force', 1);
  [across, up, lines] = looks ();
  expect_equal (up, 'Force [N]');
  expect_equal (numel (lines), 1);
  expect_error (@() qn.plot.series (res, 'speed'), 'qn:input', '~observation rows or ''force''');
end

function test_phase_plane_loop_and_orbit_show_what_they_should ()
  [model, res] = orbiting ();
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  qn.plot.phase (res, 1, 2 * pi / 100);
  [across, up, lines] = looks ();
  expect_equal ({across, up}, {'Displacement [mm]', 'Velocity [mm/s]'});
  expect_equal (numel (lines), 2);
  qn.plot.loop (res, 2);
  [across, up, lines] = looks ();
  expect_equal ({across, up}, {'Displacement [um]', 'Force [N]'});
  y = get (lines(1), 'ydata');
  expect_equal (y(:), sum (res.force(2:end, :), 1).', 1e-12);
  qn.plot.orbit (res, 1, 2, 1e-3);
  [across, up, lines] = looks ();
  expect_equal (numel (lines), 2);
  expect_error (@() qn.plot.loop (res, 3), 'qn:input', '~element 3 is not there');
end

function test_a_waterfall_has_one_line_a_spectrum ()
  t = 0:1e-3:4;
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  qn.plot.waterfall (t, sin (2 * pi * (5 + 4 * t) .* t), 'parts', 9, 'hertz', [0 60]);
  [across, up, lines] = looks ();
  expect_equal ({across, up}, {'Frequency [Hz]', 'Time [s]'});
  expect_equal (numel (lines), 9);
  clf (fig);
  qn.plot.waterfall (1:10, rand (3, 10), 'along', [100 200 300], 'label', 'Speed [rpm]');
  [across, up, lines] = looks ();
  expect_equal (up, 'Speed [rpm]');
  expect_equal (numel (lines), 3);
  expect_error (@() qn.plot.waterfall (1:10, rand (3, 10), 'along', 1), 'qn:input', '~"SPECTRA" must be 1 x 10 numbers');
end

function test_panels_divide_the_page_without_overlap ()
  fig = qn.plot.page (1000, 800);
  clean = onCleanup (@() close (fig));
  places = zeros (4, 4);
  for k = 1:4, places(k, :) = get (qn.plot.panel (2, 2, k), 'position'); end
  for j = 1:4
    for k = j + 1:4
      apart = places(j, 1:2) + places(j, 3:4) <= places(k, 1:2) | places(k, 1:2) + places(k, 3:4) <= places(j, 1:2);
      if ~any (apart), error ('panels %d and %d overlap', j, k); end
    end
  end
  if any (places(:) < 0) || any (any (places(:, 1:2) + places(:, 3:4) > 1)), error ('a panel leaves the page'); end
  expect_error (@() qn.plot.panel (2, 2, 5), 'qn:input', '~numbered from 1 to 4');
end

% The host's print gives names to a shell and to sprintf.
function test_any_name_of_a_picture_is_taken_as_it_stands ()
  [folder, away] = new_folder ();
  here = cd (folder);
  back = onCleanup (@() cd (here));
  names = {'run [1].png', 'a b''c.svg', '$(touch stolen).png', '`touch stolen`.png', 'back\slash.png', 'x*.png', 'per%d.png', 'q"uote.pdf', ...
           '-dash.png', '; touch stolen.png'};
  fig = qn.plot.page (200, 100);
  closed = onCleanup (@() close (fig));
  plot (1:3);
  for name = names, qn.plot.picture (fig, name{1}); end
  expect_equal (sort (qn.impl.files.names_in (folder)).', sort (names));
  expect_error (@() qn.plot.picture (fig, fullfile ('no such folder', 'a.png')), 'qn:input', '~qn.plot.picture: cannot write no such folder/a.png');
  clear back
end

% The file must be a picture of the page's size on which something is drawn.
function test_pictures_are_written_in_the_size_of_the_page ()
  [model, res] = orbiting ();
  file = [tempname() '.png'];
  fig = qn.plot.page (640, 480);
  clean = onCleanup (@() delete (file));
  qn.plot.orbit (res, 1, 2);
  qn.plot.picture (fig, file);
  close (fig);
  picture = imread (file);
  expect_equal ([size(picture, 1), size(picture, 2)], [480 640]);
  share = mean (picture(:) < 200);
  if share < 0.005 || share > 0.3, error ('%g of the picture is dark', share); end
  expect_error (@() qn.plot.picture (fig, 'x.bmp'), 'qn:input', '~ends in png, pdf, svg or eps');
end

function test_labels_fit_on_a_page_of_three_by_two ()
  fig = qn.plot.page ();
  model = qn.modal (1e4, 1);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 50, 'v0', 1), 'progress', false);
  for k = 1:6
    ax = qn.plot.panel (3, 2, k);
    qn.plot.series (res, 1);
    label = get (ax, 'ylabel');
    text = get (label, 'string');
    % A third of the 600 pixels is one panel's; a letter is less than a pixel wide for each pixel of its size in points.
    if 0.9 * numel (text) * get (label, 'fontsize') > 200, error ('"%s" in %g points', text, get (label, 'fontsize')); end
  end
  close (fig);
  fig = qn.plot.page ();
  qn.plot.series (res, 1);
  expect_equal (get (get (gca (), 'ylabel'), 'fontsize'), 12);
  close (fig);
end

function test_a_force_loop_does_not_lie_on_its_frame ()
  fig = qn.plot.page ();
  qn.plot.loop ([-1 0 1], [0 0 20]);
  expect_equal (get (gca (), 'xlim'), [-1.1 1.1], 1e-12);
  expect_equal (get (gca (), 'ylim'), [-1 21], 1e-12);
  qn.plot.loop ([1 1], [0 0]);
  limits = get (gca (), 'xlim');
  if ~(limits(1) < limits(2)), error ('no limits'); end
  close (fig);
end
