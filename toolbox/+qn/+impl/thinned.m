% K = THINNED (N, MOST)  numbers of at most about MOST evenly spaced points of N
function k = thinned (n, most)
  k = unique ([1:ceil(n / most):n, n]);
end
