% [F, T, NEXT] = UNV_BYTES (T, LINE, HEAD, F, X, PER)  the values of a binary function, whose bytes begin with line LINE
%
% HEAD is the line of the dataset's number. Nothing separates the bytes from the line after them.
function [f, t, next] = unv_bytes (t, line, head, f, x, per)
  head = [head, repmat(' ', 1, 80)];
  [h, good] = qn.impl.formats.parse (char (head(8:13), head(14:19), head(20:31), head(32:43)));
  at = line - 12;
  if ~all (good)
    qn.impl.formats.refuse (t, at, 'the head of a binary dataset makes no sense: "%s"', qn.impl.formats.shown (head(1:79)));
  end
  if ~any (h(1) == [1 2]), qn.impl.formats.refuse (t, at, 'byte order %g; 1 (little) or 2 (big) expected', h(1)); end
  if h(2) ~= 2, qn.impl.formats.refuse (t, at, 'floating-point numbers of kind %g; only 2 (IEEE) is read', h(2)); end
  if h(3) ~= 11, qn.impl.formats.refuse (t, at, '%g lines of text before the bytes; 11 expected', h(3)); end
  width = 4 + 4 * per.double;
  parts = 1 + per.complex;
  abscissa = 4 * ~f.even;
  if ~f.even && h(4) == x(2) * (8 + width * parts), abscissa = 8; end
  each = abscissa + width * parts;
  if h(4) ~= 0 && h(4) ~= each * x(2)
    qn.impl.formats.refuse (t, at, '%g bytes; %g values of this type take %g', h(4), x(2), each * x(2));
  end
  from = t.first(min (line, end));
  if line > numel (t.first) || from + each * x(2) - 1 > numel (t.text)
    qn.impl.formats.refuse (t, min (line, numel (t.first)), 'the file ends early: %g bytes expected from line %d on', each * x(2), line);
  end
  b = reshape (t.bytes(from + (0:each * x(2) - 1)), each, []);
  y = zeros (parts + ~f.even, x(2));
  classes = {'single', 'double'};
  if ~f.even, y(1, :) = values (b(1:abscissa, :), classes{abscissa / 4}, h(1) == 2); end
  y((1 + ~f.even):end, :) = reshape (values (b(abscissa + 1:end, :), classes{width / 4}, h(1) == 2), parts, []);
  if ~all (isfinite (y(:))), qn.impl.formats.refuse (t, line, 'value %d is not finite', find (~all (isfinite (y), 1), 1)); end
  f = qn.impl.formats.unv_axes (f, x, y, per);
  % The next line begins right after the bytes, perhaps with the end of a line.
  past = from + each * x(2);
  while past <= numel (t.text) && any (t.bytes(past) == [10 13]), past = past + 1; end
  next = find (t.last >= past, 1);
  if isempty (next)
    next = numel (t.first) + 1;
  else
    t.first(next) = past;
  end
end

function x = values (b, name, swap)
  x = typecast (b(:).', name);
  if swap, x = swapbytes (x); end
  x = double (x);
end
