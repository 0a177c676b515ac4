% QN.ELEMENT  value of a nonlinear element handle (type 1003) from a law and observation rows
%
% Purpose
%   Packs a law into the module's option vectors. qn.simulation does this for the user; call it to work with quarn directly.
%
% Calls
%   E = qn.element (LAW, C, ...)
%
% Input
%   LAW   from qn.law or a recipe (one law, not a bank)
%   C     p x n observation rows, n the length of the displacement vector. 'power', 'exponential', 'table' and 'damper' take any number of
%         rows, each with a force of its own; 'radial' and 'journal' take two, 'clima2' three; the others one.
%   Names and values
%     'command'  rows through which the forces act, size of C (C)
%     'step'     time step [s]; laws with memory need it
%     'state'    row of the displacement vector, from 2, where 'dahl', 'stickslip' (one value) and 'clima2' (two values) keep their
%                state between steps. No mode may use it.
%     'slot'     place of the first force in the model's "FNL", from 1; 0: none (0)
%
% Output
%   E     struct for quarn ('chandleset', 1003, E). Laws of displacements alone get no place for velocities ("vnl" is empty), which are
%         then not observed. Rows that fill at least half of their places, and have 8 values or more, are stored with their zeros: that is quicker.
%
% Errors
%   qn:input  rows, step, state or slot do not fit the law, or are not finite
%
% Example
%   e = qn.element (qn.law ('power', 'stiffness', 100, 'exponent', 3), [1 -1]);
%   h = chandle (quarn ('chandleset', 1003, e));
%   r = zeros (2, 1);
%   quarn ('residual', r, h, [0.3; 0.1], zeros(2, 1), zeros(2, 1));      % r is 100 * 0.2^3 * [1; -1]
%   delete (h);
%
% See also qn.law, qn.describe, qn.force, qn.simulation
function e = element (law, c, varargin)
  who = 'qn.element';
  if nargin < 2, error ('qn:input', '%s: a law and observation rows expected; see help %s', who, who); end
  law = qn.impl.sound_law (who, law);
  c = full (qn.impl.numbers (who, 'C', c, [NaN NaN]));
  if numel (law) ~= 1, error ('qn:input', '%s: one law expected, got a bank of %d; make an element of each', who, numel (law)); end
  o = qn.impl.options (who, struct ('command', c, 'step', [], 'state', [], 'slot', 0), varargin);
  t = qn.impl.traits (law, size (c, 1));
  if t.rows > 0 && size (c, 1) ~= t.rows
    error ('qn:input', '%s: the law "%s" observes %d rows, "C" has %d', who, law.kind, t.rows, size (c, 1));
  end
  o.command = full (qn.impl.numbers (who, 'command', o.command, size (c), 'each', 'as the observation rows'));
  o.slot = qn.impl.numbers (who, 'slot', o.slot, [1 1], 'from', 0, 'whole');
  if t.memory
    if isempty (o.step), error ('qn:input', '%s: the law "%s" needs the time step', who, law.kind); end
    o.step = qn.impl.scalar (who, 'step', o.step, realmin ());
  end
  n = size (c, 2);
  c = [c; zeros(t.width - size (c, 1), n)];
  if t.states > 0
    if isempty (o.state), error ('qn:input', '%s: the law "%s" needs the row where its state is kept', who, law.kind); end
    o.state = qn.impl.numbers (who, 'state', o.state, [1 1], 'from', 2, 'whole');
    n = max (n, o.state + t.states - 1);
    c = [c, zeros(t.width, n - size (c, 2))];
    c(t.rows + (1:t.states), o.state - 1 + (1:t.states)) = eye (t.states);
  end
  b = zeros (t.width, n);
  b(1:size (o.command, 1), 1:size (o.command, 2)) = o.command;
  [opt, own] = qn.impl.pack_law (law, o.step);
  place = [o.slot - 1; 0; 0; 0; 0];
  if t.states > 0, place(2:5) = [o.state - 1; t.rows; t.states; 1]; end
  if t.inner > 0, place(3:5) = [t.width; t.inner; 1]; end
  if t.states == 0 && t.group > 0, place(3) = t.group; end
  rates = zeros (0, 1);  % most laws without memory look at no velocity: without a place for it none is observed
  if t.memory || t.rates, rates = zeros (t.width, 1, t.pages); end
  e = struct ('type', 1003, 'c', qn.impl.pack_rows (c), 'b', qn.impl.pack_rows (b), 'opt', opt, 'iopt', int32 ([place; own]), ...
              'unl', zeros (t.width, 1, t.pages), 'vnl', rates, 'snl', zeros (t.width, 1));
  l = qn.impl.law_of (law.kind);
  if ~isempty (l.extra), e = l.extra (e, law.parameters); end
end
