% Shock response spectra: published spectra of pulses, random records against a fine recursion, and floors of base-driven structures.
function tests = suite_published_shock ()
  use_toolbox ();
  tests = localfunctions ();
end

% Undamped maximax spectra of unit pulses of length T, absolute acceleration.
function test_spectra_of_the_three_classic_pulses ()
  c = published ('Shock response spectra of three pulses', ['closed form of the undamped response during and after the pulse: Jacobsen ' ...
                 'and Ayre, Engineering Vibrations, 1958'], {'qn.srs'});
  h = 1 / 4000;
  t = 0:h:3;
  pulses = {'half sine', sin(pi * t) .* (t < 1), [.39627 .94281 1.57080 1.73205 1.50000 1.26808]; ...
            'terminal-peak saw tooth', t .* (t <= 1), [.31073 .73303 1.18545 1.00000 1.02227 1.00000]; ...
            'rectangle', double(t < 1 - h / 2), [.61803 1.41421 2 2 2 2]};
  ft = [.1 .25 .5 1 1.5 2];
  for k = 1:3
    names = arrayfun (@(x) sprintf ('%s, maximax at f T = %g', pulses{k, 1}, x), ft, 'uniformoutput', false);
    expect_published (c, names, pulses{k, 3}, qn.srs (t, pulses{k, 2}, ft, Inf), 1e-3);
  end
end

% The oscillator on the record resampled 100 times as finely, by the recursion in its usual real form.
function a = fine_spectrum (acc, h, hertz, q)
  n = 100;
  acc = [0, acc, 0];
  fine = interp1 (0:numel (acc) - 1, acc, 0:1 / n:numel (acc) - 1);
  h = h / n;
  zeta = 1 / (2 * q);
  for k = 1:numel (hertz)
    w = 2 * pi * hertz(k);
    angle = w * sqrt (1 - zeta ^ 2) * h;
    e = exp (-zeta * w * h);
    c = e * cos (angle);
    s = e * sin (angle) / angle;
    x = filter ([1 - s, 2 * (s - c), e ^ 2 - s], [1, -2 * c, e ^ 2], [fine, zeros(1, ceil (1 / (hertz(k) * h)))]);
    a(k) = max (abs (x));
  end
end

% Records at 100 Hz and oscillators of up to 20 Hz, which have five samples a period.
function test_maxima_between_the_samples_are_found ()
  randn ('twister', 7);
  h = 0.01;
  hertz = [0.7 3.1 8 12.5 15 17.7 20];
  for k = 1:12
    acc = cumsum (randn (1, 150)) .* linspace (1, 0, 150);
    for q = [3 10 Inf]
      wanted = fine_spectrum (acc, h, hertz, q);
      [a, positive, negative, bound] = qn.srs ((0:149) * h, acc, hertz, q);
      expect_equal (a ./ wanted, ones (size (hertz)), 2e-4);
      if any (a + bound < wanted * (1 - 1e-9)), error ('the bound of the error does not hold'); end
      if any (bound > 1e-6 * a), error ('bounds up to %g', max (bound ./ a)); end
      expect_equal (a, max (positive, negative));
    end
  end
end

function test_long_slow_and_still_records_have_spectra ()
  h = 1e-6;
  t = 0:h:0.02;
  acc = 100 * (t < 0.01);
  % Far below its frequency a pulse is a step of velocity.
  w = 2 * pi * [0.01 0.1];
  expect_equal (qn.srs (t, acc, [0.01 0.1], Inf) ./ w, [1 1], 1e-5);
  expect_equal (qn.srs (t, 0 * t, [1 10]), [0 0]);
  expect_equal (qn.srs (t(1:2:1e4).', acc(1:2:1e4).', [10; 20]), qn.srs (t(1:2:1e4), acc(1:2:1e4), [10; 20]));
  both = qn.srs (t(1:100), [acc(1:100); 2 * acc(1:100)], [10 20 30]);
  expect_equal (both(2, :), 2 * both(1, :), 1e-14);
  expect_error (@() qn.srs (t, [acc(2:end) NaN], 1), 'qn:input', '~is NaN; finite numbers expected');
  expect_error (@() qn.srs (t, acc, 1e9), 'qn:input', '~"HERTZ" has 1e\+09; below .* Hz, half the sampling rate');
  expect_error (@() qn.srs (t, acc, 1, [1 2]), 'qn:input', '~"Q" must be one finite real number');
