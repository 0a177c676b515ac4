% SAVABLE (WHO, SIM)  refuses to store a run with a law that no file can hold
function savable (who, sim)
  for e = reshape (sim.elements, 1, [])
    l = qn.impl.law_of (e.law.kind);
    if ~isempty (l.unsaved), error ('qn:input', '%s: element %d has a law that %s', who, e.item, l.unsaved); end
  end
end
