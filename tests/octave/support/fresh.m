% Y = FRESH (X)  a copy of X that shares no memory with X or with any constant: needed wherever the module writes in place
function y = fresh (x)
  y = x;
  if isnumeric (x)
    % The host keeps diagonal matrices in a form of their own until they are reshaped. Writing makes the copy.
    if ~isempty (x)
      y = reshape (x, size (x));
      y(1) = x(1);
    end
  elseif iscell (x)
    for k = 1:numel (x), y{k} = fresh (x{k}); end
  elseif isstruct (x)
    y = cell2struct (fresh (struct2cell (x)), fieldnames (x), 1);
  end
end
