% QN.FORCE  force of a law along a history of displacements, computed by the module
%
% Purpose
%   To see or to test a law without a structure around it.
%
% Calls
%   F = qn.force (LAW, X)
%   F = qn.force (LAW, X, V, H)
%
% Input
%   LAW   from qn.law or a recipe; the forces of a bank add up
%   X     row of displacements [m]; for 'clima2' three rows
%   V     velocities, size of X [m/s]; laws with memory need them, and
%   H     the time step between two columns [s]
%
% Output
%   F     row of forces [N]; for 'clima2' three rows. Laws with memory start without force or displacement.
%
% Errors
%   qn:input  V or H is missing, or has another size
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
  f = 0;
  for k = 1:numel (law)
    t = qn.impl.traits (law(k), 1);
    if ~t.memory
      f = f + at_once (law(k), x);
    else
      if nargin < 4, error ('qn:input', 'qn.force: the law "%s" has a memory: velocities and a time step are needed', law(k).kind); end
      if ~isequal (size (v), size (x)) || size (x, 1) ~= t.rows
        error ('qn:input', 'qn.force: displacements and velocities of %d rows expected, got %s and %s', t.rows, mat2str (size (x)), ...
               mat2str (size (v)));
      end
      f = f + step_by_step (law(k), t, x, v, h);
    end
  end
end

function f = at_once (law, x)
  n = numel (x);
  e = qn.element (law, eye (n));
  h = chandle (quarn ('chandleset', 1003, e));
  free = onCleanup (@() delete (h));
  f = zeros (n, 1);
  quarn ('residual', f, h, qn.impl.fresh (x(:)), zeros (n, 1), zeros (n, 1));
  f = reshape (f, size (x));
end

function f = step_by_step (law, t, x, v, h)
  e = qn.element (law, eye (t.rows), 'step', h, 'state', t.rows + 1);
  handle = chandle (quarn ('chandleset', 1003, e));
  free = onCleanup (@() delete (handle));
  n = e.c.dims(2);
  f = zeros (t.rows, size (x, 2));
  state = zeros (n - t.rows, 1);
  none = zeros (n, 1);
  for k = 1:size (x, 2)
    u = [x(:, k); state];
    r = zeros (n, 1);
    quarn ('residual', r, handle, u, [v(:, k); none(t.rows + 1:end)], none);
    f(:, k) = r(1:t.rows);
    state = u(t.rows + 1:end);
  end
end
