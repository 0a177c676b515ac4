% [OUT, REC, OUT2] = MODEL_LIN_INTERP (X, Q, REC, NX, NY, MODE, X2)
%
% Linear interpolation in the table X (NX rows, 1 + NY columns, column by column) for the queries Q. REC is the search record:
% [segment of the last query; first query of the call; fraction of the last query]. OUT is n x NY, or the n segment numbers
% when NY is 0 and MODE is not. X2, when given, is a second table over the same abscissae.
function [out, rec, out2] = model_lin_interp (x, q, rec, nx, ny, mode, x2)
  if nargin < 6, mode = 1; end
  if nargin < 7, x2 = []; end
  n = numel (q);
  out = zeros (n, max (ny, 1));
  out2 = zeros (n, max (ny, 1));
  for j = 1:n
    xq = q(j);
    [segment, rec(1)] = search (x, xq, start_index (rec(1)), nx);
    rec(2) = q(1);
    s = max (segment, 0);
    if ny == 0 && mode ~= 0, out(j) = s + 1; end
    if mode == 0 || nx == 0
      rec(3) = fraction (x, xq, s, nx, 1);
      continue
    end
    if s < nx - 2 && x(s + 2) == xq && x(s + 3) == x(s + 2)
      s = s + 1;
    elseif s > 0 && x(s + 1) == xq && x(s) == x(s + 1)
      s = s - 1;
    end
    f = fraction (x, xq, s, nx, 0);
    rec(3) = f;
    for k = 1:ny
      out(j, k) = mix (x, f, k * nx + s, nx);
      if ~isempty (x2), out2(j, k) = mix (x2, f, k * nx + s, nx); end
    end
  end
end

function y = mix (x, f, at, nx)
  if nx == 1
    y = x(at + 1);
  else
    y = f * x(at + 2) + (1 - f) * x(at + 1);
  end
end

function f = fraction (x, xq, s, nx, one_knot)
  if nx == 1
    f = one_knot;
  else
    d = x(s + 2) - x(s + 1);
    if d == 0
      f = 0.5;
    else
      f = (xq - x(s + 1)) / d;
    end
  end
end

function i = start_index (r)
  i = fix (r) + 0;   % an integer has no negative zero
  if ~(i >= 0), i = 0; end
  i = min (i, 2147483647);
end

% The segment used and the one that the record keeps; they differ beyond the last knot only.
function [segment, kept] = search (x, xq, i, nx)
  while true
    if i < nx - 1
      if xq > x(i + 2)
        i = i + 1;
      elseif i >= 1 && x(i + 1) > xq
        i = i - 1;
      else
        segment = i;
        kept = i;
        return
      end
    else
      kept = nx - 1;
      if nx - 1 <= 0
        segment = nx - 1;
        return
      elseif x(nx - 1) > xq
        i = nx - 2;
      else
        segment = nx - 2;
        return
      end
    end
  end
end
