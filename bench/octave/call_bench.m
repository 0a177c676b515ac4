% What one call of the residual command costs, and what a nonlinear element adds to it.
function notes = call_bench (quick)
  n = 10;
  u = ones (n, 1);
  r = zeros (n, 1);
  unit = matrix_lines (speye (n));
  notes = [];
  notes = add (notes, 'presence', 0, @() quarn (), quick);
  notes = add (notes, 'matrix cell', 1, @() quarn ('residual', r, {unit, unit, unit}, u, u, u, [], []), quick);
  for count = [1 10 100]
    list = registered (repmat ({typed(1, unit)}, 1, count));
    notes = add (notes, 'handle vector', count, @() quarn ('residual', r, list, u, u, u, [], []), quick);
    quarn ('chandleclear');
  end
  row = matrix_lines (sparse (1, 1, 1, 1, n), true);
  table = [-1 -40; 0 0; 1 40];
  cells = cell (10, 2);
  cells(1:8, 2) = {1, eye(3), [0.5; 0; 0], [0; 0; 0], [2 3], [1 2], [4 5], [1 2]};
  cells{10, 2} = [0; 0.5; 0];
  built = struct ('type', 'rotcenter', 'Cell', {cells}, 'Fu', table, 'Fv', table, 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
  law = @(e, r, model, u, v, a, opt, extra) u(1);
  handle = struct ('Fu', law, 'b', row, 'StoreFNL', 0);
  seen = struct ('Fu', law, 'b', row, 'StoreFNL', 0, 'c', row, 'unl', zeros (1, 1), 'vnl', zeros (1, 1));
  for count = [0 1 10 100]
    notes = add (notes, 'structure, rotcenter', count, element_call (built, count, r, u), quick);
    notes = add (notes, 'structure, function handle', count, element_call (handle, count, r, u), quick);
    notes = add (notes, 'structure, handle, unl and vnl', count, element_call (seen, count, r, u), quick);
  end
end

function work = element_call (element, count, r, u)
  NL = cell (count, 3);
  NL(:, 3) = repmat ({element}, count, 1);
  model = struct ('K', {cell(1, 3)}, 'NL', {NL});
  work = @() quarn ('residual', r, model, u, u, [], [], []);
end

% The time of an empty function handle is taken off.
function notes = add (notes, variant, count, work, quick)
  persistent bare
  if isempty (bare), bare = best_time (@() [], quick); end
  notes = [notes, note('calls', variant, count, 'quarn', max (0, best_time (work, quick) - bare), max (count, 1), 0, 0)];
end
