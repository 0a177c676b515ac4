% [STRAIN, TERMS] = STRAIN_OF (K, PHI)  PHI.' * K * PHI of each column, and the same sum without signs, which rounding is a part of
function [strain, terms] = strain_of (k, phi)
  strain = full (sum (phi .* (k * phi), 1)).';
  terms = full (sum (abs (phi) .* (abs (k) * abs (phi)), 1)).';
end
