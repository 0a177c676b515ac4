% EXAMPLE_ISOLATOR  Vibration isolation by a spring and an elastically supported damper
%
% Story
%   A damper between floor and machine tames the resonance but carries the fast vibration up. With a spring in series with it, a
%   Zener element, it does the first without the second, if the damper is neither too weak nor too strong: all curves pass through
%   one point, and the best damper puts the peak there. A machine of 200 kg stands on a spring of 5 Hz; the series spring is three
%   times as stiff.
%
% Reference
%   Transmissibility |D/(D - m w^2)| with the dynamic stiffness D = K + K1 i w C/(K1 + i w C); with N = K1/K all curves meet at
%   w^2 = w0^2 2 (1+N)/(2+N), at the height 1 + 2/N, where the best damper, C = N/(2+2N) sqrt (2 (2+N) K m), has its peak (Ruzicka
%   and Derby, Influence of Damping in Vibration Isolation, 1971).
%
% Checked
%   Transmissibility of dwells at four frequencies for each of three dampers, and the height of the common point, to 0.5 %. The
%   internal state advances by explicit steps, 800 in a period: its phase is off by half a step, 0.4 %, and so is the answer where
%   it depends on the damper most.
%
% Calls
%   R = example_isolator ()
%   R = example_isolator (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_isolator (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  mass = 200;
  w0 = 2 * pi * 5;
  stiffness = mass * w0 ^ 2;
  ratio = 3;
  dampers = [0.2 1 5] * ratio / (4 * (1 + ratio)) * sqrt (2 * (2 + ratio)) * 2 * sqrt (stiffness * mass);
  meeting = 5 * sqrt (2 * (1 + ratio) / (2 + ratio));
  hertz = [meeting 3 11 25];
  if short, hertz = hertz([1 4]); end
  stiff = @(w, c) stiffness + ratio * stiffness * 1i * w .* c ./ (ratio * stiffness + 1i * w .* c);
  closed = @(f, c) abs (stiff (2 * pi * f, c) ./ (stiff (2 * pi * f, c) - mass * (2 * pi * f) .^ 2));
  % The element carries the machine, the model is a free mass.
  model = qn.modal (0, mass);
  x = qn.observe (model, 1);
  found = zeros (numel (dampers), numel (hertz));
  wanted = found;
  for j = 1:numel (dampers)
    mount = qn.zener ('stiffness', stiffness, 'spring', ratio * stiffness, 'damper', dampers(j));
    for k = 1:numel (hertz)
      found(j, k) = dwell (model, x, mount, hertz(k));
      wanted(j, k) = closed (hertz(k), dampers(j));
    end
  end
  checks = {'transmissibility of the dwells', found ./ wanted, ones(size (found)), 5e-3; ...
            'common point', found(:, 1), (1 + 2 / ratio) * ones(numel (dampers), 1), 5e-3};

  fig = qn.plot.page (900, 560);
  qn.plot.panel (1, 1, 1);
  f = logspace (0, 2, 400);
  for j = 1:numel (dampers)
    loglog (f, closed (f, dampers(j)), '-', 'color', qn.impl.colours (j), 'linewidth', qn.impl.width ());
    hold on;
  end
  loglog (meeting, 1 + 2 / ratio, 's', 'color', [0 0 0], 'markersize', 9, 'linewidth', qn.impl.width ());
  for j = 1:numel (dampers), loglog (hertz, found(j, :), 'o', 'color', qn.impl.colours (j), 'markersize', 7, 'linewidth', 2); end
  axis ([1 100 0.01 10]);
  ticks ([1 2 5 10 20 50 100], [0.01 0.1 1 10]);
  labels ('From the floor to the machine; lines: closed form, circles: simulation', 'Frequency [Hz]', 'Transmissibility [-]', ...
          {'weak damper', 'best damper', 'strong damper', 'common point'}, 'southwest');
  r = finish ('example_isolator', fig, folder, checks, struct ('hertz', hertz, 'found', found, 'wanted', wanted));
  if nargout == 0, tell (r); clear r, end
end

% Settles on a floor that moves by 1 mm; the last four periods are fitted.
function t = dwell (model, x, mount, hertz)
  w = 2 * pi * hertz;
  floor_moves = @(t) 1e-3 * sin (w * t);
  h = 1 / hertz / 800;
  sim = qn.simulation (model, 'step', h, 'until', max (3, 10 / hertz), 'load', {qn.base(model, 1), @(t) -w ^ 2 * floor_moves(t)}, ...
                       'v0', 0, 'elements', {mount, x});
  res = qn.run (sim, 'progress', false);
  late = res.time > res.time(end) - 4 / hertz;
  u = qn.displacement (res, x) + floor_moves (res.time);
  u = u(late);
  angle = w * res.time(late);
  fit = [cos(angle); sin(angle); ones(size (angle))].' \ u.';
  t = norm (fit(1:2)) / 1e-3;
end
