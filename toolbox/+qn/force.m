% QN.FORCE  force of a law along a history of displacements, computed by the module
%
% Purpose
%   To see or to test a law without a structure around it.
%
% Calls
%   F = qn.force (LAW, X)
%   F = qn.force (LAW, X, V)
%   F = qn.force (LAW, X, V, H)
%
% Input
%   LAW   from qn.law or a recipe; the forces of a bank add up
%   X     displacements [m], in a row; for 'radial' and 'journal' two rows, for 'clima2' three. Laws of one displacement without memory
%         take a matrix, such as one from ndgrid, value by value
%   V     velocities, size of X [m/s]; laws that depend on them and laws with memory need them, and the latter also
%   H     the time step between two columns [s]
%
% Output
%   F     forces [N], size of X. Laws with memory start without force or displacement.
%
% Errors
%   qn:input  V or H is missing or has another size, or a value is not finite
%
% Example
%   h = 1e-3;
%   t = 0:h:1;
%   x = 1e-3 * sin (2 * pi * t);
%   v = 2 * pi * 1e-3 * cos (2 * pi * t);
%   f = qn.force (qn.zener ('stiffness', 1e5, 'spring', 1e5, 'damper', 1e4), x, v, h);
%
% See also qn.law, qn.element, qn.plot.loop
function f = force (law, x, v, h)
  who = 'qn.force';
  if nargin < 2, error ('qn:input', '%s: a law and displacements expected; see help %s', who, who); end
  law = qn.impl.sound_law (who, law);
  x = qn.impl.numbers (who, 'X', x, [NaN NaN]);
  [memory, rates] = deal (false);
  rows = 0;
  for k = 1:numel (law)
    t = qn.impl.traits (law(k), 1);
    memory = memory || t.memory;
    rates = rates || t.rates;
    rows = max (rows, t.rows);
  end
  if ~memory
    if nargin < 3 && rates
      error ('qn:input', 'qn.force: the law "%s" depends on the velocity: give it after the displacements', law(end).kind);
    end
    if nargin < 3, v = zeros (size (x)); end
    v = qn.impl.numbers (who, 'V', v, size (x), 'each', 'as the displacements');
    f = 0;
    if rows > 1 && size (x, 1) ~= rows
      error ('qn:input', '%s: the law "%s" observes %d displacements: "X" must have %d rows, got %d', who, law(1).kind, rows, rows, ...
             size (x, 1));
    end
    for k = 1:numel (law), f = f + at_once (law(k), x, v); end
    return
  end
  if nargin < 4, error ('qn:input', 'qn.force: the law "%s" has a memory: velocities and a time step are needed', law(end).kind); end
  rows = max (rows, 1);
  x = qn.impl.numbers (who, 'X', x, [rows NaN]);
  v = qn.impl.numbers (who, 'V', v, size (x), 'each', 'as the displacements');
  h = qn.impl.scalar (who, 'H', h, realmin ());
  f = step_by_step (law, rows, x, v, h);
end

% All columns side by side in one element; where a law couples its rows, in its own groups.
function f = at_once (law, x, v)
  n = numel (x);
  t = qn.impl.traits (law, n);
  if t.rows > 1
    f = column_by_column (law, x, v);
    return
  end
  wide = min (n, 64);
  whole = n - mod (n, wide);
  f = reshape ([in_parts(law, wide, x(1:whole), v(1:whole)), in_parts(law, n - whole, x(whole + 1:n), v(whole + 1:n))], size (x));
end

% WIDE values at a time: the observation of an element is a full matrix.
function f = in_parts (law, wide, x, v)
  f = zeros (1, 0);
  if isempty (x), return, end
  h = chandle (quarn ('chandleset', 1003, qn.element (law, eye (wide))));
  free = onCleanup (@() delete (h));
  f = zeros (wide, numel (x) / wide);
  for k = 1:size (f, 2)
    at = (k - 1) * wide + (1:wide);
    r = zeros (wide, 1);
    quarn ('residual', r, h, qn.impl.fresh (reshape (x(at), [], 1)), qn.impl.fresh (reshape (v(at), [], 1)), zeros (wide, 1));
    f(:, k) = r;
  end
  f = reshape (f, 1, []);
end

function f = column_by_column (law, x, v)
  n = size (x, 1);
  h = chandle (quarn ('chandleset', 1003, qn.element (law, eye (n))));
  free = onCleanup (@() delete (h));
  f = zeros (size (x));
  for k = 1:size (x, 2)
    r = zeros (n, 1);
    quarn ('residual', r, h, qn.impl.fresh (x(:, k)), qn.impl.fresh (v(:, k)), zeros (n, 1));
    f(:, k) = r;
  end
end

% All laws in one call a step; after the displacements, the memory of each.
function f = step_by_step (law, rows, x, v, h)
  states = zeros (1, numel (law));
  for k = 1:numel (law), states(k) = getfield (qn.impl.traits (law(k), rows), 'states'); end
  n = rows + sum (states);
  values = cell (numel (law), 2);
  for k = 1:numel (law)
    place = rows + 1 + sum (states(1:k - 1));
    values(k, :) = {1003, qn.element(law(k), [eye(rows), zeros(rows, n - rows)], 'step', h, 'state', place)};
  end
  handles = qn.impl.register (values);
  free = onCleanup (@() delete (handles));
  f = zeros (rows, size (x, 2));
  state = zeros (n - rows, 1);
  rest = zeros (n - rows, 1);
  none = zeros (n, 1);
  for k = 1:size (x, 2)
    u = [x(:, k); state];
    r = zeros (n, 1);
    quarn ('residual', r, handles, u, [v(:, k); rest], none);
    f(:, k) = r(1:rows);
    state = u(rows + 1:end);
  end
end
