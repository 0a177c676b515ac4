% G = STEP_INVERSE (S, H)  inverse of the matrix of a step of H seconds, or an error in words
function g = step_inverse (s, h)
  if ~(rcond (s) > eps ())
    error ('qn:input', ['the matrix of a step of %g s cannot be inverted (reciprocal condition %.2g): look at the negative parts of ' ...
                        'stiffness and damping, or take another step'], h, rcond (s));
  end
  g = inv (s);
end
