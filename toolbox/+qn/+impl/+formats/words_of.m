% [FIRST, LAST, LINES] = WORDS_OF (T, LINES, COMMAS)  where the words of lines LINES of a file begin and end, one row a line
%
% Words are between commas where COMMAS is true, else between blanks. All lines must have as many words as the first; lines without any
% are left out, and LINES is what remains. A comma at the end of a line begins no word.
function [first, last, lines] = words_of (t, lines, commas)
  number = zeros (1, numel (t.text));
  number(t.first) = 1;
  number = cumsum (number);
  chosen = false (1, numel (t.first));
  chosen(lines) = true;
  blank = t.text == ' ' | t.text == char (9) | t.text == char (10) | t.text == char (13) | ~chosen(number);
  if commas
    full = unique (number(~blank));
    comma = find (t.text == ',' & ~blank);
    first = sort ([t.first(full), comma + 1]);
    last = sort ([t.last(full), comma - 1]);
    line = sort ([full, number(comma)]);
    filled = [0, cumsum(~blank)];
    filled = filled(last + 1) > filled(first);
    empty = ~filled & [diff(line) ~= 0, true(1, ~isempty (line))];
    [first, last, line] = deal (first(~empty), last(~empty), line(~empty));
  else
    bounds = diff ([true, blank, true]);
    first = find (bounds == -1);
    last = find (bounds == 1) - 1;
    line = number(first);
  end
  lines = zeros (1, 0);
  if isempty (line)
    [first, last] = deal (zeros (0, 0));
    return
  end
  begins = find ([true, diff(line) ~= 0]);
  lines = line(begins);
  count = diff ([begins, numel(line) + 1]);
  k = find (count ~= count(1), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, lines(k), '%d fields, the lines before have %d: "%s"', count(k), count(1), ...
                            qn.impl.formats.shown (t.text(t.first(lines(k)):t.last(lines(k)))));
  end
  first = reshape (first, count(1), []).';
  last = reshape (last, count(1), []).';
end
