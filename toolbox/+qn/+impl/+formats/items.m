% [X, NEXT] = ITEMS (T, FROM, COUNT, F, WHAT, LOW, HIGH)  COUNT numbers that begin on line FROM, F.per on a line of columns F.width wide
%
% F is from fortran; with F.whole the numbers are whole, from LOW to HIGH where these are given. Where the columns hold no numbers but
% the lines as many numbers with blanks between them, these are taken. With a field F.fill zeros may fill the last line. X is a column, NEXT
% the line after the numbers. Errors name line and number (WHAT), also of numbers that go on, or follow, right of their columns.
function [x, next] = items (t, from, count, f, what, low, high)
  lines = ceil (count / f.per);
  next = from + lines;
  x = zeros (0, 1);
  if count == 0, return, end
  c = qn.impl.formats.block (t, from, lines, f.per * f.width, what);
  c = reshape (c.', f.width, []).';
  [x, good, point, exponent, blank] = qn.impl.formats.parse (c);
  good(1:count) = good(1:count) & ~blank(1:count);
  good(count + 1:end) = blank(count + 1:end) | (isfield (f, 'fill') & good(count + 1:end) & x(count + 1:end) == 0);
  if ~all (good)
    [free, done] = spaced (t, from, lines, count);
    if done
      x = free;
      tell (t, from, what);
    else
      k = find (~good, 1);
      line = from + floor ((k - 1) / f.per);
      if k > count, qn.impl.formats.refuse (t, line, '%d numbers of %s expected, got more: "%s"', count, what, said (c, k)); end
      if blank(k), qn.impl.formats.refuse (t, line, 'number %d of %d of %s is missing', k, count, what); end
      qn.impl.formats.refuse (t, line, 'number %d of %s is "%s", which is no finite number', k, what, said (c, k));
    end
  end
  x = x(1:count);
  if all (good), refuse_more (t, from, lines, f.per * f.width, what); end
  if ~f.whole && all (good)
    % Digits without a point stand for others: Fortran puts the point where the format says, and scales what has no exponent.
    open = find (x ~= 0 & (~point(1:count) | (f.scale ~= 0 & ~exponent(1:count))), 1);
    if ~isempty (open)
      qn.impl.formats.refuse (t, from + floor ((open - 1) / f.per), ['number %d of %s is "%s": without point or exponent it has more ' ...
                              'than one meaning in this format'], open, what, said (c, open));
    end
  end
  if f.whole
    if nargin < 6, low = -Inf; end
    if nargin < 7, high = Inf; end
    k = find (x ~= fix (x) | x < low | x > high, 1);
    if ~isempty (k)
      qn.impl.formats.refuse (t, from + floor ((k - 1) / f.per), 'number %d of %s is %.15g; whole numbers from %g to %g expected', k, ...
                              what, x(k), low, high);
    end
  end
end

% Numbers with blanks between them, where there are COUNT of them.
function [x, done] = spaced (t, from, lines, count)
  words = regexp (t.text(t.first(from):t.last(from + lines - 1)), '\S+', 'match');
  done = numel (words) == count;
  x = [];
  if ~done, return, end
  [x, good] = qn.impl.formats.parse (char (words));
  done = all (good);
end

% What stands right of the columns is no part of the numbers, such as the name of a card; but a number there was cut, or is one too many.
function refuse_more (t, from, lines, width, what)
  long = find (t.last(from:from + lines - 1) - t.first(from:from + lines - 1) >= width);
  for k = from - 1 + reshape (long, 1, [])
    text = t.text(t.first(k):t.last(k));
    cut = text(width) ~= ' ' && any (text(width + 1) == '0123456789.+-EeDd');
    if cut || ~isempty (regexp (text(width + 1:end), '^\s*[-+.\d]', 'once'))
      qn.impl.formats.refuse (t, k, '"%s" right of column %d, where the %s end', qn.impl.formats.shown (strtrim (text(width + 1:end))), ...
                              width, what);
    end
  end
end

% Damage can look like it. Once, not for every block of a file.
function tell (t, from, what)
  begin = sprintf ('%s: %s, line ', t.who, t.file);
  [last, id] = lastwarn ();
  if strcmp (id, 'qn:file') && strncmp (last, begin, numel (begin)), return, end
  warning ('qn:file', '%s%d: the %s do not stand in the columns of their format; they are read as numbers with blanks between them', ...
           begin, from, what);
end

function text = said (c, k)
  text = qn.impl.formats.shown (strtrim (c(k, :)));
end
