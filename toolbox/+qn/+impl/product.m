% F = PRODUCT (X, Q)  modal stiffness or damping times the columns of Q; X is a column where it is diagonal
function f = product (x, q)
  if size (x, 2) == 1, f = bsxfun (@times, x, q); else, f = x * q; end
end
