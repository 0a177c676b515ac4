% [Y, Z] = IN_BLOCKS (S, W, Z)  the steps of block_form from the state Z, one for each column of the arrays in the cell W; Z after the last
function [y, z] = in_blocks (s, w, z)
  n = size (w{1}, 2);
  out = size (s.c, 1);
  blocks = floor (n / s.long);
  whole = blocks * s.long;
  [gained, felt] = deal (0);
  for i = 1:numel (w)
    many = reshape (w{i}(:, 1:whole), size (w{i}, 1) * s.long, blocks);
    gained = gained + s.gained{i} * many;
    felt = felt + s.felt{i} * many;
  end
  begin = qn.impl.recurrence (s.power, gained, z, numel (z));
  z = begin(:, end);
  y = reshape (s.seen * begin(:, 1:blocks) + felt, out, whole);
  rest = zeros (out, n - whole);
  for k = 1:n - whole
    now = cellfun (@(x) x(:, whole + k), w(:), 'UniformOutput', false);
    now = cat (1, now{:});
    rest(:, k) = s.c * z + s.d * now;
    z = s.a * z + s.b * now;
  end
  y = [y, rest];
end
