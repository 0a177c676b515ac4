% Modal Newmark: the integrator against the same scheme in vectorised Octave code. A time is that of one step.
function notes = newmark_bench (quick)
  notes = [];
  for n = [10 100 1000]
    steps = 2000;
    if quick, steps = 20; end
    w = linspace (10, 1000, n)';
    k = w .^ 2;
    c = 0.04 * w;
    p = sin (0.05 * (0:steps));
    phi = ones (n, 1);
    phi(2:2:end) = -0.7;
    [integrator, mem, out] = newmark_setup (ones (n, 1), c, k, phi, p, 1e-3, 0.25, 0.5, steps);
    list = {integrator, typed(1, matrix_lines (spdiags (k, 0, n, n))), typed(3, matrix_lines (spdiags (c, 0, n, n)))};
    wanted = octave_loop (integrator, k, c, n, steps);
    got = quarn_run (list, mem, out, n);
    slow = best_time (@() octave_loop (integrator, k, c, n, steps), quick);
    fast = best_time (@() quarn_run (list, mem, out, n), quick);
    notes = [notes, note('newmark', 'diagonal K and C', n, 'quarn', fast / steps, 1, off_by (got, wanted), 1e-8), ...
             note('newmark', 'diagonal K and C', n, 'Octave loop', slow / steps, 1, 0, 0)];
  end
end

function u = quarn_run (list, mem, out, n)
  u = zeros (n, 1);
  v = zeros (n, 1);
  a = zeros (n, 1);
  quarn ('chandlediagnewmark', list, struct ('x', 0), u, v, a, [], mem, out);
end

function u = octave_loop (integrator, k, c, n, steps)
  u = zeros (n, 1);
  v = u;
  a = u;
  load = integrator.r(:, 2);
  gain = integrator.r(:, 3);
  d = integrator.data;
  tft = integrator.tft;
  for j = 1:steps
    u = u + d(1) * v + d(2) * a;
    v = v + d(3) * a;
    q = (load * tft(2, j) + k .* u + c .* v) .* gain;
    u = u - q;
    v = v - d(4) * q;
    a = -d(5) * q;
  end
end
