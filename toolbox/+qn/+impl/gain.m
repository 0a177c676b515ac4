% G = GAIN (MODEL, SCHEME, H)  what the module corrects a step with: m x 1, or m x m where stiffness or damping couples the modes
%
% The inverse of I/(beta h^2) + gamma C/(beta h) + K (Newmark, 1959). A matrix makes every linear term implicit, whatever its symmetry.
function g = gain (model, scheme, h)
  b = scheme.beta;
  c = model.damping;
  k = model.stiffness;
  if size (c, 2) == 1 && size (k, 2) == 1
    g = 1 ./ (1 / (b * h ^ 2) + scheme.gamma * c / (b * h) + k);
    return
  end
  g = qn.impl.step_inverse (eye (numel (model.w)) / (b * h ^ 2) + scheme.gamma / (b * h) * qn.impl.matrix (c) + qn.impl.matrix (k), h);
end
