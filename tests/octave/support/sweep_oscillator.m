% RES = SWEEP_OSCILLATOR (P)  a mass that hits a stop, and random numbers: a case of a sweep
function res = sweep_oscillator (p)
  model = qn.modal (4e4, 1, 'damping', 0.02);
  row = qn.observe (model, 1);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 400, 'load', {qn.load_at(model, 1), randn(1, 401) * 200}, ...
                       'elements', {qn.gap('gap', p.gap, 'stiffness', p.stiffness), row});
  run = qn.run (sim, 'progress', false, 'check', false);
  res = struct ('q', run.q, 'force', run.force, 'peak', max (run.q), 'draw', rand (1, 3), 'name', sprintf ('gap %g', p.gap));
end
