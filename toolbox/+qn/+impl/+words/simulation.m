% FACTS = SIMULATION (SIM)  a whole set-up, rows of a name and what is said
function facts = simulation (sim)
  facts = qn.impl.words.set_up (sim);
  cells = qn.impl.words.loads (sim);
  for k = 1:size (cells, 1)
    [where, low, high, mean_of, unit] = cells{k, 2:end};
    values = sprintf ('%s, root mean square %.5g %s', qn.impl.words.span ('%.5g', [low, high], unit), mean_of, unit);
    facts(end + 1, :) = {sprintf('Load %d', k), strrep(strtrim ([where ': ' values]), ' ,', ',')};
  end
  if isempty (cells), facts(end + 1, :) = {'Loads', 'none'}; end
  for note = sim.notes, facts(end + 1, :) = {'Note', note{1}}; end
  cells = qn.impl.words.elements (sim);
  for k = 1:size (cells, 1)
    facts(end + 1, :) = {sprintf('Element %d', cells{k, 1}), sprintf('%s; %s', cells{k, [2 3]})};
  end
  if isempty (cells), facts(end + 1, :) = {'Elements', 'none: the model is linear'}; end
end
