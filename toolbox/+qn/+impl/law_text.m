% TEXT = LAW_TEXT (LAW)  one law in words
function text = law_text (law)
  l = qn.impl.law_of (law.kind);
  text = l.words (law.parameters);
  if ~isempty (law.note), text = sprintf ('%s: %s', law.note, text); end
end
