% [Y, Z] = IN_BLOCKS (S, W, Z)  the steps of block_form, one for each column of W, from the state Z; Z comes back after the last of them
function [y, z] = in_blocks (s, w, z)
  n = size (w, 2);
  out = size (s.c, 1);
  blocks = floor (n / s.long);
  whole = blocks * s.long;
  many = reshape (w(:, 1:whole), size (w, 1) * s.long, blocks);
  gained = s.gained * many;
  begin = zeros (numel (z), blocks);
  for k = 1:blocks
    begin(:, k) = z;
    z = s.power * z + gained(:, k);
  end
  y = reshape (s.seen * begin + s.felt * many, out, whole);
  rest = zeros (out, n - whole);
  for k = 1:n - whole
    rest(:, k) = s.c * z + s.d * w(:, whole + k);
    z = s.a * z + s.b * w(:, whole + k);
  end
  y = [y, rest];
end
