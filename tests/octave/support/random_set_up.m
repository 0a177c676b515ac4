% [SIM, CASE] = RANDOM_SET_UP ()  a random structure with one to three nonlinear elements, and its equations in physical coordinates
%
% CASE has M, K, C (4 x 4), laws (cell), rows (one each), push, force and about (a sine of that frequency), v0, step, steps. The step keeps
% the phase of the highest mode to 2 % over the run, the elements may be too stiff for it or not. Laws: power, exponential, table (gap, stop, bearing), Maxwell,
% Dahl with exponents 0 and 1. Damping: none, modal, Rayleigh, or dashpots and gyroscopic coupling. Draws from rand and randn.
function [sim, case_of] = random_set_up ()
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
  rows = zeros (size (list, 1), n);
  for j = 1:size (list, 1)
    row = zeros (1, n);
    row(1 + floor (n * rand ())) = 1;
    if rand () < 0.3, row(1 + floor (n * rand ())) = -1; end
    reach = max ([2e-3, abs(row * model.shapes * linear.q)]);
    % From soft to somewhat beyond the limit of the step.
    mass = 1 / (row / m * row.');
    stiff = mass / step ^ 2 * 10 ^ (-4 + 5 * rand ());
    law = a_law (reach, stiff);
    list(j, :) = {law, qn.observe(model, sparse (row))};
    rows(j, :) = row;
  end
  sim = qn.simulation (model, 'step', step, 'steps', steps, 'load', {model.shapes.' * push, signal}, 'v0', v0, 'elements', list);
  case_of = struct ('M', m, 'K', k, 'C', c, 'laws', {list(:, 1)}, 'rows', rows, 'push', push, 'force', force, 'about', about, ...
                    'v0', v0, 'step', step, 'steps', steps);
end

function law = a_law (reach, stiff)
  switch floor (8 * rand ())
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
  end
end
