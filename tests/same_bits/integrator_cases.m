% INTEGRATOR_CASES (ID)  runs of the integrator: linear ones of few and many modes, and with an element of every law
function integrator_cases (id)
  for n = [3 40 1000]
    c = rand (n, 1);
    k = 10 * rand (n, 1);
    run (id, 'one integrator', n, c, k, {typed(1, diag (k)), typed(3, diag (c))}, 60);
    run (id, 'one integrator', n, c, k, {typed(3, diag (c)), typed(1, diag (k)), typed(2, diag (k))}, 20);
    if n > 40, continue; end
    gain = 0.001 * randn (n);
    run (id, 'one integrator, matrix gain', n, c, k, {typed(1, diag (k)), typed(3, diag (c))}, 20, gain);
    coupled = diag (k) + 0.1 * randn (n);
    run (id, 'sum integrator', n, c, k, {typed(1, coupled), typed(3, diag (c) + 0.01 * randn (n))}, 20);
    changing = {typed(1, diag (k)), typed(3, diag (c))};
    for j = 1:2, changing{j}.factor = [0 0.1 0.1 0.2; randn(1, 4)]; end
    run (id, 'one integrator, factors and a gain with pages', n, c, k, changing, 20, 0.001 * randn (n, n, 3), [0 0.07 0.2]);
    full = typed (3, coupled);
    full.factor = changing{1}.factor;
    run (id, 'sum integrator, factor', n, c, k, [changing, {full}], 20);
  end
  for n = [1 8 37]
    recorded_call (id, 'one motion', 3, 'energies', randn (n, 50), 10 * rand (n, 1), rand (n, 1), [0.1 0.5], randn (n, 1), randn (n, 1), ...
                   randn (n, 2), randn (2, 50), randn (n, 3), randn (3, 50));
  end
  for w = laws_of_the_module ()
    for trial = 1:rounds (6)
      n = 7;
      e = random_law_element (w{1}, n);
      if double (e.iopt(2)) + double (e.iopt(4)) > n + 1, e.iopt(2) = 0; end
      run (id, ['one integrator ' w{1}], n, rand (n, 1), rand (n, 1), {typed(1, diag (rand (n, 1))), e}, 10);
    end
  end
end

function run (id, name, n, c, k, list, steps, gain, gaint)
  h = 0.01;
  [integrator, mem, out] = newmark_setup (1 + rand (n, 1), c, k, randn (n, 1), randn (1, steps), h, 0.25, 0.5, 2:3:steps);
  if nargin > 7, integrator.gain = gain; end
  if nargin > 8, integrator.gaint = gaint; end
  mem.uva.FNL = zeros (n, 1);
  model = struct ('FNL', zeros (n, 1));
  recorded_call (id, name, 0, 'chandlediagnewmark', fresh ([{integrator}, list]), fresh (model), 0.1 * randn (n, 1), randn (n, 1), ...
                 randn (n, 1), [0.1 0.01], fresh (mem), fresh (out));
end
