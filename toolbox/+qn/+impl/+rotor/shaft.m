% S = SHAFT (WHO, O)  matrices of a shaft from the options of qn.rotor: K, M, C, G, N, places, nodes
%
% A node has x, y, thx, thy: displacements, and the rotations about x and y (thy = dx/dz, thx = -dy/dz). The spin turns x towards y.
function s = shaft (who, o)
  if ~isempty (o.shaft)
    s = qn.impl.rotor.matrices (who, 'shaft', o.shaft);
    n = size (s.M, 1);
    qn.impl.rotor.known_fields (who, 'shaft', o.shaft, {'M', 'K', 'C', 'G', 'N', 'places'});
    if isfield (o.shaft, 'places')
      s.places = qn.impl.numbers (who, 'places', o.shaft.places, [NaN NaN], 'from', 1, 'to', n, 'whole', 'each', ...
                                  'x and y, or x, y, thx, thy, of a node in a row');
      if all (size (s.places, 2) ~= [2 4]), error ('qn:input', '%s: "places" has 2 or 4 columns, got %d', who, size (s.places, 2)); end
      once (who, s.places);
    elseif mod (n, 4) == 0
      s.places = reshape (1:n, 4, []).';
      in_order (who, s);
    else
      error ('qn:input', '%s: a shaft of %d degrees of freedom has no 4 a node; say with "places" which are x and y of each node', who, n);
    end
    turns_ahead (who, s);
    s.nodes = 1:size (s.places, 1);
    eta = qn.impl.scalar (who, 'internal', o.internal, 0);
    if eta > 0
      if numel (s.places) < n
        error ('qn:input', ['%s: "internal" needs "places" for every degree of freedom, x, y, thx, thy of each node; they name %d of ' ...
                            '%d'], who, numel (s.places), n);
      end
      s = turning_damping (s, eta * s.K);
    end
    return
  end
  z = qn.impl.numbers (who, 'nodes', o.nodes, [], 'list', 'ascending');
  count = numel (z) - 1;
  if count < 1, error ('qn:input', '%s: "nodes" must be the positions of two nodes or more, got 1', who); end
  outer = each (who, 'outer', o.outer, count, 'above', 0);
  inner = each (who, 'inner', o.inner, count, 'from', 0);
  young = each (who, 'young', o.young, count, 'above', 0);
  density = each (who, 'density', o.density, count, 'above', 0);
  poisson = each (who, 'poisson', o.poisson, count, 'from', 0, 'to', 0.5);
  internal = each (who, 'internal', o.internal, count, 'from', 0);
  shear = qn.impl.flag (who, 'shear', o.shear);
  bad = find (inner >= outer, 1);
  if ~isempty (bad)
    error ('qn:input', '%s: "inner" of element %d is %g m, its "outer" %g m', who, bad, inner(bad), outer(bad));
  end
  n = 4 * (count + 1);
  s = struct ('M', zeros (n), 'K', zeros (n), 'C', zeros (n), 'G', zeros (n), 'N', zeros (n), ...
              'places', reshape (1:n, 4, []).', 'nodes', z(:).');
  turned = diag ([1 -1 1 -1]);
  inner_damping = zeros (n);
  for e = 1:count
    [k, m, r] = qn.impl.rotor.beam (z(e + 1) - z(e), outer(e), inner(e), young(e), density(e), poisson(e), shear);
    x = 4 * e - 4 + [1 4 5 8];
    y = 4 * e - 4 + [2 3 6 7];
    s.K(x, x) = s.K(x, x) + k;
    s.K(y, y) = s.K(y, y) + turned * k * turned;
    inner_damping(x, x) = inner_damping(x, x) + internal(e) * k;
    inner_damping(y, y) = inner_damping(y, y) + internal(e) * (turned * k * turned);
    s.M(x, x) = s.M(x, x) + m + r;
    s.M(y, y) = s.M(y, y) + turned * (m + r) * turned;
    g = 2 * r * turned;
    s.G(x, y) = s.G(x, y) + g;
    s.G(y, x) = s.G(y, x) - g.';
  end
  s = turning_damping (s, inner_damping);
end

% Damping C of what turns: in the frame of the shaft it sees x' + W y and y' - W x, and of the rotations likewise.
function s = turning_damping (s, c)
  p = s.places;
  frame = zeros (size (c));
  for j = 1:2:size (p, 2)
    frame(sub2ind (size (frame), p(:, j), p(:, j + 1))) = 1;
    frame(sub2ind (size (frame), p(:, j + 1), p(:, j))) = -1;
  end
  s.C = s.C + c;
  s.N = s.N + c * frame;
end

% Refuses a degree of freedom that has two places.
function once (who, places)
  all_of = sort (places(:));
  twice = all_of(find (diff (all_of) == 0, 1));
  if isempty (twice), return, end
  [row, unused] = find (places == twice);
  error ('qn:input', '%s: "places" names degree of freedom %d twice, in the rows %s', who, twice, mat2str (sort (row.')));
end

% Without "places": x and y of a node move the same mass, and what turns moves none of their size, where the order is the one expected.
function in_order (who, s)
  m = diag (s.M);
  m = m(s.places);
  m = reshape (m, [], 4);
  for pair = [1 3; 2 4]
    bad = find (abs (m(:, pair(1)) - m(:, pair(2))) > 0.1 * max (abs (m(:, pair)), [], 2), 1);
    if isempty (bad), continue, end
    error ('qn:input', ['%s: without "places" a node of "shaft" has its x, y, thx, thy one after another, and those of node %d, the ' ...
                        'degrees of freedom %s, have the masses %s on the diagonal of M, where x and y, and thx and thy, of a round ' ...
                        'shaft have equal ones; say with the field "places" which are which'], who, bad, mat2str (s.places(bad, :)), ...
           mat2str (m(bad, :), 4));
  end
end

% The sense of the rotation by the moments of disks: of G(thx, thy), which is Ip.
function turns_ahead (who, s)
  if size (s.places, 2) < 4, return, end
  moment = diag (s.G(s.places(:, 3), s.places(:, 4)));
  if sum (moment) >= -1e-9 * sum (abs (moment)), return, end
  warning ('qn:rotor', ['%s: G of "shaft" is that of a rotation from y to x: G(thx, thy) adds up to %.4g kg m^2 where a shaft that ' ...
                        'turns from x to y has Ip. Forward and backward whirl change places; swap x and y in "places", or give -G'], ...
           who, sum (moment));
end

function x = each (who, name, x, count, varargin)
  n = count;
  if numel (x) == 1, n = 1; end
  x = qn.impl.numbers (who, name, x, n, varargin{:}, 'each', 'one for all elements or one an element');
  x = reshape (x, 1, []) .* ones (1, count);
end
