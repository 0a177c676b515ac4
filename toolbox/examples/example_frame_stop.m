% EXAMPLE_FRAME_STOP  Two buildings too close: a frame pounds against its neighbour in a ground shock
%
% Story
%   A four-storey frame, 20 t and 30 MN/m a storey, sways after a short ground shock. Its stiff neighbour is 20 mm away from the
%   roof. The simulation takes 13 lines, from the matrices to the list of contacts.
%
% Reference
%   Pounding as a stop behind a gap (Anagnostopoulos, Pounding of buildings in series during earthquakes, 1988). Frequencies of the
%   uniform shear frame 2 sqrt (k/m) sin ((2j-1)/(2n+1) pi/2) (Rayleigh). Motion: the same equations, not reduced to modes, solved by
%   the host's ode45 to 1e-8.
%
% Checked
%   Frequencies to rounding (1e-9). Roof displacement against ode45 to 0.02 % of its greatest value, energy balance to 0.01 % of the
%   work done: a contact takes 220 steps or more, and what is off by the square of a step, once in and once out, adds up to less.
%   Impulses to 0.2 %: the steps of ode45 divide a contact into 20 trapezia or more.
%
% Calls
%   R = example_frame_stop ()
%   R = example_frame_stop (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_frame_stop (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  last = 2.5;
  if short, last = 1.5; end

  n = 4;
  k = 30e6 * (diag ([2 2 2 1]) - diag (ones (1, 3), 1) - diag (ones (1, 3), -1));
  m = 20e3 * eye (n);
  model = qn.modal (k, m, 'rayleigh', [0.2 1e-3]);
  roof = qn.observe (model, n);
  shock = @(t) 4 * sin (pi * t / 0.25) .* (t < 0.25);
  stop = qn.gap ('gap', 0.02, 'stiffness', 2e8);
  base = qn.base (model, ones (n, 1));
  sim = qn.simulation (model, 'step', 1e-4, 'until', last, 'load', {base, shock}, 'elements', {stop, roof});
  res = qn.run (sim, 'progress', false);
  u = qn.displacement (res, roof);
  contacts = qn.contacts (res, 1);
  energy = qn.energies (res);

  [t, y] = reference (k, m, 0.2 * m + 1e-3 * k, shock, last);
  force = 2e8 * max (y(:, n) - 0.02, 0);
  % Impulses of the reference over the spans of the run's contacts, a little widened.
  impulses = zeros (1, numel (contacts));
  for j = 1:numel (contacts)
    during = t > contacts(j).start - 0.01 & t < contacts(j).start + contacts(j).duration + 0.01;
    impulses(j) = trapz (t(during), force(during));
  end
  exact = 2 * sqrt (30e6 / 20e3) * sin ((1:2:2 * n - 1).' * pi / (2 * (2 * n + 1)));
  checks = {'frequencies', model.w, exact, 1e-9; ...
            'roof displacement', interp1(res.time, u, t), y(:, n), 2e-4; ...
            'impulses', [contacts.impulse], impulses, 2e-3; ...
            'energy balance', energy.residual / max(energy.work), 0, 1e-4};
  checks{4, 2} = max (abs (checks{4, 2}));

  fig = qn.plot.page (1000, 640);
  alone = qn.run (qn.simulation (model, 'step', 1e-3, 'until', last, 'load', {base, shock}), 'progress', false);
  qn.plot.panel (2, 1, 1);
  wide = qn.impl.width ();
  plot (alone.time, 1e3 * qn.displacement (alone, roof), '-', 'color', [0.65 0.65 0.65], 'linewidth', wide);
  hold on;
  plot (res.time, 1e3 * u, '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  plot ([0 last], [20 20], '--', 'color', [0 0 0]);
  axis ([0 last -60 90]);
  labels ('Roof of the frame', 'Time [s]', 'Displacement [mm]', {'without neighbour', 'with neighbour', 'where it is'}, 'north');
  qn.plot.panel (2, 1, 2);
  qn.plot.series (res, 'force', 1);
  title ('Force on the neighbour');
  r = finish ('example_frame_stop', fig, folder, checks, struct ('contacts', contacts, 'work', max (energy.work)));
  if nargout == 0, tell (r); clear r, end
end

function [t, y] = reference (k, m, c, shock, last)
  n = size (k, 1);
  push = ones (n, 1);
  at_roof = [zeros(n - 1, 1); 1];
  rate = @(t, y) [y(n + 1:end); -m \ (k * y(1:n) + c * y(n + 1:end) + at_roof * 2e8 * max (y(n) - 0.02, 0)) - push * shock(t)];
  [t, y] = ode45 (rate, [0 last], zeros (2 * n, 1), odeset ('RelTol', 1e-8, 'AbsTol', 1e-10, 'MaxStep', 1e-3));
end
