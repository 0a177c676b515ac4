% Orbits, orders, spectrograms, Poincare sections: signals whose answers are known.
function tests = suite_toolbox_rotation ()
  use_toolbox ();

  tests = localfunctions ();
end

function test_an_ellipse_has_the_half_sum_and_difference_of_its_axes ()
  t = (0:499) * 1e-3;
  w = 2 * pi * 50 * t;
  for n = [499 500]
    for window = {'hann', 'none'}
      [f, forward, backward] = qn.full_spectrum (t(1:n), 3 * cos (w(1:n)), sin (w(1:n)), 'window', window{1});
      expect_equal ([numel(f), numel(forward), numel(backward)], (floor (n / 2) + 1) * [1 1 1]);
      [top, k] = max (abs (forward));
      tolerance = 1e-12;
      if n == 499, tolerance = 0.01; end
      expect_equal ([f(k), top, abs(backward(k))], [50 2 1], max (tolerance, 1e-9) * 50);
    end
  end
  [f, forward, backward] = qn.full_spectrum (t, 3 * cos (w), -3 * cos (w), 'window', 'none');
  expect_equal (abs ([forward(f == 50), backward(f == 50)]), 3 / sqrt (2) * [1 1], 1e-12);
  [f, forward, backward] = qn.full_spectrum (t, cos (w), -sin (w), 'window', 'none');
  expect_equal (abs ([forward(f == 50), backward(f == 50)]), [0 1], 1e-12);
end

% With all its parts, mean included, the orbit is the sum of its circles.
function test_the_circles_add_up_to_the_orbit ()
  rand ('twister', 42);
  for n = [7 8]
    t = (0:n - 1) * 0.1;
    [x, y] = deal (randn (1, n), randn (1, n));
    [f, forward, backward] = qn.full_spectrum (t, x, y, 'window', 'none', 'mean', 'keep');
    z = sum (bsxfun (@times, forward.', exp (2i * pi * f.' * t)) + bsxfun (@times, backward.', exp (-2i * pi * f.' * t)), 1);
    expect_equal (z, x + 1i * y, 1e-13);
  end
end

function test_the_orbit_of_a_result_is_that_of_its_displacements ()
  model = qn.modal (1e4 * eye (2), eye (2), 'damping', 0.02);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 600, 'u0', [2e-3; 0], 'v0', [0; 0.2]), 'progress', false);
  [f, forward, backward] = qn.full_spectrum (res, 1, 2);
  u = qn.displacement (res, qn.observe (model, [1 2]));
  [f2, forward2, backward2] = qn.full_spectrum (res.time, u(1, :), u(2, :));
  expect_equal ({f, forward, backward}, {f2, forward2, backward2});
  [unused, k] = max (abs (forward));
  if abs (f(k) - 100 / (2 * pi)) > 1 / 0.6, error ('the peak is at %g Hz', f(k)); end
  if abs (backward(k)) > 0.1 * abs (forward(k)), error ('a circle has a backward part of %g', abs (backward(k) / forward(k))); end
  expect_error (@() qn.full_spectrum (res, qn.observe (model, [1 2]), 2), 'qn:input', '~"CX" must be one observation row, got 2');
  expect_error (@() qn.full_spectrum (0:3, 1:4, 1:4, 'mean', 'x'), 'qn:input', '~the mean is ''keep'' or ''remove''');
  expect_error (@() qn.full_spectrum (0:3, 1:4, 1:4, 'window', 'x'), 'qn:input', '~the window is ''hann'' or ''none''');
end

function test_a_spectrogram_follows_a_chirp ()
  t = 0:1e-3:10;
  [f, middle, x] = qn.spectrogram (t, 2 * sin (2 * pi * (20 + 5 * t) .* t), 'seconds', 0.5, 'overlap', 0.75);
  expect_equal (size (x), [numel(f), numel(middle)]);
  expect_equal (f(2), 2, 1e-12);
  expect_equal (diff (middle(1:2)), 0.125, 1e-9);
  [top, k] = max (abs (x));
  if any (abs (f(k) - (20 + 10 * middle)) > 2), error ('off by %g Hz', max (abs (f(k) - (20 + 10 * middle)))); end
  [f, middle, x] = qn.spectrogram (t, 2 * sin (2 * pi * 40 * t), 'seconds', 0.5);
  expect_equal (abs (x(f == 40, :)), 2 * ones (1, numel (middle)), 1e-9);
  whole = qn.spectrum (t(1:500), sin (t(1:500)));
  expect_equal (f, whole, 1e-12);
  expect_error (@() qn.spectrogram (t, t, 'seconds', 20), 'qn:input', '~from 2 to the 10001 of the signal');
  expect_error (@() qn.spectrogram (t, t, 'overlap', 1), 'qn:input', '~"overlap" must be from 0 to below 1');
