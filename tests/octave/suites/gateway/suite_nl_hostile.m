% Arrays of every kind in every field of a nonlinear element and in every row of its parameters: an answer in words, and the
% host lives.
function tests = suite_nl_hostile ()
  tests = localfunctions ();
end

function call (e, varargin)
  model = nl_model (e);
  model.FNL = zeros (5, 1);
  if isempty (varargin), varargin = {[], []}; end
  quarn ('residual', zeros (6, 1), model, ones (6, 1), ones (6, 1), ones (6, 1), varargin{:});
end

% The value is put in with setfield, since some of them are lists to struct ().
function sweep (e, left_out)
  names = fieldnames (e);
  for k = 1:numel (names)
    if any (strcmp (names{k}, left_out)), continue, end
    for value = hostile_share ()
      bad = e;
      bad(1).(names{k}) = value{1};
      own_answer (@() call (bad));
    end
  end
end

function e = observed (law)
  c = matrix_lines (speye (6), true);
  e = struct ('c', c, 'b', c, 'unl', zeros (6, 1), 'vnl', zeros (6, 1), 'unl0', zeros (6, 1), 'vnl0', zeros (6, 1), 'snl', zeros (6, 1), ...
              'StoreFNL', 1, 'FInd', int32 (0), 'opt', [0 -1]);
  e.(law) = @nothing;
end

function varargout = nothing (varargin)
  varargout = {};
end

function test_elements_with_functions ()
  sweep (observed ('Fu'), {'Fu'});
  sweep (observed ('type'), {'type'});
end

function test_paged_elements ()
  e = observed ('Fu');
  e.unl = zeros (2, 3, 3);
  e.vnl = zeros (2, 3, 3);
  sweep (repmat (e, [1 1 3]), {'Fu'});
  for value = hostile_share ()
    own_answer (@() call (repmat (e, [1 1 3]), struct ('tc', {value}), []));
    opt = struct ();
    opt.tc = value{1};
    own_answer (@() call (repmat (e, [1 1 3]), opt, []));
  end
end

function test_results_of_functions ()
  e = observed ('Fu');
  for value = hostile_share ()
    e.Fu = @(varargin) value{1};
    own_answer (@() call (e));
    result = struct ();
    result.snl = value{1};
    e.Fu = @(varargin) result;
    own_answer (@() call (e));
  end
end

function test_parameters_of_rotcenter ()
  rand ('twister', 42);
  randn ('twister', 42);
  for rows = [10 14 17]
    e = random_rotor (6, rows, 0);
    sweep (e, {'type'});
    for row = 1:rows
      for value = hostile_share ()
        bad = e;
        bad.Cell{row, 2} = value{1};
        own_answer (@() call (bad));
      end
    end
  end
end

function test_matrix_of_mocirc2 ()
  sweep (struct ('type', 'mocirc2', 'cta', matrix_lines (ones (6, 2))), {'type'});
end

function test_elements_and_lists ()
  for value = hostile_share ()
    own_answer (@() call (value{1}));
    model = struct ('K', {cell(1, 3)});
    model.NL = value{1};
    own_answer (@() quarn ('residual', zeros (6, 1), model, ones (6, 1), ones (6, 1), [], [], []));
  end
end
