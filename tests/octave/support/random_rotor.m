% E = RANDOM_ROTOR (N, ROWS, OFFSET)  element of the law "rotcenter" with random parameters on N >= 6 DOFs
%
% ROWS of the parameter cell: 10 (DOF lists), 11 to 14 (and a place in the force store, from the 0-based OFFSET on), 17 or more
% (observation matrices). Tables of 2 to 6 knots.
function e = random_rotor (n, rows, offset)
  if nargin < 2, rows = 10; end
  if nargin < 3, offset = 0; end
  c = cell (rows, 2);
  c{1, 2} = ceil (rand () * n) + 0.3;
  [R0, unused] = qr (randn (3));
  c(2:4, 2) = {R0, randn(3, 1), randn(1, 3)};
  order = randperm (n);
  ka = ceil (3 * rand ());
  kb = ceil (3 * rand ());
  c(5:8, 2) = {order(1:ka), first(randperm (3), ka), order(4:3 + kb), first(randperm (3), kb)};
  c{10, 2} = randn (3, 1);
  if rows >= 11, c{11, 2} = int32 (offset + [2 0 1]); end
  if rows >= 17
    c{15, 2} = matrix_lines (randn (3, n) .* (rand (3, n) < 0.6), true);
    c{17, 2} = matrix_lines (randn (3, n) .* (rand (3, n) < 0.6), true);
    c(5:8, 2) = {[]};
  end
  e = struct ('type', 'rotcenter', 'Cell', {c}, 'Fu', table (), 'Fv', table (), 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
  e.cur_u(1) = 7 * rand () - 2;
end

function x = first (x, k)
  x = x(1:k);
end

function t = table ()
  nx = 1 + ceil (5 * rand ());
  t = [cumsum(0.1 + rand (nx, 1)) - nx / 3, randn(nx, 1)];
end
