% [Y, Z] = IN_BLOCKS (S, W, Z)  the steps of block_form from the state Z, one for each column of the arrays in the cell W
%
% Z comes back as it is after them, which makes sense where they fill whole blocks.
function [y, z] = in_blocks (s, w, z)
  n = size (w{1}, 2);
  blocks = ceil (n / s.long);
  [gained, felt] = deal (0);
  for i = 1:numel (w)
    many = w{i};
    if n < blocks * s.long, many = [many, zeros(size (many, 1), blocks * s.long - n)]; end
    many = reshape (many, size (many, 1) * s.long, blocks);
    gained = gained + s.gained{i} * many;
    felt = felt + s.felt{i} * many;
  end
  begin = qn.impl.recurrence (s.power, gained, z, numel (z));
  z = begin(:, end);
  y = reshape (s.seen * begin(:, 1:blocks) + felt, [], blocks * s.long);
  if n < blocks * s.long, y = y(:, 1:n); end
end
