% Where the time of one call of the residual command goes: the whole and its parts, seconds a call.
%
% KERNELS are the records of the compiled benchmarks: what the module itself does in a call with matrices is measured there, without the
% host around it. "rest" is what no part explains: the host's conversion of arguments that are looked into.
function notes = call_parts (quick, kernels)
  folder = compile_mex ({'nothing', 'callbacks'});
  n = 10;
  u = ones (n, 1);
  r = zeros (n, 1);
  unit = matrix_lines (speye (n));
  notes = parts ('matrix cell', 1, {'residual', r, {unit, unit, unit}, u, u, u, [], []}, 0, ...
                 module_parts (kernels, 'cell of matrices', 1), quick);
  for count = [1 10 100]
    list = registered (repmat ({typed(1, unit)}, 1, count));
    one = per_callback (quick, 'remi', list, 1);
    direct = best_time (@() remi (list, 1), quick) - best_time (@() [], quick);
    notes = [notes, note('calls', 'remi', count, 'from the interpreter', direct, 1, 0, 0), ...
             note('calls', 'remi', count, 'from a MEX function', one, 1, 0, 0), ...
             parts('handle vector', count, {'residual', r, list, u, u, u, [], []}, count * one, ...
                   module_parts (kernels, 'registered matrices', count), quick)];
    quarn ('chandleclear');
  end
  row = matrix_lines (sparse (1, 1, 1, 1, n), true);
  law = @(e, r, model, u, v, a, opt, extra) u(1);
  element = struct ('Fu', law, 'b', row, 'StoreFNL', 0);
  for count = [1 10 100]
    model = struct ('K', {cell(1, 3)}, 'NL', {[cell(count, 2), repmat({element}, count, 1)]});
    one = per_callback (quick, 'feval', law, element, r, model, u, u, [], [], []);
    notes = [notes, parts('structure, function handle', count, {'residual', r, model, u, u, [], [], []}, count * one, struct (), quick)];
  end
  clear nothing callbacks
  rmpath (folder);
  confirm_recursive_rmdir (false, 'local');
  rmdir (folder, 's');
end

function s = per_callback (quick, varargin)
  calls = 1000;
  if quick, calls = 2; end
  s = Inf;
  for round = 1:5, s = min (s, callbacks (calls, varargin{:})); end
end

% given: the arguments of the call; callback: time of all its callbacks; module: struct of further parts.
function notes = parts (variant, count, given, callback, module, quick)
  bare = best_time (@() [], quick);
  whole = best_time (@() quarn (given{:}), quick) - bare;
  all = struct ('empty_call', best_time (@() nothing (given{:}), quick) - bare);
  if callback > 0, all.callbacks = callback; end
  names = fieldnames (module);
  for k = 1:numel (names), all.(names{k}) = module.(names{k}); end
  all.rest = whole - sum (cell2mat (struct2cell (all)));
  notes = note ('call parts', variant, count, 'whole', whole, 1, 0, 0);
  names = fieldnames (all);
  for k = 1:numel (names)
    notes = [notes, note('call parts', variant, count, strrep(names{k}, '_', ' '), all.(names{k}), 1, 0, 0)];
  end
end

function s = module_parts (kernels, variant, count)
  s = struct ();
  t = select (kernels, 'guards', variant);
  names = {'views', 'checks before', 'arithmetic'};
  for k = 1:3
    hit = find ([t.size] == count & strcmp ({t.program}, names{k}), 1);
    if ~isempty (hit), s.(strtok (names{k})) = t(hit).seconds; end
  end
end
