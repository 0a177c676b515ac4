% Draws the force-displacement plots of docs/laws.md into docs/images (quarn must be on the path).
%
%   octave-cli --no-history -qf --path MODULE_DIR --path docs/figures --eval make_law_plots
%   make_law_plots                draws all of them
%   make_law_plots ('Maxw')       draws one, by its keyword
function make_law_plots (only)
  laws = {'Power', @power; 'Expon', @exponential; 'Table', @table; 'Damper', @damper; 'Contact', @contact; 'Surface', @surface; ...
          'Maxw', @maxwell; 'DahlC', @dahl; 'sts', @stick_slip; 'BoucWen', @bouc_wen; 'Clima2', @clima2; 'Radial', @radial; ...
          'Journal', @film; 'User', @user};
  if nargin > 0
    known = strjoin (laws(:, 1).', ', ');
    laws = laws(strcmp (laws(:, 1), only), :);
    if isempty (laws), error ('make_law_plots draws no law "%s"; it draws %s', only, known); end
  end
  if exist ('graphics_toolkit'), graphics_toolkit ('gnuplot'); end
  for k = 1:size (laws, 1), laws{k, 2} (); end
end

function power ()
  x = linspace (-1.5, 1.5, 121);
  exponents = [1 2 3];
  f = zeros (3, numel (x));
  for k = 1:3, f(k, :) = drive (element ('Power', [1 exponents(k)], 1), x, 0 * x); end
  draw ('law_power', x, f, {'p = 1', 'p = 2', 'p = 3'}, 'Power: F = k u^p, k = 1 N/m^p', 'displacement [m]');
end

function exponential ()
  x = linspace (-2, 2, 121);
  bases = [0.5 1.5 3];
  f = zeros (3, numel (x));
  for k = 1:3, f(k, :) = drive (element ('Expon', [1 bases(k)], 1), x, 0 * x); end
  draw ('law_expon', x, f, {'a = 0.5', 'a = 1.5', 'a = 3'}, 'Expon: F = k a^u, k = 1 N', 'displacement [m]');
end

function table ()
  % A gap of +-1 mm, a stiff stop, and a jump of 20 N at 3 mm; beyond the last knots the end segments go on.
  knots = [-2 -1 1 2.5 3 3 4];
  values = [-60 0 0 40 45 65 70];
  e = element ('Table', [knots values 0 0 0], 1, [-1 0 0 0 0 1 15 7 1]);
  x = sort ([linspace(-2.6, 4.6, 201) 3 - 1e-9 3 + 1e-9]);
  f = drive (e, x, 0 * x);
  draw ('law_table', x, f, {}, 'Table: gap of 1 mm, a jump at 3 mm, linear beyond the ends', 'displacement [mm]');
  hold ('on');
  plot (knots, values, 'ko', 'markersize', 8, 'linewidth', 2);
  hold ('off');
  save_plot ('law_table');
end

function maxwell ()
  % A spring of 10 N/m beside a spring of 60 N/m in series with a damper: relaxation time 0.025 s.
  k1 = 10;
  k2 = 60;
  c = 1.5;
  names = {'0.3 Hz', '6.4 Hz', '60 Hz'};
  f = zeros (3, 401);
  rates = [0.3 6.4 60];
  for k = 1:3
    [x, v, h, last] = harmonic (0.01, rates(k), 400, 6);
    e = element ('Maxw', [h 1 0, k1+k2 -k2 0 0 0 0, zeros(1, 6), k2/c 0, -k2/c, 0 0], 2, [-1 0 2 1 1], 3);
    e.vnl(6) = k2 / c * x(1);
    force = drive (e, [x; 0 * x], [v; 0 * v]);
    f(k, :) = force(1, last);
  end
  draw ('law_maxw', 1e3 * x(last), f, names, 'Maxw: one internal state, relaxation time 25 ms', 'displacement [mm]');
end

function dahl ()
  [x, v, h, last] = harmonic (0.01, 1, 4000, 5);
  exponents = [0 1 2];
  f = zeros (3, numel (last));
  for k = 1:3
    e = element ('DahlC', [h 3e5 exponents(k) 1 1000], 2, [-1 1 1 1 1], 2);
    force = drive (e, [x; 0 * x], [v; 0 * v]);
    f(k, :) = force(1, last);
  end
  names = {'e = 0 (Coulomb)', 'e = 1', 'e = 2'};
  draw ('law_dahlc', 1e3 * x(last), f, names, 'DahlC: k = 3e5 N/m, limit 1000 N', 'displacement [mm]');
end

function stick_slip ()
  [x, v, h, last] = harmonic (0.01, 1, 200, 3);
  e = element ('sts', [h 500 1e4 40 0], 2, [-1 1 1 1 1], 2);
  force = drive (e, [x; 0 * x], [v; 0 * v]);
  headline = 'sts: k = 1e4 N/m, slip force 40 N, parallel 500 N/m; a dot is a step';
  draw ('law_sts', 1e3 * x(last), force(1, last), {}, headline, 'displacement [mm]', '.-');
end

function clima2 ()
  % g0 (the limit, mu = 1) falls from 100 N to 40 N over the third value, the stiffness g1 from 4e4 to 2e4 N/m.
  [x, v, h, last] = harmonic (0.01, 1, 4000, 4);
  level = [0 0.5 1];
  f = zeros (3, numel (last));
  for k = 1:3
    parameters = [h 0 1 1 0, 0 1 100 40 4e4 2e4, 0 0 0];
    e = element ('Clima2', parameters, 5, [-1 3 3 2 1 7 13 2 2], 2);
    n = numel (x);
    force = drive (e, [x; zeros(1, n); level(k) * ones(1, n); zeros(2, n)], [v; zeros(4, n)]);
    f(k, :) = force(1, last);
  end
  names = {'third value 0', 'third value 0.5', 'third value 1'};
  draw ('law_clima2', 1e3 * x(last), f, names, 'Clima2: first branch at three table values, k = 0', 'displacement [mm]');
end

% The loops of one cycle, of equal force at the greatest velocity.
function damper ()
  [x, v, h, last] = harmonic (0.01, 1, 400, 1);
  exponents = [0.3 1 2];
  f = zeros (3, numel (last));
  for k = 1:3, f(k, :) = drive (element ('Damper', [100 / max(v) ^ exponents(k), exponents(k)], 1), x, v); end
  draw ('law_damper', 1e3 * x, f, {'a = 0.3', 'a = 1', 'a = 2'}, 'Damper: 10 mm at 1 Hz, 100 N at the greatest velocity', 'displacement [mm]');
end

function radial ()
  % Pressed in and out again along x at half a cycle of 50 Hz, while the surface slides past at 6 m/s.
  t = linspace (0, 0.01, 201);
  w = 2 * pi * 50;
  x = [1.3e-3 * sin(w * t); 0 * t];
  v = [1.3e-3 * w * cos(w * t); 0 * t];
  e = element ('Radial', [1e-3 2e6 1.5 2 0.2 0.01 0.02 300 0 0], 2);
  e.opt(3) = 2e6 / sqrt (3e-4);
  draw ('law_radial', 1e3 * x(1, :), drive (e, x, v), {'along x', 'along y'}, 'Radial: gap 1 mm, damped contact, friction 0.2', ...
        'displacement [mm]');
end

function film ()
  % At rest on x, turned until the force points upwards. The clearance is the circle.
  c = 1e-4;
  eccentricity = linspace (0.005, 0.985, 99);
  e = element ('Journal', [0.02 0.03 0.05 c 157 0.99 0 0 0], 2);
  f = drive (e, [c * eccentricity; 0 * eccentricity], zeros (2, 99));
  place = eccentricity .* exp (1i * (-pi / 2 - atan2 (f(2, :), f(1, :))));
  figure (1, 'visible', 'off');
  clf ();
  hold ('on');
  circle = exp (2i * pi * (0:180) / 180);
  plot (real (circle), imag (circle), 'k-', 'linewidth', 3);
  plot (real (place), imag (place), '-', 'color', [0 0.32 0.62], 'linewidth', 4);
  for shown = [0.2 0.4 0.6 0.8]
    [unused, k] = min (abs (eccentricity - shown));
    plot (real (place(k)), imag (place(k)), 'ko', 'markersize', 7, 'linewidth', 2);
    text (real (place(k)) - 0.08, imag (place(k)), sprintf ('e = %.1f', shown), 'fontsize', 11, 'horizontalalignment', 'right');
  end
  hold ('off');
  axis ('equal');
  axis ([-1.1 1.1 -1.1 1.1]);
  grid ('on');
  box ('on');
  set (gca (), 'gridlinestyle', ':', 'gridcolor', 0.6 * ones (1, 3), 'fontsize', 11);
  title ('Journal: the journal under a load downwards, turning anticlockwise', 'fontweight', 'normal');
  xlabel ('x / clearance');
  ylabel ('y / clearance');
  save_plot ('law_journal');
end

% A mass of 1 kg hits the stop at x = 1 mm and leaves it: central differences, which need no more than the force.
function contact ()
  e = element ('Contact', [1e6 1.5 0.5 1e-3 1], 1);
  speeds = [0.25 0.5 1];
  h = 1e-5;
  names = {};
  f = nan (3, 3000);
  at = nan (3, 3000);
  for k = 1:3
    [x, v] = deal (0, speeds(k));
    for j = 1:3000
      at(k, j) = x;
      f(k, j) = drive (e, x, v);
      v = v - h * f(k, j);
      x = x + h * v;
      if x < 0, break, end
    end
    names{k} = sprintf ('%g m/s, %.2g m/s back', speeds(k), -v);
  end
  draw ('law_contact', 1e3 * at, f, names, 'Contact: k = 1e6 N/m^{1.5}, chi = 0.5 s/m, gap 1 mm, on 1 kg', 'displacement [mm]');
end

% Loops at three speeds of a mount with bump stops and a damper that gives way above 0.1 m/s, weaker in rebound.
function surface ()
  at = (-12:3:12) * 1e-3;
  speeds = [-0.5 -0.25 -0.1 0 0.1 0.25 0.5];
  stops = [-190 -105 -60 -30 0 30 60 105 190];
  damper = [-65 -50 -35 0 60 85 110];
  grid = bsxfun (@plus, stops.', damper);
  e = element ('Surface', [0 0 at speeds grid(:).'], 1, [-1 0 0 0 0 9 7]);
  frequencies = [0.2 1.5 6];
  f = zeros (3, 401);
  for k = 1:3
    [x, v] = harmonic (0.011, frequencies(k), 400, 1);
    f(k, :) = drive (e, x, v);
  end
  draw ('law_surface', 1e3 * x, f, {'0.2 Hz', '1.5 Hz', '6 Hz'}, 'Surface: a mount measured at 9 displacements and 7 velocities', ...
        'displacement [mm]');
end

% A function: a slider beside a spring, which slips to the right at 40 N and to the left at 80 N.
function user ()
  [x, v, h, last] = harmonic (0.01, 1, 400, 2);
  e = element ('User', [0 h], 2, [-1 1 1 1 1]);
  e.call = @ratchet;
  f = drive (e, [x; 0 * x], [v; 0 * v]);
  draw ('law_user', 1e3 * x, f(1, :), {}, 'User: a slider that slips to the right at 40 N, to the left at 80 N', 'displacement [mm]');
end

function [f, y] = ratchet (x, v, y, t)
  k = 2e4;
  y = min (max (y, x - 40 / k), x + 80 / k);
  f = k * (x - y) + 1e3 * x;
end

function bouc_wen ()
  [x, v, h, last] = harmonic (0.03, 1, 1000, 3);
  exponents = [1 2 10];
  f = zeros (3, numel (last));
  for k = 1:3
    b = 0.5 / 0.01 ^ exponents(k);
    force = drive (element ('BoucWen', [0 1e5 0.1 1 b b exponents(k)], 3, [-1 1 1 2 1]), [x; 0 * x; 0 * x], [v; 0 * v; 0 * v]);
    f(k, :) = force(1, last);
  end
  draw ('law_boucwen', 1e3 * x(last), f, {'n = 1', 'n = 2', 'n = 10'}, 'BoucWen: k = 1e5 N/m, alpha = 0.1, limit of z 10 mm', 'displacement [mm]');
end

% Some cycles of a harmonic motion, the samples of the last one, and the time step.
function [x, v, h, last] = harmonic (amplitude, frequency, samples, cycles)
  h = 1 / (frequency * samples);
  phase = 2 * pi * (0:cycles * samples) / samples;
  x = amplitude * sin (phase);
  v = amplitude * 2 * pi * frequency * cos (phase);
  last = (cycles - 1) * samples + 1:cycles * samples + 1;
end

% An element that observes each of its values unchanged and keeps its force in "snl".
function e = element (word, parameters, page, iopt, pages)
  if nargin < 5, pages = 1; end
  code = sum (double (word) .* 256 .^ (0:numel (word) - 1));
  opt = [code parameters];
  if any (strcmp (word, {'Maxw', 'DahlC', 'sts', 'Clima2', 'BoucWen'})), opt = [code 0 parameters]; end
  e = struct ('type', 1003, 'opt', opt(:));
  e.c = struct ('ir', int32 ((0:page - 1)'), 'jc', int32 ((0:page)'), 'pr', ones (page, 1), 'dims', [page page], 'trans', 1);
  if nargin > 3, e.iopt = int32 (iopt(:)); end
  e.unl = zeros (page, 1, pages);
  e.vnl = zeros (page, 1, pages);
  e.snl = zeros (max (page, 1), 1);
end

% Forces along a motion: columns of x and v are samples. Rows of x that the law stores its states in are carried over.
% An integrator whose coefficients are all zero moves nothing: each call just evaluates the law once and ends the step.
function f = drive (e, x, v)
  n = size (x, 1);
  integrator = struct ('type', 2000, 'r', zeros (n, 2), 'tft', [0 1], 'data', zeros (1, 6));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1)));
  out = struct ('data', zeros (0, 1));
  stored = [];
  if isfield (e, 'iopt') && e.iopt(2) > 0, stored = double (e.iopt(2)) + (1:double (e.iopt(4))); end
  state = zeros (numel (stored), 1);
  f = zeros (numel (e.snl), size (x, 2));
  for k = 1:size (x, 2)
    u = x(:, k) + zeros (n, 1);
    u(stored) = state;
    w = v(:, k) + zeros (n, 1);
    a = zeros (n, 1);
    quarn ('chandlediagnewmark', {integrator, e}, struct ('K', []), u, w, a, zeros (1, 2), mem, out);
    state = u(stored);
    f(:, k) = e.snl;
  end
end

function draw (name, x, f, names, headline, across, style)
  if nargin < 7, style = '-'; end
  colours = [0 0.32 0.62; 0.85 0.37 0.01; 0.1 0.55 0.3];
  figure (1, 'visible', 'off');
  clf ();
  hold ('on');
  for k = 1:size (f, 1), plot (x(min (k, end), :), f(k, :), style, 'color', colours(k, :), 'linewidth', 4, 'markersize', 6); end
  hold ('off');
  low = min (f(:));
  high = max (f(:));
  axis ([x_range(x) low-0.06*(high-low) high+0.06*(high-low)]);
  grid ('on');
  box ('on');
  set (gca (), 'gridlinestyle', ':', 'gridcolor', 0.6 * ones (1, 3), 'fontsize', 11);
  title (headline, 'fontweight', 'normal');
  xlabel (across);
  ylabel ('force [N]');
  if ~isempty (names), legend (names, 'location', 'eastoutside'); end
  save_plot (name);
end

function r = x_range (x)
  reach = max (x(:)) - min (x(:));
  r = [min(x(:))-0.05*reach max(x(:))+0.05*reach];
end

function save_plot (name)
  here = fileparts (mfilename ('fullpath'));
  set (gcf (), 'paperunits', 'inches', 'paperposition', [0 0 7 4.2]);
  print (fullfile (here, '..', 'images', [name '.png']), '-dpng', '-r100');
end
