% C = GATHER (T, FIRST, LAST, WIDTH)  pieces of a file, each from FIRST to LAST, as rows of characters, filled with blanks
%
% At most WIDTH characters of each are taken.
function c = gather (t, first, last, width)
  long = last(:) - first(:) + 1;
  width = min (width, max ([long; 1]));
  c = repmat (' ', numel (long), width);
  for column = 1:width
    here = find (long >= column);
    c(here, column) = t.text(first(here) + column - 1);
  end
end
