% EXAMPLE_BLADED_DISC  Friction dampers under the blades of a turbine disc, and how hard to press them
%
% Story
%   Twelve blades on an elastic disc are excited by three gas jets a turn (third engine order), a wave that runs around. Under each
%   platform sits a friction damper. Pressed too lightly it slides without taking much out, too hard it sticks and is a spring only;
%   in between there is a force with which the resonance is least. It is found by harmonic balance, and twelve blades run in time prove it.
%
% Reference
%   First harmonic of the elastic-sliding damper (Griffin, Friction damping of resonant stresses in gas turbine engine airfoils,
%   1980): with slip at z = F/kd and amplitude A, cos b = 1 - 2 z/A: stiffness kd/pi (b - sin (2 b)/2), loss 4 F (A - z)/(pi A^2).
%
% Checked
%   Amplitude of the blades at the resonances of harmonic balance to 0.5 %: 400 periods leave exp (-7.5) = 6e-4 of the transient, 200
%   steps a period detune the resonance by a seventieth of its width, and the first harmonic leaves out little, as mass and not
%   friction rules the third. Spread between the blades to 0.1 %: the wave is the same for all.
%
% Calls
%   R = example_bladed_disc ()
%   R = example_bladed_disc (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_bladed_disc (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  blades = 12;
  order = 3;
  mass = 0.3;
  stiffness = mass * (2 * pi * 200) ^ 2;
  coupling = 0.05 * stiffness;
  damper = 0.2 * stiffness;
  zeta = 0.003;
  jet = 10;
  ring = circshift (eye (blades), 1) + circshift (eye (blades), -1);
  model = qn.modal ((stiffness + 2 * coupling) * eye (blades) - coupling * ring, mass * eye (blades), 'damping', zeta);
  around = 2 * pi * order * (0:blades - 1) / blades;
  wave = {qn.load_at(model, 1:blades, cos (around)), qn.load_at(model, 1:blades, sin (around))};
  % What one blade of the wave feels: its own stiffness and that of the disc bent in three waves.
  k = stiffness + 2 * coupling * (1 - cos (2 * pi * order / blades));
  limits = [0.5 3 6 9 14 20 35 60 100 160];
  if short, limits = [3 14 60]; end
  found = zeros (1, numel (limits));
  spread = found;
  wanted = found;
  for j = 1:numel (limits)
    [wanted(j), w] = resonance (k, mass, zeta, damper, limits(j), jet);
    sliders = cell (blades, 2);
    for b = 1:blades, sliders(b, :) = {qn.slider('slip', limits(j), 'stiffness', damper), qn.observe(model, b)}; end
    h = 2 * pi / w / 200;
    sim = qn.simulation (model, 'step', h, 'steps', 200 * 400, 'load', {wave{1}, @(t) jet * cos(w * t); wave{2}, @(t) jet * sin(w * t)}, ...
                         'elements', sliders, 'times', h * (200 * 395:200 * 400));
    res = qn.run (sim, 'progress', false);
    each = max (abs (qn.displacement (res, qn.observe (model, 1:blades))), [], 2);
    found(j) = mean (each);
    spread(j) = (max (each) - min (each)) / found(j);
  end
  [least, at] = min (found);
  checks = {'amplitude at the resonances', found ./ wanted, ones(size (found)), 5e-3; ...
            'spread between the blades', spread, zeros(size (spread)), 1e-3};

  fig = qn.plot.page (1000, 450);
  wide = qn.impl.width ();
  qn.plot.panel (1, 2, 1);
  shown = [0.5 5 20 90];
  names = cell (1, 4);
  for j = 1:4
    [top, w] = resonance (k, mass, zeta, damper, shown(j), jet);
    a = top * [linspace(0.002, 0.9, 200), 1 - 0.1 * linspace(1, 0, 200) .^ 2];
    [unused, w, side] = balance (a, k, mass, zeta, damper, shown(j), jet);
    hertz = [sqrt(w .^ 2 - side / mass), fliplr(sqrt(w .^ 2 + side / mass))] / (2 * pi);
    semilogy (hertz, 1e3 * [a, fliplr(a)], '-', 'color', qn.impl.colours (j), 'linewidth', wide);
    hold on;
    names{j} = sprintf ('%g N', shown(j));
  end
  axis ([190 240 0.03 10]);
  labels ('Slip force 0.5 to 90 N', 'Frequency [Hz]', 'Amplitude of a blade [mm]', names, 'northwest');
  ticks (190:10:240, [0.03 0.1 0.3 1 3 10]);
  qn.plot.panel (1, 2, 2);
  force = logspace (-0.5, 2.3, 150);
  line_of = zeros (1, 150);
  for j = 1:150, line_of(j) = resonance (k, mass, zeta, damper, force(j), jet); end
  loglog (force, 1e3 * line_of, '-', 'color', [0 0 0], 'linewidth', wide);
  hold on;
  loglog (limits, 1e3 * found, 'o', 'color', qn.impl.colours (2), 'markersize', 7, 'linewidth', wide);
  axis ([0.3 200 0.1 10]);
  ticks ([0.3 1 3 10 30 100], [0.1 0.3 1 3 10]);
  labels ('Highest point of the resonance', 'Slip force [N]', 'Amplitude of a blade [mm]', ...
          {'harmonic balance', 'twelve blades in time'}, 'northeast');
  r = finish ('example_bladed_disc', fig, folder, checks, struct ('best', limits(at), 'least', least, 'limits', limits, 'found', found));
  if nargout == 0, tell (r); clear r, end
end

% Greatest amplitude of the first-harmonic answer, and the frequency where it is.
function [a, w] = resonance (k, mass, zeta, damper, slip, jet)
  a = fzero (@(a) balance (a, k, mass, zeta, damper, slip, jet), [1e-9, 1.001 * jet / (2 * zeta * k)]);
  [unused, w] = balance (a, k, mass, zeta, damper, slip, jet);
end

% What amplitude A lacks in load at its resonance W, and how far from there, in N/m, the load just makes it.
function [lack, w, side] = balance (a, k, mass, zeta, damper, slip, jet)
  z = slip / damper;
  share = min (z ./ a, 1);
  b = acos (1 - 2 * share);
  w = sqrt ((k + damper / pi * (b - sin (2 * b) / 2)) / mass);
  loss = 2 * zeta * sqrt (k * mass) * w + 4 * slip * (1 - share) ./ (pi * a);
  lack = a .* loss - jet;
  side = sqrt (max ((jet ./ a) .^ 2 - loss .^ 2, 0));
end
