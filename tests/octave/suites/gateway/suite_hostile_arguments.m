% Arrays of every kind in every place: an answer in words, and the host lives.
function tests = suite_hostile_arguments ()
  tests = localfunctions ();
end

function test_residual_of_handles ()
  h = [quarn('chandleset', 2, matrix_lines (speye (3))), quarn('chandleset', 1, matrix_lines (magic (3)))];
  sweep ('residual', {zeros(3, 1), chandle(h), ones(3, 1), ones(3, 1), ones(3, 1), [0.5 0.5], []}, 0);
end

function test_residual_of_matrices ()
  k = matrix_lines (speye (3));
  sweep ('residual', {zeros(3, 1), {k, k, k}, ones(3, 1), ones(3, 1), ones(3, 1), [0.5 0.5], []}, 2);
end

function test_residual_of_a_model_structure ()
  k = matrix_lines (speye (3));
  element = struct ('c', matrix_lines (speye (3), true), 'unl', zeros (3, 1), 'vnl', zeros (3, 1), 'StoreFNL', 1, 'FInd', int32 (0));
  element.Fu = @(varargin) ones (3, 1);
  element.b = matrix_lines (speye (3));
  model = struct ('K', {{k, k, k}}, 'FNL', zeros (3, 1), 'NL', {{'x', 1, element}});
  args = {zeros(3, 1), model, ones(3, 1), ones(3, 1), ones(3, 1), [0.5 0.5], []};
  sweep ('residual', args, 2);
  sweep_fields ('residual', args, 2, model);
  fields = fieldnames (element);
  for k = find (~strcmp (fields, 'Fu')).'
    for value = hostile_share ()
      model.NL{3} = put (element, fields{k}, value{1});
      own_answer (@() quarn ('residual', zeros (3, 1), model, args{3:7}));
    end
  end
end

function test_matrices_of_a_model ()
  k = matrix_lines (speye (3));
  for place = 1:3
    for value = hostile_share ()
      cells = {k, k, k};
      cells{place} = value{1};
      own_answer (@() outputs (2, 'residual', zeros (3, 1), cells, ones (3, 1), ones (3, 1), ones (3, 1), [0.5 0.5]));
    end
  end
end

function test_fields_of_a_matrix ()
  matrix_fields (matrix_lines (magic (3)));
  matrix_fields (matrix_lines (speye (3), true));
end

function test_values_of_registered_handles ()
  tables = source_tables ();
  codes = str2double (tables.types);
  for value = hostile_share ()
    if isobject (value{1}) && isa (value{1}, 'v_handle'), continue; end
    for code = codes
      h = quarn ('chandleset', code, value{1});
      own_answer (@() quarn ('residual', zeros (3, 1), chandle (h), ones (3, 1), ones (3, 1), ones (3, 1), [0.5 0.5]));
      quarn ('chandleclear', h);
    end
  end
end

function test_fields_of_an_element ()
  element = power_element (matrix_lines (speye (3), true), matrix_lines (speye (3)), 3);
  element.vnl = zeros (3, 1);
  element.iopt = int32 ([0; 0; 0; 0; 0]);
  fields = fieldnames (element);
  for k = 1:numel (fields)
    for value = hostile_share ()
      h = quarn ('chandleset', 1003, put (element, fields{k}, value{1}));
      own_answer (@() quarn ('residual', zeros (3, 1), chandle (h), ones (3, 1), ones (3, 1), ones (3, 1)));
    end
  end
end

