% The sparse product in the residual command against the host's own operator, y = y + A*x.
%
% The host's statements are in functions of their own: in an anonymous function, A'*x would transpose A first, which a statement does not.
function notes = product_bench (quick)
  notes = [];
  sizes = [10 22 46 100];
  if quick, sizes = 10; end
  for m = sizes
    line = spdiags (ones (m, 1) * [-1 4 -1], -1:1, m, m);
    a = kron (line, kron (line, line));
    n = m ^ 3;
    x = sin ((1:n)');
    r = zeros (n, 1);
    K = {[], [], matrix_lines(a)};
    quarn ('residual', r, K, x, x, [], [], []);
    off = off_by (r, a * x);
    r = zeros (n, 1);
    fast = best_time (@() quarn ('residual', r, K, x, x, [], [], []), quick, true);
    slow = best_time (@() plain (r, a, x), quick, true);
    slow_t = best_time (@() transposed (r, a, x), quick, true);
    bytes = 12 * nnz (a) + 20 * n;
    notes = [notes, note('host product', '27', n, 'quarn residual', fast, bytes, off, 1e-13), ...
             note('host product', '27', n, 'Octave A*x', slow, bytes, 0, 0), note('host product', '27', n, 'Octave A''*x', slow_t, bytes, 0, 0)];
  end
end

function r = plain (r, a, x)
  r = r + a * x;
end

function r = transposed (r, a, x)
  r = r + a' * x;
end
