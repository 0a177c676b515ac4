% F = PHASE_FINDING (SIM, OFF, WORST, WHAT, MORE)  finding that WHAT comes out wrong by the share OFF, most of it in mode WORST
function f = phase_finding (sim, off, worst, what, more)
  last = sim.time(end) - sim.time(1);
  w = max (sim.model.w(worst), 2 * pi / last);
  f = qn.impl.finding ('phase', 'warning', ['%s comes out wrong by up to %.2g %% of its greatest displacement, most of it in mode %d ' ...
    '(%g Hz), which gets %.1f steps a period in a run of %.3g periods%s. Where that matters, take a step of %.2g s'], what, 100 * off, ...
    worst, w / (2 * pi), 2 * pi / (w * sim.step), w * last / (2 * pi), more, sim.step * sqrt (min (0.5, 0.02 / off)));
end
