% S = BLOCK_FORM (A, B, C, D, N)         the linear steps z(k+1) = A z(k) + B w(k), y(k) = C z(k) + D w(k) as products of whole matrices, see in_blocks
% S = BLOCK_FORM (A, B, C, D, N, PARTS)  of rows W that lie in several arrays, of so many rows each
%
% The steps of a block are one product: its Y are SEEN * z at its begin + FELT * its W, z at its end is POWER * z at its begin + GAINED * its W.
% A block has as many steps as cost least for N steps in all: the longer it is, the more numbers FELT has, and the fewer blocks there are.
function s = block_form (a, b, c, d, n, parts)
  [rows, in] = size (b);
  out = size (c, 1);
  if nargin < 6, parts = in; end
  a_block = 3e4 + 4 * rows ^ 2;  % in products of two numbers: what the host does between two of them, and two rounds of qn.impl.recurrence
  long = round (sqrt (a_block / (out * in + (out + in) * rows ^ 2 / max (n, 1))));
  long = max (1, min (long, n));
  seen = zeros (out, rows, long);
  gained = zeros (rows, in, long);
  [seen(:, :, 1), gained(:, :, long)] = deal (c, b);
  for k = 2:long
    seen(:, :, k) = seen(:, :, k - 1) * a;
    gained(:, :, long - k + 1) = a * gained(:, :, long - k + 2);
  end
  seen = reshape (permute (seen, [1 3 2]), out * long, rows);
  answer = [d; seen * b];
  felt = zeros (out * long, in, long);
  for k = 1:long, felt((k - 1) * out + 1:end, :, k) = answer(1:(long - k + 1) * out, :); end
  s = struct ('long', long, 'seen', seen, 'felt', {cell(size (parts))}, 'gained', {cell(size (parts))}, 'power', a ^ long);
  last = cumsum (parts);
  for i = 1:numel (parts)
    j = last(i) - parts(i) + 1:last(i);
    s.felt{i} = reshape (felt(:, j, :), out * long, parts(i) * long);
    s.gained{i} = reshape (gained(:, j, :), rows, parts(i) * long);
  end
end
