% QN.ACCELERATION  accelerations of the structure from a result, relative to a moving base or absolute
%
% Purpose
%   Second output of qn.velocity, and on request what an accelerometer shows: the acceleration relative to the base plus that of the
%   base. Modes that the model did not keep follow the base rigidly: absolute = C q'' + push * acceleration of the base.
%
% Calls
%   A = qn.acceleration (RES, C)
%   A = qn.acceleration (RES, C, 'absolute', true)
%
% Input
%   RES   from qn.run, with every step kept
%   C     observation rows or numbers of degrees of freedom, as for qn.displacement. For absolute accelerations of a model that did
%         not keep all modes: numbers, rows of qn.observe for single degrees of freedom, or sparse p x n rows of the structure, since
%         other modal rows do not say how their point moves with the base.
%   Names and values
%     'absolute'  true: with the motion of the base, which 'base' of qn.simulation gave (false)
%
% Output
%   A     p x k accelerations [m/s^2], one column per time of RES.time
%
% Errors
%   qn:input  the result keeps only some of the steps, the run had no 'base', or C does not say how its points move with the base
%
% Example
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2), 'damping', 0.02);
%   quake = @(t) 3 * sin (20 * t) .* (t < 1);
%   res = qn.run (qn.simulation (model, 'step', 1e-4, 'until', 2, 'base', {[1; 1], quake}));
%   floor = qn.acceleration (res, 2, 'absolute', true);
%
% See also qn.velocity, qn.displacement, qn.srs, qn.base
function a = acceleration (res, c, varargin)
  who = 'qn.acceleration';
  if nargin < 1, res = []; end
  qn.impl.expect_result_of (who, res, 'qn.run');
  if nargin < 2, error ('qn:input', '%s: observation rows or degrees of freedom expected; see help qn.acceleration', who); end
  o = qn.impl.options (who, struct ('absolute', false), varargin);
  sim = res.sim;
  model = sim.model;
  physical = [];
  if issparse (c) && size (c, 2) == size (model.shapes, 1)
    physical = c;
    rows = full (c * model.shapes);
  else
    rows = qn.impl.observation_rows (model, c, [who ': ']);
  end
  [v, a] = qn.impl.rates (res, 'qn.acceleration', rows);
  if ~qn.impl.flag (who, 'absolute', o.absolute), return, end
  if ~isfield (sim, 'base') || isempty (sim.base)
    error ('qn:input', '%s: for absolute accelerations give the motion of the base by "base" of qn.simulation', who);
  end
  moved = sim.base.push;
  if isempty (physical)
    moved = follows (who, model, rows, moved);
  else
    moved = physical * moved;
  end
  a = a + moved * sim.loads(sim.base.loads, sim.saved);
end

% Displacement of each row's point when the base moves by 1.
function d = follows (who, model, rows, push)
  [n, m] = size (model.shapes);
  if m == n
    d = rows * (model.shapes.' * (model.M * push));
    return
  end
  d = zeros (size (rows, 1), size (push, 2));
  for k = 1:size (rows, 1)
    dofs = find (ismember (model.shapes, rows(k, :), 'rows'));
    if isempty (dofs) || any (any (diff (push(dofs, :), 1, 1)))
      error ('qn:input', ['%s: row %d does not say how its point moves with the base, as the model has %d of %d modes; give numbers ' ...
                          'of degrees of freedom or sparse rows of %d values'], who, k, m, n, n);
    end
    d(k, :) = push(dofs(1), :);
  end
end
