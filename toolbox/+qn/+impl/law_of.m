% L = LAW_OF (KIND)  what is known of a law (see qn.impl.law_list)
function l = law_of (kind)
  persistent list kinds
  if isempty (list)
    list = qn.impl.law_list ();
    kinds = {list.kind};
  end
  l = list(strcmp (kind, kinds));
  if isempty (l)
    error ('qn:input', 'qn.law: no law called "%s"; there are %s and %s', kind, strjoin (kinds(1:end - 1), ', '), kinds{end});
  end
end
