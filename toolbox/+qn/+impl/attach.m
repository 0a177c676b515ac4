% [PHI, W, COUNT] = ATTACH (K, M, PHI, W, WHAT)  the modes PHI, W and after them COUNT attachment vectors with their frequencies
%
% WHAT says where unit forces act: numbers of degrees of freedom, or load shapes in columns or rows. What the modes hold of the static
% response to them is taken off; the rest, made orthogonal in mass and stiffness among itself, follows as further "modes" (Rubin 1975;
% docs/theory.md). A structure that is free to move is loaded by the forces less the inertia forces of its rigid motion.
function [phi, w, count] = attach (k, m, phi, w, what)
  f = shapes (size (k, 1), what);
  [x, off] = qn.impl.static_response (k, m, phi, w, f);
  if ~(off <= 1e-6)
    error ('qn:input', ['qn.modal: "attach" needs a structure that is held, or all of its rigid motions among the modes: the static ' ...
                        'response does not exist (residual %.2g of the forces). Keep more modes'], off);
  end
  long = sqrt (sum (x .* (m * x), 1));
  for round = 1:2, x = x - phi * (phi.' * (m * x)); end
  % What the modes already hold to rounding adds nothing but noise.
  rest = sqrt (sum (x .* (m * x), 1));
  new = find (rest > 1e-7 * long);
  count = 0;
  if isempty (new), return, end
  x = bsxfun (@rdivide, x(:, new), rest(new));
  [v, d] = eig (symmetric (x.' * (m * x)));
  d = diag (d);
  good = d > 1e-10 * max (d);
  x = x * bsxfun (@rdivide, v(:, good), sqrt (d(good)).');
  [v, d] = eig (symmetric (x.' * (k * x)));
  [d, order] = sort (diag (d));
  x = x * v(:, order);
  count = numel (d);
  for j = 1:count
    [unused, at] = max (abs (x(:, j)));
    x(:, j) = x(:, j) * (sign (x(at, j)) / sqrt (x(:, j).' * (m * x(:, j))));
  end
  phi = [phi, x];
  w = [w; sqrt(d)];
end

% One load shape a column.
function f = shapes (n, what)
  who = 'qn.modal';
  what = qn.impl.numbers (who, 'attach', what, [], 'each', 'degrees of freedom or load shapes');
  whole = isvector (what) && all (what(:) == fix (what(:)) & what(:) >= 1);
  if ~issparse (what) && whole && all (what(:) <= n)
    f = full (sparse (what(:), 1:numel (what), 1, n, numel (what)));
  elseif size (what, 1) == n
    f = full (what);
  elseif size (what, 2) == n
    f = full (what.');
  else
    error ('qn:input', '%s: "attach" takes degrees of freedom from 1 to %d, or load shapes of %d values, got %s', who, n, n, ...
           value_text (what));
  end
  if any (~any (f, 1)), error ('qn:input', '%s: a load shape of "attach" is zero', who); end
end

function text = value_text (what)
  text = mat2str (size (what));
  if numel (what) < 8, text = mat2str (full (what)); end
end

function a = symmetric (a)
  a = full (a + a.') / 2;
end
