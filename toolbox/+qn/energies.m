% QN.ENERGIES  where the energy of a run is, and whether it adds up
%
% Purpose
%   Kinetic, strain and stored energy, what was dissipated, and the work of the loads. The residual of the balance is the error of
%   the time integration: rounding alone for linear runs with average acceleration, and a measure of the step length where forces
%   of elements, which act as evaluated at the predictor, do not fit their potential.
%
% Calls
%   E = qn.energies (RES)
%
% Input
%   RES   from qn.run, with every step kept
%
% Output
%   E     struct of rows, one column a time [J]: kinetic, strain, stored (in elements, since the start), damped (by modal
%         damping), dissipated (by elements with memory), work (of the loads), residual (what is there now, less what was there at
%         the start and the work); and time [s]
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
  qn.impl.made_by ('qn.energies', res, 'qn.run');
  sim = res.sim;
  v = qn.impl.rates (res);
  q = res.q;
  dq = diff (q, 1, 2);
  between = @(f) [0, cumsum(sum ((f(:, 1:end - 1) + f(:, 2:end)) / 2 .* dq, 1))];
  c = sim.model.damping;
  if size (c, 2) == 1, c = diag (c); end
  e = struct ('time', res.time, 'kinetic', sum (v .^ 2, 1) / 2, 'strain', sum (bsxfun (@times, sim.model.stiffness, q .^ 2), 1) / 2, ...
              'stored', zeros (size (res.time)), 'damped', between (c * v), 'dissipated', zeros (size (res.time)), ...
              'work', between (sim.shapes * sim.loads));
  d = qn.dissipated (res);
  for k = 1:numel (d)
    members = sim.elements([sim.elements.item] == k);
    e.stored = e.stored + d(k).stored;
    t = qn.impl.traits (members(1).law, 1);
    if t.memory, e.dissipated = e.dissipated + d(k).dissipated; end
  end
  now = e.kinetic + e.strain + e.stored + e.damped + e.dissipated;
  e.residual = now - now(1) - e.work;
end
