% Projections against the host's own operators.
%
% The host's statements are in functions of their own: in an anonymous function, t' * (k * t) would transpose t first, which a statement does
% not. Processor time counts all threads of the host's BLAS: where it has several, bench/run asks it for one.
function notes = projection_bench (quick)
  notes = [];
  sizes = [10 22 46 100];
  if quick, sizes = 10; end
  for m = sizes
    line = spdiags (ones (m, 1) * [-1 4 -1], -1:1, m, m);
    k = kron (line, kron (line, line));
    s = matrix_lines (k);
    n = m ^ 3;
    for cols = [1 10 50 200]
      if n * cols ^ 2 > 2.6e9, continue; end
      t = reshape (sin (1:n * cols), n, cols);
      z = t + 0.5i * reshape (cos (1:n * cols), n, cols);  % of another size than t: squares must not cancel
      one = int32 ([1 0 0]);
      pairs = {'host abc', @() quarn ('abc', t, s, t, one), @() form(t, k), form(t, k)
               'host abc complex', @() quarn ('abc', z, s, z, one), @() complex_form(z, k), complex_form(z, k)
               'host c<-a''*b', @() quarn ('c<-a''*b', t, s), @() left(t, k), left(t, k)};
      for q = 1:3
        got = pairs{q, 2} ();
        off = off_by (got, pairs{q, 4});
        clear got
        variant = sprintf ('%s, %d columns', pairs{q, 1}, cols);
        notes = [notes, note('projections', variant, n, 'quarn', best_time (pairs{q, 2}, quick), cols * nnz (k), off, 1e-9), ...
                 note('projections', variant, n, 'Octave', best_time (pairs{q, 3}, quick), cols * nnz (k), 0, 0)];
      end
    end
  end
end

function r = form (t, k)
  r = t' * (k * t);
end

function r = complex_form (z, k)
  r = z.' * (k * z);
end

function r = left (t, k)
  r = t' * k;
end
