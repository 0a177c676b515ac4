% The frame of the demo, without and with its stop and its brace, everything saved. A time is that of one step.
function notes = demo_bench (quick)
  addpath (fullfile (fileparts (mfilename ('fullpath')), '..', '..', 'demo'));
  modes = 40;
  steps = 20000;
  if quick, steps = 200; end
  h = 40e-6;
  frame = frame_model ();
  [phi, w] = first_modes (frame.k, frame.m, modes);
  load = phi.' * (frame.m * frame.push);
  push = 8 * sin (pi * (0:steps) * h / 0.05) .* ((0:steps) * h < 0.05);
  [integrator, mem, out] = newmark_setup (ones (modes, 1), 0.04 * w, w .^ 2, -load, push, h, 0.25, 0.5, 2:steps + 1);
  integrator.iopt = int32 (2);
  mem.uva.FNL = zeros (3, 1);
  out.FNL = struct ('data', out.data, 'def', zeros (3, steps));
  linear = {integrator, typed(1, matrix_lines (spdiags (w .^ 2, 0, modes, modes))), typed(3, matrix_lines (spdiags (0.04 * w, 0, modes, modes)))};
  stop = nonlinear_element (phi(frame.roof, :), 0, 'Table', [0, 0.015, 0.017, 0.030], [0, 0, 20e3, 1.32e6]);
  brace = nonlinear_element (phi(frame.floor, :), 1, 'Power', 5e9, 3);
  nonlinear = [linear, {typed(1003, stop), typed(1003, brace)}];
  notes = [];
  for variant = {'quarn, stop and brace', nonlinear; 'without them', linear}'
    took = best_time (@() frame_run (variant{2}, mem, out, modes), quick);
    if any (any (~isfinite (out.def))), error ('demo_bench: the run %s diverged', variant{1}); end
    notes = [notes, note('demo', 'a step', modes, variant{1}, took / steps, 1, 0, 0)];
  end
end

function frame_run (list, mem, out, n)
  u = zeros (n, 1);
  v = zeros (n, 1);
  a = zeros (n, 1);
  quarn ('chandlediagnewmark', list, struct ('FNL', zeros (3, 1)), u, v, a, [0 0], mem, out);
end
