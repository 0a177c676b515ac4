% [X, NEXT] = HB_BLOCK (T, FROM, COUNT, F, LINES, WHAT, ...)  the numbers of a block, whose lines must be as many as the head says
function [x, next] = hb_block (t, from, count, f, lines, what, varargin)
  needed = 0;
  if count > 0 && isempty (f), qn.impl.formats.refuse (t, 2, 'no line of %s, of which there are %d', what, count); end
  if count > 0, needed = ceil (count / f.per); end
  if lines ~= needed
    qn.impl.formats.refuse (t, 2, '%d lines of %s; %d numbers in the format of line 4 take %d', lines, what, count, needed);
  end
  [x, next] = qn.impl.formats.items (t, from, count, f, what, varargin{:});
end
