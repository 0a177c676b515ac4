% B = MOTION_BOUND (SIM)  what each modal coordinate can reach at most in the linear model, m x 1: |c| * B bounds an observation
%
% Initial state, and of the loads the smaller of what their impulse and what their greatest value can do (the integral of the absolute
% impulse response of a damped oscillator). Exact bounds for uncoupled modes; damping that couples them is taken by its diagonal.
function b = motion_bound (sim)
  m = numel (sim.model.w);
  w = sim.model.w(:);
  last = sim.time(end) - sim.time(1);
  c = sim.model.damping;
  if size (c, 2) > 1, c = diag (c); end
  free = w * last < 1;
  slow = max (w, 1 / last);
  impulse = abs (sim.shapes) * (sum (abs (sim.loads), 2) * sim.step);
  peak = abs (sim.shapes) * max (abs (sim.loads), [], 2);
  if isempty (peak), peak = zeros (m, 1); end
  zeta = min (max (c(:) ./ (2 * slow), 1e-9), 0.999);
  held = peak ./ slow .^ 2 .* coth (pi * zeta ./ (2 * sqrt (1 - zeta .^ 2)));
  held(free) = Inf;
  b = abs (sim.start.u(1:m)) + abs (sim.start.v(1:m)) ./ slow + min (impulse ./ slow, held);
end
