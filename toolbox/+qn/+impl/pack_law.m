% [OPT, OWN] = PACK_LAW (LAW, STEP)  the module's real parameters of a law, and its own integer options after the common five
function [opt, own] = pack_law (law, step)
  l = qn.impl.law_of (law.kind);
  [opt, own] = l.pack (law.parameters, step);
end
