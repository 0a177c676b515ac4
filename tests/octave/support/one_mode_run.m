% RUN = ONE_MODE_RUN (LOADS)  arguments of a run of one mode without handles
%
% The gain is 0.5, the load input vector 1, the coefficients are plain numbers to be followed by hand; outputs start at -1.
function run = one_mode_run (loads)
  n = numel (loads);
  run = struct ('model', struct ('K', []), 'u', 1, 'v', 2, 'a', 4, 'opt', [0 0]);
  run.list = {struct('type', 2000, 'r', [0 1 0.5], 'tft', [(0:n - 1) * 0.25; loads], 'data', [0.25 0.125 0.5 3 7 0])};
  run.mem = struct ('uva', struct ('uva', zeros (4, 1)));
  run.out = struct ('data', (0:n - 1)' * 0.25, 'def', -ones (1, n));
  run = fresh (run);
end
