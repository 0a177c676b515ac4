% EXAMPLE_CONTACT_MODES  How many modes a stiff contact needs, and how few with residual flexibility
%
% Story
%   A steel pipe, 60.3 x 3.6 mm with water, hinged 3 m apart, has a stiff guide 125 mm from one end, with 0.02 mm of play. A pump shakes
%   it in the middle at 5 Hz. For the motion three modes would do, but at the guide they hold only 89 % of the pipe's flexibility: the
%   force of the guide comes out 20 % too high. With the static response to a force at the guide as one more shape ('attach' of
%   qn.modal) it is within 1 %; without it that takes eight modes.
%
% Reference
%   Residual flexibility after Rubin (Improved component-mode representation for structural dynamic analysis, 1975). Statics: influence
%   lines of the hinged beam (Timoshenko, Strength of Materials, 1930). Motion: the equations of the elements, not reduced to modes, by
%   an implicit trapezoidal rule that finds in every step whether the guide is closed.
%
% Checked
%   Static force in the closed guide to 1e-6: cubic elements are exact at their nodes, and with shapes attached at the guide and at
%   the load the reduced model is as exact as the elements. Peak force in motion with the attached shape, from three modes on, to 1.5 %:
%   what is left out now is the inertia of the modes from the fourth on. The three modes alone miss it by more than 15 %, also in
%   the test, so that the example cannot lose its point without a word.
%
% Calls
%   R = example_contact_modes ()
%   R = example_contact_modes (FOLDER, SHORT)
%
% Input
%   FOLDER   where the picture goes, made if it is not there; '' leaves the figure open ('')
%   SHORT    true: a shorter run, as in the tests (false)
%
% Output
%   R        struct: name, checks (text, got, wanted, error, tolerance, ok), ok, numbers, picture. Without an output argument one line
%            a check is printed.
function r = example_contact_modes (folder, short)
  if nargin < 2, short = false; end
  if nargin < 1, folder = ''; end
  ready (folder);
  last = 0.2;
  counts = [3 4 5 6 8 10 12 16 20 24];
  if short, last = 0.1; counts = [3 8 16]; end
  l = 3;
  outer = 0.0603;
  inner = outer - 2 * 0.0036;
  ei = 210e9 * pi / 64 * (outer ^ 4 - inner ^ 4);
  mass = pi / 4 * (7850 * (outer ^ 2 - inner ^ 2) + 1000 * inner ^ 2);
  [k, m] = straight_beam (24, l, ei, mass);
  free = [2:48, 50];
  k = k(free, free);
  m = m(free, free);
  at_guide = 2;
  middle = 24;
  contact = 1e8;
  play = 2e-5;
  guide = qn.gap ('gap', play, 'stiffness', contact);
  shake = @(t) 500 * sin (2 * pi * 5 * t);
  h = 1e-5;

  % A dead load of 400 N in the middle: the reaction closes the play and bends the pipe back.
  lines = @(a, x) x * (l - a) * (l ^ 2 - (l - a) ^ 2 - x ^ 2) / (6 * ei * l);
  give = [lines(l / 2, l / 24), (l / 24) ^ 2 * (23 * l / 24) ^ 2 / (3 * ei * l)];
  exact = (400 * give(1) - play) / (give(2) + 1 / contact);
  few = qn.modal (k, m, 'modes', 3, 'attach', [at_guide middle]);
  q = qn.static (few, qn.load_at (few, middle) * 400, {guide, qn.observe(few, at_guide)});
  dead = qn.force (guide, qn.observe (few, at_guide) * q);

  modes_only = zeros (1, numel (counts));
  with_shape = modes_only;
  for j = 1:numel (counts)
    % qn.run would warn of the flexibility that three modes leave out; that is the point here.
    plain = run_of (qn.modal (k, m, 'modes', counts(j), 'damping', 0.02), at_guide, middle, guide, shake, h, last);
    better = run_of (qn.modal (k, m, 'modes', counts(j), 'damping', 0.02, 'attach', at_guide), at_guide, middle, guide, shake, h, last);
    modes_only(j) = max (plain.force);
    with_shape(j) = max (better.force);
    if j == 1, shown = {plain, better}; end
  end
  all_modes = qn.modal (k, m, 'damping', 0.02);
  c = m * all_modes.shapes * diag (all_modes.damping) * all_modes.shapes.' * m;
  [t, force] = reference (k, m, c, at_guide, middle, contact, play, shake, h, last);
  wanted = max (force);
  checks = {'static force of the guide', dead, exact, 1e-6; ...
            'peak force with the attached shape', with_shape / wanted, ones(size (counts)), 0.015; ...
            'three modes alone are too stiff', double(modes_only(1) > 1.15 * wanted), 1, 0};

  fig = qn.plot.page (1000, 430);
  wide = qn.impl.width ();
  qn.plot.panel (1, 2, 1);
  semilogx (counts, modes_only / wanted, 'o-', 'color', qn.impl.colours (2), 'linewidth', wide);
  hold on;
  semilogx (counts, with_shape / wanted, 's-', 'color', qn.impl.colours (1), 'linewidth', wide);
  axis ([2.8 26 0.95 1.25]);
  labels ('Peak force of the guide', 'Modes', 'In units of the reference', {'modes alone', 'and one attached shape'}, 'northeast');
  ticks ([3 4 5 6 8 12 16 24], 0.95:0.05:1.25);
  qn.plot.panel (1, 2, 2);
  at = 1:50:numel (t);
  plot (1e3 * t(at), 1e-3 * force(at), '-', 'color', [0 0 0], 'linewidth', 2 * wide);
  hold on;
  for j = 1:2
    plot (1e3 * t(at), 1e-3 * shown{j}.force(at), '-', 'color', qn.impl.colours (3 - j), 'linewidth', wide);
  end
  axis ([0 120 0 5]);
  labels ('Three modes', 'Time [ms]', 'Force of the guide [kN]', {'all elements', 'modes alone', 'and one attached shape'}, 'northeast');
  r = finish ('example_contact_modes', fig, folder, checks, struct ('counts', counts, 'alone', modes_only / wanted, 'attached', ...
                                                                    with_shape / wanted));
  if nargout == 0, tell (r); clear r, end
