% B = BLOCKS ([M, N])  first and last columns, one pair a column, of parts of an M x N array that fit in the processor's cache
function b = blocks (extents)
  first = 1:max (ceil (2e5 / max (extents(1), 1)), 64):extents(2);
  b = [first; first(2:end) - 1, extents(2)];
end
