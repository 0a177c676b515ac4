% TEXT = SPAN (FORMAT, X, UNIT)  the least and the greatest of X with their unit; one number where they read the same, '' for nothing
function text = span (format, x, unit)
  text = '';
  if isempty (x), return, end
  [low, high] = deal (sprintf (format, min (x)), sprintf (format, max (x)));
  text = sprintf ('%s to %s %s', low, high, unit);
  if strcmp (low, high), text = sprintf ('%s %s', low, unit); end
end
