% EXAMPLE_RUB_STATOR  A rotor rubs with friction, in a rigid ring and in one that moves
%
% Story
%   A rotor of 10 kg with its mass 50 um off centre whirls in a ring with 0.1 mm of play. Where it touches, the ring pushes it back and
%   rubs against its rotation. In a rigid ring and in a stator with modes of its own, both below and above the critical speed, the rotor
%   settles on a circle that is larger than the play; a stator that can move changes its radius.
%
% Reference
%   Synchronous whirl with contact and Coulomb friction in the complex plane: rotor and stator under unbalance and the force
%   kc (1 - d/|z|) (1 + i mu) z of their distance z give one equation for its radius (F. F. Ehrich, Handbook of Rotordynamics, 1992; A.
%   Muszynska, Rotordynamics, 2005). For the rigid ring it has a closed form.
%
% Checked
%   Radius of the whirl after 60 turns or more to 0.1 %, in the four runs: with 720 steps a turn the scheme shifts frequencies by 6e-6, and the
%   contact is that of the predictor.
%
% Calls
%   R = example_rub_stator ()
%   R = example_rub_stator (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: shorter runs, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_rub_stator (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  [m, k, c, off, play, kc, mu] = deal (10, 4e6, 632.4555, 5e-5, 1e-4, 2e7, 0.05);
  wn = sqrt (k / m);
  turns = 100;
  if short, turns = 60; end
  stator = struct ('M', 25 * eye (2), 'K', 2e7 * eye (2), 'C', 4000 * eye (2));
  rotor = qn.rotor ('shaft', struct ('M', m * eye (2), 'K', k * eye (2), 'C', c * eye (2), 'places', [1 2]), 'stator', stator);
  at = [0.9 1.2] * wn;
  [rigid, moving, closed, wanted] = deal (zeros (1, 2));
  orbit = cell (1, 2);
  for j = 1:2
    w = at(j);
    [rigid(j), unused] = whirl (rotor, w, m * off, {play, kc, mu}, turns, false);
    [moving(j), orbit{j}] = whirl (rotor, w, m * off, {play, kc, mu}, turns, true);
    [a, b, p, u] = deal (k - m * w ^ 2 + kc, c * w + mu * kc, kc * play, m * off * w ^ 2);
    closed(j) = (p * (a + mu * b) + sqrt ((a ^ 2 + b ^ 2) * u ^ 2 - p ^ 2 * (b - mu * a) ^ 2)) / (a ^ 2 + b ^ 2);
    % Distance z = rotor - stator: z (1 + kc (1 - d/|z|) (1 + i mu) (1/Zr + 1/Zs)) = u / Zr.
    own = k - m * w ^ 2 + 1i * c * w;
    both = 1 / own + 1 / (2e7 - 25 * w ^ 2 + 4000i * w);
    balance = @(x) x * abs (1 + kc * (1 - play / x) * (1 + 1i * mu) * both) - abs (u / own);
    wanted(j) = fzero (balance, play * [1 1.6]);
  end
  checks = {'radius in the rigid ring', rigid, closed, 1e-3; 'distance from the moving stator', moving, wanted, 1e-3};

  fig = qn.plot.page (1000, 480);
  names = {'below the critical speed', 'above it'};
  for j = 1:2
    qn.plot.panel (1, 2, j);
    z = orbit{j};
    turn = exp (1i * linspace (0, 2 * pi, 200));
    plot (1e6 * real (z.rotor), 1e6 * imag (z.rotor), '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
    hold on;
    plot (1e6 * real (z.stator), 1e6 * imag (z.stator), '-', 'color', qn.impl.colours (2), 'linewidth', qn.impl.width ());
    plot (1e6 * play * real (turn), 1e6 * play * imag (turn), '--', 'color', [0 0 0]);
    labels (['Last turns, ' names{j}], 'Across [um]', 'Up [um]', {'rotor', 'stator', 'play'}, 'north');
    axis ('equal');
    axis (1.8e6 * max (abs (z.rotor)) * [-1 1 -1 1]);
  end
  r = finish ('example_rub_stator', fig, folder, checks, struct ('rigid', rigid, 'moving', moving));
  if nargout == 0, tell (r); clear r, end
end

% Mean distance of rotor and ring over the last turns of a run from rest, and their orbits.
function [radius, last] = whirl (rotor, w, me, contact, turns, moves)
  model = qn.modal (rotor, 'speed', w);
  far = [0 0];
  if moves, far = [-1 -1]; end
  rows = [qn.observe(model, [1 3], [1 far(1)]); qn.observe(model, [2 4], [1 far(2)])];
  ring = qn.radial ('gap', contact{1}, 'stiffness', contact{2}, 'friction', contact{3}, 'radius', 0.02, 'speed', w);
  load = qn.unbalance (model, [1 2], me, 'speed', w);
  sim = qn.simulation (model, 'step', 2 * pi / w / 720, 'steps', turns * 720, 'load', load, 'elements', {ring, rows});
  res = qn.run (sim, 'progress', false);
  late = (turns - 4) * 720 + 1:turns * 720;
  u = qn.displacement (res, qn.observe (model, 1:4));
  last = struct ('rotor', u(1, late) + 1i * u(2, late), 'stator', (u(3, late) + 1i * u(4, late)) * moves);
  radius = mean (abs (last.rotor - last.stator));
end
