% [STEP, PUSH] = STEP_MATRIX (SIM, K, C)  one step of the scheme as it runs, on the state [u; h v; h^2 a] of the linear model: STEP * state + PUSH * f
%
% Prediction, residual, gain, correction. K and C, m x m, are stiffness and damping that act at the prediction only, as those of elements
% do; F is the modal load at the end of the step.
function [step, push] = step_matrix (sim, k, c)
  h = sim.step;
  b = sim.scheme.beta;
  g = sim.scheme.gamma;
  m = numel (sim.model.w);
  one = eye (m);
  module = qn.impl.integrator (sim, 1, 2);
  if isfield (module, 'gain')
    gain = module.gain(1:m, 1:m);
  else
    gain = diag (module.r(1:m, 3));
  end
  k = k + qn.impl.matrix (sim.model.stiffness);
  c = c + qn.impl.matrix (sim.model.damping);
  ahead = [one, one, (1 / 2 - b) * one];
  rate = [zeros(m), one, (1 - g) * one];
  d = gain * (k * ahead + c / h * rate);
  step = [ahead - d; rate - (g / b) * d; -d / b];
  push = [gain; (g / b) * gain; gain / b];
end
