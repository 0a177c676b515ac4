% RUN = SMALL_RUN ()  arguments of a small run: 3 modes, one load, 6 time points, stiffness and damping handles, everything saved
function run = small_run ()
  m = [1; 2; 3];
  c = [0.3; 0; 0.1];
  k = [4; 5; 60];
  p = [0 1 -2 0.5 0 3];
  [integrator, mem, out] = newmark_setup (m, c, k, [1; -1; 0.5], p, 0.1, 0.25, 0.5, 1:6);
  run = struct ('model', struct ('K', []), 'u', [0.1; 0; -0.2], 'v', [0; 1; 0], 'a', [0.5; 0; 0.25], 'opt', zeros (1, 2), 'mem', mem, 'out', out);
  run.list = {integrator, typed(1, diag (k)), typed(3, diag (c))};
  run = fresh (run);
end
