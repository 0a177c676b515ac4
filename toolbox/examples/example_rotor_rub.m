% EXAMPLE_ROTOR_RUB  Run-up of a rotor through its critical speed, with a ring that it may touch
%
% Story
%   A rotor of 2 kg on a soft shaft, critical at 50 Hz, has its mass 20 um off centre. A retainer ring of 36 pads with 0.2 mm of play
%   keeps it from bending too far on the way. But in the ring the shaft is stiffer: run up to 58 Hz, it goes on whirling in the ring,
%   where without it 0.08 mm of deflection would be left.
%
% Reference
%   Without the ring: Duhamel's integral of the accelerating unbalance (the problem of Lewis, Vibration during acceleration through a
%   critical speed, 1932). In the ring: steady whirl of a Jeffcott rotor, |k + Fc(R)/R - m w^2 + i c w| R = m e w^2 (Childs,
%   Turbomachinery Rotordynamics, 1993), with the force of the pads spread over the circle.
%
% Checked
%   Deflection in the free run-up to 0.4 % of its greatest value: with 170 steps a turn the scheme lowers the critical speed by
%   (w h)^2/12 = 1e-4, which shifts the beats after the peak; half the step leaves a quarter of it. Mean radius of the whirl in the
%   ring to 0.2 %, greatest and smallest to 0.5 %: the shaft rests on 7 of the pads, one more or less in turn.
%
% Calls
%   R = example_rotor_rub ()
%   R = example_rotor_rub (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_rotor_rub (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  up = 3;
  if short, up = 1.5; end
  mass = 2;
  w0 = 2 * pi * 50;
  zeta = 0.03;
  off = 20e-6;
  play = 0.2e-3;
  pads = 36;
  pad = 1e5;
  final = 58;
  model = qn.modal (mass * w0 ^ 2 * eye (2), mass * eye (2), 'damping', zeta);
  % Angle of the shaft, its first and second derivative: steady acceleration, then steady speed.
  rate = 2 * pi * final / up;
  angle = @(t) rate * (min (t, up) .^ 2 / 2 + up * max (t - up, 0));
  speed = @(t) rate * min (t, up);
  push = @(t) mass * off * (speed (t) .^ 2 - 1i * rate * (t < up)) .* exp (1i * angle (t));
  unbalance = {qn.load_at(model, 1), @(t) real(push (t)); qn.load_at(model, 2), @(t) imag(push (t))};
  ring = cell (pads, 2);
  for k = 1:pads
    a = 2 * pi * k / pads;
    ring(k, :) = {qn.gap('gap', play, 'stiffness', pad), qn.observe(model, [1 2], [cos(a) sin(a)])};
  end
  setup = {'step', 1e-4, 'until', up + 1, 'load', unbalance};
  free = qn.run (qn.simulation (model, setup{:}), 'progress', false);
  rub = qn.run (qn.simulation (model, setup{:}, 'elements', ring), 'progress', false);
  bent = abs (qn.displacement (free, 1) + 1i * qn.displacement (free, 2));
  whirl = abs (qn.displacement (rub, 1) + 1i * qn.displacement (rub, 2));
  exact = abs (duhamel (w0, zeta, push (free.time) / mass, free.time));
  late = free.time > up + 0.8;
  % Integral of pad (x cos b - play) cos b over the angles b where it is positive, a pad standing for 10 degrees.
  contact = @(x) pads * pad / (2 * pi) * (x * acos (play / x) - play * sqrt (1 - (play / x) ^ 2));
  w = 2 * pi * final;
  balance = @(x) abs (mass * (w0 ^ 2 - w ^ 2 + 2i * zeta * w0 * w) + contact (x) / x) * x - mass * off * w ^ 2;
  mean_radius = mean (whirl(late));
  radius = fzero (balance, mean_radius * [0.97 1.03]);
  checks = {'free run-up', bent, exact, 4e-3; ...
            'radius of the whirl', mean_radius, radius, 2e-3; ...
            'greatest and smallest radius', [max(whirl(late)), min(whirl(late))], radius * [1 1], 5e-3};

  fig = qn.plot.page (1000, 480);
  qn.plot.panel (1, 2, 1);
  wide = qn.impl.width ();
  at = 1:20:numel (free.time);
  plot (free.time(at), 1e6 * bent(at), '-', 'color', [0.65 0.65 0.65], 'linewidth', wide);
  hold on;
  plot (rub.time(at), 1e6 * whirl(at), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  plot ([0 up + 1], 1e6 * play * [1 1], '--', 'color', [0 0 0]);
  axis ([0, up + 1, 0, 400]);
  labels (sprintf ('Run-up to %d Hz, then steady', final), 'Time [s]', 'Deflection [um]', {'free', 'in the ring', 'play'}, 'northwest');
  qn.plot.panel (1, 2, 2);
  first = find (whirl > 0.6 * play, 1);
  entry = rub;
  entry.q = rub.q(:, first:first + 4000);
  qn.plot.orbit (entry, 1, 2, play);
  title ('The shaft enters the ring');
  r = finish ('example_rotor_rub', fig, folder, checks, struct ('radius', radius, 'free', mean (bent(late))));
  if nargout == 0, tell (r); clear r, end
end

% x'' + 2 zeta w x' + w^2 x = P from rest, by the integral over what came before.
function x = duhamel (w, zeta, p, t)
  wd = w * sqrt (1 - zeta ^ 2);
  pole = -zeta * w + 1i * wd;
  half = @(s) exp (s * t) .* cumtrapz (t, p .* exp (-s * t));
  x = (half (pole) - half (conj (pole))) / (2i * wd);
end
