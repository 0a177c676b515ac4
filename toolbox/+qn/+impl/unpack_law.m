% [LAW, STEP] = UNPACK_LAW (E)  the law and the time step in the value of a nonlinear element; LAW is [] where it is not one of ours
function [law, step] = unpack_law (e)
  opt = double (e.opt(:));
  step = [];
  law = [];
  iopt = zeros (9, 1);
  if isfield (e, 'iopt') && ~isempty (e.iopt), iopt(1:numel (e.iopt)) = double (e.iopt(:)); end
  list = qn.impl.law_list ();
  l = list(cellfun (@qn.impl.keyword, {list.keyword}) == fix (opt(1)));
  p = [];
  for k = 1:numel (l)
    if isempty (l(k).extra), p = l(k).unpack (opt, iopt); else, p = l(k).unpack (opt, iopt, e); end
    if ~isempty (p), break, end
  end
  if isempty (p), return, end
  l = l(k);
  pairs = [fieldnames(p), struct2cell(p)].';
  law = qn.law (l.kind, pairs{:});
  t = qn.impl.traits (law, 1);
  if t.memory, step = opt(3); end
end
