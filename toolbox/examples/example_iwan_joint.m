% EXAMPLE_IWAN_JOINT  A bolted joint that slips little by little
%
% Story
%   Under small loads a bolted lap joint is a stiff spring that loses a little energy at its edges; with the load the slip creeps
%   inwards until the whole joint moves. A bank of 30 sliders, qn.iwan, does the same one after the other. The energy lost in a
%   cycle grows with the cube of the amplitude: this, and not the square of a linear damper, is what joints show in tests.
%
% Reference
%   Parallel-series model with evenly spread slip forces (Iwan, J. Appl. Mech. 33, 1966): first loading k x - k^2 x^2/(4 Fs), the
%   other branches by Masing's rule, energy of a cycle k^2 X^3/(3 Fs), until all slips at 2 Fs/k.
%
% Checked
%   First loading and settled loop to 0.05 %: 30 sliders make a polygon of the parabola, whose corners are up to 1/(4*30^2) = 0.03 %
%   of the slip force beside it. Energy of a cycle to 1 %: at the smallest amplitude 7 of the sliders slip, and a polygon of so many
%   sides may miss 1/(4*7^2) = 0.5 % of it.
%
% Calls
%   R = example_iwan_joint ()
%   R = example_iwan_joint (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_iwan_joint (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  slip = 5000;
  stiffness = 1e8;
  reach = 2 * slip / stiffness;
  joint = qn.iwan ('slip', slip, 'stiffness', stiffness, 'sliders', 30);
  shares = [0.25 0.35 0.5 0.7 0.95];
  n = 200;
  if short, [shares, n] = deal ([0.25 0.5 0.95], 80); end
  x = zeros (numel (shares), 8 * n + 1);
  f = x;
  energy = zeros (1, numel (shares));
  h = 1 / (4 * n);
  last = 4 * n + (1:4 * n + 1);
  for k = 1:numel (shares)
    x(k, :) = shares(k) * reach * sin (2 * pi * (0:8 * n) * h);
    f(k, :) = qn.force (joint, x(k, :), [0, diff(x(k, :))] / h, h);
    energy(k) = sum ((f(k, last(1:end - 1)) + f(k, last(2:end))) / 2 .* diff (x(k, last)));
  end
  loading = @(x) stiffness * x - stiffness ^ 2 * x .^ 2 / (4 * slip);
  big = x(end, :);
  top = max (big);
  % Masing: down from the top the first loading, twice as large.
  down = loading (top) - 2 * loading ((top - big(5 * n + 1:7 * n + 1)) / 2);
  exact = stiffness ^ 2 * (shares * reach) .^ 3 / (3 * slip);
  checks = {'first loading', f(end, 1:n + 1) / slip, loading(big(1:n + 1)) / slip, 5e-4; ...
            'unloading of the settled loop', f(end, 5 * n + 1:7 * n + 1) / slip, down / slip, 5e-4; ...
            'energy of a cycle', energy ./ exact, ones(size(shares)), 0.01};

  fig = qn.plot.page (1000, 430);
  wide = qn.impl.width ();
  qn.plot.panel (1, 2, 1);
  for k = 1:numel (shares)
    plot (1e6 * x(k, last), 1e-3 * f(k, last), '-', 'color', qn.impl.colours (1), 'linewidth', wide);
    hold on;
  end
  k = 5 * n + 1:20:7 * n + 1;
  plot (1e6 * big(k), 1e-3 * down(1:20:end), 'o', 'color', qn.impl.colours (2), 'markersize', 6);
  axis ([-110 110 -6 6]);
  labels ('Loops; circles: Masing''s rule', 'Displacement [um]', 'Force [kN]');
  qn.plot.panel (1, 2, 2);
  all_of = logspace (-1, 0, 30) * reach;
  loglog (1e6 * all_of, 1e3 * stiffness ^ 2 * all_of .^ 3 / (3 * slip), '-', 'color', [0 0 0], 'linewidth', wide);
  hold on;
  loglog (1e6 * shares * reach, 1e3 * energy, 'o', 'color', qn.impl.colours (1), 'markersize', 8, 'linewidth', wide);
  axis ([10 100 0.5 1000]);
  ticks ([10 20 50 100], [1 10 100 1000]);
  labels ('Energy lost in a cycle', 'Amplitude [um]', 'Energy [mJ]', {'k^2 X^3 / (3 Fs)', '30 sliders'}, 'northwest');
  r = finish ('example_iwan_joint', fig, folder, checks, struct ('energy', energy, 'exact', exact));
  if nargout == 0, tell (r); clear r, end
end
