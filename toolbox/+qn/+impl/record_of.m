% R = RECORD_OF (RES, K)  the most that the law of element K has met at any step of a result, kept or not; [] of laws that keep no record
function r = record_of (res, k)
  e = res.sim.elements(k);
  t = qn.impl.traits (e.law, size (e.observe, 1));
  r = [];
  if t.record > 0, r = res.final.values{2 + k, 2}.opt(t.record); end
end
