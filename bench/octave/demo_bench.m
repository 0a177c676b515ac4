% The frame of the demo, without and with its stop and its brace, everything saved. A time is that of one step. The C loop is written for this
% frame alone (frame_loop.c).
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
  stop = {phi(frame.roof, :), [0, 0.015, 0.017, 0.030], [0, 0, 20e3, 1.32e6]};
  brace = {phi(frame.floor, :), 5e9, 3};
  elements = {typed(1003, nonlinear_element (stop{1}, 0, 'Table', stop{2:3})), typed(1003, nonlinear_element (brace{1}, 1, 'Power', brace{2:3}))};

  compiled = compile_mex ({'frame_loop'}, '-O3', '-march=native', '-ffast-math');
  tidy = onCleanup (@() removed (compiled));
  frame_loop = str2func ('frame_loop');
  c_out = {zeros(modes, steps), zeros(3, steps)};
  scheme = {w .^ 2, 0.04 * w, integrator.r(:, 3), integrator.r(:, 2), integrator.tft(2, :), [h, 0.25, 0.5]};
  notes = [];
  for variant = {'with stop and brace', [linear, elements], [stop, brace(1), {[brace{2:3}]}]; 'without them', linear, {}}.'
    took = best_time (@() frame_run (variant{2}, mem, out, modes), quick);
    notes = [notes, note('demo', variant{1}, modes, 'quarn', took / steps, 1, 0, 0)];
    took = best_time (@() frame_loop (c_out{:}, scheme{:}, variant{3}{:}), quick);
    off = max (abs (out.def(:) - c_out{1}(:))) / max (abs (c_out{1}(:)));
    if ~isfinite (off), error ('demo_bench: the run %s diverged', variant{1}); end
    notes = [notes, note('demo', variant{1}, modes, 'a C loop for this frame', took / steps, 1, off, 1e-12)];
  end
end

function frame_run (list, mem, out, n)
  u = zeros (n, 1);
  v = zeros (n, 1);
  a = zeros (n, 1);
  quarn ('chandlediagnewmark', list, struct ('FNL', zeros (3, 1)), u, v, a, [0 0], mem, out);
end

function removed (folder)
  clear ('frame_loop');
  rmpath (folder);
  delete (fullfile (folder, '*'));
  rmdir (folder);
end
