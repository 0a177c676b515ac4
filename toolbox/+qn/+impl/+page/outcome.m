% HTML = OUTCOME (RES, O)  how the run ended, and how far each of the rows went
function html = outcome (res, o)
  last = res.sim.time(end);
  if res.diverged
    state = sprintf ('<p class="error">The motion grew beyond all numbers: the run ended at %.6g s of %.6g s.</p>', res.time_end, last);
  elseif ~res.complete
    state = sprintf ('<p class="error">Not complete: the run came to %.6g s of %.6g s.</p>', res.time_end, last);
  else
    state = sprintf ('<p>The run is complete: %.6g s in %.2g s of computing.</p>', last - res.sim.time(1), res.seconds);
  end
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
