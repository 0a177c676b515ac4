% EXAMPLE_OIL_WHIRL  Onset of oil whirl of a rotor in journal bearings
%
% Story
%   A rotor of 70 kg runs in two short journal bearings. Their oil film carries the weight, but it also pushes the journal around: above
%   some speed forward whirl at about half the speed of rotation is not damped any more. The linear theory with stiffness and damping of
%   the film says where; two runs with the whole film, 4 % below and 4 % above, show a disturbance die out and grow.
%
% Reference
%   Poles of the rotor with the stiffness and damping of a short bearing with a ruptured film (Ocvirk, 1952) at its equilibrium under the weight,
%   from qn.campbell with qn.journal_coefficients: onset speed, and growth rates at the speeds of the runs.
%
% Checked
%   Growth rates of the runs to 4 % of the greater one, the onset speed between them, by a straight line, to 0.3 %, and the whirl
%   frequency to 0.1 %: forces of elements are those at the predictor, which takes 0.1 1/s of growth at a step of 8 us.
%
% Calls
%   R = example_oil_whirl ()
%   R = example_oil_whirl (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: longer steps, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_oil_whirl (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  h = 5e-6;
  if short, h = 8e-6; end
  shaft = {'nodes', linspace(0, 0.8, 9), 'outer', 0.06, 'disks', [1 6 0.01 0.01; 5 40 0.225 0.45; 9 6 0.01 0.01]};
  bare = qn.rotor (shaft{:});
  up = bare.places(:, 2);
  weight = 9.81 * sum (sum (bare.M(up, up)));
  film = @(w) qn.journal ('viscosity', 0.02, 'length', 0.025, 'diameter', 0.06, 'clearance', 8e-5, 'speed', w);
  stands = @(w) qn.journal_coefficients (film (w), [0 -weight / 2]);
  rotor = qn.rotor (shaft{:}, 'bearings', {1, stands; 9, stands});
  d = qn.campbell (rotor, (5800:350:7200) * pi / 30, 'modes', 4);
  onset = d.unstable(1);

  at = [0.96 1.04] * onset.speed;
  [linear, growth, whirl] = deal (zeros (1, 2));
  swing = cell (1, 2);
  for k = 1:2
    s = qn.rotor (rotor, 'speed', at(k));
    n = size (s.M, 1);
    pole = eig ([zeros(n), eye(n); -(s.M \ [s.K, s.C + at(k) * s.G])]);
    pole = pole(imag (pole) > 0);
    [linear(k), j] = max (real (pole));
    swing{k} = disturbed (bare, film (at(k)), stands (at(k)), at(k), h);
    [growth(k), whirl(k)] = rate_of (swing{k}, imag (pole(j)));
    whirl(k) = whirl(k) / imag (pole(j));
  end
  between = at(1) - growth(1) * (at(2) - at(1)) / (growth(2) - growth(1));
  checks = {'growth rates', growth, linear, 0.04; 'onset speed', between, onset.speed, 3e-3; ...
            'whirl frequency', whirl, [1 1], 1e-3};

  fig = qn.plot.page (1000, 480);
  qn.plot.panel (1, 2, 1);
  wide = qn.impl.width ();
  plot (d.speed * 30 / pi, real (d.pole(onset.mode, :)), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  hold on;
  plot (at * 30 / pi, growth, 'o', 'color', qn.impl.colours (2), 'linewidth', 2);
  plot (d.speed([1 end]) * 30 / pi, [0 0], '-', 'color', [0 0 0]);
  labels ('Growth of forward whirl', 'Speed of rotation [rpm]', 'Growth rate [1/s]', {'linear film', 'runs'}, 'northwest');
  qn.plot.panel (1, 2, 2);
  for k = [2 1]
    x = swing{k};
    plot (x.time, 1e6 * x.motion, '-', 'color', qn.impl.colours (3 - k));
    hold on;
  end
  labels ('Disk after a light blow', 'Time [s]', 'Displacement [um]', {'4 % above', '4 % below'}, 'northwest');
  r = finish ('example_oil_whirl', fig, folder, checks, struct ('rpm', onset.speed * 30 / pi, 'ratio', onset.whirl / onset.speed));
  if nargout == 0, tell (r); clear r, end
end

% Run from the equilibrium in the film, with a light blow sideways: time and motion of the disk around its place.
function x = disturbed (bare, film, stand, speed, h)
  model = qn.modal (bare, 'speed', speed, 'modes', 8);
  count = size (bare.places, 1);
  load = qn.gravity (model, kron (ones (count, 1), [0; -1; 0; 0]), 'g', 9.81);
  films = {film, qn.observe(model, bare.places(1, 1:2)); film, qn.observe(model, bare.places(count, 1:2))};
  near = model.shapes.' * bare.M * kron (ones (count, 1), [stand.position; 0; 0]);
  rest = qn.static (model, load{1}, films, near);
  sim = qn.simulation (model, 'step', h, 'until', 0.4, 'load', load, 'elements', films, 'q0', rest, ...
                       'v0', kron (ones (count, 1), [2e-4; 0; 0; 0]));
  res = qn.run (sim, 'progress', false);
  u = qn.displacement (res, bare.places(5, 1));
  x = struct ('time', res.time, 'motion', u - u(1));
end

% Growth rate and frequency after 0.1 s: logarithm and phase of the motion against exp (1i w t) over eight turns, early and late.
function [rate, w] = rate_of (x, w)
  h = x.time(2) - x.time(1);
  n = round (8 * 2 * pi / w / h);
  first = find (x.time >= 0.1, 1);
  last = numel (x.time) - n;
  window = 1 - cos (2 * pi * (0:n - 1) / n);
  part = @(k) sum (window .* x.motion(k:k + n - 1) .* exp (-1i * w * x.time(k:k + n - 1)));
  ratio = part (last) / part (first);
  rate = log (abs (ratio)) / (x.time(last) - x.time(first));
  w = w + angle (ratio) / (x.time(last) - x.time(first));
end
