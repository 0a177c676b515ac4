% W = FREQUENCIES (MODEL)  angular frequencies of the oscillations, ascending: of the modes, or of the poles where they are coupled
function w = frequencies (model)
  w = model.w;
  if size (model.stiffness, 2) == 1 && size (model.damping, 2) == 1, return, end
  m = numel (w);
  poles = eig ([zeros(m), eye(m); -qn.impl.matrix(model.stiffness), -qn.impl.matrix(model.damping)]);
  w = sort (imag (poles(imag (poles) > 1e-9 * abs (poles))));
  if isempty (w), w = 0; end
end
