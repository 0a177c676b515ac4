% A = MATRIX (X)  modal stiffness or damping as an m x m matrix; a model keeps a column where it is diagonal
function a = matrix (x)
  a = x;
  if size (x, 2) == 1, a = diag (x); end
end
