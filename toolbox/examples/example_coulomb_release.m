% EXAMPLE_COULOMB_RELEASE  A mass on a spring rubs, turns back four times and sticks
%
% Story
%   A block of 1 kg on a spring of 10 N/mm rubs with 1 N on its guide. Pulled by 0.85 mm and let go, it loses 0.2 mm in every half
%   swing, in a straight line instead of the exponential of viscous damping, until the spring is weaker than the friction: it stays
%   where it is, 0.05 mm from the middle. Friction is a qn.slider, a stiff spring that carries no more than 1 N.
%
% Reference
%   Turning points k pi/100 s after the release, each 2 F/k nearer to the middle (Den Hartog, Mechanical Vibrations, 1934); numbers
%   of the validation case SDND100 of Code_Aster.
%
% Checked
%   The four turning points and the rest position to 0.1 %: the sliding contact has a stiffness of its own, 4000 times that of the
%   spring, whose stretch of 25 nm shifts them by less. The friction's energy against slip force times path to 0.2 %, as the path is
%   counted from the first movement and friction takes 25 nm to build up after each turn.
%
% Calls
%   R = example_coulomb_release ()
%   R = example_coulomb_release (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_coulomb_release (folder, short) %#ok<INUSD> a fraction of a second needs no short form
  if nargin < 1, folder = ''; end
  ready (folder);
  model = qn.modal (1e4, 1);
  x = qn.observe (model, 1);
  friction = qn.slider ('slip', 1, 'stiffness', 4e7);
  sim = qn.simulation (model, 'step', 1e-6, 'until', 0.16, 'u0', 0.85e-3, 'elements', {friction, x});
  res = qn.run (sim, 'progress', false);
  u = qn.displacement (res, x);
  turns = 1 + round ((1:4) * pi / 100 / sim.step);
  d = qn.dissipated (res);
  path = sum (abs (diff (u)));
  checks = {'turning points', u(turns), [-6.5 4.5 -2.5 0.5] * 1e-4, 1e-3; ...
            'rest position', u(end), 0.5e-4, 1e-3; ...
            'dissipated energy over slip force times path', d(1).dissipated(end) / path, 1, 2e-3};

  fig = qn.plot.page (1000, 430);
  wide = qn.impl.width ();
  qn.plot.panel (1, 2, 1);
  t = 1e3 * res.time;
  k = 1:200:numel (t);
  envelope = max (0.85 - 0.2 * t / (10 * pi), 0.05);
  plot (t(k), 1e3 * u(k), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  hold on;
  for side = [1 -1], plot (t(k), side * envelope(k), '--', 'color', [0.5 0.5 0.5]); end
  plot (t(turns), [-0.65 0.45 -0.25 0.05], 'o', 'color', qn.impl.colours (2), 'markersize', 7, 'linewidth', wide);
  axis ([0 160 -1 1]);
  labels ('Released, sliding, stuck', 'Time [ms]', 'Displacement [mm]');
  qn.plot.panel (1, 2, 2);
  f = res.force(k);
  plot (1e3 * u(k), f, '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  axis ([-1 1 -1.4 1.4]);
  labels ('Friction force', 'Displacement [mm]', 'Force [N]');
  r = finish ('example_coulomb_release', fig, folder, checks, struct ('turns', u(turns), 'rest', u(end)));
  if nargout == 0, tell (r); clear r, end
end
