% [H, INDICES] = REGISTERED (LIST)  registers every element of a cell list and returns the handle vector and the indices
function [h, indices] = registered (list)
  indices = zeros (1, numel (list));
  for k = 1:numel (list), indices(k) = quarn ('chandleset', list{k}.type, list{k}); end
  h = chandle (indices);
end
