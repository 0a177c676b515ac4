% [SHAPES, LOADS, NOTES] = LOADS (MODEL, LIST, TIME, BASE)  modal load shapes, one a column, and the loads at every time, one a row
%
% BASE says which of them are motions of the base, for the names in errors; see base_loads.
function [shapes, loads, notes] = loads (model, list, time, base)
  who = 'qn.simulation';
  m = numel (model.w);
  notes = {};
  if ~iscell (list) || (~isempty (list) && size (list, 2) ~= 2)
    error ('qn:input', '%s: "load" is a cell {shape, signal; ...} with two columns, got %s of class %s', who, mat2str (size (list)), ...
           class (list));
  end
  n = size (list, 1);
  shapes = zeros (m, n);
  loads = zeros (n, numel (time));
  for k = 1:n
    [shape, signal] = list{k, :};
    named = sprintf ('load{%d, ', k);
    if ~isempty (base) && any (base.loads == k), named = sprintf ('base{%d, ', find (base.loads == k)); end
    shape = qn.impl.numbers (who, [named '1}'], shape, m, 'each', 'one a mode (the shape of the load; see qn.load_at)');
    shapes(:, k) = shape(:);
    named = [named '2}'];
    if any (shape(:)) && all (shape(:) >= 0 & shape(:) == fix (shape(:))) && ~any (ismember (model.shapes, shape(:).', 'rows'))
      notes{end + 1} = sprintf (['load_shape: the shape of load %d is whole numbers; a push or degrees of freedom need qn.base or ' ...
                                 'qn.load_at'], k);
    end
    if isa (signal, 'function_handle')
      try
        f = signal (time);
      catch err
        if strcmp (err.identifier, 'qn:input') && ~isempty (qn.impl.rotor.unbalance_of (signal))
          error ('qn:input', '%s: load %d: %s', who, k, err.message);
        end
        error ('qn:input', '%s: the function of load %d fails for a row of times; write it with .* ./ .^ (%s)', who, k, err.message);
      end
      if islogical (f), f = double (f); end
      if numel (f) == 1
        if ~isequaln (f, signal (time(1)))
          error ('qn:input', '%s: the function of load %d adds up a row of times to one value; write it with .* ./ .^', who, k);
        end
        f = f * ones (size (time));
      end
    elseif isnumeric (signal) && min (size (signal)) > 1
      [f, short] = table (who, named, signal, time);
      if short
        notes{end + 1} = sprintf (['load_ends: the table of load %d covers %g to %g s of a run from %g to %g s; outside it the load is ' ...
                                   'zero'], k, ...
                                  signal(1, [1 end]), time([1 end]));
      end
    else
      f = signal;
    end
    if isnumeric (f) && numel (f) ~= numel (time)
      error ('qn:input', '%s: load %d, "%s", gives %d values for %d time points; a table is [times; values], 2 x k', who, k, named, ...
             numel (f), numel (time));
    end
    f = qn.impl.numbers (who, named, f, numel (time), 'each', 'one a time point');
    loads(k, :) = reshape (f, 1, []);
  end
end

% Values of the 2 x k table S at TIME; SHORT where it leaves out some of it. A time point that misses an end of the table by rounding,
% less than a hundredth of a step, has the value at that end.
function [f, short] = table (who, named, s, time)
  s = qn.impl.numbers (who, named, s, [2 NaN], 'each', '[times; values]');
  qn.impl.numbers (who, [named '(1, :)'], s(1, :), [], 'ascending');
  slack = 0.01 * (time(2) - time(1));
  at = time;
  at(at < s(1, 1) & at > s(1, 1) - slack) = s(1, 1);
  at(at > s(1, end) & at < s(1, end) + slack) = s(1, end);
  short = at(1) < s(1, 1) || at(end) > s(1, end);
  f = interp1 (s(1, :), s(2, :), at, 'linear', 0);
end
