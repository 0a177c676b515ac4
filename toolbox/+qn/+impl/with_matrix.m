% X = WITH_MATRIX (X, WHO, PHI, NAME, A)  X with the modal matrix of A added: m x 1 where both are diagonal, m x m else
%
% PHI.' * A * PHI counts as diagonal when what is beside its diagonal is rounding.
function x = with_matrix (x, who, phi, name, a)
  if isempty (a), return, end
  n = size (phi, 1);
  a = qn.project (phi, qn.impl.numbers (who, name, a, [n n]));
  own = diag (a);
  if size (x, 2) == 1 && norm (a - diag (own), 'fro') <= 1e-9 * norm (a, 'fro')
    x = x + own;
  else
    x = qn.impl.matrix (x) + a;
  end
end
