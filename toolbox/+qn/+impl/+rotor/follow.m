% TO = FOLLOW (S, A, B, TOP, DEPTH)  which pole of B continues each pole of A: its number, 0 where none does
%
% A and B are of qn.impl.rotor.poles at neighbouring speeds. Shapes are compared (modal assurance criterion). Where one below TOP [rad/s]
% with less than 30 % of critical damping is not found again the interval is halved, DEPTH times at most.
function to = follow (s, a, b, top, depth)
  like = abs (a.shape' * b.shape) .^ 2;
  near = bsxfun (@rdivide, abs (bsxfun (@minus, a.pole.', b.pole)), abs (a.pole.'));
  like = like - 0.1 * min (near, 1);
  to = zeros (1, numel (a.pole));
  worst = 1;
  left = like;
  for j = 1:min (size (like))
    [best, at] = max (left(:));
    if best < 0.2, break, end
    [row, column] = ind2sub (size (left), at);
    to(row) = column;
    left(row, :) = -Inf;
    left(:, column) = -Inf;
  end
  low = find (imag (a.pole) < top & -real (a.pole) < 0.3 * abs (a.pole));
  for row = low
    if to(row) == 0
      worst = 0;
    else
      worst = min (worst, like(row, to(row)));
    end
  end
  if worst > 0.7 || depth == 0, return, end
  half = qn.impl.rotor.poles (s, (a.speed + b.speed) / 2);
  first = qn.impl.rotor.follow (s, a, half, top, depth - 1);
  second = qn.impl.rotor.follow (s, half, b, top, depth - 1);
  to = zeros (size (first));
  to(first > 0) = second(first(first > 0));
end
