% EXAMPLE_PIPE_SUPPORTS  A pipe that rattles in its guides
%
% Story
%   A water-filled steel pipe, 60.3 x 3.6 mm, hinged 3 m apart, runs through two guides at its thirds with 1 mm of play. A pump
%   shakes it in the middle. Free, it would resonate at 15 Hz; with the guides the resonance bends to higher frequencies, and the
%   guides are hit twice a period.
%
% Reference
%   Frequencies (j pi/L)^2 sqrt (EI/m) of the hinged beam (Blevins, Formulas for Natural Frequency and Mode Shape, 1979); static
%   deflection from the influence lines of the hinged beam (Timoshenko, Strength of Materials, 1930), with both guides closed; the
%   rattling against harmonic balance with contact forces in 9 harmonics (Cameron and Griffin, 1989).
%
% Checked
%   Three frequencies to 0.05 %: cubic elements are off by (3 pi/12)^4/1440 = 3e-4 at the third. Static deflection to 1e-6: they are
%   exact at their nodes. Amplitude in the middle, swept up through the contact, to 1.5 % of the greatest: 0.5 % nearly
%   everywhere, and more where the guides begin to touch and the swept motion has to catch up with the kink.
%
% Calls
%   R = example_pipe_supports ()
%   R = example_pipe_supports (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_pipe_supports (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  last = 40;
  if short, last = 20; end
  l = 3;
  outer = 0.0603;
  inner = outer - 2 * 0.0036;
  ei = 210e9 * pi / 64 * (outer ^ 4 - inner ^ 4);
  mass = pi / 4 * (7850 * (outer ^ 2 - inner ^ 2) + 1000 * inner ^ 2);
  [k, m] = straight_beam (12, l, ei, mass);
  hinged = [2:24, 26];
  place = @(node) find (hinged == 2 * node - 1);
  guide = qn.stop ('gap', 1e-3, 'stiffness', 4e5);

  % Under a weight in the middle, with all modes: with reaction R of each guide, w = P a(1/3, 1/2) - R (a(1/3, 1/3) + a(1/3, 2/3)).
  all_modes = qn.modal (k(hinged, hinged), m(hinged, hinged));
  weight = [50 500 2000];
  lines = @(x, a) x * (l - a) * (l ^ 2 - (l - a) ^ 2 - x ^ 2) / (6 * ei * l);
  give = [lines(l / 3, l / 2), lines(l / 3, l / 3) + lines(l / 3, 2 * l / 3), lines(l / 2, l / 2)];
  sag = zeros (1, 3);
  exact = sag;
  for j = 1:3
    q = qn.static (all_modes, qn.load_at (all_modes, place (7)) * weight(j), guides (all_modes, guide, place));
    sag(j) = qn.observe (all_modes, place (7)) * q;
    reaction = max (0, 4e5 * (weight(j) * give(1) - 1e-3) / (1 + 4e5 * give(2)));
    exact(j) = weight(j) * give(3) - 2 * reaction * give(1);
  end

  model = qn.modal (k(hinged, hinged), m(hinged, hinged), 'modes', 5, 'damping', 0.04);
  middle = qn.observe (model, place (7));
  push = qn.load_at (model, place (7)) * 30;
  range = [8 32];
  pair = guides (model, guide, place);
  steady = qn.harmonic (model, push, pair, range, 'harmonics', 9, 'points', 1000);
  amplitude = peak_of (steady, middle);
  free = 2 * pi * (range(1):0.05:range(2));
  alone = abs (middle * bsxfun (@rdivide, push, bsxfun (@minus, model.stiffness, free .^ 2) + 1i * model.damping * free));
  rate = diff (range) / last;
  signal = @(t) cos (2 * pi * (range(1) * t + rate / 2 * t .^ 2));
  res = qn.run (qn.simulation (model, 'step', 1e-4, 'until', last, 'load', {push, signal}, 'elements', pair), 'progress', false);
  u = qn.displacement (res, middle);
  swept = max (abs (reshape (u(2:end), 1000, [])), [], 1);
  hertz = range(1) + rate * 0.1 * ((1:numel (swept)) - 0.5);
  [top, fold] = max (amplitude);
  settled = hertz > 11 & hertz < 0.9 * steady.hertz(fold);
  wanted = interp1 (steady.hertz(1:fold), amplitude(1:fold), hertz(settled));
  checks = {'frequencies', all_modes.w(1:3).', (pi * (1:3) / l) .^ 2 * sqrt(ei / mass), 5e-4; ...
            'static deflection', sag, exact, 1e-6; ...
            'amplitude in the sweep', swept(settled), wanted, 0.015};

  fig = qn.plot.page (1000, 430);
  qn.plot.panel (1, 2, 1);
  wide = qn.impl.width ();
  plot (free / (2 * pi), 1e3 * alone, '-', 'color', [0.75 0.75 0.75], 'linewidth', wide);
  hold on;
  plot (steady.hertz, 1e3 * amplitude, '-', 'color', [0 0 0], 'linewidth', wide);
  plot (hertz, 1e3 * swept, '.', 'color', qn.impl.colours (1), 'markersize', 8);
  axis ([range, 0, 5]);
  labels ('Middle of the pipe', 'Frequency [Hz]', 'Amplitude [mm]', {'no guides', 'harmonic balance', 'sweep'}, 'northeast');
  qn.plot.panel (1, 2, 2);
  now = find (hertz > 0.9 * steady.hertz(fold), 1) * 1000 + (1:1500);
  plot (1e3 * (res.time(now) - res.time(now(1))), res.force(1, now), '-', 'color', qn.impl.colours (2), 'linewidth', wide);
  axis ([0 150]);
  labels ('Force of one guide', 'Time [ms]', 'Force [N]');
  r = finish ('example_pipe_supports', fig, folder, checks, struct ('fold', [steady.hertz(fold), top], 'sag', sag));
  if nargout == 0, tell (r); clear r, end
end

function list = guides (model, guide, place)
  list = {guide, qn.observe(model, place (5)); guide, qn.observe(model, place (9))};
end

% Greatest value of the observed motion over a period, from the harmonics of the modes.
function a = peak_of (r, row)
  angle = 2 * pi * (0:255) / 256;
  a = zeros (size (r.hertz));
  for k = 1:numel (a)
    c = row * reshape (r.cosines(:, k, :), numel (row), []);
    s = row * reshape (r.sines(:, k, :), numel (row), []);
    order = (0:numel (c) - 1).';
    a(k) = max (abs (c * cos (order * angle) + s * sin (order * angle)));
  end
end
