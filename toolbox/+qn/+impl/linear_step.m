% [NUMERIC, PHYSICAL] = LINEAR_STEP (SIM, EXPLICIT)         rates at which the linear model grows [1/s], in the scheme and in reality
% [NUMERIC, PHYSICAL] = LINEAR_STEP (SIM, EXPLICIT, DAMPING)
%
% NUMERIC is log (spectral radius)/h of one step of the scheme as it runs: prediction, residual, gain, correction, on the state [u; h v;
% h^2 a]. EXPLICIT, m x m, is a stiffness that acts at the prediction only, as that of an element does, and DAMPING (0) a damping. PHYSICAL
% is the greatest real part of the eigenvalues of the equations of motion themselves, with the same stiffness and damping.
function [numeric, physical] = linear_step (sim, explicit, damping)
  if nargin < 3, damping = 0; end
  h = sim.step;
  b = sim.scheme.beta;
  g = sim.scheme.gamma;
  m = numel (sim.model.w);
  k = qn.impl.matrix (sim.model.stiffness);
  c = qn.impl.matrix (sim.model.damping);
  one = eye (m);
  module = qn.impl.integrator (sim, 1, 2);
  if isfield (module, 'gain')
    gain = module.gain(1:m, 1:m);
  else
    gain = diag (module.r(1:m, 3));
  end
  ahead = [one, one, (1 / 2 - b) * one];
  rate = [zeros(m), one, (1 - g) * one];
  d = gain * ((k + explicit) * ahead + (c + damping) / h * rate);
  step = [ahead - d; rate - (g / b) * d; -d / b];
  numeric = log (max (abs (eig (step)))) / h;
  physical = max (real (eig ([zeros(m), one; -(k + explicit), -(c + damping)])));
end
