% X = COLUMN_OF (T, LINES, FIRST, LAST, WHAT, WHOLE)  the numbers between FIRST and LAST in a file, one on each of LINES
function x = column_of (t, lines, first, last, what, whole)
  c = qn.impl.formats.gather (t, first, last, 60);
  [x, good, unused, unused2, blank] = qn.impl.formats.parse (c);
  good = good & ~blank & last(:) - first(:) < 60;
  kind = 'a finite number';
  if whole
    good = good & x == fix (x) & abs (x) < 2 ^ 53;
    kind = 'a whole number';
  end
  k = find (~good, 1);
  if ~isempty (k), qn.impl.formats.refuse (t, lines(k), '%s "%s" is not %s', what, qn.impl.formats.shown (strtrim (c(k, :))), kind); end
end
