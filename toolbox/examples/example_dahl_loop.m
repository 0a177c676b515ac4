% EXAMPLE_DAHL_LOOP  Hysteresis of a Dahl element and the energy of a cycle
%
% Story
%   A bearing that is turned to and fro by very little behaves like a spring first and like a slider later. Dahl's law says how the
%   one becomes the other: dF/dx = k (1 - F/Fc sign v)^e. The exponent e sets the shape: 0 a corner, 1 an exponential, 2 a slow
%   approach. The element is moved between -10 and 10 mm; the loop closes after some cycles.
%
% Reference
%   Closed forms by integration of the law (Dahl, A solid friction model, 1968). First loading, with s = k x/Fc: Fc min (s, 1),
%   Fc (1 - exp (-s)) and Fc s/(1 + s) for e = 0, 1, 2. Settled loop, e = 1: force Fc tanh (k X/Fc) at the turning points, area
%   4 Fc X - 4 Fc^2/k tanh (k X/Fc).
%
% Checked
%   First loading to 0.4 %, force at the turning points to 0.1 %, area to 0.6 %. The law advances by explicit steps, here of 0.005
%   Fc/k (0.01 in the short form): with e = 1 the force after n of them is Fc (1 - (1 - 0.01)^n), up to 0.2 % beside the
%   exponential, and of the area, which is a difference of nearly equal parts, twice as much may be missing.
%
% Calls
%   R = example_dahl_loop ()
%   R = example_dahl_loop (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_dahl_loop (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  n = 400;
  if short, n = 200; end
  stiffness = 2e5;
  limit = 1000;
  reach = 0.01;
  cycles = 4;
  % Constant speed, n steps from the middle to a turning point, a cycle a second.
  x = reach * (1 - 4 * abs (mod ((0:4 * n * cycles) / (4 * n) + 0.25, 1) - 0.5));
  h = 1 / (4 * n);
  v = [0, diff(x)] / h;
  f = zeros (3, numel (x));
  for e = 0:2
    law = qn.law ('dahl', 'stiffness', stiffness, 'slip', limit, 'exponent', e);
    f(e + 1, :) = qn.force (law, x, v, h);
  end
  up = 1:n + 1;
  s = stiffness * x(up) / limit;
  first = limit * [min(s, 1); 1 - exp(-s); s ./ (1 + s)];
  last = 4 * n * (cycles - 1) + (1:4 * n + 1);
  settled = f(2, last);
  area = sum ((settled(1:end - 1) + settled(2:end)) / 2 .* diff (x(last)));
  top = limit * tanh (stiffness * reach / limit);
  checks = {'first loading, exponent 0', f(1, up), first(1, :), 4e-3; ...
            'first loading, exponent 1', f(2, up), first(2, :), 4e-3; ...
            'first loading, exponent 2', f(3, up), first(3, :), 4e-3; ...
            'force at the turning points', [max(settled), min(settled)], [top, -top], 1e-3; ...
            'energy of a cycle', area, 4 * limit * reach - 4 * limit / stiffness * top, 6e-3};

  fig = qn.plot.page (1000, 430);
  qn.plot.panel (1, 2, 1);
  for e = 1:3, plot (1e3 * x(last), 1e-3 * f(e, last), '-', 'color', qn.impl.colours (e), 'linewidth', qn.impl.width ()); hold on; end
  axis ([-12 12 -1.2 1.2]);
  labels ('Settled loops', 'Displacement [mm]', 'Force [kN]');
  qn.plot.panel (1, 2, 2);
  for e = 1:3, plot (1e3 * x(up), 1e-3 * f(e, up), '-', 'color', qn.impl.colours (e), 'linewidth', qn.impl.width ()); hold on; end
  k = round (linspace (1, n + 1, 17));
  for e = 1:3, plot (1e3 * x(k), 1e-3 * first(e, k), 'o', 'color', [0 0 0], 'markersize', 6); end
  axis ([0 10 0 1.2]);
  labels ('First loading; circles: closed form', ...
          'Displacement [mm]', 'Force [kN]', {'exponent 0', 'exponent 1', 'exponent 2'}, 'southeast');
  r = finish ('example_dahl_loop', fig, folder, checks, struct ('area', area, 'top', max (settled)));
  if nargout == 0, tell (r); clear r, end
end
