% What every law of the toolbox has to be: a new row of the list is tested here before anything is written for it.
function tests = suite_toolbox_law_list ()
  use_toolbox ();
  rand ('twister', 12);
  tests = localfunctions ();
end

% A law of this kind with random numbers that its sorts of parameters allow.
function law = drawn (l)
  args = {};
  n = 4;
  for k = 1:size (l.parameters, 1)
    sort_of = l.parameters{k, 3};
    if strcmp (sort_of, 'text')
      continue
    elseif any (strcmp (sort_of, {'file', 'function', 'whole', 'count'}))
      x = user_law_value (sort_of);
    elseif any (strcmp (sort_of, {'ascending list', 'knots'}))
      x = cumsum (0.1 + rand (n, 1));
    elseif strcmp (sort_of, 'grid')
      x = rand (n);
    elseif ~isempty (strfind (sort_of, 'list'))
      x = 0.5 + rand (n, 1);
    elseif strcmp (sort_of, 'fraction')
      x = rand ();
    elseif strcmp (sort_of, 'sign')
      x = 1 - 2 * (rand () < 0.5);
    else
      x = 1 + 2 * rand ();
    end
    if isequal (l.parameters(k, [1 3]), {'gap', 'number'}), x = -x; end      % closed
    args(end + (1:2)) = {l.parameters{k, 1}, x};
  end
  law = qn.law (l.kind, args{:});
end

function test_each_file_of_laws_is_in_the_list ()
  files = dir (fullfile (project_folder (), 'toolbox', '+qn', '+impl', '+laws', '*.m'));
  list = qn.impl.law_list ();
  expect_equal (sort (regexprep ({files.name}, '_law\.m$', '')), sort ({list.kind}));   % a new file is called in law_list.m
end

function test_the_toolbox_knows_every_law_of_the_module ()
  tables = source_tables ();
  if numel (tables.laws) < 7, error ('only %d laws found in the module''s table', numel (tables.laws)); end
  list = qn.impl.law_list ();
  missing = setdiff (tables.laws, {list.keyword});
  if ~isempty (missing)
    error (['the law %s of the module is none of the toolbox: write toolbox/+qn/+impl/+laws/NAME_law.m after exponential_law.m and ' ...
            'call it in law_list.m'], strjoin (missing, ', '));
  end
  expect_equal (unique ({list.keyword}, 'stable'), tables.laws);  % in the module's order; two laws of the toolbox are one of the module's
end

