% Published cases of hysteretic elements, each run with a cell list and with registered handles.
function tests = suite_published_hysteresis ()
  tests = localfunctions ();
end

% Two cycles of 0.03 m around a limit of 0.01 m: the settled loop, its area, and the first loading, whose z is 0.01 tanh (x / 0.01).
function test_bouc_wen_loop_settles_where_its_equation_says ()
  c = published ('Settled Bouc-Wen loop', ...
                 ['Y.-K. Wen, J. Engineering Mechanics Division ASCE 102, 1976 (R. Bouc, 1967); values by integration of the law''s own ' ...
                  'equation to rounding'], {'BoucWen', 'memory of laws'});
  b = 0.5 / 0.01 ^ 2;
  steps = 2000;
  x = 0.03 * sin (2 * pi * (0:2 * steps) / steps);
  [z, f] = led_boucwen ([0 1e5 0.1 1 b b 2], x);
  at = steps + 1 + steps * [0 72 108 144 180] / 360;
  names = arrayfun (@(t) sprintf ('z at %g degrees [mm]', t), [0 72 108 144 180], 'uniformoutput', false);
  wanted = [9.6403399314 9.9987823704 8.5307876963 -2.3240947982 -9.6403399314];
  expect_published (c, names, wanted, 1e3 * z(at), 1e-6);
  last = steps + 1:2 * steps + 1;
  area = sum ((f(last(1:end - 1)) + f(last(2:end))) / 2 .* diff (x(last)));
  expect_published (c, {'loss of a cycle [J]'}, 68.527436, area, 1e-3);
  first = 1 + [50 100 200];
  names = arrayfun (@(x) sprintf ('z of the first loading at %.2f mm [mm]', 1e3 * x), x(first), 'uniformoutput', false);
  expect_published (c, names, 10 * tanh (x(first) / 0.01), 1e3 * z(first), 1e-6);
end

% Coulomb slider released (Code_Aster validation manual V5.01.100, SDND100): mass 1 kg on a spring of 1e4 N/m, friction 1 N,
% released at 0.85 mm. The turning points every pi/100 s come down by 0.2 mm until the spring is weaker than the friction.
function u = slider (registered_handles)
  h = 1e-6;
  k = 1e4;
  u0 = 0.85e-3;
  count = round (0.16 / h) + 1;
  turns = round ((1:4) * pi / 100 / h) + 1;
  rest = round ([0.13 0.14 0.15 0.16] / h) + 1;
  [integrator, mem, out] = newmark_setup (1, 0, k, zeros (1, 0), zeros (0, count), h, 0.25, 0.5, [turns rest], 2);
  e = state_element ('DahlC', [h 4e7 0 1 1], [-1 1 1 1 1], 2, 2);
  e.b = matrix_lines ([1 0], true);
  simulate ({integrator, typed(1, matrix_lines (diag ([k 0]))), e}, [u0; 0], [0; 0], [-k * u0; 0], mem, out, registered_handles);
  u = out.def(1, :);
end

function test_coulomb_slider_turns_where_published_and_then_sticks ()
  u = slider (false);
  c = published ('Coulomb slider released', 'Code_Aster validation manual V5.01.100, SDND100', {'DahlC', 'memory of laws', 'initial state'});
  expect_published (c, {'first turning point [mm]', 'second', 'third', 'fourth', 'at rest at 0.16 s'}, [-0.65 0.45 -0.25 0.05 0.05], ...
                    1e3 * u([1:4 8]), 1e-4);
  expect_equal (1e4 * u(1:4), [-6.50001 4.50007 -2.50012 0.50022], 1e-5);
  expect_equal (1e4 * u(5:8), 0.5 * ones (1, 4), 1e-3);
end

function test_coulomb_slider_is_the_same_with_registered_handles ()
  expect_equal (slider (true), slider (false));
end

% Zener solid released (SDND107): mass 1 kg held through K1 in series with [K2 parallel to (K3 in series with the damper C)], the far
% end stepped by 0.1 m. Internal state y, elongation d = u - 0.1, S = K1+K2+K3:
%   y' = (K3/C) ((K1 d + K3 y) / S - y),  F = K1 (K2+K3)/S d - K1 K3/S y
function [u, t] = zener (h, registered_handles)
  k1 = 120;
  k2 = 10;
  k3 = 60;
  c = 1.7;
  s = k1 + k2 + k3;
  d0 = -0.1;
  w = struct ('Cu', [k1 * (k2 + k3) / s, -k1 * k3 / s], 'Dv', 0, 'B', k1 * k3 / (c * s), 'A', k3 / c * (k3 / s - 1), 'E', 0);
  e = maxwell_element (2, 1, 1, h, 1, w);
  e.c = matrix_lines ([1; 0], true);
  e.b = e.c;
  e.vnl(6) = w.B * d0;  % the first step uses the committed rate
  e = fresh (e);
  count = round (5 / h) + 1;
  save = round (linspace (0, 5, 101) / h) + 1;
  [integrator, mem, out] = newmark_setup (1, 0, 0, zeros (1, 0), zeros (0, count), h, 0.25, 0.5, save(2:end));
  simulate ({integrator, e}, d0, 0, -w.Cu(1) * d0, mem, out, registered_handles);
  u = out.def(1, :)' + 0.1;
  t = out.data;
