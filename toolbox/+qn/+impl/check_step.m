% FOUND = CHECK_STEP (SIM)  the step against the highest mode, the end of the run and the loads; loads and damping that hardly are meant
function found = check_step (sim)
  found = struct ('level', {}, 'text', {});
  h = sim.step;
  s = sim.scheme;
  all_of = qn.impl.frequencies (sim.model);
  [w, top] = max (all_of);
  if w * h > s.limit
    found(end + 1) = struct ('level', 'error', 'text', sprintf ( ...
      ['the step of %g s is too long for mode %d (%g Hz): with %s it must stay below %g s; shorten it, keep fewer modes or take the ' ...
       'scheme ''average'''], h, top, w / (2 * pi), s.name, s.limit / w));
  elseif w * h > 2 * pi / 10
    longer = elongation (w * h, s);
    sides = {'long', 'short'};
    text = sprintf (['mode %d (%g Hz) gets %.1f steps a period; its period will come out %.0f %% too %s. Where it matters, take ' ...
                     'a step of %.2g s'], top, w / (2 * pi), 2 * pi / (w * h), 100 * abs (longer), sides{1 + (longer < 0)}, ...
                    2 * pi / (20 * w));
    found(end + 1) = struct ('level', 'warning', 'text', text);
  end
  low = all_of(all_of > 0);
  if ~isempty (low) && (sim.time(end) - sim.time(1)) * min (low) < 2 * pi
    found(end + 1) = struct ('level', 'note', 'text', sprintf ('the run of %g s is shorter than the period of the lowest mode, %g s', ...
                                                               sim.time(end) - sim.time(1), 2 * pi / min (low)));
  end
  if size (sim.loads, 1) == 0 && ~any (sim.start.u) && ~any (sim.start.v)
    found(end + 1) = struct ('level', 'warning', 'text', 'there is neither a load nor an initial motion: give "load", "u0" or "v0"');
  end
  for k = 1:size (sim.loads, 1)
    if ~any (sim.loads(k, :))
      text = sprintf ('load %d is zero at every time point; is the step longer than the pulse?', k);
      found(end + 1) = struct ('level', 'warning', 'text', text);
    end
  end
  c = sim.model.damping;
  if size (c, 2) > 1, c = diag (c); end
  ratio = c(:) ./ (2 * sim.model.w(:));
  k = find (sim.model.w(:) > 0 & ratio >= 0.5, 1);
  if ~isempty (k)
    found(end + 1) = struct ('level', 'note', 'text', sprintf (['mode %d has %g of critical damping; 2 %% is 0.02, if a few percent ' ...
                                                                'are meant'], k, ratio(k)));
  end
end

% Relative growth of the period of an undamped mode with W*H = X: the step multiplies its state by numbers whose sum and product are
% those of the amplification matrix, and whose argument is what the phase gains in one step (docs/theory.md).
function longer = elongation (x, s)
  share = x ^ 2 / (1 + s.beta * x ^ 2);
  half_sum = 1 - (s.gamma + 0.5) * share / 2;
  product = 1 - (s.gamma - 0.5) * share;
  longer = x / atan2 (sqrt (max (product - half_sum ^ 2, 0)), half_sum) - 1;
end
