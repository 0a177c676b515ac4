% X = SCALAR (WHO, NAME, X, LOW)  X as a double; refused unless it is one finite real number, at least LOW (default -Inf)
%
% With the LOW of realmin it must be above 0.
function x = scalar (who, name, x, low)
  if nargin < 4, low = -Inf; end
  if low == realmin ()
    x = qn.impl.numbers (who, name, x, [1 1], 'above', 0);
  else
    x = qn.impl.numbers (who, name, x, [1 1], 'from', low);
  end
end
