% CHECKS = SELFTEST_LAWS ()  the checks of qn.selftest that compare runs and force laws with their formulas
function checks = selftest_laws ()
  checks = {'linear run', @qn.impl.selftest_linear; 'law Power', @power; 'law Expon', @expon; 'law Table', @table; ...
            'law Damper', @damper; 'law Contact', @impact; 'law Surface', @surface; 'law Maxw', @maxw; ...
            'law DahlC', @dahl; 'law sts', @stick_slip; 'law BoucWen', @bouc_wen; 'law Clima2', @clima; ...
            'law Radial', @radial; 'law Journal', @film; 'law User', @user};
end

function [good, text] = power ()
  x = [-2; -0.5; 0; 1; 3];
  [good, text] = judged (evaluated (element (5, 'Power', [7; 3]), x, zeros (5, 1), 1), 7 * x .^ 3);
end

function [good, text] = expon ()
  x = [-2; -0.5; 0; 1; 3];
  [good, text] = judged (evaluated (element (5, 'Expon', [7; 3]), x, zeros (5, 1), 1), 7 * 3 .^ x);
end

function [good, text] = table ()
  knots = [-1; 0; 2; 5];
  forces = [-30; 0; 4; 64];
  x = [-2; -0.5; 0.3; 3; 6];
  e = element (5, 'Table', [knots; forces; zeros(3, 1)]);
  e.iopt = int32 ([-1 0 0 0 0 1 9 4 1]);
  [good, text] = judged (evaluated (e, x, zeros (5, 1), 1), interp1 (knots, forces, x, 'linear', 'extrap'));
end

% A standard linear solid, stretched and held: the branch relaxes by the same factor in each step.
function [good, text] = maxw ()
  h = 1e-3;
  e = element (2, 'Maxw', [0; h; 1; 0; 70; -60; zeros(4, 1); zeros(6, 1); 40; 0; -40; 0; 0]);
  e.c = struct ('ir', int32 (0), 'jc', int32 ([0; 1; 1]), 'pr', 1, 'dims', [2 1], 'trans', 1);
  e.iopt = int32 ([-1 0 2 1 1]);
  e.unl = zeros (2, 1, 3);
  e.vnl = zeros (2, 1, 3);
  e.vnl(2, 1, 3) = 40;
  e.snl = evaluated (e, 1, 0, 50);
  [good, text] = judged (e.snl(1), 10 + 60 * (1 - 40 * h) ^ 50);
end

% A stroke at constant velocity: the distance to the limit of 1000 N shrinks by the same factor in each step.
function [good, text] = dahl ()
  h = 1e-3;
  [~, u] = evaluated (with_state (element (2, 'DahlC', [0; h; 1e5; 1; 0.5; 2000]), 2), [0; 0], [0.2; 0], 100);
  [good, text] = judged (u(2), 1000 * (1 - (1 - 1e5 * 0.2 * h / 1000) ^ 100));
end

% A trial of 5 N against 3 N slips to the other side of the observed point.
function [good, text] = stick_slip ()
  [f, u] = evaluated (with_state (element (2, 'sts', [0; 1e-3; 4; 10; 3; 0]), 2), [0.5; 0], [0; 0], 1);
  [good, text] = judged ([f(1); u(2)], [-3 + 4 * 0.5; 0.5 + 3 / 10]);
end

function [good, text] = clima ()
  e = with_state (element (5, 'Clima2', [0; 0.5; 3; 1; 0.5; 0.25; 0; 2; 10; 30; 4; 8; zeros(3, 1)]), 4);
  e.iopt = int32 ([-1 3 3 2 1 7 13 2 2]);
  x = [0.1; 0.2; 1; 2; -3];
  f = evaluated (e, x, [0.5; -0.25; 0; 0; 0], 1);
  limit = 0.5 * 20;
  f1 = x(4) + 0.5 * 0.5 * 6 * (1 - x(4) / limit) - 3 * x(1);
  f2 = x(5) - 0.25 * 0.5 * 6 * (1 + x(5) / limit) - 3 * x(2);
  [good, text] = judged (f(1:3), [f1; f2; 20 - 3 * x(3) - 0.25]);
end

function [good, text] = damper ()
  speed = [-2; -0.5; 0; 1; 3];
  [good, text] = judged (evaluated (with_rates (element (5, 'Damper', [7; 2])), zeros (5, 1), speed, 1), 7 * speed .* abs (speed));
end

% A shaft that has moved by 3, 4, and slides around: depth 5 - 2, pushed deeper at 1, surface speed 2 * 3 and 7 of its own.
function [good, text] = radial ()
  e = with_rates (element (2, 'Radial', [2; 10; 2; 0.5; 0.25; 0; 2; 3; 0; 0]));
  v = [0.6 - 7 * 0.8; 0.8 + 7 * 0.6];
  f = evaluated (e, [3; 4], v, 1);
  normal = 10 * 3 ^ 2 * (1 + 0.5 * 1);
  [good, text] = judged (f, normal * [0.6 - 0.25 * 0.8; 0.8 + 0.25 * 0.6]);
