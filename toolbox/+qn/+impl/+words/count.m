% TEXT = COUNT (N, ONE, MANY)  a number of things: '1 mode', '2 modes'
function text = count (n, one, many)
  if n ~= 1, one = many; end
  text = sprintf ('%d %s', n, one);
end
