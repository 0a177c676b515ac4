% C = BLOCK (T, FROM, COUNT, WIDTH, WHAT)  COUNT lines from line FROM as a matrix of characters, filled with blanks to WIDTH
%
% What is to the right of column WIDTH is left out. WHAT names the lines in errors: for a file that ends early, and for tabs, whose width nobody
% knows.
function c = block (t, from, count, width, what)
  n = numel (t.first);
  if from + count - 1 > n
    qn.impl.formats.refuse (t, n, 'the file ends early: %d lines of %s expected from line %d on, got %d', count, what, from, ...
                            max (n - from + 1, 0));
  end
  rows = from:from + count - 1;
  c = qn.impl.formats.gather (t, t.first(rows), t.last(rows), width);
  c(:, end + 1:width) = ' ';
  k = find (any (c == char (9), 2), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, from + k - 1, 'a tab; %s stand in columns, which a tab leaves open', what);
  end
end
