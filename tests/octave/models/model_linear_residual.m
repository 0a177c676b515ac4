% R = MODEL_LINEAR_RESIDUAL (H, R, CTX)  adds the term of a mass (2), damping (3) or stiffness (1) handle; CTX holds u, v, a, alpha, beta
%
% A handle with a "factor" of time adds its term, formed by itself, times that factor at CTX.t.
function r = model_linear_residual (h, r, ctx)
  if isfield (h, 'factor') && ~isempty (h.factor)
    f = model_at_time (h.factor(1, :), h.factor(2, :), ctx.t);
    h = rmfield (h, 'factor');
    main = ctx;
    if h.ir(1) ~= -1, main.beta = 0; end
    r = r + f * model_linear_residual (h, zeros (size (r)), main);
    if h.ir(1) ~= -1 && h.type == 1 && ctx.beta ~= 0
      h.type = 3;
      r = r + (f * ctx.beta) * model_linear_residual (h, zeros (size (r)), ctx);
    end
    return
  end
  v = model_view (h);
  if ~v.sparse || (h.type == 2 && isempty (ctx.a)), return, end
  n = numel (ctx.u);
  factor = 0;
  switch h.type
    case 1, x = ctx.u; factor = ctx.beta;
    case 2, x = ctx.a; factor = ctx.alpha;
    case 3, x = ctx.v;
  end
  if v.ir(1) == -1
    for i = 1:n
      if h.type == 3
        r(i) = r(i) + v.pr(i) * x(i);
      else
        r(i) = r(i) + v.pr(i) * (x(i) + factor * ctx.v(i));
      end
    end
    return
  end
  if v.jc(end) == 0 && h.type == 3, return, end
  for i = 1:n, r(i) = r(i) + model_line (v, i, x); end
  if factor ~= 0
    for i = 1:n, r(i) = r(i) + model_line (v, i, ctx.v) * factor; end
  end
end
