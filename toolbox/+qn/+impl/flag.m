% X = FLAG (WHO, NAME, X)  X as a truth value; refused unless it is true, false, 1 or 0
function x = flag (who, name, x)
  good = (islogical (x) || isnumeric (x)) && numel (x) == 1;
  if ~good || ~any (x == [0 1])
    got = sprintf ('%s of class %s', mat2str (size (x)), class (x));
    if good, got = sprintf ('%g', x); end
    error ('qn:input', '%s: "%s" is true or false, got %s', who, name, got);
  end
  x = logical (x);
end
