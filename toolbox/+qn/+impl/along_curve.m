% [CURVE, ENDED] = ALONG_CURVE (EQUATIONS, Z, OMEGA, FIRST, POINTS)  the curve of solutions from Z at OMEGA(1) to OMEGA(2)
%
% EQUATIONS gives residual, Jacobian and derivative for omega (qn.impl.periodic). FIRST is the first step, relative; CURVE has a column
% [z; omega] a point, POINTS of them at most. ENDED says why it ends before OMEGA(2), '' where it does not.
function [curve, ended] = along_curve (equations, z, omega, first, points)
  span = omega(2) - omega(1);
  curve = [z; omega(1)];
  % Both amplitude and frequency count along the curve, each in its own measure: the amplitude there, and the range.
  most = max (norm (z), realmin ());
  unit = [most * ones(numel (z), 1); abs(span)];
  [ahead, side] = tangent (equations, curve, unit, [zeros(numel (z), 1); sign(span)], 0);
  step = first;
  ended = '';
  while isempty (ended) && (curve(end, end) - omega(2)) * sign (span) < 0
    if size (curve, 2) >= points
      ended = sprintf ('it has %d "points": allow more', points);
      break
    end
    x = curve(:, end);
    y = x ./ unit;
    guess = y + step * ahead;
    [next, good, rounds] = qn.impl.newton (@(y) on_arc (equations, y, guess, ahead, unit), guess);
    way = 0;
    if good && next(end) > 0
      there = tangent (equations, next .* unit, unit, ahead, side);
      way = min (ahead.' * [there, (next - y) / norm(next - y)]);
    end
    % A point far off the direction, or where the curve goes elsewhere, may be on another part of it: the far side of a resonance.
    if way <= 0 || (way < 0.8 && step > 1e-5)
      step = step / 2;
      if step < 1e-6
        ended = ['no point was found from there, as at the kinks of stiff stops: begin at the other end, or give more "harmonics" ' ...
                 'and "samples"'];
      end
      continue
    end
    x = next .* unit;
    curve(:, end + 1) = x;
    if rounds < 4 && way > 0.95, step = min (1.5 * step, 5 * first); end
    if (omega(1) - x(end)) * sign (span) > 1e-9 * omega(1), ended = 'it turned and came back to the first frequency'; end
    ahead = there .* unit;
    most = max (most, norm (x(1:end - 1)));
    unit(1:end - 1) = max (norm (x(1:end - 1)), 1e-6 * most);
    ahead = ahead ./ unit / norm (ahead ./ unit);
  end
end

% Direction of the curve at a point, near AHEAD. SIDE, a sign that stays the same along a curve, tells both ways apart; 0 at its beginning.
function [t, side] = tangent (equations, x, unit, ahead, side)
  [g, j, slope] = equations (x(1:end - 1), x(end));
  j = [bsxfun(@times, [j, slope], unit.'); ahead.'];
  [lower, upper, order] = lu (j);
  t = upper \ (lower \ (order * [zeros(numel (g), 1); 1]));
  t = t / norm (t);
  now = prod (sign (diag (upper))) * det (order);
  if side == 0, side = now; end
  if now ~= side, t = -t; end
end

function [g, j] = on_arc (equations, x, guess, ahead, unit)
  y = x .* unit;
  [g, j, slope] = equations (y(1:end - 1), y(end));
  g = [g; ahead.' * (x - guess)];
  j = [bsxfun(@times, [j, slope], unit.'); ahead.'];
end
