% [X, GOOD, ROUNDS] = NEWTON (F, X)  solves F (X) = 0; F returns residual and Jacobian
%
% Done when the step is below rounding of X, or the residual below rounding of what it began with.
function [x, good, rounds] = newton (f, x)
  good = false;
  for rounds = 1:25
    [g, j] = f (x);
    if ~all (isfinite (g)) || ~all (isfinite (j(:))), return, end
    d = -j \ g;
    x = x + d;
    if norm (d) <= 1e-10 * max (norm (x), 1e-300)
      good = true;
      return
    end
  end
end