end

function test_orders_of_a_run_up_have_their_amplitudes_and_phases ()
  t = 0:2e-4:12;
  rotation = 4 + 2 * t;
  angle = 2 * pi * (4 * t + t .^ 2);
  x = 3 * cos (angle + 0.4) + 0.5 * sin (2 * angle) + 0.2 * cos (0.5 * angle) + 7;
  [a, speed, middle] = qn.order_track (t, x, rotation, [0.5 1 2 3], 'turns', 10);
  wanted = [0.2; 3 * exp(0.4i); -0.5i; 0] * ones (1, numel (speed));
  if max (abs (a(:) - wanted(:))) > 2e-3, error ('off by %g', max (abs (a(:) - wanted(:)))); end
  expect_equal (speed, interp1 (t, rotation, middle), 1e-9);
  turns = interp1 (t, angle / (2 * pi), middle);
  expect_equal (diff (turns), 5 * ones (1, numel (turns) - 1), 1e-4);
  [a, speed] = qn.order_track (t, cos (2 * pi * 30 * t), 30, 1, 'overlap', 0);
  expect_equal (abs (a), ones (size (a)), 1e-6);
  expect_equal (speed, 30 * ones (size (speed)), 1e-9);
  expect_error (@() qn.order_track (t, x, rotation, 1, 'turns', 1e4), 'qn:input', '~a window of 10000 is expected to fit');
  expect_error (@() qn.order_track (t, x, rotation, 500), 'qn:input', '~order 500 at 28 Hz has 0.36 samples a period');
end

function test_a_motion_of_two_periods_has_two_points ()
  t = 0:1e-3:20;
  at = @(n) cos (2 * pi * t) + 0.2 * cos (2 * pi * t / n + 0.3);
  for n = 1:3
    p = qn.poincare (t, at (n), 1);
    expect_equal (numel (p), 21);
    expect_equal (p(1:end - n), p(n + 1:end), 1e-9);
    expect_equal (numel (unique (round (1e6 * p))), n);
  end
  [p, when] = qn.poincare (t, [t; cos(2 * pi * t / 0.7)], 0.7, 'phase', 0.25, 'skip', 3);
  expect_equal (when, 0.7 * (3.25:1:28.3), 1e-9);
  expect_equal (p, [when; zeros(1, numel (when))], 1e-7);
  expect_error (@() qn.poincare (t, t, 1, 'skip', 50), 'qn:input', '~nothing remains');
  expect_error (@() qn.poincare (t, t, 1e-3), 'qn:input', '~has 1 samples; at least 4');
  expect_error (@() qn.poincare (t, t, 1, 'phase', 1), 'qn:input', '~"phase" must be from 0 to below 1');
end

% A linear oscillator settles to the period of its load; its point is that of the closed form.
function test_a_section_of_a_result_has_displacements_and_velocities ()
  model = qn.modal (1e4, 1, 'damping', 0.1);
  w = 70;
  sim = qn.simulation (model, 'step', 2e-4, 'until', 3, 'load', {qn.load_at(model, 1), @(t) 50 * cos(w * t)});
  p = qn.poincare (qn.run (sim, 'progress', false), 1, 2 * pi / w, 'skip', 25);
  z = 50 / (1e4 - w ^ 2 + 1i * w * 20);
  if max (max (abs (bsxfun (@minus, p, [real(z); -w * imag(z)])), [], 2) ./ [abs(z); w * abs(z)]) > 2e-3, error ('off'); end
end

