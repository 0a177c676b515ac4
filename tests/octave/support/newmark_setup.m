% [INTEGRATOR, MEM, OUT] = NEWMARK_SETUP (M, C, K, PHI, P, H, BETA, GAMMA, SAVE)
% [...] = NEWMARK_SETUP (..., NDOF)
%
% Integrator structure, work memory and outputs of a run.
% Input
%   M, C, K   modal masses, dampings, stiffnesses (the stiffness and damping forces come from handles of their own)
%   PHI       participation of each mode in each load, modes x loads; P loads x time points, P(:,j) the load at t(j)
%   H         time step; the table has as many columns as P, times (j-1)*H
%   BETA, GAMMA   Newmark parameters
%   SAVE      columns of the time table at which the displacements are saved
%   NDOF      rows of u, v and a where they hold more than the modes (internal states of elements)
% The step to t(j+1) uses the loads of table column j, so P(:,j+1) is there. Loads are residuals: minus the forces.
function [integrator, mem, out] = newmark_setup (m, c, k, phi, p, h, beta, gamma, save, ndof)
  n = numel (m);
  if nargin < 10, ndof = n; end
  gain = 1 ./ (m(:) / (beta * h ^ 2) + gamma * c(:) / (beta * h) + k(:));
  integrator = struct ('type', 2000, 'r', [zeros(n, 1), -phi, gain]);
  steps = size (p, 2);
  integrator.tft = [(0:steps - 1) * h; p(:, [2:steps steps])];
  integrator.data = [h, (0.5 - beta) * h ^ 2, (1 - gamma) * h, gamma / (beta * h), 1 / (beta * h ^ 2), 0];
  mem = struct ('uva', struct ('uva', zeros (4 * ndof, 1)));
  times = integrator.tft(1, save);
  out = struct ('data', times(:), 'def', zeros (ndof, numel (save)));
  integrator = fresh (integrator);
end
