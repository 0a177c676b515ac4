% QN.UNBALANCE  loads of unbalances, at a constant speed or along a run-up
%
% Purpose
%   A mass m, e off the axis, at the angle a of the turning shaft is a force m e (W^2 - i A) exp (i (th + a)) over x + i y: th is the
%   angle of the shaft, W its speed, A its angular acceleration. The loads are as qn.simulation takes them.
%
% Calls
%   LOAD = qn.unbalance (MODEL, DOFS, ME, 'speed', W, ...)
%   LOAD = qn.unbalance (MODEL, DOFS, ME, 'profile', P, ...)
%
% Input
%   MODEL   from qn.modal
%   DOFS    [x y], the degrees of freedom across the shaft where the unbalance is, or one such row for each of several. A model of a
%           rotor of qn.rotor knows which they are, and others are refused.
%   ME      mass times distance from the axis, one for each row [kg m]
%   Names and values
%     'phase'    angle at which each unbalance is on the shaft, from x towards y, one for all or one a row [rad] (0)
%     'speed'    constant speed [rad/s]; negative: the shaft turns from y towards x
%     'profile'  speed over time: a 2 x k table [times; speeds], linear in between and constant before and after (qn.check says where a
%                run leaves it), or a function of a row of times that gives three rows: angle [rad], speed [rad/s], angular acceleration
%                [rad/s^2]. Of a rotor with a gyroscopic matrix give qn.simulation the same speeds as 'speed'.
%     'angle'    angle of the shaft at time 0; with a function of 'profile' it is added [rad] (0)
%
% Output
%   LOAD    {SHAPE, SIGNAL; SHAPE, SIGNAL} for 'load' of qn.simulation, whatever the number of unbalances; append other loads below
%
% Errors
%   qn:input  neither or both of 'speed' and 'profile', a degree of freedom is not there or not x and y of one node of a rotor, sizes do
%             not fit, times do not ascend, or the function of 'profile' does not give three rows; qn.simulation refuses one whose angle
%             is not the integral of its speed, or its speed not that of its acceleration
%   The warning qn:unbalance says that a model with a gyroscopic matrix turns at another speed than the unbalance, or at one speed while the
%   unbalance runs along a profile, or that the two degrees of freedom of a row move masses that are not those of one node; warning ('off',
%   'qn:unbalance') switches it off. qn.check compares the speeds of unbalance and run (unbalance_speed in docs/checks.md).
%
% Source
%   R. Gasch, R. Nordmann and H. Pfützner, Rotordynamik, 2006
%
% Example
%   model = qn.modal (4e6 * eye (2), 10 * eye (2), 'damping', 0.05);
%   run_up = [0 2; 0 1200];
%   load = qn.unbalance (model, [1 2], 10 * 50e-6, 'profile', run_up);
%   res = qn.run (qn.simulation (model, 'step', 1e-4, 'until', 2, 'load', load), 'progress', false);
%
% See also qn.gravity, qn.rotor, qn.campbell, qn.simulation, qn.load_at
function load = unbalance (model, dofs, me, varargin)
  who = 'qn.unbalance';
  if nargin < 1, model = []; end
  qn.impl.expect_result_of (who, model, 'qn.modal');
  if nargin < 3, error ('qn:input', '%s: degrees of freedom and unbalances expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('phase', 0, 'speed', [], 'profile', [], 'angle', 0), varargin);
  n = size (model.shapes, 1);
  dofs = qn.impl.numbers (who, 'DOFS', dofs, [NaN 2], 'from', 1, 'to', n, 'whole', 'each', 'x and y of an unbalance in a row');
  same = find (dofs(:, 1) == dofs(:, 2), 1);
  if ~isempty (same), error ('qn:input', '%s: row %d of "DOFS" names %d for x and for y', who, same, dofs(same, 1)); end
  across_the_shaft (who, model, dofs);
  count = size (dofs, 1);
  me = qn.impl.numbers (who, 'ME', me, count, 'each', 'one for each row of DOFS');
  phases = count;
  if numel (o.phase) == 1, phases = 1; end
  phase = qn.impl.numbers (who, 'phase', o.phase, phases, 'each', 'one for all or one for each row of DOFS');
  if isempty (o.speed) == isempty (o.profile), error ('qn:input', '%s: give "speed" or "profile", one of them', who); end
  angle = qn.impl.scalar (who, 'angle', o.angle);
  if ~isempty (o.speed)
    speed = qn.impl.scalar (who, 'speed', o.speed);
    what = struct ('speed', speed, 'table', [], 'motion', @(t) [speed * t; speed + 0 * t; 0 * t]);
    same_speed (who, model, speed);
  else
    what = struct ('speed', [], 'table', [], 'motion', qn.impl.rotor.turning (who, o.profile));
    if isnumeric (o.profile), what.table = double (o.profile); end
    if qn.impl.turns (model) && model.rotation.speed ~= 0 && ~qn.impl.by_speed (model.rotation)
      warning ('qn:unbalance', ['%s: the unbalance runs along a profile, the model turns at %g rad/s: make it with ''speed'', 0, ' ...
                                'and give the profile to qn.simulation as ''speed'''], who, model.rotation.speed);
    end
  end
  shape = model.shapes(dofs(:, 1), :) - 1i * model.shapes(dofs(:, 2), :);
  shape = (me(:).' .* exp (1i * phase(:).') .* ones (1, count)) * shape;
  what.angle = angle;
  load = {real(shape(:)), @(t) qn.impl.rotor.unbalance_signal(t, what, 1)
          -imag(shape(:)), @(t) qn.impl.rotor.unbalance_signal(t, what, 2)};
end

% Whether the rows of DOFS are x and y of nodes, as far as the model tells: by the nodes of a rotor, or by the masses that they move.
function across_the_shaft (who, model, dofs)
  if isfield (model, 'rotation') && isfield (model.rotation, 'places')
    qn.impl.rotor.at_nodes (who, model.rotation, dofs);
    return
  end
  moved = full (diag (model.M));
  for k = 1:size (dofs, 1)
    m = moved(dofs(k, :));
    if abs (diff (m)) <= 0.2 * max (m), continue, end
    warning ('qn:unbalance', ['%s: row %d of "DOFS", [%d %d], moves %.4g and %.4g on the diagonal of M, where x and y of one node move ' ...
                              'the same mass; is one of them a rotation, or at another node?'], who, k, dofs(k, :), m);
    return
  end
end

function same_speed (who, model, speed)
  if ~qn.impl.turns (model) || abs (model.rotation.speed - speed) <= 1e-3 * abs (speed), return, end
  warning ('qn:unbalance', ['%s: the unbalance turns at %g rad/s, the model at %g rad/s: its gyroscopic forces are those of ' ...
                            'another speed'], who, speed, model.rotation.speed);
end