% Beyond the first doubling of the logistic map its values are (r + 1 -+ sqrt ((r - 3) (r + 1))) / (2 r).
function test_pictures_show_points_lines_and_colours ()
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  r = [2.9 3.2];
  points = cell (1, 2);
  for k = 1:2
    x = 0.3;
    for j = 1:2000, x(j + 1) = r(k) * x(j) * (1 - x(j)); end
    points{k} = x(end - 9:end);
  end
  qn.plot.bifurcation (r, points, 'label', 'Growth', 'unit', '');
  line = findobj (gca (), 'type', 'line');
  [x, y] = deal (reshape (get (line, 'xdata'), [], 1), reshape (get (line, 'ydata'), [], 1));
  expect_equal (unique (round (1e9 * y(x == 3.2))) / 1e9, (4.2 + [-1; 1] * sqrt (0.2 * 4.2)) / 6.4, 1e-8);
  expect_equal (unique (round (1e9 * y(x == 2.9))) / 1e9, 1 - 1 / 2.9, 1e-8);
  expect_equal (get (get (gca (), 'ylabel'), 'string'), 'Once in a period');
  expect_error (@() qn.plot.bifurcation (r, points(1)), 'qn:input', '~"POINTS" must be a cell of 2 lists');
  t = 0:1e-3:4;
  clf (fig);
  [f, middle, s] = qn.spectrogram (t, 1e-3 * sin (2 * pi * 50 * t), 'seconds', 0.5);
  qn.plot.spectrogram (f, middle, s, 'hertz', [0 100], 'range', 40);
  picture = findobj (gca (), 'type', 'image');
  level = get (picture(1), 'cdata');
  at = f(f <= 100);
  expect_equal ([max(level(:)), min(level(:))], [0 -40], 1e-9);
  expect_equal (level(at == 50, :), zeros (1, numel (middle)), 0.01);
  expect_in (get (get (gca (), 'ylabel'), 'string'), 'Frequency');
  expect_error (@() qn.plot.spectrogram (f, middle, s, 'hertz', [0 1]), 'qn:input', '~"hertz" from 0 to 1 shows 1 of');
  clf (fig);
  qn.plot.orders ([1 2 3], [1 2 3; 4 5 6] * 1e-6, [1 2]);
  expect_equal (numel (findobj (gca (), 'type', 'line')), 2);
  clf (fig);
  qn.plot.full_spectrum ([0 1 2], [0 2e-3 1e-3], [0 1e-3 0]);
  line = findobj (gca (), 'type', 'line');
  expect_equal (reshape (get (line, 'xdata'), 1, []), [-2 -1 0 0 1 2], 1e-12);
  expect_equal (reshape (get (line, 'ydata'), 1, []), [0 1 0 0 2 1], 1e-12);
  clf (fig);
  qn.plot.poincare ([1 2; 3 4]);
  expect_equal (reshape (get (findobj (gca (), 'type', 'line'), 'xdata'), 1, []), [1 2]);
  expect_error (@() qn.plot.poincare ([1 2 3]), 'qn:input', '~"POINTS" must be 2 x n numbers');
  clf (fig);
  qn.plot.orbit ([0 1e-3 0], [1e-3 0 1e-3], 2e-3);
  lines = findobj (gca (), 'type', 'line');
  expect_equal (numel (lines), 2);
  expect_equal (reshape (get (lines(2), 'xdata'), 1, []), [0 1 0], 1e-12);
  expect_error (@() qn.plot.orbit ([0 1], [1 2 3]), 'qn:input', '~"Y" must be 2 values');
end

% What stands still has order 0, and a window of two turns does not tell it from order 1 if it is shorter.
function test_a_window_too_short_for_an_order_is_refused ()
  t = 0:1e-3:10;
  text = ['qn.order_track: order 0.1 turns 0.8 times in a window of "turns" 8; at least 2 are needed, or what stands still and what turns the ' ...
          'other way counts as this order. Give "turns" of 20 or more'];
  expect_error (@() qn.order_track (t, 10 + 0 * t, 5 + 2 * t, [1 0.1]), 'qn:input', text);
  expect_error (@() qn.order_track (t, 10 + 0 * t, 5 + 2 * t, 1, 'turns', 1.9), 'qn:input', '~turns 1.9 times in a window of "turns" 1.9;');
  a = qn.order_track (t, 10 + 0 * t, 5 + 2 * t, [1 0.1], 'turns', 20);
  expect_equal (max (abs (a(:))) < 1e-3, true);
  expect_equal (max (abs (qn.order_track (t, 10 + 0 * t, 5 + 2 * t, 1, 'turns', 2))) < 1e-3, true);
end

function test_a_mean_that_is_neither_kept_nor_removed_is_refused ()
  t = (0:99) * 1e-2;
  for f = {@qn.spectrum, @qn.spectrogram}
    expect_error (@() f{1} (t, 5 + t, 'mean', 'removed'), 'qn:input', 'qn.spectrum: the mean is ''keep'' or ''remove'', not ''removed''');
  end
end
