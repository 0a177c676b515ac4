% T = TRAITS (P)  what a law of the user's with the parameters P needs: the counts that were given with it (qn.impl.traits)
function t = traits (p)
  t = struct ('rates', true, 'group', p.rows);
  if p.states == 0 && p.rows == 1, return, end
  [t.rows, t.forces, t.width, t.states, t.memory] = deal (p.rows, p.rows, p.rows + p.states, p.states, p.states > 0);
end
