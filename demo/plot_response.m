% PLOT_RESPONSE (FILE, T, X_FREE, X, E, STOP, CONTACTS)  picture of the response, written to FILE
%
% Roof displacement without (X_FREE) and with (X) stop and brace over the whole run, the first contact close up, and where
% the energy E of the run with contacts is.
function plot_response (file, t, x_free, x, e, stop, contacts)
  blue = [0 0.30 0.70];
  grey = [0.55 0.55 0.55];
  red = [0.80 0 0];
  green = [0 0.55 0.20];
  names = {'without stop and brace', 'with stop and brace', 'face of the stop'};
  fig = new_figure ();

  subplot (3, 1, 1);
  k = 1:ceil (numel (t) / 4000):numel (t);
  displacement (t(k), 1e3 * x_free(k), 1e3 * x(k), 1e3 * stop.gap);
  axis ([0, t(end), 1.15e3 * min(x_free), 1.6e3 * max(x_free)]);
  label_axes ([0.09 0.73 0.88 0.22], 'Roof displacement after the base shock', 'Time [s]', 'Displacement [mm]', names, 'north');

  subplot (3, 1, 2);
  from = contacts(1).start - contacts(1).duration;
  to = contacts(1).start + 2 * contacts(1).duration;
  near = find (t >= from & t <= to);
  k = near(1:ceil (numel (near) / 2000):end);
  displacement (1e3 * t(k), 1e3 * x_free(k), 1e3 * x(k), 1e3 * stop.gap);
  axis ([1e3 * from, 1e3 * to, 0, 1.25e3 * max(x_free(near))]);
  label_axes ([0.09 0.40 0.88 0.22], 'Roof displacement, first contact', 'Time [ms]', 'Displacement [mm]', names, 'north');

  subplot (3, 1, 3);
  k = 1:ceil (numel (t) / 4000):numel (t);
  plot (t(k), e.work(k), '-', 'color', [0 0 0], 'linewidth', 4, t(k), e.damped(k), '-', 'color', red, 'linewidth', 4, ...
        t(k), e.kinetic(k) + e.strain(k), '-', 'color', blue, 'linewidth', 4, ...
        t(k), e.potential(k), '-', 'color', green, 'linewidth', 4);
  axis ([0, t(end), 0, 1.35 * max(e.work)]);
  label_axes ([0.09 0.07 0.88 0.22], 'Energy balance with stop and brace', 'Time [s]', 'Energy [J]', ...
              {'work of the shock', 'dissipated', 'in the frame', 'in stop and brace'}, 'north');
  save_picture (fig, file, 1200, 1200);

  function displacement (time, without, with, face)
    plot (time, without, '-', 'color', grey, 'linewidth', 3, time, with, '-', 'color', blue, 'linewidth', 4, ...
          time([1 end]), face * [1 1], '-', 'color', red, 'linewidth', 4);
  end
end
