% Y = FRESH (X)  a copy of X in memory of its own, for the module to write into
function y = fresh (x)
  y = reshape (x(:) .* ones (1, 1), size (x));
end