end

function [k, m] = storeys ()
  k = 4e6 * [2 -1 0; -1 2 -1; 0 -1 1];
  m = 1000 * eye (3);
end

% Absolute accelerations obey M a = -(C v + K u) with displacements relative to the base.
function test_absolute_accelerations_of_a_shaken_frame ()
  [k, m] = storeys ();
  quake = @(t) 3 * sin (9 * t) .* (t < 2) + 0.5;
  cm = 2e-3 * k;
  model = qn.modal (k, m, 'rayleigh', [0 2e-3]);
  res = qn.run (qn.simulation (model, 'step', 1e-3, 'until', 3, 'base', {ones(3, 1), quake}, ...
                               'load', {qn.load_at(model, 3), @(t) 100 * cos(5 * t)}));
  u = qn.displacement (res, [1 2 3]');
  v = qn.velocity (res, [1 2 3]');
  force = [zeros(2, 3001); 100 * cos(5 * res.time)];
  a = qn.acceleration (res, [1 2 3]', 'absolute', true);
  expect_equal (a, (force - k * u - cm * v) / 1000, 1e-9);
  expect_equal (qn.acceleration (res, sparse ([1 0 -1]), 'absolute', true), a(1, :) - a(3, :), 1e-9);
  expect_equal (qn.acceleration (res, 2) + quake (res.time), a(2, :), 1e-9);
  by_load = qn.simulation (model, 'step', 1e-3, 'until', 3, 'load', {qn.load_at(model, 3), @(t) 100 * cos(5 * t); ...
                                                                     qn.base(model, ones (3, 1)), quake});
  expect_equal (getfield (qn.run (by_load), 'q'), res.q);
  expect_error (@() qn.acceleration (qn.run (by_load), 2, 'absolute', true), 'qn:input', '~"base" of qn.simulation');
end

% With two modes of three a point that hardly moves in them still moves with the base.
function test_modes_that_were_left_out_follow_the_base ()
  [k, m] = storeys ();
  quake = @(t) 2 * sin (3 * t);
  few = qn.modal (k, m, 'modes', 2, 'damping', 0.05);
  res = qn.run (qn.simulation (few, 'step', 1e-3, 'until', 1, 'base', {[1; 1; 1], quake}));
  wanted = qn.acceleration (res, 2) + quake (res.time);
  expect_equal (qn.acceleration (res, 2, 'absolute', true), wanted);
  expect_equal (qn.acceleration (res, qn.observe (few, 2), 'absolute', true), wanted);
  expect_error (@() qn.acceleration (res, qn.observe (few, [1 2], [1 1]), 'absolute', true), 'qn:input', '~2 of 3 modes');
  expect_error (@() qn.simulation (few, 'step', 1, 'steps', 1, 'base', {1, @sin}), 'qn:input', '~"base\{1, 1\}" must be 3 values');
  expect_error (@() qn.simulation (few, 'step', 1, 'steps', 1, 'base', {1, 2, 3}), 'qn:input', '~two columns');
end

% A light oscillator on the third storey, as a part of the structure, feels what its floor spectrum says.
function test_a_floor_spectrum_is_what_light_equipment_feels ()
  [k, m] = storeys ();
  quake = @(t) 3 * sin (15 * t) .* exp (-t);
  frame = qn.modal (k, m, 'damping', 0.03);
  res = qn.run (qn.simulation (frame, 'step', 1e-3, 'until', 4, 'base', {ones(3, 1), quake}));
  hertz = [2 3.2 9];
  spectrum = qn.srs (res, 3, hertz, 10);
  for j = 1:3
    w = 2 * pi * hertz(j);
    light = 1e-3;
    both = blkdiag (k, 0) + light * w ^ 2 * [zeros(2, 4); 0 0 1 -1; 0 0 -1 1];
    damper = [zeros(2, 4); 0 0 1 -1; 0 0 -1 1] * light * w / 10;
    c = blkdiag (m * frame.shapes * diag (frame.damping) * frame.shapes.' * m, 0) + damper;
    whole = qn.modal (both, blkdiag (m, light), 'C', c);
    felt = qn.run (qn.simulation (whole, 'step', 1e-3, 'until', 4, 'base', {ones(4, 1), quake}));
    expect_equal (max (abs (qn.acceleration (felt, 4, 'absolute', true))) / spectrum(j), 1, 2e-3);
  end
end
