% PLOT_CONTACT (FILE, T, X, FX, Y, FY, STOP, BRACE, CONTACTS)  picture of the contact force, written to FILE
%
% Force FX of the stop and FY of the brace over the whole run, the first contact close up, and both forces against the
% displacements X and Y beside the laws as given.
function plot_contact (file, t, x, fx, y, fy, stop, brace, contacts)
  blue = [0 0.30 0.70];
  grey = [0.65 0.65 0.65];
  red = [0.80 0 0];
  fig = new_figure ();

  subplot (2, 3, [1 2 3]);
  k = unique ([1:ceil(numel (t) / 4000):numel(t), find(diff (fx > 0))]);
  plot (t(k), fx(k) / 1e3, '-', 'color', blue, 'linewidth', 4, t(k), fy(k) / 1e3, '-', 'color', red, 'linewidth', 4);
  axis ([0, t(end), 2.2e-3 * min(fy), 1.25e-3 * max(fx)]);
  label_axes ([0.08 0.60 0.89 0.33], 'Forces of the nonlinear elements', 'Time [s]', 'Force [kN]', ...
              {'stop at the roof', 'brace at the second floor'}, 'northeast');

  subplot (2, 3, 4);
  c = contacts(1);
  near = find (t >= c.start - 0.2 * c.duration & t <= c.start + 1.2 * c.duration);
  k = near(1:ceil (numel (near) / 1500):end);
  plot (1e3 * t(k), fx(k) / 1e3, '-', 'color', blue, 'linewidth', 4);
  axis ([1e3 * t(near(1)), 1e3 * t(near(end)), 0, 1.1e-3 * c.peak]);
  label_axes ([0.08 0.09 0.24 0.36], 'Stop, first contact', 'Time [ms]', 'Force [kN]', {}, '');

  subplot (2, 3, 5);
  k = near(1:ceil (numel (near) / 60):end);
  given = linspace (0.8 * stop.gap, 1.05 * max (x), 300);
  plot (1e3 * given, interp1 (stop.x, stop.f, given) / 1e3, '-', 'color', grey, 'linewidth', 4, ...
        1e3 * x(k), fx(k) / 1e3, 'o', 'color', blue, 'markersize', 5);
  axis ([1e3 * given([1 end]), -0.03e-3 * max(fx), 1.1e-3 * max(fx)]);
  label_axes ([0.405 0.09 0.24 0.36], 'Stop: law (line), run (o)', 'Roof displacement [mm]', 'Force [kN]', {}, '');

  subplot (2, 3, 6);
  k = 1:ceil (numel (t) / 400):numel (t);
  given = linspace (min (y), max (y), 300);
  plot (1e3 * given, brace.k * given .^ brace.p / 1e3, '-', 'color', grey, 'linewidth', 4, ...
        1e3 * y(k), fy(k) / 1e3, 'x', 'color', red, 'markersize', 5);
  axis ([1.05e3 * given([1 end]), 1.1e-3 * min(fy), 1.2e-3 * max(fy)]);
  label_axes ([0.73 0.09 0.24 0.36], 'Brace: law (line), run (x)', 'Floor displacement [mm]', 'Force [kN]', {}, '');
  save_picture (fig, file, 1200, 900);
end
