% EXAMPLE_SQUEEZE_FILM  A squeeze film damper calms a rotor on a soft mount
%
% Story
%   A rotor of 20 kg stands on soft springs with a critical speed of 60 Hz and hardly any damping. A film of oil of 0.1 mm around the outer
%   ring of its bearing, which does not turn, is squeezed when it whirls. At the critical speed the orbit takes two
%   fifths of the clearance; without oil its radius would be thirty clearances. The wider the orbit, the stiffer the film.
%
% Reference
%   Circular centred orbit of the radius e c in a short damper with a ruptured film: damping mu R (L/c)^3 (pi/2)/(1 - e^2)^1.5 and stiffness
%   2 mu W R (L/c)^3 e/(1 - e^2)^2 (R. Holmes, J. Mechanical Engineering Science 14, 1972; J. M. Vance, Rotordynamics of Turbomachinery,
%   1988), with which the unbalance gives one equation for e.
%
% Checked
%   Radius of the orbit at six speeds to 0.4 % of the greatest one, with 720 steps a turn: the film is that of the predictor. The orbit is a
%   circle to 0.2 %.
%
% Calls
%   R = example_squeeze_film ()
%   R = example_squeeze_film (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: fewer speeds, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_squeeze_film (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  [m, w0, c, mu, radius, l] = deal (20, 2 * pi * 60, 1e-4, 0.003, 0.06, 0.03);
  me = 1.2e-3;
  model = qn.modal (m * w0 ^ 2 * eye (2), m * eye (2), 'damping', 0.01);
  film = qn.journal ('viscosity', mu, 'length', l, 'radius', radius, 'clearance', c, 'speed', 0);
  hertz = [30 45 55 60 70 100];
  if short, hertz = [45 60 100]; end
  [seen, round_it] = deal (zeros (size (hertz)));
  for j = 1:numel (hertz)
    w = 2 * pi * hertz(j);
    load = qn.unbalance (model, [1 2], me, 'speed', w);
    sim = qn.simulation (model, 'step', 2 * pi / w / 720, 'steps', 40 * 720, 'load', load, 'elements', {film, qn.observe(model, [1 2])});
    res = qn.run (sim, 'progress', false);
    u = qn.displacement (res, qn.observe (model, 1:2));
    z = abs (u(1, end - 719:end) + 1i * u(2, end - 719:end));
    seen(j) = mean (z) / c;
    round_it(j) = max (z) / min (z);
    if hertz(j) == 60, settling = res; end
  end
  g = mu * radius * (l / c) ^ 3;
  film_of = @(e, w) 2 * w * g * e / (1 - e ^ 2) ^ 2 + 1i * w * g * pi / 2 / (1 - e ^ 2) ^ 1.5;
  alone = @(w) m * (w0 ^ 2 - w ^ 2) + 0.02i * m * w0 * w;
  orbit = @(w) fzero (@(e) abs (alone (w) + film_of (e, w)) * e * c - me * w ^ 2, [0 0.999]);
  wanted = arrayfun (@(f) orbit (2 * pi * f), hertz);
  checks = {'radius of the orbit', seen, wanted, 4e-3; 'greatest by smallest radius', round_it, ones(size (hertz)), 2e-3};

  fig = qn.plot.page (1000, 480);
  qn.plot.panel (1, 2, 1);
  wide = qn.impl.width ();
  fine = 20:0.5:110;
  plot (fine, arrayfun (@(f) orbit (2 * pi * f), fine), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  hold on;
  plot (hertz, seen, 'o', 'color', qn.impl.colours (2), 'linewidth', 2);
  plot (fine, arrayfun (@(f) me * (2 * pi * f) ^ 2 / abs (alone (2 * pi * f)) / c, fine), '--', 'color', [0.5 0.5 0.5]);
  axis ([20 110 0 1]);
  labels ('Orbit by the clearance', 'Speed of rotation [Hz]', 'Radius / clearance', {'closed form', 'runs', 'without oil'}, 'northeast');
  qn.plot.panel (1, 2, 2);
  qn.plot.orbit (settling, qn.observe (model, 1), qn.observe (model, 2), c);
  title ('Settling at the critical speed');
  r = finish ('example_squeeze_film', fig, folder, checks, struct ('hertz', hertz, 'radius', seen));
  if nargout == 0, tell (r); clear r, end
end
