% FROM = MATCHED (SIM, BEFORE, LINK, FRESH)  number of the earlier element whose memory each element of SIM inherits, 0: none
%
% Elements match that have the same kind of law and observe and act at the same place: rows that are equal, or nearest within 5 % in
% the norm of the modes where LINK leads from other modes. Of several at one place each takes from the one with the same parameters;
% where parameters have changed, but not the number, the first takes from the first. FRESH: rows of the list of
% elements that begin without a memory.
function from = matched (sim, before, link, fresh)
  [e, b] = deal (sim.elements, before.elements);
  n = numel (e);
  from = zeros (1, n);
  if ~isempty (fresh)
    fresh = qn.impl.numbers ('qn.simulation', 'fresh', fresh, [], 'list', 'whole', 'from', 1, 'to', max ([1, e.item]));
  end
  takes = ~ismember ([e.item, 0], fresh);
  takes = takes(1:n);
  if n == numel (b) && all (takes) && isequal ({e.law}, {b.law}) && all (arrayfun (@(k) same_place (e(k), b(k), link), 1:n))
    from = 1:n;
    return
  end
  left = takes;
  while any (left)
    k = find (left, 1);
    here = find (left & arrayfun (@(x) same_place (x, e(k), []), e));
    there = find (arrayfun (@(x) same_place (e(k), x, link), b));
    there = there(~ismember (there, from));
    left(here) = false;
    rest = there;
    for i = here
      j = rest(arrayfun (@(x) isequal (x.law, e(i).law), b(rest)));
      if ~isempty (j)
        from(i) = j(1);
        rest(rest == j(1)) = [];
      end
    end
    if any (from(here) == 0) && numel (here) == numel (there), from(here) = there; end
    t = qn.impl.traits (e(k).law, size (e(k).observe, 1));
    lost = here(from(here) == 0);
    if t.memory && ~isempty (lost), refuse (e(lost(1)), numel (here), numel (there), b); end
  end
end

function refuse (e, here, there, b)
  had = 'it had no element at all';
  list = arrayfun (@(x) sprintf ('%d: %s', x.item, x.law.kind), b, 'UniformOutput', false);
  if ~isempty (b), had = sprintf ('it had %s', strjoin (list, ', ')); end
  error ('qn:input', ['qn.simulation: element %d (%s) has a memory and finds none in the earlier run: %s. At its place are %d of that ' ...
                      'kind now, and there were %d then. Give it the place that it had, or let it begin without a memory: ' ...
                      '"fresh", %d'], e.item, e.law.kind, had, here, there, e.item);
end

function same = same_place (e, b, link)
  same = strcmp (e.law.kind, b.law.kind) && isequal (size (e.observe, 1), size (b.observe, 1)) && ...
         isequal (qn.impl.traits (e.law, size (e.observe, 1)), qn.impl.traits (b.law, size (b.observe, 1)));
  same = same && near (e.observe, b.observe, link) && near (e.command, b.command, link);
end

function good = near (c, d, link)
  if isempty (link)
    good = isequal (size (c), size (d)) && norm (c - d, 'fro') <= 1e-9 * norm (d, 'fro');
  else
    good = norm (c * link - d, 'fro') <= 0.05 * norm (d, 'fro') || norm (c - d * link.', 'fro') <= 0.05 * norm (c, 'fro');
  end
end
