% RES = SIZED (RES, K)  a result with K columns: cut, or with room that is not a number yet
function res = sized (res, k)
  for name = {'q', 'force', 'state'}
    x = res.(name{1});
    n = size (x, 2);
    if n < k
      room = NaN (size (x, 1), k);
      room(:, 1:n) = x;
      res.(name{1}) = room;
    elseif n > k
      res.(name{1}) = x(:, 1:k);
    end
  end
  res.time = reshape (res.sim.time(res.sim.saved(1:k)), 1, []);
end
