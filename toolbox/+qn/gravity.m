% QN.GRAVITY  load of a structure's own weight
%
% Purpose
%   Weight of all masses of a model, as qn.simulation takes loads. It may be applied slowly, so that it does not set the structure
%   swinging.
%
% Calls
%   LOAD = qn.gravity (MODEL, PUSH)
%   LOAD = qn.gravity (MODEL, PUSH, NAME, VALUE, ...)
%
% Input
%   MODEL   from qn.modal, n degrees of freedom
%   PUSH    n x 1: displacement of every degree of freedom when the whole structure moves by 1 downwards: 1 where it points down, -1 where
%           it points up, 0 for the others
%   Names and values
%     'g'     acceleration of gravity [m/s^2] (9.80665)
%     'ramp'  the weight grows from nothing at time 0 to the whole at this time, along half a cosine [s] (0: whole from the beginning)
%
% Output
%   LOAD    {SHAPE, SIGNAL} for 'load' of qn.simulation; append other loads below. SHAPE is the modal force of the whole weight
%           [N/sqrt(kg)], so that qn.static (MODEL, LOAD{1}, ELEMENTS) is the rest position; SIGNAL is its share, from 0 to 1.
%
% Errors
%   qn:input  PUSH has not n values, or a value is not finite; of a rotor of qn.rotor it turns a node, or moves one node otherwise than
%             another; the ramp is negative
%
% Example
%   model = qn.modal (4e4 * eye (2), 3 * eye (2), 'damping', 0.05);
%   load = qn.gravity (model, [0; -1], 'ramp', 0.2);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', load), 'progress', false);
%
% See also qn.unbalance, qn.base, qn.static, qn.simulation
function load = gravity (model, push, varargin)
  who = 'qn.gravity';
  if nargin < 1, model = []; end
  qn.impl.expect_result_of (who, model, 'qn.modal');
  if nargin < 2, push = []; end
  o = qn.impl.options (who, struct ('g', 9.80665, 'ramp', 0), varargin);
  push = qn.impl.numbers (who, 'PUSH', push, size (model.shapes, 1), 'each', 'one a degree of freedom');
  if isfield (model, 'rotation') && isfield (model.rotation, 'places'), as_one (who, push, model.rotation.places); end
  g = qn.impl.scalar (who, 'g', o.g);
  ramp = qn.impl.scalar (who, 'ramp', o.ramp, 0);
  grown = @(t) ones (size (t));
  if ramp > 0, grown = @(t) 0.5 - 0.5 * cos (pi * min (max (t / ramp, 0), 1)); end
  load = {g * (model.shapes.' * (model.M * push(:))), grown};
end

% A rotor moves downwards as one, without turning.
function as_one (who, push, places)
  moved = push(places(:, 1:2));
  moved = reshape (moved, [], 2);
  bad = find (any (abs (bsxfun (@minus, moved, moved(1, :))) > 1e-9, 2), 1);
  if ~isempty (bad)
    error ('qn:input', '%s: "PUSH" moves node 1 of the rotor by %s and node %d by %s; the weight of all of it moves all nodes alike', ...
           who, mat2str (moved(1, :), 4), bad, mat2str (moved(bad, :), 4));
  end
  if norm (moved(1, :)) > 1 + 1e-9
    error ('qn:input', '%s: "PUSH" moves the rotor by %g; it is a motion by 1', who, norm (moved(1, :)));
  end
  turned = push(places(:, 3:end));
  bad = find (turned(:), 1);
  if ~isempty (bad)
    [row, unused] = ind2sub (size (turned), bad);
    error ('qn:input', '%s: "PUSH" turns node %d of the rotor by %g; a motion downwards turns nothing', who, row, turned(bad));
  end
end
