% HTML = FACTS (PAIRS)  names and what is said of them, rows of two texts; those of nothing are left out
function html = facts (pairs)
  html = '<table class="facts"><tbody>';
  for k = 1:size (pairs, 1)
    if isempty (pairs{k, 2}), continue, end
    html = sprintf ('%s\n<tr><th>%s</th><td>%s</td></tr>', html, qn.impl.page.escaped (pairs{k, 1}), qn.impl.page.escaped (pairs{k, 2}));
  end
  html = sprintf ('%s\n</tbody></table>', html);
end
