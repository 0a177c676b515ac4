% HTML = GRID_OF (HEADS, CELLS)  a table: HEADS a row of texts, CELLS a cell of texts and numbers, one row a line
function html = grid_of (heads, cells)
  lines = cell (size (cells, 1), 1);
  for k = 1:size (cells, 1)
    line = '';
    for j = 1:size (cells, 2)
      x = cells{k, j};
      if ischar (x)
        line = sprintf ('%s<td>%s</td>', line, qn.impl.page.escaped (x));
      else
        line = sprintf ('%s<td class="number">%s</td>', line, sprintf ('%.5g', x));
      end
    end
    lines{k} = sprintf ('<tr>%s</tr>', line);
  end
  head = '';
  for j = 1:numel (heads)
    kind = '';
    if ~isempty (cells) && ~ischar (cells{1, j}), kind = ' class="number"'; end
    head = sprintf ('%s<th%s>%s</th>', head, kind, qn.impl.page.escaped (heads{j}));
  end
  html = sprintf ('<table>\n<thead><tr>%s</tr></thead>\n<tbody>\n%s\n</tbody>\n</table>', head, strjoin (lines, sprintf ('\n')));
end
