% TEXT = EQUATION_TABLE (RECORDS, NAME)  the shortest measured time [ms] with an error not above each target
function text = equation_table (records, name)
  targets = [1e-2 1e-3 1e-4 1e-6];
  [~, programs] = equation_names (records);
  text = sprintf ('| program |%s\n|---|%s\n', sprintf (' %.0e |', targets), repmat ('---:|', 1, numel (targets)));
  for p = 1:numel (programs)
    [errors, seconds] = equation_points (records, name, programs{p});
    if isempty (errors), continue; end
    text = [text, sprintf('| %s |', programs{p})];
    for target = targets
      ms = 1e3 * min ([seconds(errors <= target), Inf]);
      if isinf (ms), text = [text, ' - |']; else, text = [text, sprintf(' %.3g |', ms)]; end
    end
    text = [text, sprintf('\n')];
  end
end
