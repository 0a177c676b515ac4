% X = INTEGERS (T, K, SKIP, WIDTHS, NAMES)  whole numbers from 0 in columns of line K, the first SKIP columns left out
%
% WIDTHS are those of the columns, NAMES what they hold, for errors. What is blank is 0. Where the columns hold no numbers but the line
% as many with blanks between them, these are taken.
function x = integers (t, k, skip, widths, names)
  text = qn.impl.formats.line_of (t, k, names{1});
  if any (text == char (9))
    qn.impl.formats.refuse (t, k, 'a tab; %s stand in columns, which a tab leaves open', strjoin (names, ', '));
  end
  n = numel (widths);
  padded = [text, repmat(' ', 1, skip + sum (widths))];
  c = repmat (' ', n, max (widths));
  from = skip;
  for j = 1:n
    c(j, 1:widths(j)) = padded(from + (1:widths(j)));
    from = from + widths(j);
  end
  [x, good] = qn.impl.formats.parse (c);
  good = good & x == fix (x) & x >= 0 & x < 2 ^ 53;
  if ~all (good)
    words = regexp (text(min (skip, end) + 1:end), '\S+', 'match');
    if numel (words) >= n
      [free, fits] = qn.impl.formats.parse (char (words(1:n)));
      if all (fits & free == fix (free) & free >= 0 & free < 2 ^ 53)
        x = free;
        return
      end
    end
    j = find (~good, 1);
    qn.impl.formats.refuse (t, k, '%s: "%s" is no whole number from 0', names{j}, qn.impl.formats.shown (strtrim (c(j, :))));
  end
end
