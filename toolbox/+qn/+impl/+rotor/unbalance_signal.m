% F = UNBALANCE_SIGNAL (T, WHAT, PART)  push of an unbalance of 1 kg m at a row of times T, along its angle (PART 1) and across (2)
%
% WHAT is a struct: motion (function of a row of times: angle, speed, angular acceleration), angle at time 0, and what it was made of: speed
% or table, [] otherwise. With T = 'what' it is handed out: see unbalance_of.
function f = unbalance_signal (t, what, part)
  f = what;
  if ischar (t), return, end
  m = what.motion (t);
  if isempty (what.speed) && isempty (what.table), agree (t, m); end
  f = (m(2, :) .^ 2 - 1i * m(3, :)) .* exp (1i * (m(1, :) + what.angle));
  if part == 1, f = real (f); else, f = imag (f); end
end

% Refuses rows of a user's function that are not the integrals of one another, by more than 5 % and more than the steps can make of it.
% Angles may be given with or without whole turns.
function agree (t, m)
  if numel (t) < 3, return, end
  h = diff (reshape (t, 1, []));
  names = {'angle', 'speed', 'angular acceleration'};
  for k = 1:2
    steps = h .* (m(k + 1, 1:end - 1) + m(k + 1, 2:end)) / 2;
    beside = diff (m(k, :)) - steps;
    if k == 1, beside = mod (beside + pi, 2 * pi) - pi; end
    wanted = cumsum (steps);
    got = wanted + cumsum (beside);
    [off, at] = max (abs (got - wanted));
    if off <= 0.05 * max ([abs(got), abs(wanted)]) || off <= 1e-3 * max (abs (m(k, :))), continue, end
    error ('qn:input', ['qn.unbalance: the rows of the function of "profile" do not belong together: from %g to %g s its %s grows by ' ...
                        '%.5g, and the integral of its %s by %.5g'], t(1), t(at + 1), names{k}, got(at), names{k + 1}, wanted(at));
  end
end
