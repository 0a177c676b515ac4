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
  v = qn.impl.rates (res, 'qn.energies');
  q = res.q;
  dq = diff (q, 1, 2);
  between = @(f) [0, cumsum(sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* dq, 1))];
  [c, gyroscopic] = parts (sim.model.damping);
  [k, circulatory] = parts (sim.model.stiffness);
  none = zeros (size (res.time));
  e = struct ('time', res.time, 'kinetic', sum (v .^ 2, 1) / 2, 'strain', sum (q .* (k * q), 1) / 2, 'stored', none, ...
              'damped', between (c * v), 'dissipated', none, 'exchanged', none, 'circulatory', between (circulatory * q), ...
              'gyroscopic', between (gyroscopic * v), 'work', between (sim.shapes * sim.loads));
  if qn.impl.varies (sim)
    for p = qn.impl.varying (sim)
      if p.type == 1
        e.circulatory = e.circulatory + between (qn.impl.turning_force (p, sim.time, q, v));
        continue
      end
      [p.matrix, skew] = parts (p.matrix);
      e.damped = e.damped + between (qn.impl.turning_force (p, sim.time, q, v));
      p.matrix = skew;
      e.gyroscopic = e.gyroscopic + between (qn.impl.turning_force (p, sim.time, q, v));
    end
  end
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

% Symmetric and skew part of a modal matrix, given by its diagonal or whole.
function [s, g] = parts (x)
  if size (x, 2) == 1, x = spdiags (x, 0, numel (x), numel (x)); end
  s = (x + x.') / 2;
  g = (x - x.') / 2;
end
