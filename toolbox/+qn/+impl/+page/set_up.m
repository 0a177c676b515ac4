% HTML = SET_UP (SIM)  model, scheme, loads, initial state and elements in the words of qn.describe
function html = set_up (sim)
  html = sprintf ('<h2>Set-up</h2>\n%s', qn.impl.page.facts (qn.impl.words.set_up (sim)));
  html = sprintf ('%s\n<h3>Loads</h3>\n%s\n<h3>Elements</h3>\n%s', html, load_list (sim), element_list (sim));
end

function html = load_list (sim)
  cells = qn.impl.words.loads (sim);
  html = '<p>none</p>';
  if ~isempty (cells), html = qn.impl.page.grid_of ({'Load', 'Acts', 'least', 'greatest', 'root mean square', 'Unit'}, cells); end
  for k = 1:numel (sim.notes), html = sprintf ('%s\n<p>%s</p>', html, qn.impl.page.escaped (sim.notes{k})); end
end

function html = element_list (sim)
  cells = qn.impl.words.elements (sim);
  html = '<p>none: the model is linear</p>';
  if ~isempty (cells), html = qn.impl.page.grid_of ({'Element', 'Law', 'Looks and acts'}, cells); end
end
