% LINES = UNV_MARKS (T)  the lines of a universal file that begin or end a dataset: -1 in columns 5 and 6, and nothing else
function lines = unv_marks (t)
  lines = find (t.last - t.first >= 5);
  c = qn.impl.formats.gather (t, t.first(lines), t.last(lines), 81);
  if size (c, 2) < 6, lines = zeros (1, 0); end
  if isempty (lines), return, end
  hit = all (bsxfun (@eq, c(:, 1:6), '    -1'), 2) & all (c(:, 7:end) == ' ', 2);
  lines = lines(hit.');
end
