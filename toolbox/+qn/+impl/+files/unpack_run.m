% RES = UNPACK_RUN (F)  the result of a run from what its file holds; refuses what is not whole or does not fit together
function res = unpack_run (f)
  need (f, {'format', 'sim', 'final', 'q', 'force', 'state', 'time', 'time_end', 'complete', 'diverged', 'seconds', 'units'});
  if ~isequal (f.format, qn.impl.files.run_format ())
    fail ('its format is %s, this version reads %d', sprintf ('%g', f.format), qn.impl.files.run_format ());
  end
  s = f.sim;
  need (s, {'model', 'scheme', 'step', 'first', 'steps', 'saved', 'shapes', 'elements', 'states', 'slots', 'notes', 'start', ...
            'load_values', 'load_columns'});
  need (s.model, {'shapes', 'w', 'stiffness', 'damping', 'M'});
  need (s.scheme, {'beta', 'gamma'});
  whole = @(x, low, high) isnumeric (x) && numel (x) == 1 && x >= low && x <= high && x == fix (x);
  expect (isnumeric (s.step) && numel (s.step) == 1 && s.step > 0 && isfinite (s.step), '"step" is no length of time');
  expect (whole (s.steps, 1, 1e9) && whole (s.first, 0, 1e15), 'the number of steps is none');
  s.time = (s.first + (0:s.steps)) * s.step;
  columns = s.load_columns;
  if isempty (columns), columns = 1:numel (s.time); end
  expect (isnumeric (columns) && all (columns >= 1 & columns <= numel (s.time) & columns == fix (columns)) && ...
          size (s.load_values, 2) == numel (columns), 'the columns of the loads do not fit the times');
  s.loads = zeros (size (s.load_values, 1), numel (s.time));
  s.loads(:, columns) = s.load_values;
  elements_fit (s);
  fresh = qn.impl.values (s, s.step);
  s.start = state (s, s.start, 1, fresh, false);
  found = qn.impl.check_arrays (s);
  bad = find (strcmp ({found.level}, 'error'), 1);
  if ~isempty (bad), fail ('%s', found(bad).text); end
  % What was not kept is not there: better no number than a zero.
  missing = true (1, numel (s.time));
  missing(columns) = false;
  s.loads(:, missing) = NaN;
  s.options = [];
  s = rmfield (s, {'load_values', 'load_columns', 'steps'});
  res = rmfield (f, 'format');
  res.sim = s;
  need (f.final, {'column'});
  expect (whole (f.final.column, 1, numel (s.time)), 'the column that it came to is not among the %d times', numel (s.time));
  res.final = state (s, f.final, f.final.column, fresh, isequal (f.diverged, true));
  k = size (f.q, 2);
  expect (islogical (f.complete) && numel (f.complete) == 1 && islogical (f.diverged) && numel (f.diverged) == 1 && ...
          f.complete == (f.final.column == numel (s.time)), '"complete" does not fit the time that it came to');
  expect (f.diverged || k == sum (s.saved <= f.final.column), 'it holds %d columns of results', k);
  expect (k <= numel (s.saved) && isequal (f.time(:), reshape (s.time(s.saved(1:k)), [], 1)), ...
          'the times of the results do not fit the steps');
  expect (f.diverged || isequal (f.time_end, s.time(f.final.column)), '"time_end" is not the time that it came to');
  rows = [numel(s.model.w), numel([s.elements.forces]), s.states];
  names = {'q', 'force', 'state'};
  for j = 1:3
    x = f.(names{j});
    expect (isa (x, 'double') && isequal (size (x), [rows(j), k]) && finite (x), ...
            '"%s" must be %d x %d finite numbers', names{j}, rows(j), k);
  end
end

function fail (varargin)
  error ('qn:input', varargin{:});
end

function expect (good, varargin)
  if ~good, fail (varargin{:}); end
end

% Whether all numbers are. Mostly the sum tells, in one pass; it may be too large though none of them is.
function yes = finite (x)
  yes = isfinite (sum (x(:))) || all (isfinite (x(:)));
end

function need (s, names)
  if ~isstruct (s) || numel (s) ~= 1, fail ('a structure in it is none'); end
  there = isfield (s, names);
  if ~all (there), fail ('"%s" is missing', strjoin (names(~there), '", "')); end
end

% Laws and rows are looked at by those who look at them in a new set-up; their places must come out the same.
function elements_fit (s)
  list = cell (numel (s.elements), 3);
  for k = 1:numel (s.elements)
    e = s.elements(k);
    need (e, {'law', 'observe', 'command', 'item', 'state', 'slot', 'forces'});
    need (e.law, {'kind', 'parameters', 'note'});
    p = [fieldnames(e.law.parameters), struct2cell(e.law.parameters)].';
    law = qn.law (e.law.kind, p{:});
    l = qn.impl.law_of (law.kind);
    if ~isempty (l.again), l.again (law.parameters); end
    expect (isequal (law.parameters, e.law.parameters), 'the parameters of element %d are damaged', e.item);
    list(k, :) = {law, sparse(e.observe), sparse(e.command)};
  end
  [again, states, slots] = qn.impl.elements (s.model, list);
  places = @(x) {[x.state], [x.slot], [x.forces]};
  expect (isequal (places (again), places (s.elements)) && isequal ([states, slots], [s.states, s.slots]), ...
          'the places of the elements do not fit together');
end

% LOST: the state of a run that diverged may be no numbers; who reads it says that there is no state to go on from.
function s = state (sim, f, column, fresh, lost)
  need (f, {'u', 'v', 'a', 'FNL', 'memory'});
  n = numel (sim.model.w) + sim.states;
  for name = {'u', 'v', 'a'}
    x = f.(name{1});
    expect (isa (x, 'double') && isequal (size (x), [n 1]) && (lost || all (isfinite (x))), ...
            'the state "%s" must be %d finite numbers', name{1}, n);
  end
  expect (isa (f.FNL, 'double') && isequal (size (f.FNL), [max(sim.slots, 1), 1]) && iscell (f.memory) && ...
          numel (f.memory) == numel (sim.elements), 'what the elements remember does not fit them');
  s = rmfield (f, 'memory');
  s.column = column;
  s.values = fresh;
  for k = 1:numel (sim.elements)
    m = f.memory{k};
    need (m, {'unl', 'vnl', 'snl', 'at', 'opt'});
    e = s.values{2 + k, 2};
    for name = {'unl', 'vnl', 'snl'}
      x = m.(name{1});
      if isempty (e.(name{1})), continue, end  % velocities that no law reads
      expect (isa (x, 'double') && isequal (size (x), size (e.(name{1}))) && (lost || all (isfinite (x(:)))), ...
              'what element %d remembers is damaged', k);
      e.(name{1}) = x;
    end
    expect (all (m.at >= 2 & m.at <= numel (e.opt) & m.at == fix (m.at)) && isa (m.opt, 'double') && numel (m.opt) == numel (m.at), ...
            'what element %d remembers is damaged', k);
    e.opt(m.at) = m.opt;
    s.values{2 + k, 2} = e;
  end
end