function test_arguments_of_the_integrator ()
  run = small_run ();
  sweep ('chandlediagnewmark', {run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, 0);
end

function test_fields_of_the_integrator ()
  run = small_run ();
  run.list{1}.iopt = int32 (0);
  run.model = struct ('FNL', zeros (3, 1));
  run.mem.uva.FNL = zeros (3, 1);
  run.out.FNL = struct ('data', zeros (2, 1), 'def', zeros (3, 2));
  args = {run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
  sweep_fields ('chandlediagnewmark', args, 0, run.list{1}, @(a, s) replaced (a, 1, [{s}, a{1}(2:3)]));
  sweep_fields ('chandlediagnewmark', args, 0, run.list{2}, @(a, s) replaced (a, 1, {a{1}{1}, s, a{1}{3}}));
  sweep_fields ('chandlediagnewmark', args, 0, run.model, @(a, s) replaced (a, 2, s));
  sweep_fields ('chandlediagnewmark', args, 0, run.mem, @(a, s) replaced (a, 7, s));
  sweep_fields ('chandlediagnewmark', args, 0, run.mem.uva, @(a, s) replaced (a, 7, struct ('uva', s)));
  sweep_fields ('chandlediagnewmark', args, 0, run.out, @(a, s) replaced (a, 8, s));
  sweep_fields ('chandlediagnewmark', args, 0, run.out.FNL, @(a, s) replaced (a, 8, put (a{8}, 'FNL', s)));
end

function test_every_command_of_the_table_with_arguments_of_every_kind ()
  rand ('twister', 17);
  tables = source_tables ();
  values = hostile_values ();
  for word = tables.commands
    for trial = 1:rounds (30)
      args = values(randi (numel (values), 1, randi ([0, 5])));
      if strcmp (word{1}, 'chandleclear') && clears_the_witness (args), continue, end
      own_answer (@() outputs (0, word{1}, args{:}));
    end
  end
end

% Whether it would free all handles, or the one by which own_answer sees that the registry lives.
function yes = clears_the_witness (args)
  yes = isempty (args) || isempty (args{1}) || isnumeric (args{1});
end

function test_missing_arguments ()
  run = small_run ();
  args = {run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out};
  for n = 0:7
    text = 'expected 9 inputs (command, list, model, u, v, a, opt, mem, out)';
    expect_refused (@() quarn ('chandlediagnewmark', args{1:n}), sprintf ('quarn chandlediagnewmark : %s, got %d', text, n + 1));
  end
  k = matrix_lines (speye (3));
  args = {zeros(3, 1), {k, k, k}, ones(3, 1), ones(3, 1), ones(3, 1)};
  for n = 0:4
    text = 'expected at least 6 inputs (command, r or handles, model, u, v, a)';
    expect_refused (@() quarn ('residual', args{1:n}), sprintf ('quarn residual : %s, got %d', text, n + 1));
  end
end

function matrix_fields (m)
  fields = fieldnames (m);
  for k = 1:numel (fields)
    for value = hostile_share ()
      bad = put (m, fields{k}, value{1});
      own_answer (@() quarn ('residual', zeros (3, 1), {bad, bad, bad}, ones (3, 1), ones (3, 1), ones (3, 1), [0.5 0.5]));
      own_answer (@() quarn ('tbbp', bad, ones (3, 1), zeros (3, 1)));
      own_answer (@() quarn ('tbbp', v_handle (bad), ones (3, 1), zeros (3, 1)));
      for code = 1:3
        h = quarn ('chandleset', code, bad);
        own_answer (@() quarn ('residual', zeros (3, 1), chandle (h), ones (3, 1), ones (3, 1), ones (3, 1), [0.5 0.5]));
      end
    end
  end
end

% Every place of the call with every hostile value, and pairs of them in neighbouring places.
function sweep (word, args, count)
  for place = 1:numel (args)
    values = hostile_share ();
    for k = 1:numel (values)
      bad = args;
      bad{place} = values{k};
      own_answer (@() outputs (count, word, bad{:}));
      if place < numel (args)
        bad{place + 1} = values{end + 1 - k};
        own_answer (@() outputs (count, word, bad{:}));
      end
    end
  end
end

% Every field of the struct s with every hostile value, and without it; place (args, s) puts it into the call.
function sweep_fields (word, args, count, s, place)
  if nargin < 5, place = @(a, s) replaced (a, 2, s); end
  fields = fieldnames (s);
  for k = 1:numel (fields)
    for value = hostile_share ()
      bad = place (args, put (s, fields{k}, value{1}));
      own_answer (@() outputs (count, word, bad{:}));
    end
    bad = place (args, rmfield (s, fields{k}));
    own_answer (@() outputs (count, word, bad{:}));
  end
end

function args = replaced (args, place, value)
  args{place} = value;
end

function outputs (count, varargin)
  out = cell (1, count);
  [out{:}] = quarn (varargin{:});
end

function s = put (s, name, value)
  s.(name) = value;
end
