% S = EIGENPROBLEM (WHO, R, PLACES, BASIS)  a rotor for its poles at many speeds
%
% R is from qn.rotor or has M, K and perhaps C, G and N. S has basis (n x b: displacements from coordinates of unit mass), M, K, C, G and N in
% these coordinates, circle (b x b Hermitian: forward minus backward whirl of a shape; [] without PLACES), size (the sum of both), and
% rotor: [] or, where bearings depend on the speed, the rotor to form K and C of at each speed.
function s = eigenproblem (who, r, places, basis)
  moving = isstruct (r) && isfield (r, 'parts') && isfield (r, 'places') && r.parts.by_speed;
  s = struct ('rotor', []);
  if moving
    qn.impl.rotor.unchanged (who, r);
    s.rotor = r;
    r = qn.rotor (r, 'speed', basis.speed);
  end
  if isstruct (r) && isfield (r, 'parts'), qn.impl.rotor.own_fields (who, r); end
  if isstruct (r) && isfield (r, 'places') && isempty (places), places = r.places(:, 1:2); end
  a = qn.impl.rotor.matrices (who, 'R', r);
  if ~isdiag (a.K) && (istriu (a.K) || istril (a.K))
    error ('qn:input', ['%s: K of "R" has entries on one side of its diagonal only, as half of a symmetric matrix has; give all of it, ' ...
                        'K + triu (K, 1).'' or K + tril (K, -1).'''], who);
  end
  n = size (a.M, 1);
  if isempty (basis.count)
    [factor, bad] = chol ((a.M + a.M.') / 2);
    if bad, error ('qn:input', '%s: M is not positive definite; give "basis", which condenses what has no mass', who); end
    s.basis = factor \ eye (n);
  else
    held = (a.K + a.K.') / 2;
    if isfield (r, 'Ks'), held = full (r.Ks); end
    s.basis = qn.impl.modes (held, a.M, min (qn.impl.count (who, 'basis', basis.count), n), 'auto');
  end
  for field = 'MKCGN', s.(field) = s.basis.' * a.(field) * s.basis; end
  s.circle = [];
  if isempty (places), return, end
  places = qn.impl.numbers (who, 'places', places, [NaN 2], 'from', 1, 'to', n, 'whole', 'each', 'x and y of a node in a row');
  same = find (places(:, 1) == places(:, 2), 1);
  if ~isempty (same)
    error ('qn:input', '%s: row %d of "places" has degree of freedom %d as x and as y', who, same, places(same, 1));
  end
  x = s.basis(places(:, 1), :);
  y = s.basis(places(:, 2), :);
  s.circle = 1i * (x.' * y - y.' * x);
  s.size = x.' * x + y.' * y;
end
