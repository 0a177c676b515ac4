% Y = FRESH (X)  a copy of X that shares no memory with X or with any constant: needed wherever the module writes in place
function y = fresh (x)
  if isstruct (x)
    y = x;
    names = fieldnames (x);
    for i = 1:numel (x)
      for k = 1:numel (names), y(i).(names{k}) = fresh (x(i).(names{k})); end
    end
  elseif iscell (x)
    y = cell (size (x));
    for i = 1:numel (x), y{i} = fresh (x{i}); end
  elseif isnumeric (x) && ~isempty (x)
    y = x(:, :) .* ones (1, 1, class (x));
    y = reshape (y, size (x));
  else
    y = x;
  end
end
