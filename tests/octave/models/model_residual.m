% R = MODEL_RESIDUAL (M, C, K, U, V, A, RAYLEIGH)  linear residual of full matrices, column j of a matrix giving residual j
%
% A [] leaves out the inertia. C is a full matrix, or a struct with "def", "data" and perhaps a full "K" (modal damping).
function r = model_residual (M, C, K, u, v, a, rayleigh)
  n = numel (u);
  r = zeros (n, 1);
  for j = 1:n
    if ~isempty (a), r(j) = r(j) + sum (M(:, j) .* a); end
    r(j) = r(j) + rayleigh(1) * sum (M(:, j) .* v) + sum (K(:, j) .* u) + rayleigh(2) * sum (K(:, j) .* v);
    if ~isstruct (C), r(j) = r(j) + sum (C(:, j) .* v); end
  end
  if isstruct (C)
    modes = size (C.def, 2);
    for k = 1:modes
      r = r + C.def(:, k) * (C.data(k) * sum (C.def(:, k) .* v));
    end
    if isfield (C, 'K'), r = r + C.K.' * v; end
  end
end
