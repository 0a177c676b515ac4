% EXAMPLE_SELF_CENTRING  A storey on a self-centring brace, whose law is a function in C
%
% Story
%   A brace with tendons yields in an earthquake and still pulls the storey back upright: its force comes back on a lower line
%   and ends at zero. No law of the module is like that, so it is written in C, twenty lines in self_centring.c, compiled
%   once, and runs like a built-in one. A storey of 20 t on a weak frame is shaken by a pulse; beside it stands the same storey on a
%   slider of the same stiffness and strength, which stays where it slid to.
%
% Reference
%   Work of a cycle to the amplitude X, the area of two parallelograms: 2 b Fy (X - Fy/k) with the stiffness k, the yield force Fy and
%   the drop b Fy of the force on the way back (flag-shaped hysteresis of Christopoulos, Filiatrault and Folz, Earthquake Engineering
%   and Structural Dynamics 31, 2002). The same law as a function of the host's language.
%
% Checked
%   Work of a cycle to 1e-6, with 2,500 samples in a quarter of it; forces of the law in C and of the function to rounding; that
%   nothing is left of the displacement at the end, to 1e-3 of the greatest.
%
% Calls
%   R = example_self_centring ()
%   R = example_self_centring (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_self_centring (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  [k, yield, share, drop] = deal (2e7, 2e5, 0.05, 0.8);
  file = fullfile (fileparts (mfilename ('fullpath')), 'self_centring.c');
  brace = qn.law ('compiled', file, 'parameters', [k yield share drop], 'states', 2);
  same = qn.law ('function', @(x, v, s, t) flag (x, s, k, yield, share, drop), 'states', 2);

  amplitude = 0.04;
  h = 1e-4;
  t = 0:h:1.25;
  x = amplitude * sin (2 * pi * t);
  v = 2 * pi * amplitude * cos (2 * pi * t);
  f = qn.force (brace, x, v, h);
  cycle = find (t >= 0.25 - h / 2);
  work = sum ((f(cycle(1:end - 1)) + f(cycle(2:end))) / 2 .* diff (x(cycle)));
  some = 1:50:numel (t);
  in_c = qn.force (brace, x(some), v(some), 50 * h);
  in_m = qn.force (same, x(some), v(some), 50 * h);

  model = qn.modal (1e6, 2e4, 'damping', 0.05);
  row = qn.observe (model, 1);
  last = 16;
  if short, last = 12; end
  pulse = @(t) 10 * sin (9 * t) .* exp (-((t - 3) / 1.2) .^ 2) + 8 * exp (-((t - 3) / 0.3) .^ 2);
  held_by = @(law) qn.simulation (model, 'step', 5e-4, 'until', last, 'base', {1, pulse}, 'elements', {law, row});
  shaken = @(law) qn.run (held_by (law), 'progress', false);
  res = shaken (brace);
  beside = shaken (qn.slider ('slip', yield, 'stiffness', k));
  u = [qn.displacement(res, row); qn.displacement(beside, row)];
  rest = mean (u(:, res.time > last - 2), 2);
  greatest = max (abs (u), [], 2);
  checks = {'work of a cycle', work, 2 * drop * yield * (amplitude - yield / k), 1e-6; ...
            'the law in C and the function', in_c, in_m, 1e-12; ...
            'displacement that is left', 1 + rest(1) / greatest(1), 1, 1e-3};

  fig = qn.plot.page (1100, 480);
  qn.plot.panel (1, 2, 1);
  plot (1e3 * x, 1e-3 * f, '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  labels ('Force of the brace', 'Displacement [mm]', 'Force [kN]');
  qn.plot.panel (1, 2, 2);
  for j = 1:2
    plot (res.time, 1e3 * u(j, :), '-', 'color', qn.impl.colours (j), 'linewidth', qn.impl.width ());
    hold on;
  end
  labels ('Storey under a pulse of the ground', 'Time [s]', 'Displacement [mm]', {'self-centring brace', 'slider'}, 'southeast');
  r = finish ('example_self_centring', fig, folder, checks, struct ('rest', rest, 'greatest', greatest));
  if nargout == 0, tell (r); clear r, end
end

% The law of self_centring.c once more.
function [f, s] = flag (x, s, k, yield, share, drop)
  side = 2 * (x >= 0) - 1;
  elastic = k * x * side;
  upper = min (elastic, (1 - share) * yield + share * elastic);
  lower = min (elastic, (1 - share - drop) * yield + share * elastic);
  f = side * max (min (side * (s(2) + k * (x - s(1))), upper), lower);
  s = [x; f];
end
