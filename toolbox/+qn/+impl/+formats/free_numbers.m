% [X, LINES] = FREE_NUMBERS (T, FROM, COUNT)  the COUNT numbers from line FROM to the end of a file, with blanks between them
%
% LINES are those that they stand on.
function [x, lines] = free_numbers (t, from, count)
  begin = numel (t.text) + 1;
  if from <= numel (t.first), begin = t.first(from); end
  rest = t.text(begin:end);
  bounds = diff ([true, rest == ' ' | (rest >= char (9) & rest <= char (13)), true]);
  first = find (bounds == -1);
  last = find (bounds == 1) - 1;
  number = zeros (1, numel (t.text));
  number(t.first) = 1;
  number = cumsum (number);
  lines = number(begin - 1 + first);
  if numel (first) < count
    qn.impl.formats.refuse (t, numel (t.first), 'the file ends early: %d numbers expected, got %d', count, numel (first));
  elseif numel (first) > count
    qn.impl.formats.refuse (t, lines(count + 1), '"%s" after the %d numbers that were announced', ...
                            qn.impl.formats.shown (rest(first(count + 1):last(count + 1))), count);
  end
  [x, got, unused, stop] = sscanf (rest, '%f');
  % The host reads "--1" as 1.
  sign = rest == '-' | rest == '+';
  before = [' ', rest(1:end - 1)];
  odd = any (sign & ~(before <= ' ' | before == 'e' | before == 'E'));
  if odd || got ~= count || ~isempty (strtrim (rest(stop:end))) || ~all (isfinite (x))
    % What the host does not take in one go: exponents in other writings, or no number at all.
    x = qn.impl.formats.column_of (t, lines, begin - 1 + first, begin - 1 + last, 'the number', false);
  end
end
