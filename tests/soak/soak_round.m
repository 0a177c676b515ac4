% [NUMBERS, COUNT] = SOAK_ROUND (K, REAL, SHARE)  one round of the mixed workload: all its results in one column, and what was done
%
% K numbers the rounds: every tenth one registers a nonlinear element, every 25th one unloads the module after products on worker threads,
% every hundredth one with handles alive. Values that stay in memory by rule then are counted in COUNT.kept. REAL is false for the rounds
% without the module. SHARE is the part of its calls that a round makes, 1 or 0.1.
function [numbers, count] = soak_round (k, real, share)
  count = struct ('calls', 0, 'evaluations', 0, 'steps', 0, 'handles', 0, 'errors', 0, 'products', 0, 'reloads', 0, 'kept', 0);
  [residuals, count] = soak_residuals (count, share);
  [runs, count] = soak_integrations (count, share);
  if mod (k, 10) == 0, [unused, count] = registered_element (count, real); end
  [handles, count] = soak_handles (count, share);
  [texts, count] = soak_errors (k, count, real);
  [products, count] = parallel_products (count, share);
  if mod (k, 100) == 0
    quarn ('chandleset', 1, matrix_lines (eye (3)));
    quarn ('chandleset', 2000, struct ('r', zeros (2, 2)));
    count.kept = count.kept + 2;
  end
  if mod (k, 25) == 0
    clear ('quarn');
    count.reloads = count.reloads + 1;
  end
  numbers = [residuals; runs; products; handles; texts];
end

function [r, count] = registered_element (count, real)
  r = zeros (3, 1);
  i = quarn ('chandleset', 1003, spring_element (1, 1, 3, [law_code('Power') 2 3]));
  h = chandle ([i i i]);
  u = [1; 2; 3] / 2;
  for j = 1:100, quarn ('residual', r, h, u, u, u, [0 0]); end
  quarn ('chandleclear', i);
  if real && ~isequal (r, [75; 0; 0]), error ('an element registered: %s', mat2str (r, 17)); end
  count.calls = count.calls + 100;
  count.evaluations = count.evaluations + 300;
  count.kept = count.kept + 1;
end

function [y, count] = parallel_products (count, share)
  [a, n] = long_lines ();
  a.ir = int32 (mod ((0:25 * n - 1)' * 7, n));
  a.pr = mod ((0:25 * n - 1)', 101) / 7;
  x = (1:n)' / 11;
  y = zeros (n, 1);
  for j = 1:100 * share, quarn ('tbbp', a, x, y); end
  count.products = count.products + 100 * share;
end
