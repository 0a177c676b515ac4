% FOUND = CHECK_GROWTH (SIM, RES)  growth of the step as it will run, where the modes are coupled, against that of the equations themselves
%
% Uncoupled modes have closed limits (qn.impl.check_step, qn.impl.check_law). With a damping or stiffness matrix, what feeds a mode (a
% negative stiffness or damping), or an element whose force acts elsewhere than it observes, the spectral radius is computed: of the
% linear part, then with each such element at its stiffest, in the motion of the result RES where there is one ([]: none), and with all
% elements together whose laws couple their rows (films, rings), at the start or farthest out in the result.
function found = check_growth (sim, res)
  found = qn.impl.finding ();
  m = numel (sim.model.w);
  coupled = size (sim.model.damping, 2) > 1 || size (sim.model.stiffness, 2) > 1;
  if m > 250, return, end
  if coupled || any (sim.model.stiffness < 0) || any (sim.model.damping < 0)
    [grows, real_rate] = qn.impl.linear_step (sim, zeros (m));
    found = judge (found, sim, grows, real_rate, 'the linear model');
    if ~isempty (found), return, end
    unstable = real_rate * (sim.time(end) - sim.time(1)) > 0.05 && real_rate > 1e-7 * max (sim.model.w);
    if unstable
      found(end + 1) = qn.impl.finding ('model_grows', 'warning', ...
        ['the model itself is unstable: its damping and stiffness let the ' ...
        'motion grow by a factor of e in %.3g s. If that is not meant (oil whirl, damping of a shaft, brake squeal, flutter), look at ' ...
        'the signs of C, G, N and K'], ...
        1 / real_rate);
    end
    if unstable && real_rate * sim.step > 1
      found(end + 1) = qn.impl.finding ('growth', 'error', ...
        'the step of %g s is longer than the %.3g s in which the model grows by a factor of e: it cannot follow that; shorten it', ...
        sim.step, 1 / real_rate);
    end
  end
  together = find (arrayfun (@(e) couples (e), sim.elements));
  [stiffness, damping] = deal (zeros (m));
  for k = together
    e = sim.elements(k);
    x = e.observe * sim.start.u(1:m);
    if ~isempty (res)
      x = e.observe * res.q;
      [unused, far] = max (sum (x .^ 2, 1));
      x = x(:, far);
    end
    [kt, ct] = qn.impl.tangent (e.law, x);
    stiffness = stiffness + e.command.' * kt * e.observe;
    damping = damping + e.command.' * ct * e.observe;
  end
  if all (isfinite ([stiffness(:); damping(:)])) && any ([stiffness(:); damping(:)])
    [grows, real_rate] = qn.impl.linear_step (sim, stiffness, damping);
    before = numel (found);
    found = judge (found, sim, grows, real_rate, sprintf ('with element %d, and others that couple two directions, the linear model', ...
                                                          sim.elements(together(1)).item));
    % How long it stays farthest out is not known.
    if numel (found) > before && ~isempty (res), found(end).level = 'warning'; end
  end
  for k = reshape (setdiff (1:numel (sim.elements), together), 1, [])
    e = sim.elements(k);
    [x, state] = deal ([]);
    if ~isempty (res)
      x = e.observe * res.q;
      state = qn.impl.memory_of (sim, k, res.state);
    end
    elsewhere = ~isequal (e.observe, e.command);
    stiff = qn.impl.stiffest (e.law, x, state);
    % Where it is the motion that makes it stiff: what the linear model can reach.
    if isempty (res) && stiff == 0 && elsewhere
      can = max (abs (e.observe) * qn.impl.motion_bound (sim));
      if isfinite (can), stiff = qn.impl.stiffest (e.law, [-can, can], []); end
    end
    if stiff == 0 || ~isfinite (stiff) || (~coupled && ~elsewhere), continue, end
    [grows, real_rate] = qn.impl.linear_step (sim, stiff * e.command.' * e.observe);
    before = numel (found);
    found = judge (found, sim, grows, real_rate, sprintf ('with element %d at its stiffest, %g N/m, the linear model', e.item, stiff));
    % How long it stays there is not known.
    if numel (found) > before && qn.impl.softest (e.law) < stiff, found(end).level = 'warning'; end
    if numel (found) == before && elsewhere && real_rate * (sim.time(end) - sim.time(1)) > 0.05 && real_rate > 1e-7 * max (sim.model.w)
      found(end + 1) = qn.impl.finding ('model_grows', 'warning', ...
        ['element %d acts elsewhere than it observes, and at its stiffest, %g N/m, lets the motion itself grow by a factor of e in ' ...
         '%.3g s. If that is not meant, look at its rows and their signs'], e.item, stiff, 1 / real_rate);
    end
    if numel (found) > 8, return, end
  end
end

function yes = couples (e)
  t = qn.impl.traits (e.law, size (e.observe, 1));
  yes = t.rows > 1 && t.rates;
end

% What the scheme adds to the growth counts, over the time of the run; 3e-7 a step is the rounding of coinciding eigenvalues.
function found = judge (found, sim, grows, real_rate, who)
  added = (grows - max (real_rate, 0)) * (sim.time(end) - sim.time(1));
  if grows * sim.step < 3e-7 || added < 0.05, return, end
  level = 'warning';
  if added > 3, level = 'error'; end
  found(end + 1) = qn.impl.finding ('growth', level, ...
    ['%s grows in the time integration by a factor of e in %.3g s, where the equations of ' ...
    'motion do not: the result is wrong. Take a shorter step than %g s, or the scheme ''average'''], who, 1 / grows, sim.step);
end
