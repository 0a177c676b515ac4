% EXAMPLE_DUFFING_BACKBONE  A hardening resonance: backbone, folded curve, and two sweeps that jump
%
% Story
%   A mass on leaf springs of 10 Hz whose stiffness grows with the square of the deflection. Its resonance leans to the right, along
%   the backbone. Shaken with rising frequency it climbs to the tip and falls off; with falling frequency it stays low and jumps up
%   elsewhere. qn.backbone and qn.harmonic find the curves, the unstable part between them too; qn.run drives the two sweeps.
%
% Reference
%   x'' + w0^2 (x + x^3/a^2) = 0 from rest at A: w = w0 pi sqrt (1 + s)/(2 K(m)), s = A^2/a^2, m = s/(2 + 2 s) (Abramowitz and
%   Stegun, Handbook, 17.1 and 17.3; Duffing, Erzwungene Schwingungen, 1918).
%
% Checked
%   Backbone to 0.01 %: seven harmonics leave out less than 1e-5. Sweeps against harmonic balance to 1 %, where they have settled: a
%   sweep lags behind by about what it moves in the damping time, 0.1 Hz. Frequencies of the two jumps to 3 %: the sweep goes on by
%   several times as much while the motion grows or decays.
%
% Calls
%   R = example_duffing_backbone ()
%   R = example_duffing_backbone (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_duffing_backbone (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  last = 120;
  if short, last = 60; end
  w0 = 2 * pi * 10;
  a = 1e-3;
  model = qn.modal (w0 ^ 2, 1, 'damping', 0.025);
  x = qn.observe (model, 1);
  spring = {qn.cubic('stiffness', w0 ^ 2 / a ^ 2), x};
  force = 0.1 * w0 ^ 2 * a;
  range = [5 20];

  amplitude = a * (0.02:0.04:1.7);
  free = qn.backbone (model, spring, amplitude);
  s = (amplitude / a) .^ 2;
  exact = 10 * pi * sqrt (1 + s) ./ (2 * ellipke (s ./ (2 + 2 * s)));
  forced = qn.harmonic (model, qn.load_at (model, 1) * force, spring, range, 'points', 1500);
  [tip, at] = max (forced.amplitude);
  folded = find (diff (forced.hertz) < 0);
  fold = forced.hertz(folded([1 end]) + [0 1]);
  [up_hertz, up] = sweep (model, x, spring, force, range, last);
  [down_hertz, down] = sweep (model, x, spring, force, fliplr (range), last);
  upper = 1:folded(1);
  settled = up_hertz > 8 & up_hertz < 0.9 * fold(1);
  lower = folded(end) + 1:numel (forced.hertz);
  low = down_hertz > 1.1 * fold(2) & down_hertz < 19;
  % Where a sweep changes most from one period to the next.
  [unused, fall] = min (diff (up));
  [unused, rise] = max (diff (down));
  checks = {'backbone', free, exact, 1e-4; ...
            'upper branch', up(settled), interp1(forced.hertz(upper), forced.amplitude(upper), up_hertz(settled)), 0.01; ...
            'lower branch', down(low), interp1(forced.hertz(lower), forced.amplitude(lower), down_hertz(low)), 0.01; ...
            'jump down', up_hertz(fall), fold(1), 0.03; ...
            'jump up', down_hertz(rise), fold(2), 0.03};

  fig = qn.plot.page (900, 560);
  qn.plot.panel (1, 1, 1);
  wide = qn.impl.width ();
  plot (forced.hertz, 1e3 * forced.amplitude, '-', 'color', [0.6 0.6 0.6], 'linewidth', wide);
  hold on;
  plot (free, 1e3 * amplitude, '--', 'color', [0 0 0]);
  k = 1:ceil (numel (up) / 150):numel (up);
  plot (up_hertz(k), 1e3 * up(k), '.', 'color', qn.impl.colours (1), 'markersize', 8);
  plot (down_hertz(k), 1e3 * down(k), '.', 'color', qn.impl.colours (2), 'markersize', 8);
  axis ([range, 0, 1.8]);
  labels ('Duffing resonance', 'Frequency [Hz]', 'Amplitude [mm]', {'harmonic balance', 'backbone', 'sweep up', 'sweep down'}, 'northwest');
  r = finish ('example_duffing_backbone', fig, folder, checks, struct ('tip', [forced.hertz(at), tip], 'fold', fold));
  if nargout == 0, tell (r); clear r, end
end

% Amplitude over periods of a linear sweep, one value for each fifth of a second.
function [hertz, amplitude] = sweep (model, x, spring, force, range, last)
  rate = diff (range) / last;
  signal = @(t) force * cos (2 * pi * (range(1) * t + rate / 2 * t .^ 2));
  sim = qn.simulation (model, 'step', 4e-4, 'until', last, 'load', {qn.load_at(model, 1), signal}, 'elements', spring);
  u = qn.displacement (qn.run (sim, 'progress', false), x);
  blocks = reshape (abs (u(2:end)), 500, []);
  amplitude = max (blocks, [], 1);
  hertz = range(1) + rate * 0.2 * ((1:numel (amplitude)) - 0.5);
end