end

function res = run_of (model, at_guide, middle, guide, shake, h, last)
  sim = qn.simulation (model, 'step', h, 'until', last, 'load', {qn.load_at(model, middle), shake}, 'elements', ...
                       {guide, qn.observe(model, at_guide)});
  res = qn.run (sim, 'progress', false, 'check', model.attached > 0);
end

% Trapezoidal rule for the matrices as they are. Of the two linear models, guide open or closed, the one is right that says of itself
% that it is.
function [t, force] = reference (k, m, c, at, middle, contact, play, shake, h, last)
  n = size (k, 1);
  row = sparse (1, at, 1, 1, n);
  push = sparse (middle, 1, 1, n, 1);
  a = 4 / h ^ 2 * m + 2 / h * c + k;
  open = inv (full (a));
  closed = inv (full (a + contact * (row.' * row)));
  t = 0:h:last;
  force = zeros (size (t));
  [x, v, acc] = deal (zeros (n, 1));
  for j = 2:numel (t)
    right = push * shake (t(j)) + m * (4 / h ^ 2 * x + 4 / h * v + acc) + c * (2 / h * x + v);
    next = open * right;
    if next(at) > play
      next = closed * (right + contact * play * row.');
      force(j) = contact * max (0, next(at) - play);
    end
    change = next - x;
    acc_next = 4 / h ^ 2 * change - 4 / h * v - acc;
    v = v + h / 2 * (acc + acc_next);
    acc = acc_next;
    x = next;
  end
end
