% QN.DISSIPATED  energy that each nonlinear element has taken up, stored, dissipated and exchanged
%
% Purpose
%   Shows which element damps. What an element of the displacement alone "dissipates" is the error of the time step: its force is
%   evaluated at the predictor. It should be small compared with the rest.
%
% Calls
%   D = qn.dissipated (RES)
%
% Input
%   RES   from qn.run, with every step kept
%
% Output
%   D     struct array, one per element of 'elements' in qn.simulation (a bank of laws is one). Without an output argument a
%         table of the values at the end is printed.
%           law         text
%           absorbed    1 x k work done on it since the start [J]
%           stored      1 x k change of its stored energy [J]: of memoryless laws their potential; of sliders and Dahl elements
%                       force^2 / (2 stiffness); of Maxwell elements that of their springs; of 'radial' that of the contact
%                       without its damping; of 'journal' 0, of 'clima2' not known, 0
%           exchanged   1 x k work taken by forces that act elsewhere than the element observes: rows "B" that are not a multiple of "C".
%                       They have no potential: this depends on the path, and negative is energy that they put in [J]. Of a law whose rows
%                       belong together ('radial', 'journal', 'clima2', several rows of a law of your own) all its work, unless "B" as a
%                       whole is one multiple of "C"
%           dissipated  1 x k, absorbed less stored and exchanged [J]
%
% Errors
%   qn:input  the result keeps only some of the steps
%
% Example
%   model = qn.modal (1e4, 1);
%   sim = qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'q0', 0.1, ...
%                        'elements', {qn.slider('slip', 20, 'stiffness', 1e5), qn.observe(model, 1)});
%   d = qn.dissipated (qn.run (sim, 'progress', false));
%   plot ((0:1000) * 1e-3, d(1).dissipated);
%
% See also qn.energies, qn.slider, qn.plot.loop
function d = dissipated (res)
  if nargin < 1, res = []; end
  qn.impl.expect_result_of ('qn.dissipated', res, 'qn.run');
  sim = res.sim;
  qn.impl.every_step ('qn.dissipated', res);
  d = struct ('law', {}, 'absorbed', {}, 'stored', {}, 'exchanged', {}, 'dissipated', {});
  m = numel (sim.model.w);
  met = cat (1, zeros (0, m), sim.elements.observe) * res.q;  % one pass for all elements
  last = 0;
  for e = sim.elements
    f = res.force(e.forces, :);
    x = met(last + (1:size (e.observe, 1)), :);
    last = last + size (x, 1);
    y = x;
    if ~isequal (e.command, e.observe), y = e.command * res.q; end
    absorbed = [zeros(size (f, 1), 1), cumsum((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* diff (y, 1, 2), 2)];
    state = [];
    if e.state > 0, state = res.state(e.state - m, :); end
    t = qn.impl.traits (e.law, size (x, 1));
    whole = t.memory || t.rows > 1;
    share = along (e.observe, e.command, whole);
    exchanged = sum (absorbed(isnan (share), :), 1);
    stored = zeros (size (res.time));
    if whole
      if ~isnan (share(1)), stored = share(1) * qn.impl.stored (e.law, x, f, state, sim.step); end
    else
      for k = find (~isnan (share))
        stored = stored + share(k) * qn.impl.stored (e.law, x(k, :), f(k, :), state, sim.step);
      end
    end
    stored = stored - stored(1);
    absorbed = sum (absorbed, 1);
    if numel (d) < e.item
      d(e.item) = struct ('law', qn.impl.law_text (e.law), 'absorbed', absorbed, 'stored', stored, 'exchanged', exchanged, ...
                          'dissipated', absorbed - stored - exchanged);
    else
      d(e.item).absorbed = d(e.item).absorbed + absorbed;
      d(e.item).stored = d(e.item).stored + stored;
      d(e.item).exchanged = d(e.item).exchanged + exchanged;
      d(e.item).dissipated = d(e.item).absorbed - d(e.item).stored - d(e.item).exchanged;
    end
  end
  for k = 1:numel (d)
    n = sum ([sim.elements.item] == k);
    if n > 1, d(k).law = sprintf ('%d laws, the first: %s', n, d(k).law); end
  end
  if nargout > 0, return, end
  if isempty (d), fprintf ('no elements\n'); end
  if ~isempty (d), fprintf ('%7s %14s %12s %14s %14s  %s\n', 'element', 'absorbed [J]', 'stored [J]', 'dissipated [J]', ...
                                  'exchanged [J]', 'law'); end
  for k = 1:numel (d)
    fprintf ('%7d %14.4g %12.4g %14.4g %14.4g  %s\n', k, d(k).absorbed(end), d(k).stored(end), d(k).dissipated(end), ...
             d(k).exchanged(end), d(k).law);
  end
  clear d
end

% Row by row: B = SHARE C, NaN where B points elsewhere. Such a row's force has the potential of its law times SHARE. The forces of rows that
% belong together (WHOLE) have one potential: one share for all, or none.
function share = along (c, b, whole)
  share = nan (1, size (c, 1));
  for k = 1:size (c, 1)
    square = c(k, :) * c(k, :).';
    s = (b(k, :) * c(k, :).') / max (square, realmin ());
    if norm (b(k, :) - s * c(k, :)) <= 1e-9 * norm (b(k, :)), share(k) = s; end
  end
  used = share(any ([c, b], 2));
  if ~whole || isempty (used), return, end
  share(:) = used(1);
  if ~all (abs (used - used(1)) <= 1e-9 * abs (used(1))), share(:) = NaN; end
end
