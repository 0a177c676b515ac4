% Runs of rotors: steady orbits against the complex frequency response, the order of the scheme, coupled with loads of qn.unbalance.
function tests = suite_toolbox_rotor_runs ()
  use_toolbox ();
  tests = localfunctions ();
end

% Greatest distance from the exact orbit in the last of some turns, by the greatest radius. The run begins on the orbit that the scheme
% has: it answers a frequency W as the structure answers 2/h tan (W h/2). So there is no transient, and what is measured is steady.
function [e, res] = off_orbit (r, model, speed, steps, turns)
  n = size (r.M, 1);
  middle = r.places(13, 1:2);
  me = 14 * 20e-6;
  push = zeros (n, 1);
  push(middle) = me * speed ^ 2 * [1; -1i];
  push(r.places(7, 1:2)) = 0.5 * me * speed ^ 2 * exp (2i) * [1; -1i];
  response = @(w) (r.K + 1i * w * (r.C + speed * r.G) - w ^ 2 * r.M) \ push;
  answer = response (speed);
  h = 2 * pi / speed / steps;
  seen = 2 / h * tan (speed * h / 2);
  start = response (seen);
  load = qn.unbalance (model, [middle; r.places(7, 1:2)], me * [1 0.5], 'phase', [0 2], 'speed', speed);
  sim = qn.simulation (model, 'step', h, 'steps', steps * turns, 'load', load, 'u0', real (start), ...
                       'v0', real (1i * seen * start));
  res = qn.run (sim, 'progress', false);
  last = size (res.q, 2) - steps:size (res.q, 2);
  across = reshape (r.places(:, 1:2), 1, []);
  exact = real (answer(across) * exp (1i * speed * res.time(last)));
  e = max (max (abs (model.shapes(across, :) * res.q(:, last) - exact))) / max (abs (answer(across)));
end

function test_steady_orbit_of_a_rotor_of_24_elements_is_its_complex_frequency_response_of_second_order ()
  c = published ('Steady orbit of a rotor in unsymmetric bearings', ...
                 'complex frequency response (K + i W (C + W G) - W^2 M) \ F of 24 elements, 3 disks, 2 unbalances', ...
                 {'rotor', 'unbalance', 'gyroscopic matrix', 'full stiffness matrix', 'full damping matrix'});
  r = disk_rotor (24);
  speed = 2 * pi * 60;
  model = qn.modal (r, 'speed', speed);
  e = zeros (1, 3);
  for k = 1:3, e(k) = off_orbit (r, model, speed, 90 * 2 ^ (k - 1), 8); end
  order = log2 (e(1:2) ./ e(2:3));
  printf ('off by %.3g %.3g %.3g, orders %.4f %.4f\n', e, order);
  assert (e(3) < 1e-4);
  assert (all (abs (order - 2) < 0.05));
  expect_published (c, 'distance from the orbit by its radius, 360 steps a turn [1e-4]', 0, 1e4 * e(3), 1);
  expect_published (c, 'order of the scheme', 2, order(2), 0.05);
end
