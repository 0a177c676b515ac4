% Memory stays flat over many calls. The full counts (a million calls, 100,000 rounds) run when the environment variable QUARN_FULL is
% set, no more than 10,000 else, where 32 bytes a call still show, the least that an allocation takes; under sanitizers no loop runs. Each loop is
% compared with an equal one that does everything but call the module, because the host itself may grow.
function tests = suite_memory ()
  tests = localfunctions ();
end

function n = scaled (n)
  if isempty (getenv ('QUARN_FULL')), n = min (ceil (n * 0.06), 10000); end
end

% Growth in KiB of COUNT rounds of FN after a warm-up.
function kib = growth (fn, count)
  fn (max (1000, ceil (count / 20)));
  before = resident_memory ();
  fn (count);
  kib = resident_memory () - before;
end

% FN must grow by less than BYTES a round more than the equal loop IDLE does.
function flat (name, fn, idle, count, bytes)
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
  host = growth (idle, count);
  module = growth (fn, count);
  fprintf ('        %s, %d rounds: %+d KiB, the same loop without the module %+d KiB\n', name, count, module, host);
  if module - max (host, 0) > 256 + count * bytes / 1024
    error ('%s: %d rounds grew by %d KiB, without the module by %d KiB', name, count, module, host);
  end
end

function run = element_run ()
  run = small_run ();
  run.list{4} = spring_element (1, 1, 3, [law_code('Power') 2 1]);
end

% Half of the calls fail: alternately when the list is gathered and when the arrays are checked, after the handles' creation.
function integrate (count)
  run = element_run ();
  other = element_run ();
  other.list{4}.opt(1) = 5;
  far = element_run ();
  far.list{4}.c.ir(1) = int32 (3);
  for k = 1:count
    switch mod (k, 4)
      case {0, 2}, x = run;
      case 1, x = other;
      case 3, x = far;
    end
    try
      quarn ('chandlediagnewmark', x.list, x.model, x.u, x.v, x.a, x.opt, x.mem, x.out);
    catch err
      if mod (k, 2) == 0, rethrow (err); end
    end
  end
end

function integrate_idle (count)
  run = element_run ();
  other = element_run ();
  far = element_run ();
  for k = 1:count
    switch mod (k, 4)
      case {0, 2}, x = run;
      case 1, x = other;
      case 3, x = far;
    end
    try
      if mod (k, 2) == 1, error ('KORV:quarn:empty', 'Unknown .opt(1) choice'); end
    catch err
      if mod (k, 2) == 0, rethrow (err); end
    end
  end
end

function test_integrator_with_cell_lists_half_of_them_failing ()
  flat ('integrator calls', @integrate, @integrate_idle, scaled (1e6), 1);
end

function register_and_clear (count)
  run = small_run ();
  values = {run.list{2}, typed(2, diag ([1 2 3])), run.list{3}, run.list{1}};
  codes = [1 2 3 2000];
  for k = 1:count
    for j = 1:4
      i = quarn ('chandleset', codes(j), values{j});
      quarn ('chandleclear', i);
    end
  end
end

function register_idle (count)
  run = small_run ();
  values = {run.list{2}, typed(2, diag ([1 2 3])), run.list{3}, run.list{1}};
  codes = [1 2 3 2000];
  for k = 1:count
    for j = 1:4
      i = max (codes(j), numel (values{j}));
    end
  end
end

function test_handles_registered_and_cleared ()
  flat ('rounds of chandleset and chandleclear', @register_and_clear, @register_idle, scaled (1e5), 8);
end

function residual_calls (count)
  h = registered ({typed(1, diag ([4 5 6])), spring_element(1, 1, 3, [law_code('Power') 2 1])});
  matrix = matrix_lines ([4 1 0; 1 5 1; 0 1 6]);
  models = {h, {matrix, matrix, matrix}, struct('K', {{matrix, matrix, matrix}})};
  r = zeros (3, 1);
  short = zeros (2, 1);
  u = [1; 2; 3] / 7;
  v = [1; 2; 3] / 5;
  for k = 1:count
    x = r;
    if mod (k, 2) == 1, x = short; end
    try
      quarn ('residual', x, models{1 + mod(k, 3)}, u, v, v, [0 0]);
      if mod (k, 2) == 1, error ('never', 'not refused'); end
    catch err
      if mod (k, 2) == 0 || strcmp (err.identifier, 'never'), rethrow (err); end
    end
  end
  quarn ('chandleclear');
