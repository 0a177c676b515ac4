% FOUND = CHECK_STEP (SIM)  the step against the highest mode and the end of the run
function found = check_step (sim)
  found = struct ('level', {}, 'text', {});
  h = sim.step;
  s = sim.scheme;
  [w, top] = max (sim.model.w);
  if w * h > s.limit
    found(end + 1) = struct ('level', 'error', 'text', sprintf ( ...
      ['the step of %g s is too long for mode %d (%g Hz): with %s it must stay below %g s; shorten it, keep fewer modes or take the ' ...
       'scheme ''average'''], h, top, w / (2 * pi), s.name, s.limit / w));
  elseif w * h > 2 * pi / 10
    text = sprintf (['mode %d (%g Hz) gets %.1f steps a period; its period will come out %.0f %% too long. Where it matters, take a ' ...
                     'step of %.2g s'], top, w / (2 * pi), 2 * pi / (w * h), 100 * (w * h) ^ 2 * (s.beta - 1 / 12) / 2, 2 * pi / (20 * w));
    found(end + 1) = struct ('level', 'warning', 'text', text);
  end
  low = sim.model.w(sim.model.w > 0);
  if ~isempty (low) && (sim.time(end) - sim.time(1)) * min (low) < 2 * pi
    found(end + 1) = struct ('level', 'note', 'text', sprintf ('the run of %g s is shorter than the period of the lowest mode, %g s', ...
                                                               sim.time(end) - sim.time(1), 2 * pi / min (low)));
  end
  if size (sim.loads, 1) == 0 && ~any (sim.start.u) && ~any (sim.start.v)
    found(end + 1) = struct ('level', 'warning', 'text', 'there is neither a load nor an initial motion: give "load", "u0" or "v0"');
  end
end
