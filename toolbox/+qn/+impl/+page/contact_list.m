% HTML = CONTACT_LIST (RES)  the contacts of each force without memory that is zero for a hundredth of the time and acts in the rest
function html = contact_list (res)
  cells = cell (0, 7);
  for e = res.sim.elements
    t = qn.impl.traits (e.law, size (e.observe, 1));
    for row = e.forces
      if isempty (res.force), continue, end
      f = res.force(row, :);
      if t.memory || sum (f == 0) < max (2, numel (f) / 100) || ~any (f), continue, end
      try
        c = qn.contacts (res, row);
      catch err
        html = sprintf ('<h2>Contacts</h2>\n%s', qn.impl.page.unknown (err));
        return
      end
      [unused, top] = max (abs ([c.peak]));
      cells(end + 1, :) = {e.item, row, numel(c), c(1).start, max([c.duration]), c(top).peak, sum(abs ([c.impulse]))};
    end
  end
  html = '<p>no force that is zero at times and acts at others</p>';
  if ~isempty (cells)
    html = qn.impl.page.grid_of ({'Element', 'Force row', 'Contacts', 'first [s]', 'longest [s]', 'hardest [N]', 'impulses [Ns]'}, cells);
  end
  html = sprintf ('<h2>Contacts</h2>\n%s', html);
end
