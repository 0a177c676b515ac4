% EXAMPLE_RUN_UP  Run-up of a rotor through two critical speeds, with the gyroscopic matrix of every moment
%
% Story
%   A shaft carries a heavy disk between its bearings and one that hangs over. Run up to 4000 rpm it passes two critical speeds of forward
%   whirl. The disks resist being tilted the more the faster they turn: with the matrices of standstill the resonances would come too
%   early, the first by 6 %, the second by 3 %.
%
% Reference
%   Integration of its own: the plane of the shaft in complex coordinates x + i y, four modes, M z'' + (C - i W(t) G) z' + K z = m e (W^2 - i A)
%   exp (i th), by the method of Runge and Kutta of fourth order (problem of F. M. Lewis, Vibration during acceleration through a
%   critical speed, 1932). The critical speeds of qn.campbell against K x = W^2 (M - i G) x, without damping.
%
% Checked
%   Deflection of the overhung disk over the whole run-up to 0.1 % of its greatest value: a step of 25 us shifts a mode of 40 Hz by 3e-6
%   and one of 200 Hz by 8e-5. The critical speeds to 0.1 %, which is what the damping shifts them by.
%
% Calls
%   R = example_run_up ()
%   R = example_run_up (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a faster run-up, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_run_up (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  up = 4;
  if short, up = 1; end
  rotor = qn.rotor ('nodes', linspace (0, 1, 7), 'outer', 0.04, 'cylinders', [3 0.05 0.3 0.04 7850; 7 0.03 0.32 0.04 7850], ...
                    'bearings', {1, 5e6, 900; 6, 5e6, 900});
  table = [0 up; 0 4000 * pi / 30];
  disk = rotor.places(7, 1:2);
  me = 1e-4;
  model = qn.modal (rotor, 'speed', 0, 'modes', 8);
  load = qn.unbalance (model, disk, me, 'profile', table);
  set_up = {'step', 2.5e-5, 'until', up, 'load', load, 'every', 4};
  res = qn.run (qn.simulation (model, set_up{:}, 'speed', table), 'progress', false);
  % Without its gyroscopic matrix, for comparison: qn.check would warn of it (unbalance_speed).
  still = qn.run (qn.simulation (model, set_up{:}), 'progress', false, 'check', false);
  bent = @(res) abs ([1 1i] * qn.displacement (res, qn.observe (model, disk)));
  found = bent (res);
  exact = abs (by_hand (rotor, 7, me, table, res.time));
  d = qn.campbell (rotor, table(2, 2) * (0:0.25:1), 'modes', 4);
  forward = d.critical([d.critical.direction] > 0);
  speed = res.time * table(2, 2) / up;
  first = speed < (forward(1).speed + forward(2).speed) / 2;
  [unused, top] = max (found .* first);
  checks = {'deflection of the overhung disk', found, exact, 1e-3; ...
            'forward critical speeds', [forward.speed], undamped(rotor, forward), 1e-3};

  fig = qn.plot.page (1000, 480);
  wide = qn.impl.width ();
  rpm = speed * 30 / pi;
  at = 1:10:numel (rpm);
  without = bent (still);
  plot (rpm(at), 1e6 * without(at), '-', 'color', [0.65 0.65 0.65], 'linewidth', wide);
  hold on;
  plot (rpm(at), 1e6 * found(at), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
  high = 1.2e6 * max (found);
  for c = forward, plot (c.speed * 30 / pi * [1 1], [0 high], '--', 'color', [0 0 0]); end
  axis ([0 4000 0 high]);
  labels (sprintf ('Run-up to 4000 rpm in %g s', up), 'Speed of rotation [rpm]', 'Deflection of the overhung disk [um]', ...
          {'matrices of standstill', 'gyroscopic matrix of the moment', 'forward critical speeds'}, 'northwest');
  r = finish ('example_run_up', fig, folder, checks, struct ('rpm', [forward.speed] * 30 / pi, 'top', speed(top) * 30 / pi));
  if nargout == 0, tell (r); clear r, end
end

% Roots of K x = W^2 (M - i G) x next to the critical speeds that were found.
function w = undamped (rotor, found)
  all = eig (rotor.K, rotor.M - 1i * rotor.G);
  all = sqrt (real (all(real (all) > 0)));
  w = zeros (size (found));
  for k = 1:numel (found)
    [unused, j] = min (abs (all - found(k).speed));
    w(k) = all(j);
  end
end

% Deflection x + i y of a node at evenly spaced times, in the four lowest modes of one plane, by Runge and Kutta's method.
function z = by_hand (rotor, node, me, table, time)
  one = reshape (rotor.places(:, [1 4]).', 1, []);
  other = reshape (rotor.places(:, [2 3]).', 1, []);
  [shapes, squares] = eig (rotor.K(one, one), rotor.M(one, one));
  [squares, order] = sort (real (diag (squares)));
  shapes = shapes(:, order(1:4));
  shapes = shapes / sqrt (diag (diag (shapes.' * rotor.M(one, one) * shapes)));
  % In the other plane slopes count the other way round.
  g = shapes.' * rotor.G(one, other) * diag (repmat ([1 -1], 1, numel (one) / 2)) * shapes;
  c = shapes.' * rotor.C(one, one) * shapes;
  k = diag (squares(1:4));
  row = shapes(2 * node - 1, :);
  rate = table(2, 2) / table(1, 2);
  push = @(t) me * row.' * (rate ^ 2 * t ^ 2 - 1i * rate) * exp (0.5i * rate * t ^ 2);
  slope = @(t, y) [y(5:8); push(t) - (c - 1i * rate * t * g) * y(5:8) - k * y(1:4)];
  y = zeros (8, 1);
  z = zeros (size (time));
  h = time(2) - time(1);
  for j = 1:numel (time) - 1
    t = time(j);
    a = slope (t, y);
    b = slope (t + h / 2, y + h / 2 * a);
    d = slope (t + h / 2, y + h / 2 * b);
    e = slope (t + h, y + h * d);
    y = y + h / 6 * (a + 2 * b + 2 * d + e);
    z(j + 1) = row * y(1:4);
  end
end
