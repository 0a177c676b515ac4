% RESIDUAL_CASES (ID)  the forms of the residual command, with diagonal and with full matrices, and with one that needs worker threads
function residual_cases (id)
  n = 31;
  for k = 1:5
    diagonal = {matrix_lines(diag (randn (n, 1))), matrix_lines(diag (randn (n, 1))), matrix_lines(diag (randn (n, 1)))};
    all_forms (id, 'one residual', diagonal, n, 0);
    full_ones = {matrix_lines(randn (n)), matrix_lines(randn (n)), matrix_lines(randn (n) .* (rand (n) < 0.3))};
    all_forms (id, 'sum residual', full_ones, n, 2);
    modal = fresh (struct ('def', randn (n, 4), 'data', [randn(4, 1); zeros(4, 1)]));
    full_ones{2} = modal;
    all_forms (id, 'sum residual', full_ones, n, 2);
  end
  [long, n] = long_lines (4100);
  long.ir = int32 (mod ((0:25 * n - 1)' * 7, n));
  long.pr = randn (25 * n, 1);
  handle_form (id, 'sum residual on threads', {long}, n);
  handle_form (id, 'one residual', {matrix_lines(spdiags (randn (n, 1), 0, n, n))}, n);
end

function all_forms (id, name, m, n, results)
  recorded_call (id, name, results, 'residual', randn (n, 1), m, randn (n, 1), randn (n, 1), randn (n, 1), [0.5 0.25]);
  recorded_call (id, name, results, 'residual', randn (n, 1), struct ('K', {m}), randn (n, 1), [], randn (n, 1));
  if isfield (m{2}, 'jc'), handle_form (id, name, m([3 1 2]), n); end
end

% The first matrix as stiffness, then mass, then damping.
function handle_form (id, name, m, n)
  index = zeros (1, numel (m));
  for k = 1:numel (m)
    out = recorded_call (id, name, 1, 'chandleset', k, m{k});
    index(k) = out{1};
  end
  recorded_call (id, name, 0, 'residual', randn (n, 1), chandle (index), randn (n, 1), randn (n, 1), randn (n, 1), [0.5 0.25]);
  for i = index, recorded_call (id, name, 0, 'chandleclear', i); end
end
