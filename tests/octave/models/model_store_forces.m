% CTX = MODEL_STORE_FORCES (S, CTX)  copies one page of forces into ctx.FNL from the 0-based offset iopt(1) on, if it is not negative
function ctx = model_store_forces (s, ctx)
  if ~isfield (s, 'iopt') || isempty (s.iopt) || isempty (ctx.FNL) || s.iopt(1) < 0, return, end
  force = model_forces (s);
  n = model_page (s);
  for i = 1:n
    at = double (s.iopt(1)) + i;
    if at <= numel (ctx.FNL), ctx.FNL(at) = force(i); end
  end
end
