% SIGMA = MODE_SHIFT (K, M)  shift a little below the lowest modes, where K - SIGMA*M is regular [1/s^2]
function sigma = mode_shift (k, m)
  sigma = -1e-6 * full (sum (abs (diag (k)))) / full (sum (abs (diag (m))));
end
