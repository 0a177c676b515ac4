% [LEVEL, TEXT] = CHATTER (SIM, E, MOBILITY, MOTION, X)  where a damper with an exponent below 1 changes the sign of its force in every step
%
% E is an element, MOBILITY what it meets [1/kg] (qn.impl.mobility), MOTION bounds the modes (qn.impl.motion_bound), X are the displacements
% of a result at the times that it keeps, [] before the run. LEVEL is '' where there is nothing to say.
%
% The force acts at the predicted velocity v*, and near rest one step takes more than v* away: a motion of two steps with v* = +-s, for
% which 2 s = h mu c s^a, attracts what is slower (docs/theory.md). That is exact for any number of modes and any scheme: displacements
% alternate by +-2 h |beta - gamma/2| s, velocities by +-(2 gamma - 1) s, accelerations by +-2 s/h.
function [level, text] = chatter (sim, e, mobility, motion, x)
  [level, text] = deal ('', '');
  if ~strcmp (e.law.kind, 'damper'), return, end
  p = e.law.parameters;
  a = p.exponent;
  if a >= 1 || a < 0 || p.damping <= 0 || mobility <= 0, return, end
  h = sim.step;
  s = (h * mobility * p.damping / 2) ^ (1 / (1 - a));
  if s < 1e-9, return, end
  level = 'note';
  seen = '';
  if isempty (x)
    w = max (sim.model.w(:), 1 / (sim.time(end) - sim.time(1)));
    can = max (abs (e.observe) * (motion .* w));
    others = sim.start.FNL;     % of elements that press at rest
    others(e.slot + (0:size (e.observe, 1) - 1)) = [];
    if can > 0 && s > can && ~any (others)
      level = 'warning';
      seen = sprintf (', and the structure moves there at %.2g m/s at most', can);
    end
  else
    [share, of_greatest] = met (sim, x, s, a);
    seen = sprintf ('; of the result %.0f %% is slower, and the chatter has %.2g of the greatest force', 100 * share, of_greatest);
    if share > 0.1 && of_greatest > 0.1, level = 'warning'; end
  end
  slow = 'not damped at all; qn.slider is the law that sticks';
  if a > 0, slow = sprintf ('damped as by a dashpot of %.3g N s/m', 2 * a / (h * mobility)); end
  text = sprintf (['it chatters below about %.2g m/s, with %g kg and the step of %g s%s. Its force then jumps between plus and minus ' ...
                   '%.2g N in each step, and the acceleration by %.2g m/s^2 to both sides%s. What moves slower is %s. A step of %.2g s ' ...
                   'brings that speed down to a tenth'], s, 1 / mobility, h, seen, p.damping * s ^ a, 2 * s / h, ...
                  moves (sim.scheme, h, s), slow, h * 0.1 ^ (1 - a));
end

function text = moves (p, h, s)
  v = (2 * p.gamma - 1) * s;
  u = 2 * h * abs (p.beta - p.gamma / 2) * s;
  text = sprintf (', the velocity by %.2g m/s, the displacement by %.2g m', v, u);
  if v == 0, text = sprintf (', the displacement by %.2g m', u); end
  if v == 0 && u == 0, text = ', which velocity and displacement do not show'; end
end

% Greatest part of the time in which a row that has begun to move is slower than S, and the force at S over the greatest.
function [share, of_greatest] = met (sim, x, s, a)
  k = min (size (x, 2), numel (sim.saved));
  v = abs (bsxfun (@rdivide, diff (x(:, 1:k), 1, 2), diff (sim.time(sim.saved(1:k)))));
  share = 0;
  for row = 1:size (v, 1)
    first = find (v(row, :) > 0, 1);
    if ~isempty (first), share = max (share, mean (v(row, first:end) < s)); end
  end
  of_greatest = min (1, (s / max ([v(:); realmin()])) ^ a);
end