end

% At rest at half the clearance: 2 e^2/(1-e^2)^2 along the line of centres, pi e/(2 (1-e^2)^1.5) across it.
function [good, text] = film ()
  f = evaluated (with_rates (element (2, 'Journal', [2; 1; 3; 0.5; 7; 0.9; 0; 0; 0])), [0.25; 0], [0; 0], 1);
  [good, text] = judged (f, 2 * 7 * 3 / (2 * 0.25) * [0.5 / 0.75 ^ 2; -pi / 4 / 0.75 ^ 1.5]);
end

% Open, at the gap, and beyond it: closing, opening, and opening so fast that it would pull.
function [good, text] = impact ()
  x = [1; -0.5; -1.5; -2.5; -2.5];
  speed = [0; 0; -2; 1; 9];
  wanted = [0; 0; -7 * (1 + 0.25 * 2); -7 * 2 ^ 1.5 * (1 - 0.25); 0];
  [good, text] = judged (evaluated (with_rates (element (5, 'Contact', [7; 1.5; 0.25; 0.5; -1])), x, speed, 1), wanted);
end

% What is bilinear is met everywhere, beyond the grid as well.
function [good, text] = surface ()
  formula = @(x, v) 2 + 3 * x - 5 * v + 7 * x .* v;
  [at, speeds] = ndgrid ([-1; 0; 2], [-1; 3]);
  e = with_rates (element (5, 'Surface', [0; 0; -1; 0; 2; -1; 3; reshape(formula (at, speeds), [], 1)]));
  e.iopt = int32 ([-1 0 0 0 0 3 2]);
  x = [-2; -0.5; 0.3; 1; 6];
  v = [4; -0.5; 2; -3; 7];
  [good, text] = judged (evaluated (e, x, v, 1), formula (x, v));
end

% A law that is a function: two rows and a state that counts the steps.
function [good, text] = user ()
  e = with_state (element (3, 'User', [0; 1e-3]), 3);
  e.iopt = int32 ([-1 2 2 1 1]);
  e.unl = zeros (3, 1);
  e.vnl = zeros (3, 1);
  e.call = @(x, v, s, t) deal ([3 * x(1) + s; x(2) - 2 * v(1) + t], s + 1);
  [f, u] = evaluated (e, [0.5; 7; 0], [4; 0; 0], 5);
  [good, text] = judged ([f(1:2); u(3)], [3 * 0.5 + 4; 7 - 2 * 4 + 5; 5]);
end

% First loading to many times the limit (A / (beta + gamma))^(1/n) = 0.5, in one step, and nothing more at the same place.
function [good, text] = bouc_wen ()
  e = element (3, 'BoucWen', [0; 0; 100; 0.25; 2; 3; 5; 2]);
  e.iopt = int32 ([-1 1 1 2 1]);
  [f, u] = evaluated (e, [9; 0; 0], zeros (3, 1), 2);
  [good, text] = judged ([f(1); u(2:3)], [100 * (0.25 * 9 + 0.75 * 0.5); 0.5; 9]);
end

% An element that observes N values as they are.
function e = element (n, law, parameters)
  lines = struct ('ir', int32 ((0:n - 1).'), 'jc', int32 ((0:n).'), 'pr', ones (n, 1), 'dims', [n n], 'trans', 1);
  e = struct ('type', 1003, 'c', lines, 'opt', [sum(double (law) .* 256 .^ (0:numel (law) - 1)); parameters], 'unl', zeros (n, 1), ...
              'snl', zeros (n, 1));
end

% It observes the velocities as well.
function e = with_rates (e)
  e.vnl = zeros (size (e.unl));
end

% Its state, row ROW, is written back to u, where the next step observes it.
function e = with_state (e, row)
  n = numel (e.unl);
  e.iopt = int32 ([-1 row-1 row-1 1 1]);
  e.unl = zeros (n, 1, 2);
  e.vnl = zeros (n, 1, 2);
end

% Forces and displacements after STEPS steps of an integrator that moves nothing and so only evaluates.
function [f, u] = evaluated (e, x, speed, steps)
  n = numel (x);
  still = struct ('type', 2000, 'r', zeros (n, 2), 'tft', (0:steps) * 1, 'data', zeros (1, 6));
  u = x + zeros (n, 1);
  v = speed + zeros (n, 1);
  a = zeros (n, 1);
  quarn ('chandlediagnewmark', {still, e}, struct ('K', []), u, v, a, [0 0], struct ('uva', struct ('uva', zeros (4 * n, 1))), struct ());
  f = e.snl;
end

function [good, text] = judged (got, wanted)
  difference = max (abs (got - wanted)) / max (abs (wanted));
  good = all (abs (got - wanted) <= 1e-12 * max (abs (wanted)));
  text = sprintf ('%.9g, by the formula %.9g; relative difference %.1e', got(end), wanted(end), difference);
end
