% U = UNV_UNITS (T, FROM, TO)  dataset 164: numbers of the file divided by these factors are in SI units
function u = unv_units (t, from, to)
  text = [qn.impl.formats.line_of(t, from, 'the code of the units'), repmat(' ', 1, 40)];
  [x, good] = qn.impl.formats.parse (text(1:10));
  if ~good || x ~= fix (x), qn.impl.formats.refuse (t, from, 'the code of the units is "%s"', qn.impl.formats.shown (text(1:10))); end
  count = 3 + (to >= from + 2);
  if to > from + 2, qn.impl.formats.refuse (t, from + 3, 'more than the three lines of the units: is a line of -1 lost?'); end
  if to < from + 1, qn.impl.formats.refuse (t, from, 'the factors of the units expected after this line'); end
  f = qn.impl.formats.items (t, from + 1, count, qn.impl.formats.fortran ('3D25.17'), 'the factors of the units');
  k = find (f(1:3) <= 0, 1);
  if ~isempty (k), qn.impl.formats.refuse (t, from + 1, 'factor %d of the units is %g; numbers above 0 expected', k, f(k)); end
  f(end + 1:4) = 0;
  u = struct ('code', x, 'text', strtrim (text(11:30)), 'length', f(1), 'force', f(2), 'temperature', f(3), 'offset', f(4));
end
