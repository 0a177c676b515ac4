% EXAMPLE_SHOCK_SPECTRUM  Shock response spectrum of a half sine, three ways
%
% Story
%   Equipment is tested with a half-sine pulse of 50 g and 11 ms. How hard a part inside is hit depends on its own frequency: soft
%   parts hardly notice, stiff ones follow the table, and near 75 Hz a part sees 1.77 times the pulse. Here 60 parts are 60 modes of
%   one model on a moving base, integrated in one run; qn.srs finds the same by a digital filter.
%
% Reference
%   Closed form of the undamped response during and after the pulse (Jacobsen and Ayre, Engineering Vibrations, 1958).
%
% Checked
%   The maximax spectrum of the run to 0.5 %: it looks for the highest of the values at the time steps; of a sine with 31 steps a
%   period, at 800 Hz, the highest value seen may be (pi/31)^2/2 = 0.5 % below its peak. That of qn.srs, which looks between them,
%   to 0.05 %. The greatest amplification, 1.77, to 0.2 %.
%
% Calls
%   R = example_shock_spectrum ()
%   R = example_shock_spectrum (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_shock_spectrum (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  count = 60;
  if short, count = 20; end
  hertz = logspace (1, log10 (800), count);
  last = 0.011;
  peak = 50 * 9.81;
  pulse = @(t) peak * sin (pi * t / last) .* (t < last);
  w = 2 * pi * hertz;
  model = qn.modal (diag (w .^ 2), eye (count));
  sim = qn.simulation (model, 'step', 4e-5, 'until', last + 0.11, 'load', {qn.base(model, ones (count, 1)), pulse});
  res = qn.run (sim, 'progress', false);
  % The spring carries the absolute acceleration of an undamped part.
  felt = max (abs (bsxfun (@times, w.' .^ 2, qn.displacement (res, qn.observe (model, 1:count)))), [], 2).';
  acc = pulse (sim.time);
  filtered = qn.srs (sim.time, acc, hertz, Inf);
  exact = zeros (1, count);
  for k = 1:count, exact(k) = peak * amplification (2 * hertz(k) * last); end
  below = hertz < 150;
  most = [max(felt(below)), max(exact(below))] / peak;
  checks = {'spectrum of the run', felt ./ exact, ones(1, count), 5e-3; ...
            'spectrum of qn.srs', filtered ./ exact, ones(1, count), 5e-4; ...
            'greatest amplification', most(1), most(2), 2e-3};

  fig = qn.plot.page (1000, 430);
  wide = qn.impl.width ();
  qn.plot.panel (1, 2, 1);
  shown = sim.time < 0.06;
  [unused, k] = min (abs (hertz - 75));
  [unused, j] = min (abs (hertz - 20));
  part = -bsxfun (@times, w([k j]).' .^ 2, qn.displacement (res, qn.observe (model, [k j]))) / 9.81;
  plot (1e3 * sim.time(shown), acc(shown) / 9.81, '-', 'color', [0 0 0], 'linewidth', wide);
  hold on;
  for i = 1:2, plot (1e3 * sim.time(shown), part(i, shown), '-', 'color', qn.impl.colours (i), 'linewidth', wide); end
  axis ([0 60 -100 200]);
  names = {'pulse', sprintf('part of %.0f Hz', hertz(k)), sprintf('part of %.0f Hz', hertz(j))};
  labels ('What two parts feel', 'Time [ms]', 'Acceleration [g]', names, 'northeast');
  qn.plot.panel (1, 2, 2);
  loglog (hertz, exact / 9.81, '-', 'color', [0 0 0], 'linewidth', wide);
  hold on;
  loglog (hertz, felt / 9.81, 'o', 'color', qn.impl.colours (1), 'markersize', 6);
  loglog (hertz, qn.srs (sim.time, acc, hertz, 10) / 9.81, '-', 'color', qn.impl.colours (2), 'linewidth', wide);
  axis ([10 1000 10 100]);
  ticks ([10 20 50 100 200 500 1000], [10 20 50 100]);
  labels ('Shock response spectrum', 'Frequency of the part [Hz]', 'Greatest acceleration [g]', ...
          {'closed form, undamped', 'one run of 60 modes', 'qn.srs, Q = 10'}, 'southeast');
  r = finish ('example_shock_spectrum', fig, folder, checks, struct ('hertz', hertz, 'maximax', felt, 'exact', exact));
  if nargout == 0, tell (r); clear r, end
end

% Greatest response over pulse height; P is the frequency in units of that of the half sine.
function a = amplification (p)
  if p == 1, a = pi / 2; return, end
  a = 2 * p / abs (p ^ 2 - 1) * abs (cos (pi * p / 2));
  n = 1:floor ((p + 1) / 2);
  if ~isempty (n), a = max ([a, p / abs(p - 1) * abs(sin (2 * pi * n / (p + 1)))]); end
end
