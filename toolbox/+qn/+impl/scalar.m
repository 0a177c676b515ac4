% SCALAR (WHO, NAME, X, LOW)  refuses X unless it is one finite real number, at least LOW (default -Inf)
function scalar (who, name, x, low)
  if nargin < 4, low = -Inf; end
  if ~(isnumeric (x) && isreal (x) && numel (x) == 1 && isfinite (x))
    error ('qn:input', '%s: "%s" must be one finite real number, got %s of class %s', who, name, mat2str (size (x)), class (x));
  end
  if x < low && low == realmin ()
    error ('qn:input', '%s: "%s" must be above 0, got %g', who, name, x);
  elseif x < low
    error ('qn:input', '%s: "%s" must be at least %g, got %g', who, name, low, x);
  end
end
