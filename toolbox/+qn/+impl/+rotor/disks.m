% S = DISKS (WHO, S, O)  a shaft with the "disks" and "cylinders" of qn.rotor added to M and G
function s = disks (who, s, o)
  rows = zeros (0, 4);
  if ~isempty (o.disks)
    rows = qn.impl.numbers (who, 'disks', o.disks, [NaN 4], 'from', 0, 'each', '[node mass Id Ip]');
    bodies (who, rows);
  end
  if ~isempty (o.cylinders)
    c = qn.impl.numbers (who, 'cylinders', o.cylinders, [NaN 5], 'from', 0, 'each', '[node width outer inner density]');
    bad = find (c(:, 4) >= c(:, 3), 1);
    if ~isempty (bad)
      error ('qn:input', '%s: the inner diameter of row %d of "cylinders", %g m, is not below the outer one, %g m', who, bad, ...
             c(bad, [4 3]));
    end
    mass = c(:, 5) .* c(:, 2) * pi / 4 .* (c(:, 3) .^ 2 - c(:, 4) .^ 2);
    polar = mass .* (c(:, 3) .^ 2 + c(:, 4) .^ 2) / 8;
    rows = [rows; c(:, 1), mass, polar / 2 + mass .* c(:, 2) .^ 2 / 12, polar];
  end
  given = size (rows, 1);
  if ~isempty (o.cylinders), given = given - size (o.cylinders, 1); end
  for k = 1:size (rows, 1)
    row = rows(k, :).';
    if row(1) ~= fix (row(1)) || row(1) < 1 || row(1) > size (s.places, 1)
      [name, at] = deal ('disks', k);
      if k > given, [name, at] = deal ('cylinders', k - given); end
      error ('qn:input', '%s: row %d of "%s" is a disk at node %g; nodes are numbered from 1 to %d, whatever their positions', who, at, ...
             name, row(1), size (s.places, 1));
    end
    at = s.places(row(1), :);
    if numel (at) < 4
      if any (row(3:4)), error ('qn:input', '%s: nodes without rotations take disks without moments of inertia', who); end
      row = row([1 2]);
    end
    s.M(at, at) = s.M(at, at) + diag (row([2 2, repmat(3, 1, numel (row) - 2)]));
    if numel (at) == 4
      s.G(at(3), at(4)) = s.G(at(3), at(4)) + row(4);
      s.G(at(4), at(3)) = s.G(at(4), at(3)) - row(4);
    end
  end
end

% Ip = a + b, Id = (a + b)/2 + c for the second moments a, b and c of a body of revolution: Ip is at most twice Id.
function bodies (who, rows)
  bad = find (rows(:, 4) > 2 * rows(:, 3) * (1 + 1e-3), 1);
  if ~isempty (bad)
    error ('qn:input', ['%s: row %d of "disks" has Id %g and Ip %g kg m^2; Ip of a body is at most twice Id. The order is ' ...
                        '[node mass Id Ip], moments about a diameter first'], who, bad, rows(bad, 3:4));
  end
end