end

function residual_idle (count)
  u = [1; 2; 3] / 7;
  for k = 1:count
    try
      if mod (k, 2) == 1, error ('%s', sprintf ('%d values', numel (u(1:2)))); end
    catch err
      if mod (k, 2) == 0, rethrow (err); end
    end
  end
end

function test_residuals_of_handles_and_matrices_half_of_them_failing ()
  flat ('residual calls', @residual_calls, @residual_idle, scaled (1e6), 1);
end

function complex_products (count)
  t = [1 2; 3 4; 5 6] * (1 + 1i);
  k = matrix_lines (eye (3));
  a = magic (3) * 1i;
  for j = 1:count
    x = quarn ('abc', t, k, t, int32 ([1 0 0]));
    x = quarn ('directzr', a, {1}, a, a);
  end
end

function complex_idle (count)
  t = [1 2; 3 4; 5 6] * (1 + 1i);
  for j = 1:count, x = t * 1i; end
end

function test_complex_operands ()
  flat ('products with complex operands', @complex_products, @complex_idle, scaled (3e5), 16);
end

function motion_energies (count)
  c = {ones(9, 5), ones(9, 1), ones(9, 1), [0.1 0.5], ones(9, 1), ones(9, 1), ones(9, 2), ones(2, 5), ones(9, 1), ones(1, 5)};
  for j = 1:count
    [e, v, a] = quarn ('energies', c{:});
    try, quarn ('energies', c{1:9}, ones (2, 5)); catch, end
  end
end

function motion_idle (count)
  for j = 1:count
    e = ones (4, 5) * max (j, 1);
    try, error ('own text %d', j); catch, end
  end
end

function test_energies_half_of_them_failing ()
  flat ('energies', @motion_energies, @motion_idle, scaled (3e5), 16);
end

function parallel_products (count)
  [s, n] = long_lines (4100);
  x = ones (n, 1);
  y = zeros (n, 1);
  for k = 1:count, quarn ('tbbp', s, x, y); end
end

function parallel_idle (count)
  [s, n] = long_lines (4100);
  x = ones (n, 1);
  y = zeros (n, 1);
  for k = 1:count, y = y + x * max (k, 1); end
end

function test_products_on_worker_threads ()
  flat ('products on worker threads', @parallel_products, @parallel_idle, scaled (1e5), 64);
end

% A classdef object "v_handle" (the tests have an old-style class of that name, hence a process of its own) as matrix of 3 terms: 1,300 bytes each stayed in a call.
function test_properties_of_objects_are_given_back ()
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the allocator of the sanitizers keeps freed memory'); end
  [folder, clean] = new_folder ();
  id = fopen (fullfile (folder, 'v_handle.m'), 'w');
  fprintf (id, 'classdef v_handle < handle\n  properties\n    file\n  end\nend\n');
  fclose (id);
  for name = {'matrix_lines', 'resident_memory'}, copyfile (which (name{1}), folder); end
  code = {sprintf('addpath (''%s''); ', fileparts (which ('quarn')), folder), 'o = v_handle (); o.file = matrix_lines (eye (2), true);', ...
          'x = ones (2, 1); r = zeros (2, 1);', sprintf('n = %d;', scaled (100000)), ...
          'for k = 1:n + 500, if k == 501, before = resident_memory (); end', ...
          'quarn (''residual'', r, {o, o, o}, x, x, x, [0 0]); end', 'assert (all (r ~= 0));', 'disp ((resident_memory () - before) * 1024 / n)'};
  [status, text] = octave_says (sprintf ('%s\n', code{:}));
  if status ~= 0, error ('%s', text); end
  bytes = sscanf (text, '%g', 1);
  if ~(bytes < 1000), error ('%s bytes a call', text); end
end
