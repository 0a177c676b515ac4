% F = UNV_AXES (F, X, Y, PER)  the abscissa and the values of a function from the numbers of its points, one column a point
function f = unv_axes (f, x, y, per)
  if f.even
    f.x = x(4) + x(5) * (0:x(2) - 1);
  else
    f.x = y(1, :);
    y = y(2:end, :);
  end
  f.y = y(1, :);
  if per.complex, f.y = complex (y(1, :), y(2, :)); end
end
