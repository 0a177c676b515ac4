% CTX = MODEL_STORE_STATE (S, CTX)  forces into ctx.FNL, state blocks into ctx.u: every block goes to the same place
function ctx = model_store_state (s, ctx)
  ctx = model_store_forces (s, ctx);
  iopt = double (s.iopt(:));
  if ~(iopt(2) > 0 && iopt(5) > 0), return, end
  source = 0;
  for block = 1:iopt(5)
    source = source + iopt(3);
    for i = 1:iopt(4)
      to = iopt(2) + i;
      if to <= numel (ctx.u) && source + i <= numel (s.unl), ctx.u(to) = s.unl(source + i); end
    end
    source = source + iopt(4);
  end
end
