% YES = STIFF_FOR_LONG (LAW, X, STATE, K)  whether LAW has a stiffness of K or more at three columns of X and STATE in succession
%
% Halves, as long as they reach K at all: most of a motion is soon done with.
function yes = stiff_for_long (law, x, state, k)
  n = size (x, 2);
  yes = n > 2 && qn.impl.stiffest (law, x, state) >= k;
  if ~yes, return, end
  if n > 3
    half = ceil (n / 2);
    yes = qn.impl.stiff_for_long (law, x(:, 1:half + 1), state(:, 1:half + 1), k) || ...
          qn.impl.stiff_for_long (law, x(:, half:n), state(:, half:n), k);
    return
  end
  for j = 1:3, yes = yes && qn.impl.at_least (law, x(:, j), state(:, j)) >= k; end
end
