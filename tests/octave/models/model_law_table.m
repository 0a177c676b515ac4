% [S, CTX] = MODEL_LAW_TABLE (S, T, CTX)  forces interpolated in the table inside opt
%
% The table is applied as often as there are observed values. With "snl" the repetitions give the same forces; without it the
% forces replace the queries, so that the table is applied to its own results.
function [s, ctx] = model_law_table (s, t, ctx)
  n = model_page (s);
  place = double (s.iopt(6:9));
  nx = place(3);
  ny = place(4);
  x = s.opt(place(1) + (1:nx * (1 + ny)));
  own = isfield (s, 'snl') && ~isempty (s.snl);
  q = s.unl(1:n);
  for repetition = 1:n
    rec = s.opt(place(2) + (1:3));
    [force, rec] = model_lin_interp (x(:), q, rec, nx, ny);
    if own
      s.snl(1:n * ny) = force(:, 1:ny);
    else
      if n > 1, rec(2) = force(1); end
      s.unl(1:n * ny) = force(:, 1:ny);
      q = s.unl(1:n);
    end
    s.opt(place(2) + (1:3)) = rec;
  end
  ctx = model_store_forces (s, ctx);
end
