% HTML = OUTCOME (RES, O)  how the run ended, and how far each of the rows went
function html = outcome (res, o)
  [state, good] = qn.impl.words.outcome (res);
  kind = '';
  if ~good, kind = ' class="error"'; end
  state = sprintf ('<p%s>%s</p>', kind, state);
  cells = cell (0, 5);
  x = o.rows * res.q;
  for k = 1:size (x, 1)
    if isempty (x), break, end
    [low, i] = min (x(k, :));
    [high, j] = max (x(k, :));
    cells(k, :) = {o.names{k}, low, res.time(i), high, res.time(j)};
  end
  html = sprintf ('<h2>Outcome</h2>\n%s\n%s', state, ...
                  qn.impl.page.grid_of ({'Displacement', 'least [m]', 'at [s]', 'greatest [m]', 'at [s]'}, cells));
end
