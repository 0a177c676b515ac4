% Y = POOLED (Y, WEIGHT)  the rising numbers with the least sum of WEIGHT * squared distance to Y (pool adjacent violators)
%
% A block is a run of numbers with their common mean; where a block is below the one before, the two become one.
function y = pooled (y, weight)
  n = numel (y);
  mean_of = zeros (n, 1);
  mass = zeros (n, 1);
  last = zeros (n, 1);
  blocks = 0;
  for k = 1:n
    blocks = blocks + 1;
    [mean_of(blocks), mass(blocks), last(blocks)] = deal (y(k), weight(k), k);
    while blocks > 1 && mean_of(blocks) < mean_of(blocks - 1)
      both = mass(blocks - 1) + mass(blocks);
      mean_of(blocks - 1) = (mass(blocks - 1) * mean_of(blocks - 1) + mass(blocks) * mean_of(blocks)) / both;
      mass(blocks - 1) = both;
      last(blocks - 1) = k;
      blocks = blocks - 1;
    end
  end
  first = 1;
  for b = 1:blocks
    if last(b) > first, y(first:last(b)) = mean_of(b); end
    first = last(b) + 1;
  end
end