function test_help_and_selftest_name_every_law ()
  file = which ('qn.law');
  text = fileread (file);
  text = text(1:regexp (text, '\nfunction ', 'once'));
  checks = qn.impl.selftest_laws ();
  list = qn.impl.law_list ();
  rows = regexp (text, '^%   ''(\w+)'' +\S.*$', 'tokens', 'lineanchors', 'dotexceptnewline');
  expect_equal ([rows{:}], {list.kind});                          % in the order of the list
  rows = regexp (text, '^%   ''\w+'' .*$', 'match', 'lineanchors', 'dotexceptnewline');
  for row = rows
    if row{1}(61) ~= ' ' || row{1}(62) == ' '
      error ('help qn.law: the force begins in column 62, in other than "%s"', row{1});
    end
  end
  for l = qn.impl.law_list ()
    if isempty (strfind (text, ['''' l.kind ''''])), error ('help qn.law does not name the law %s', l.kind); end
    for name = l.parameters(:, 1).'
      if isempty (regexp (text, ['\<' name{1} '\>'], 'once')), error ('help qn.law does not name "%s" of %s', name{1}, l.kind); end
    end
    if ~any (strcmp (checks(:, 1), ['law ' l.keyword])), error ('qn.selftest does not check the law %s', l.keyword); end
  end
end

function test_every_law_comes_back_from_its_element_and_says_its_numbers ()
  for l = qn.impl.law_list ()
    law = drawn (l);
    t = qn.impl.traits (law, 1);
    e = qn.element (law, eye (max (t.rows, 1)), 'step', 0.25, 'state', 4);
    [back, step] = qn.impl.unpack_law (e);
    expect_equal (back.kind, l.kind);
    for name = l.parameters(:, 1).'
      [got, wanted] = deal (back.parameters.(name{1}), law.parameters.(name{1}));
      if isnumeric (wanted), expect_equal (got, wanted, 1e-12); else, expect_equal (isequal (got, wanted), true); end
    end
    if t.memory, expect_equal (step, 0.25); end
    for k = find (~cellfun (@isempty, strfind (l.parameters(:, 3), 'number'))).'
      number = sprintf ('%g', law.parameters.(l.parameters{k, 1}));
      if isempty (strfind (qn.describe (law), number)), error ('%s of %s is not in "%s"', l.parameters{k, 1}, l.kind, qn.describe (law)); end
    end
  end
end

% Central differences of the module's own forces.
function test_the_greatest_stiffness_bounds_the_slope_and_the_stored_energy_has_the_force_as_its_slope ()
  seen = 0;
  for l = qn.impl.law_list ()
    law = drawn (l);
    t = qn.impl.traits (law, 1);
    if t.memory || t.rows > 1, continue, end
    h = 1e-5;
    x = 0.2 + 2 * rand (1, 40);
    f = qn.force (law, x, 0 * x);
    slope = abs (qn.force (law, x + h, 0 * x) - qn.force (law, x - h, 0 * x)) / (2 * h);
    bound = qn.impl.stiffest (law, [x - h, x + h]);
    if any (slope > bound * (1 + 1e-6)), error ('%s: slope %g N/m, greatest stiffness %g N/m', l.kind, max (slope), bound); end
    seen = seen + 1;
    if ~isempty (l.extra), continue, end     % what a law of the user's stores is not known
    v = cell (1, 2);
    for k = 1:2
      at = [x(1), x + (2 * k - 3) * h];      % from one place, as the energy has a constant
      v{k} = zeros (size (x));
      for j = 1:numel (x), pair = qn.impl.stored (law, at([1, 1 + j]), [0 0], [], 1); v{k}(j) = pair(2) - pair(1); end
    end
    got = (v{2} - v{1}) / (2 * h);
    if max (abs (got - f)) > 1e-4 * max (abs (f)), error ('%s: the stored energy has another slope than the force', l.kind); end
  end
  if seen < 3, error ('only %d laws without memory', seen); end
end

% The same with the velocity.
function test_the_greatest_damping_bounds_the_slope_over_the_velocity ()
  seen = 0;
  for l = qn.impl.law_list ()
    law = drawn (l);
    t = qn.impl.traits (law, 1);
    if ~t.rates || t.rows > 1, continue, end
    h = 1e-5;
    x = 2 * rand (1, 40);
    v = 2 * rand (1, 40) - 1;
    f = qn.force (law, x, v);
    slope = abs (qn.force (law, x, v + h) - qn.force (law, x, v - h)) / (2 * h);
    bound = qn.impl.viscous (law, x, f);
    if any (slope > bound * (1 + 1e-3)), error ('%s: slope %g N s/m, greatest damping %g N s/m', l.kind, max (slope), bound); end
    expect_error (@() qn.force (law, x), 'qn:input', '~depends on the velocity');
    seen = seen + 1;
  end
  if seen < 1, error ('no law of the velocity'); end
end

% Laws of several observations: at rest no direction has more stiffness or more damping.
function test_the_greatest_stiffness_and_damping_bound_the_slopes_of_coupled_laws ()
  seen = 0;
  for l = qn.impl.law_list ()
    law = drawn (l);
    t = qn.impl.traits (law, 1);
    if ~t.rates || t.rows < 2, continue, end
    for trial = 1:20
      x = 4 * randn (t.rows, 1);
      if isfield (law.parameters, 'limit')
        x = [law.parameters.x0; law.parameters.y0] + law.parameters.clearance * law.parameters.limit * rand () * x / norm (x);
      end
      [k, c] = qn.impl.tangent (law, x);
      most_k = qn.impl.stiffest (law, x);
      most_c = qn.impl.viscous (law, x, []);
      if norm (k) > most_k * (1 + 1e-4), error ('%s: slope %g N/m, greatest stiffness %g N/m', l.kind, norm (k), most_k); end
      if norm (c) > most_c * (1 + 1e-4), error ('%s: slope %g N s/m, greatest damping %g N s/m', l.kind, norm (c), most_c); end
      seen = seen + any (k(:)) + any (c(:));
    end
  end
  if seen < 40, error ('only %d slopes', seen); end
end

function test_every_law_runs_in_a_simulation_and_no_bad_number_passes ()
  model = qn.modal (diag ([1e2 2e2 3e2]), eye (3), 'damping', 0.02);
  places = eye (3);
  for l = qn.impl.law_list ()
    law = drawn (l);
    t = qn.impl.traits (law, 1);
    away = 6 * (t.rows == 2) * [1; 1; 1];      % beyond every clearance that is drawn
    sim = qn.simulation (model, 'step', 1e-4, 'steps', 50, 'u0', away, 'v0', [0.2; 0.2; 0.2], 'elements', {law, places(1:max (t.rows, 1), :)});
    res = qn.run (sim, 'progress', false);
    if ~all (isfinite (res.q(:))) || ~any (res.force(:)), error ('the law %s does nothing in a run', l.kind); end
    for k = 1:size (l.parameters, 1)
      args = [l.parameters(:, 1), struct2cell(law.parameters)].';
      args{2, k} = NaN;
      expect_error (@() qn.law (l.kind, args{:}), 'qn:input', ['~"' l.parameters{k, 1} '" must be']);
    end
  end
end
