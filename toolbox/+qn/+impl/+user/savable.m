% SAVABLE (WHO, SIM)  refuses to store a run with a law that is a function of the session
function savable (who, sim)
  k = find (arrayfun (@(e) strcmp (e.law.kind, 'function'), sim.elements), 1);
  if isempty (k), return, end
  error ('qn:input', ['%s: element %d has a law that is a function, which no file can hold: leave out "save", or write the law in C ' ...
                      '(qn.law, ''compiled'')'], who, sim.elements(k).item);
end
