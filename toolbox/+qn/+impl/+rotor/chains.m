% NUMBER = CHAINS (S, AT, COUNT, ORDERS)  the modes of a rotor followed through its speeds: one row a mode, one column a speed
%
% AT is a cell of qn.impl.rotor.poles by speed. NUMBER is that of the mode among the poles of that speed, 0 where it does not oscillate.
% Rows are by the lowest whirl speed with a damping ratio below 0.9, those that never have such a one last. The first COUNT are given, and
% of the others those that meet one of ORDERS, or lose their damping below the greatest of them, with a damping ratio below 0.5.
function number = chains (s, at, count, orders)
  number = (1:numel (at{1}.pole)).';
  for k = 2:numel (at)
    ceiling = max (orders) * max (abs (at{k - 1}.speed), abs (at{k}.speed));
    for p = at([k - 1, k])
      w = imag (p{1}.pole(damping (p{1}.pole) < 0.9));
      if ~isempty (w), ceiling = max (ceiling, w(min (count, end))); end
    end
    to = qn.impl.rotor.follow (s, at{k - 1}, at{k}, 1.0001 * ceiling, 4);
    there = find (number(:, k - 1) > 0);
    number(:, k) = 0;
    number(there, k) = to(number(there, k - 1));
    new = setdiff (1:numel (at{k}.pole), number(:, k));
    number = [number; zeros(numel (new), k - 1), new(:)];
  end
  pole = NaN (size (number));
  for k = 1:numel (at)
    there = number(:, k) > 0;
    pole(there, k) = at{k}.pole(number(there, k));
  end
  ratio = damping (pole);
  any_of = imag (pole);
  any_of(isnan (pole)) = Inf;
  slight = any_of;
  slight(~(ratio < 0.9)) = Inf;
  [unused, order] = sortrows ([min(slight, [], 2), min(any_of, [], 2)]);
  wanted = meets (pole(order, :), ratio(order, :), cellfun (@(p) abs (p.speed), at), orders);
  wanted(1:min (count, end)) = true;
  number = number(order(wanted), :);
end

function z = damping (pole)
  z = -real (pole) ./ abs (pole);
end

% Which rows have a critical speed, or one where damping is lost, with little damping.
function yes = meets (pole, ratio, speed, orders)
  yes = false (size (pole, 1), 1);
  slight = min (ratio(:, 1:end - 1), ratio(:, 2:end)) < 0.5 & ~isnan (pole(:, 1:end - 1) + pole(:, 2:end));
  for order = orders
    above = bsxfun (@gt, imag (pole), order * speed);
    yes = yes | any (slight & above(:, 1:end - 1) ~= above(:, 2:end), 2);
  end
  below = bsxfun (@lt, imag (pole), max (orders) * speed);
  % A speed may be the one where the damping is lost, to rounding.
  damped = cumsum (ratio(:, 1:end - 1) > 1e-8, 2) > 0;
  yes = yes | any (slight & below(:, 2:end) & damped & ratio(:, 1:end - 1) > -1e-8 & ratio(:, 2:end) < -1e-8, 2);
end
