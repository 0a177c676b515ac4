% LIST = WITHOUT_MEMORY (WHO, LIST)  elements {law, rows; ...} at rest: Maxwell laws become springs, friction laws are refused
function list = without_memory (who, list)
  for k = 1:size (list, 1)
    laws = list{k, 1};
    for j = 1:numel (laws)
      l = qn.impl.law_of (laws(j).kind);
      t = qn.impl.traits (laws(j), 1);
      if ~isempty (l.at_rest)
        laws(j) = l.at_rest (laws(j).parameters);
      elseif t.memory
        error ('qn:input', '%s: element %d has a memory (%s), its force here depends on the past', who, k, laws(j).kind);
      end
    end
    list{k, 1} = laws;
  end
end
