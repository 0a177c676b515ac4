% COUNT (WHO, NAME, X)  refuses X unless it is a whole number from 1
function count (who, name, x)
  qn.impl.scalar (who, name, x, 1);
  if x ~= fix (x), error ('qn:input', '%s: "%s" must be a whole number, got %g', who, name, x); end
end
