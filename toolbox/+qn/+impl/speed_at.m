% [OMEGA, SLOPE] = SPEED_AT (SIM, TIME)  speed [rad/s] and angular acceleration [rad/s^2] of a run-up at a row of times
%
% The slope at a knot is the mean of both sides, at the first and last one that of the only side.
function [omega, slope] = speed_at (sim, time)
  t = sim.speed(1, :);
  omega = interp1 (t, sim.speed(2, :), time, 'linear');
  slopes = diff (sim.speed(2, :)) ./ diff (t);
  right = min (interp1 (t, 1:numel (t), time, 'previous'), numel (slopes));
  left = max (right - (time == t(right)), 1);
  slope = (slopes(left) + slopes(right)) / 2;
end
