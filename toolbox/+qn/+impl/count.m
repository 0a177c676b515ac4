% X = COUNT (WHO, NAME, X, TOP)  X as a double; refused unless it is a whole number from 1 (to TOP)
function x = count (who, name, x, top)
  if nargin < 4, top = Inf; end
  x = qn.impl.numbers (who, name, x, [1 1], 'from', 1, 'to', top, 'whole');
end
