% EXPECT_LAW_LIKE_MODEL (E, U, V)  evaluates the element E through "residual" and with the plain model, once for each column of U and V
%
% E is registered once, so its states go on from column to column; the rows of U that the law stores its states in are carried over.
% Arrays of the element, displacements and residual must agree to the bit.
function expect_law_like_model (e, u, v)
  [h, index] = registered ({e});
  cleanup = onCleanup (@() quarn ('chandleclear', index));
  n = size (u, 1);
  s = e;
  a = zeros (n, 1);
  ctx = struct ('u', zeros (n, 1), 'v', zeros (n, 1), 'FNL', []);
  r = zeros (n, 1);
  want_r = zeros (n, 1);
  stored = stored_rows (e, n);
  for k = 1:size (u, 2)
    moved = u(:, k);
    if k > 1, moved(stored) = got_u(stored); end
    got_u = fresh (moved);
    got_v = fresh (v(:, k));
    ctx.u = moved;
    ctx.v = v(:, k);
    quarn ('residual', r, h, got_u, got_v, a, zeros (1, 2));
    [want_r, s, ctx] = model_element_residual (s, want_r, 0, ctx);
    expect_equal (got_u, ctx.u);
    expect_equal (r, want_r);
  end
  expect_same_element (quarn ('chandleget', index), s);
end

function rows = stored_rows (e, n)
  iopt = double (e.iopt(:));
  rows = zeros (0, 1);
  if numel (iopt) >= 5 && iopt(2) > 0 && iopt(5) > 0
    rows = iopt(2) + (1:iopt(4));
    rows = rows(rows <= n);
  end
end
