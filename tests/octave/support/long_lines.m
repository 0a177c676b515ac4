% [S, N] = LONG_LINES ()  matrix structure that the module multiplies on worker threads: 50 times unity
% [S, N] = LONG_LINES (N)
%
% N = 20,000 lines, if nothing else is said, of 25 entries of 2 each, all in the place of the diagonal. It takes 100,000 entries.
function [s, n] = long_lines (n)
  if nargin < 1, n = 20000; end
  s = struct ('ir', int32 (floor ((0:25 * n - 1)' / 25)), 'jc', int32 (25 * (0:n)'), 'pr', 2 * ones (25 * n, 1), 'dims', [n n], 'trans', 0);
end
