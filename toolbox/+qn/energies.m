% QN.ENERGIES  where the energy of a run is, and whether it adds up
%
% Purpose
%   Kinetic, strain and stored energy, what was damped, dissipated and taken by forces without a potential, and the work of the loads.
%   What does not add up, the residual, has two sources: forces of memoryless elements act as evaluated at the predictor and do not
%   quite follow their potential, and schemes other than average acceleration damp or excite by themselves. Both fall with the step.
%   All other works are those of the forces as they acted, and balance to rounding with average acceleration, at any step: a small
%   residual does not say that the motion is right (see qn.advise). One that does not fall with the step is not an error of the step.
%
% Calls
%   E = qn.energies (RES)
%
% Input
%   RES   from qn.run, with every step kept
%
% Output
%   E     struct of rows, one column per time [J], and time [s]
%           kinetic, strain   of the modes; strain is that of the symmetric part of the stiffness
%           stored            in elements, since the start
%           damped            by modal damping (the symmetric part of a full matrix)
%           dissipated        by elements with memory and by those that depend on the velocity
%           exchanged         taken by elements that act elsewhere than they observe ("B" beside "C"); negative: put in
%           circulatory       taken by the skew part of a full stiffness (bearings with cross terms); negative: put in, as in oil whirl.
%                             In a run-up also by all stiffness that changes with the speed or with its rate: 'KG', 'N' and
%                             'by_speed' of qn.modal; and by 'varying' of qn.simulation
%           gyroscopic        taken by the skew part of a full damping matrix, in a run-up with the speed of each step: as the force is
%                             at right angles to the velocity at the ends of a step, nothing to the order of the step squared.
%                             What the drive does to keep to the speeds of a run-up is not in the model
%           work              of the loads
%           residual          what is there and was taken, less what was there at the start and the work of the loads
%
% Errors
%   qn:input  the result keeps only some of the steps, or the run was cut short
%
% Example
%   model = qn.modal (1e4, 1, 'damping', 0.05);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'v0', 1));
%   e = qn.energies (res);
%   max (abs (e.residual)) / max (e.kinetic)
%
% See also qn.dissipated, qn.velocity, qn.advise
function e = energies (res)
  if nargin < 1, res = []; end
  qn.impl.expect_result_of ('qn.energies', res, 'qn.run');
  sim = res.sim;
  qn.impl.every_step ('qn.energies', res);
  if ~res.complete, error ('qn:input', 'qn.energies: the run is not complete: go on with qn.resume first'); end
  none = zeros (size (res.time));
  e = struct ('time', res.time, 'kinetic', none, 'strain', none, 'stored', none, 'damped', none, 'dissipated', none, ...
              'exchanged', none, 'circulatory', none, 'gyroscopic', none, 'work', none);
  e = of_structure (e, res);
  d = qn.dissipated (res);
  for k = 1:numel (d)
    members = sim.elements([sim.elements.item] == k);
    e.stored = e.stored + d(k).stored;
    e.exchanged = e.exchanged + d(k).exchanged;
    t = qn.impl.traits (members(1).law, 1);
    if t.memory || t.rates, e.dissipated = e.dissipated + d(k).dissipated; end
  end
  now = e.kinetic + e.strain + e.stored + e.damped + e.dissipated + e.exchanged + e.circulatory + e.gyroscopic;
  e.residual = now - now(1) - e.work;
end

% What does not belong to elements. Where modes are coupled, a block of columns after another: works step by step, then their sums.
function e = of_structure (e, res)
  sim = res.sim;
  if ~qn.impl.coupled (sim)
    m = size (res.q, 1);
    x = qn.impl.modal_motion (res, 1:size (res.q, 2), sim.start.v(1:m), sim.start.a(1:m));
    [e.kinetic, e.strain, e.damped, e.work] = deal (x(1, :), x(2, :), x(3, :), x(4, :));
    return
  end
  [c, gyroscopic] = parts (sim.model.damping);
  [k, circulatory] = parts (sim.model.stiffness);
  [at, last, turning] = deal ([]);
  if qn.impl.varies (sim), turning = qn.impl.varying (sim); end
  for columns = qn.impl.blocks (size (res.q))
    j = columns(1):columns(2);
    [v, at] = qn.impl.next_rates (res, at, j);
    q = res.q(:, j(1):j(end));
    e.kinetic(j) = dot (v, v, 1) / 2;
    e.strain(j) = weighed (k, q, q) / 2;
    if ~isempty (last)
      v = [last, v];
      j = j(1) - 1:j(end);
      q = res.q(:, j(1):j(end));
    end
    last = v(:, end);
    to = j(2:end);
    moved = q(:, 2:end) - q(:, 1:end - 1);
    e.damped(to) = weighed (c, v(:, 1:end - 1) + v(:, 2:end), moved) / 2;
    e.work(to) = dot (sim.loads(:, j(1):j(end) - 1) + sim.loads(:, j(1) + 1:j(end)), sim.shapes.' * moved, 1) / 2;
    between = @(f) sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* moved, 1);
    if any (circulatory(:)), e.circulatory(to) = between (circulatory * q); end
    if any (gyroscopic(:)), e.gyroscopic(to) = between (gyroscopic * v); end
    for p = turning
      if p.type == 1
        e.circulatory(to) = e.circulatory(to) + between (qn.impl.turning_force (p, sim.time(j), q, v));
        continue
      end
      [p.matrix, skew] = parts (p.matrix);
      e.damped(to) = e.damped(to) + between (qn.impl.turning_force (p, sim.time(j), q, v));
      p.matrix = skew;
      if any (skew(:)), e.gyroscopic(to) = e.gyroscopic(to) + between (qn.impl.turning_force (p, sim.time(j), q, v)); end
    end
  end
  for name = {'damped', 'work', 'circulatory', 'gyroscopic'}, e.(name{1}) = cumsum (e.(name{1})); end
end

% Column by column y' C x, C by its diagonal or whole.
function p = weighed (c, x, y)
  if size (c, 2) == 1, p = c.' * (x .* y); else, p = dot (c * x, y, 1); end
end

% Symmetric and skew part of a modal matrix; of a diagonal, given as a column, that and nothing.
function [s, g] = parts (x)
  [s, g] = deal (x, []);
  if size (x, 2) == 1, return, end
  s = (x + x.') / 2;
  g = (x - x.') / 2;
end
