% [NUMERIC, PHYSICAL] = LINEAR_STEP (SIM, EXPLICIT)         rates at which the linear model grows [1/s], in the scheme and in reality
% [NUMERIC, PHYSICAL] = LINEAR_STEP (SIM, EXPLICIT, DAMPING)
%
% NUMERIC is log (spectral radius)/h of one step of the scheme as it runs (qn.impl.step_matrix). EXPLICIT, m x m, is a stiffness that acts
% at the prediction only, as that of an element does, and DAMPING (0) a damping. PHYSICAL is the greatest real part of the eigenvalues of
% the equations of motion themselves, with the same stiffness and damping.
function [numeric, physical] = linear_step (sim, explicit, damping)
  if nargin < 3, damping = 0; end
  m = numel (sim.model.w);
  k = qn.impl.matrix (sim.model.stiffness);
  c = qn.impl.matrix (sim.model.damping);
  step = qn.impl.step_matrix (sim, explicit, damping);
  numeric = log (max (abs (eig (step)))) / sim.step;
  physical = max (real (eig ([zeros(m), eye(m); -(k + explicit), -(c + damping)])));
end
