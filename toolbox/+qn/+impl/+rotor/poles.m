% P = POLES (S, SPEED)  what oscillates in a rotor at this speed: speed, pole (1 x k, imag (pole) > 0 ascending), shape (columns), whirl
%
% Shapes are in the coordinates of S, of unit length. whirl is the direction: from -1 (circles backward) through 0 (lines) to 1 (circles
% forward), by the areas of the orbits; NaN where S does not know what x and y are.
% Forward is in the sense of rotation: x towards y at speeds from 0, y towards x below.
function p = poles (s, speed)
  n = size (s.K, 1);
  c = s.C;
  k = s.K;
  m = eye (n);
  if ~isempty (s.rotor)
    r = qn.impl.rotor.at_speed (s.rotor, speed);
    c = s.basis.' * r.C * s.basis;
    k = s.basis.' * r.K * s.basis;
    m = s.basis.' * r.M * s.basis;
  end
  [v, d] = eig ([zeros(n), eye(n); -(m \ [k + speed * s.N, c + speed * s.G])]);
  d = diag (d).';
  keep = find (imag (d) > 1e-7 * abs (d));
  [unused, order] = sort (imag (d(keep)));
  keep = keep(order);
  pole = d(keep);
  shape = v(1:n, keep);
  shape = bsxfun (@rdivide, shape, sqrt (sum (abs (shape) .^ 2, 1)));
  whirl = NaN (size (pole));
  if ~isempty (s.circle)
    shape = apart (shape, pole, s.circle);
    whirl = real (sum (conj (shape) .* (s.circle * shape), 1)) ./ real (sum (conj (shape) .* (s.size * shape), 1));
    if speed < 0, whirl = -whirl; end
  end
  p = struct ('speed', speed, 'pole', pole, 'shape', shape, 'whirl', whirl);
end

% Of equal poles any shapes of their plane will do: take those that circle, backward first.
function shape = apart (shape, pole, circle)
  k = 1;
  while k <= numel (pole)
    same = find (abs (pole(k:end) - pole(k)) < 1e-6 * abs (pole(k))) + k - 1;
    same = k:max (same);
    if numel (same) > 1
      [q, unused] = qr (shape(:, same), 0);
      h = q' * circle * q;
      [v, d] = eig ((h + h') / 2);
      [unused, order] = sort (real (diag (d)));
      shape(:, same) = q * v(:, order);
    end
    k = same(end) + 1;
  end
end
