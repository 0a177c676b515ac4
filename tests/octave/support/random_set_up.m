% [SIM, CASE] = RANDOM_SET_UP (KINDS)  a random structure with one to three nonlinear elements, and its equations in physical coordinates
%
% CASE has M, K, C (4 x 4), laws (cell), rows (cell, a matrix each), push, force and about (a sine of that frequency), v0, step, steps. The
% step keeps the phase of the highest mode to 2 % over the run, the elements may be too stiff for it or not. Laws: power, exponential, table
% (gap, stop, bearing), Maxwell, Dahl and two Dahl branches under a normal force with exponents 0 and 1, stick-slip; with the KINDS 'rates'
% those that look at velocities instead: damper, contact with losses, Bouc-Wen, ring with friction, oil film; with 'surfaces' force surfaces.
% Damping: none, modal, Rayleigh, or dashpots and gyroscopic coupling. Draws from rand and randn.
function [sim, case_of] = random_set_up (kinds)
  if nargin < 1, kinds = ''; end
  n = 4;
  m = diag (0.5 + rand (1, n));
  k = zeros (n);
  for j = 1:n
    s = 1e4 * 10 ^ rand ();
    k(j, j) = k(j, j) + s;
    if j > 1
      k([j - 1, j], [j - 1, j]) = k([j - 1, j], [j - 1, j]) + s * [1 -1; -1 1];
      k(j, j) = k(j, j) - s;
    end
  end
  w = sqrt (sort (eig (m \ k)));
  c = zeros (n);
  switch floor (4 * rand ())
    case 1
      c = 0.02 * 2 * w(1) * m;
    case 2
      c = 0.5 * m + 2e-5 * k;
    case 3
      d = randn (n, 1);
      g = randn (n);
      c = 2 * w(1) * 0.05 * (d * d.') + 0.5 * w(1) * rand () * (g - g.');
  end
  model = qn.modal (struct ('K', k, 'M', m, 'C', c));
  steps = 600;
  step = (12 * 0.02 / steps) ^ (1 / 3) / w(end);
  push = randn (n, 1);
  about = w(1) * (0.5 + 1.5 * rand ());
  force = 20 * 10 ^ rand ();
  signal = @(t) force * sin (about * t);
  v0 = 0.3 * randn (n, 1);
  linear = qn.run (qn.simulation (model, 'step', step, 'steps', steps, 'load', {model.shapes.' * push, signal}, 'v0', v0), ...
                   'progress', false, 'check', false);
  list = cell (1 + floor (3 * rand ()), 2);
  rows = cell (size (list, 1), 1);
  for j = 1:size (list, 1)
    kind = floor (10 * rand ());
    if strcmp (kinds, 'rates'), kind = 10 + floor (5 * rand ()); end
    if strcmp (kinds, 'surfaces'), kind = 15; end
    rows{j} = zeros (1 + 2 * (kind == 9) + (kind == 13 || kind == 14), n);
    for i = 1:size (rows{j}, 1)
      rows{j}(i, 1 + floor (n * rand ())) = 1;
      if rand () < 0.3, rows{j}(i, 1 + floor (n * rand ())) = -1; end
    end
    reach = max (2e-3, max (abs (rows{j} * model.shapes * linear.q), [], 2));
    % From soft to somewhat beyond the limit of the step.
    mass = 1 / max (diag (rows{j} / m * rows{j}.'));
    stiff = mass / step ^ 2 * 10 ^ (-4 + 5 * rand ());
    if kind < 10
      law = a_law (kind, reach, stiff);
    else
      seen = rows{j} * model.shapes * linear.q;
      law = law_of_rates (kind, max (reach), max (max (abs (diff (seen, 1, 2)))) / step, mass, step, w(1));
    end
    list(j, :) = {law, qn.observe(model, sparse (rows{j}))};
  end
  sim = qn.simulation (model, 'step', step, 'steps', steps, 'load', {model.shapes.' * push, signal}, 'v0', v0, 'elements', list);
  case_of = struct ('M', m, 'K', k, 'C', c, 'laws', {list(:, 1)}, 'rows', {rows}, 'push', push, 'force', force, 'about', about, ...
                    'v0', v0, 'step', step, 'steps', steps);
end

function law = a_law (kind, reach, stiff)
  switch kind
    case 0
      law = qn.law ('power', 'stiffness', stiff, 'exponent', 1);
    case 1
      law = qn.cubic ('stiffness', stiff / (3 * reach ^ 2));
    case 2
      % One at rest pushes: force = scale * base^x.
      law = qn.law ('exponential', 'scale', stiff * reach / 20, 'base', exp (1 / reach));
    case 3
      law = qn.gap ('gap', reach * (0.1 + 0.8 * rand ()), 'stiffness', stiff);
    case 4
      law = qn.stop ('gap', reach * (0.1 + 0.8 * rand ()), 'stiffness', stiff);
    case 5
      law = qn.bearing ('stiffness', stiff / (1.5 * sqrt (reach)), 'clearance', 0.1 * reach, 'range', 3 * reach, 'knots', 12);
    case 6
      law = qn.maxwell ('springs', stiff, 'times', 10 ^ (-4 + 4 * rand ()));
    case 7
      law = qn.law ('dahl', 'stiffness', stiff, 'slip', stiff * reach * 10 ^ (-2 * rand ()), 'exponent', floor (2 * rand ()));
    case 8
      law = qn.law ('stickslip', 'contact', stiff, 'slip', max (20, stiff * reach * 10 ^ (1 - 2 * rand ())), ...
                    'stiffness', stiff * 0.1 * floor (2 * rand ()), 'ground', stiff * rand () * floor (2 * rand ()));
    case 9
      law = a_pad (reach, stiff);
  end
end

% A pad whose normal force rises from 0.2 to 1.8 of what it is at rest, or lifts off; now and then with the term that the module takes off
% anew at each step.
function law = a_pad (reach, stiff)
  friction = 0.1 + 0.5 * rand ();
  normal = stiff * reach(1) * 10 ^ (-2 * rand ()) / friction;
  knots = reach(3) * [-1; -0.5; 0.5; 1] / (0.2 + rand ());
  share = [0.2; 0.2; 1.8; 1.8];
  if rand () < 0.2, share = [-3; -1; 3; 5]; end
  growth = stiff * (0.3 + 0.7 * rand (4, 1));
  law = qn.law ('clima2', 'displacement', knots, 'normal', normal * share, 'growth', growth, 'friction', friction, ...
                'exponent', floor (2 * rand ()), 'stiffness', stiff * 0.01 * (rand () < 0.2), 'offset', normal);
end

% From soft to somewhat beyond the limit of the step, at displacements up to REACH and velocities up to FAST. The film is of usual proportions,
% so that nothing is said but of the motion.
function law = law_of_rates (kind, reach, fast, mass, step, w)
  stiff = mass / step ^ 2 * 10 ^ (-4 + 4.5 * rand ());
  damping = mass / step * 10 ^ (-3.5 + 3.8 * rand ());
  switch kind
    case 10
      exponent = 0.5 + 1.5 * rand ();
      law = qn.damper ('damping', damping / fast ^ (exponent - 1), 'exponent', exponent);
    case 11
      exponent = 1 + 0.5 * floor (2 * rand ());
      law = qn.contact ('stiffness', stiff / reach ^ (exponent - 1), 'exponent', exponent, 'damping', rand () / fast, ...
                        'gap', reach * (0.1 + 0.8 * rand ()), 'side', sign (rand () - 0.5));
    case 12
      law = qn.boucwen ('stiffness', stiff, 'ratio', rand (), 'yield', reach * 10 ^ (-1.5 * rand ()), 'exponent', 1 + floor (3 * rand ()), ...
                        'shape', 0.5 + 0.5 * rand ());
    case 13
      exponent = 1 + 0.5 * floor (2 * rand ());
      law = qn.radial ('gap', reach * (0.1 + 0.8 * rand ()), 'stiffness', stiff / reach ^ (exponent - 1), 'exponent', exponent, ...
                       'damping', rand () / fast, 'friction', 0.3 * rand () * (rand () < 0.7), 'onset', fast * 10 ^ (-2 * rand ()), ...
                       'radius', reach, 'speed', 3 * w * randn ());
    case 14
      clearance = reach * (0.7 + 2 * rand ());
      radius = 500 * clearance;
      law = qn.journal ('viscosity', damping / (radius * 250 ^ 3), 'length', radius / 2, 'radius', radius, 'clearance', clearance, ...
                        'speed', 3 * w * randn () * (rand () < 0.7), 'limit', 0.9);
    case 15
      law = a_surface (reach, fast, stiff, damping);
  end
end

% A spring that gets stiffer and a damper that gives way at speed and is stronger on one side, known at 6 displacements and 6 velocities, which
% the motion may leave.
function law = a_surface (reach, fast, stiff, damping)
  x = reach * [-1.5; -1; -0.4; 0.3; 0.8; 1.4] .* (0.9 + 0.2 * rand (6, 1));
  v = fast * [-1; -0.5; -0.1; 0.1; 0.6; 1.1] .* (0.9 + 0.2 * rand (6, 1));
  [at, rate] = ndgrid (x, v);
  spring = stiff * at .* (1 + rand () * (at / reach) .^ 2) / (1 + rand ());
  dashpot = damping * rate ./ (1 + rand () * abs (rate) / fast) .* (1 + 0.5 * rand () * tanh (at / reach));
  law = qn.law ('surface', 'displacement', x, 'velocity', v, 'force', spring + dashpot);
end
