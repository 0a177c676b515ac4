% CELLS = ELEMENTS (SIM)  one row an element: number, law, where it looks and acts
function cells = elements (sim)
  cells = cell (0, 3);
  [rows, where] = deal ([]);
  for e = sim.elements
    if isempty (where) || ~isequal (rows, {e.observe, e.command})    % those of a bank share their rows
      rows = {e.observe, e.command};
      where = ['at ' qn.impl.words.place(sim.model, e.observe)];
      if ~isequal (full (e.observe), full (e.command))
        where = sprintf ('looks %s, acts at %s', where, qn.impl.words.place (sim.model, e.command));
      end
    end
    cells(end + 1, :) = {e.item, qn.impl.law_text(e.law), where};
  end
end