end

function x = zener_exact (t)
  w = 14593 / 4792;
  slow = exp (-1573 / 2072 * t);
  x = 5516 / 214807 * slow .* sin (w * t) - 3137 / 29305 * slow .* cos (w * t) + 413 / 58610 * exp (-38132 / 1685 * t) + 0.1;
end

function test_zener_solid_follows_the_closed_form ()
  [u, t] = zener (1e-4, false);
  expect_equal (u, zener_exact (t), 5e-5);
  c = published ('Mass on a Zener solid, far end stepped', 'Code_Aster validation manual, SDND107 (closed form)', {'Maxw', 'memory of laws'});
  at = [10 20 40 100];
  expect_published (c, arrayfun (@(x) sprintf ('displacement at %g s [m]', x), t(at).', 'uniformoutput', false), zener_exact (t(at)), u(at), ...
                    5e-5);
end

function test_zener_solid_is_of_first_order_in_the_step ()
  ratio = zener_error (1e-3) / zener_error (1e-4);
  expect_equal (ratio, 10, 0.02);
end

function worst = zener_error (h)
  [u, t] = zener (h, false);
  worst = max (abs (u - zener_exact (t)));
end

function test_zener_solid_is_the_same_with_registered_handles ()
  expect_equal (zener (1e-3, true), zener (1e-3, false));
end

% Dahl loop (Dahl 1968), exponent 1: between turning points at +-X the settled loop has
%   F(X) = Fc tanh (k X / Fc),  area = 4 Fc X - (4 Fc^2 / k) tanh (k X / Fc)
% Driven at constant speed, one run of the integrator a stroke: with a gain of zero the modes just go on.
function [x, f] = dahl_strokes (steps, strokes, registered_handles)
  reach = 0.01;
  h = 1 / steps;
  e = state_element ('DahlC', [h 1e5 1 10 100], [-1 1 1 1 1], 2, 2);
  e.b = matrix_lines ([1 0], true);
  [integrator, mem, out] = newmark_setup (1, 0, 0, zeros (1, 0), zeros (0, steps + 1), h, 0.25, 0.5, 2:steps + 1, 2);
  integrator.r(2) = 0;
  u = [-reach; 0];
  v = 2 * reach;
  x = u(1);
  f = 0;
  for stroke = 1:strokes
    u = simulate ({integrator, e}, u, [v; 0], [0; 0], mem, out, registered_handles);
    x = [x out.def(1, :)];
    f = [f out.def(2, :)];
    v = -v;
  end
end

function test_dahl_loop_has_the_published_force_and_area ()
  [coarse_force, coarse_area] = dahl_loop (1000);
  [force, area] = dahl_loop (10000);
  c = published ('Settled Dahl loop', 'P. R. Dahl, A Solid Friction Model, 1968; closed form of the settled loop', {'DahlC', 'memory of laws'});
  expect_published (c, {'force at the turning point [N]', 'area of the loop [J]'}, [761.594156 9.536234], [force area], [0.15 5e-3]);
  % First order: a tenth of the step, a tenth of the error.
  expect_equal ((coarse_force - 761.594156) / (force - 761.594156), 10, 0.02);
  expect_equal ((coarse_area - 9.536234) / (area - 9.536234), 10, 0.02);
end

function [force, area] = dahl_loop (steps)
  [x, f] = dahl_strokes (steps, 9, false);
  last = numel (x) - 2 * steps:numel (x);
  force = f(end);
  area = abs (sum ((f(last(1:end - 1)) + f(last(2:end))) / 2 .* diff (x(last))));
end

function test_dahl_first_stroke_follows_the_discrete_closed_form ()
  [x, f] = dahl_strokes (500, 1, false);
  n = 0:500;
  expect_equal (f, 1000 * (1 - (1 - 1e5 * 0.02 / 500 / 1000) .^ n), 1e-12);
end

function test_dahl_loop_is_the_same_with_registered_handles ()
  [x, f] = dahl_strokes (200, 6, false);
  [xr, fr] = dahl_strokes (200, 6, true);
  expect_equal ([xr; fr], [x; f]);
end

function u = simulate (list, u0, v0, a0, mem, out, registered_handles)
  if registered_handles, list = registered (list); end
  u = run_newmark (list, u0, v0, a0, mem, out);
end
