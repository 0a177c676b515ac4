% C = CONTACT_EVENTS (T, F)  the contacts in a force history: struct array with start, duration [s] and peak [N]
function c = contact_events (t, f)
  closed = f > 0;
  first = find (diff ([0, closed]) == 1);
  last = find (diff ([closed, 0]) == -1);
  c = struct ('start', {}, 'duration', {}, 'peak', {});
  h = t(2) - t(1);
  for k = 1:numel (first)
    span = first(k):last(k);
    c(k) = struct ('start', t(first(k)), 'duration', numel (span) * h, 'peak', max (f(span)));
  end
end
