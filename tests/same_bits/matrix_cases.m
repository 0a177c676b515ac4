% MATRIX_CASES (ID)  products on one and on several threads, projections, and the small matrix commands
function matrix_cases (id)
  for n = [5 999 12000]
    a = matrix_lines (spdiags (randn (n, 3), -1:1, n, n));
    recorded_call (id, sprintf ('one tridiagonal product of %d', n), 0, 'tbbp', a, randn (n, 1), randn (n, 1));
    a = matrix_lines (spdiags (randn (n, 1), 0, n, n));
    recorded_call (id, sprintf ('one product of %d', n), 0, 'tbbp', a, randn (n, 1), randn (n, 1));
  end
  [a, n] = long_lines (4100);
  a.ir = int32 (mod ((0:25 * n - 1)' * 7, n));
  a.pr = randn (25 * n, 1);
  recorded_call (id, 'one product on threads', 0, 'tbbp', a, randn (n, 1), zeros (n, 1));
  for columns = [1 3 8 20]
    k = matrix_lines (sprandn (50, 60, 0.2));
    left = randn (50, columns);
    right = randn (60, columns);
    for imaginary = {0, 1i}
      recorded_call (id, 'one abc', 1, 'abc', left + imaginary{1} * randn (50, columns), k, right, int32 ([1; 0; 0]));
      recorded_call (id, 'one abc', 1, 'abc', left, k, right + imaginary{1} * randn (60, columns), int32 ([1; 0; 0]));
    end
    recorded_call (id, 'one c<-a''*b', 1, 'c<-a''*b', left, k);
    recorded_call (id, 'one c<-a''*b', 0, 'c<-a''*b', left, k, zeros (columns, 60));
    diagonal = matrix_lines (diag (randn (50, 1)));
    recorded_call (id, 'one c<-a''*b', 1, 'c<-a''*b', left, diagonal);
  end
  a = fresh (matrix_lines (magic (3)));
  recorded_call (id, 'one setsparse', 0, 'setsparse', a, a.ir + int32 (0), a.jc + int32 (0), randn (9, 1));
  square = randn (3) + 1i * randn (3);
  recorded_call (id, 'one directzr', 0, 'directzr', square, {1}, square, randn (3) + 1i * randn (3));   % the host drops zero imaginary parts
  recorded_call (id, 'one word', 1, 'ismex');
  recorded_call (id, 'one word', 1, 'cvs');
  recorded_call (id, 'one word', 1, 'omp');
end
