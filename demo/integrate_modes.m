% RUN = INTEGRATE_MODES (MODES, T, AG, ELEMENTS)  modal time integration in one call of the module
%
% Input   MODES     struct: w angular frequencies, zeta damping ratio, load modal participation of the base motion
%         T, AG     rows: times (equal steps) and base acceleration [s, m/s^2]; the frame starts at rest with AG(1) = 0
%         ELEMENTS  cell: values of nonlinear elements ({}: a linear run)
% Output  RUN       struct: q     modal displacements, one column for every time of T
%                           f     one row an element: its force at every time of T; below them the base acceleration
%                           v     modal velocities at the end
%                           time  what the call took [s]
%
% Every matrix and element becomes a registered handle: the integrator first, then what adds forces. Newmark's average
% acceleration, b = 1/4 and g = 1/2. The base acceleration ag loads mode i with -load(i)*ag; the module subtracts loads, so
% that its load column is "load" itself. Its step to t(j+1) reads the loads of table column j.
function run = integrate_modes (modes, t, ag, elements)
  n = numel (modes.w);
  n_step = numel (t) - 1;
  n_force = numel (elements) + 1;
  h = t(end) / n_step;
  b = 1 / 4;
  g = 1 / 2;

  stiffness = modes.w .^ 2;
  damping = 2 * modes.zeta * modes.w;
  gain = 1 ./ (1 / (b * h ^ 2) + g * damping / (b * h) + stiffness);
  newmark = struct ('r', [zeros(n, 1), modes.load, gain], 'tft', [t; ag(2:end), 0], ...
                    'data', [h, (1 / 2 - b) * h ^ 2, (1 - g) * h, g / (b * h), 1 / (b * h ^ 2), 0], ...
                    'iopt', int32 (n_force - 1));

  index = zeros (1, 3 + numel (elements));
  index(1) = quarn ('chandleset', 2000, newmark);
  index(2) = quarn ('chandleset', 1, diagonal_matrix (stiffness));
  index(3) = quarn ('chandleset', 3, diagonal_matrix (damping));
  for e = 1:numel (elements)
    index(3 + e) = quarn ('chandleset', 1003, elements{e});
  end
  handles = chandle (index);

  % State, work and output arrays are ours and are written in place. Save times come from the time table itself: a step is
  % saved where its time equals a save time to the last bit.
  u = zeros (n, 1);
  v = zeros (n, 1);
  a = zeros (n, 1);
  model = struct ('FNL', zeros (n_force, 1));
  mem = struct ('uva', struct ('uva', zeros (4 * n, 1), 'FNL', zeros (n_force, 1)));
  save_times = newmark.tft(1, 2:end).';
  out = struct ('data', save_times, 'def', zeros (n, n_step), ...
                'FNL', struct ('data', save_times, 'def', zeros (n_force, n_step)));

  started = tic ();
  quarn ('chandlediagnewmark', handles, model, u, v, a, [0 0], mem, out);
  run = struct ('q', [zeros(n, 1), out.def], 'f', [zeros(n_force, 1), out.FNL.def], 'v', v, 'time', toc (started));

  for i = index
    quarn ('chandleclear', i);
  end
end

% A diagonal matrix in the form that the module reads: column-compressed, 32-bit indices from 0.
function s = diagonal_matrix (d)
  n = numel (d);
  s = struct ('ir', int32 ((0:n - 1).'), 'jc', int32 ((0:n).'), 'pr', d(:), 'dims', [n n], 'trans', 0);
end
