% [SHAPES, LOADS, NOTES] = LOADS (MODEL, LIST, TIME)  modal load shapes, one a column, and the loads at every time, one a row
function [shapes, loads, notes] = loads (model, list, time)
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
    if ~isnumeric (shape), error ('qn:input', '%s: load %d is {shape, signal}, a shape of class %s is none', who, k, class (shape)); end
    if numel (shape) ~= m
      error ('qn:input', '%s: the shape of load %d has %d values; one a mode, %d, is expected', who, k, numel (shape), m);
    end
    shapes(:, k) = shape(:);
    if any (shape(:)) && all (shape(:) >= 0 & shape(:) == fix (shape(:))) && ~any (ismember (model.shapes, shape(:).', 'rows'))
      notes{end + 1} = sprintf ('the shape of load %d is whole numbers; a push or degrees of freedom need qn.base or qn.command', k);
    end
    if isa (signal, 'function_handle')
      try
        f = signal (time);
      catch err
        error ('qn:input', '%s: the function of load %d fails for a row of times; write it with .* ./ .^ (%s)', who, k, err.message);
      end
      if numel (f) == 1
        if ~isequaln (f, signal (time(1)))
          error ('qn:input', '%s: the function of load %d adds up a row of times to one value; write it with .* ./ .^', who, k);
        end
        f = f * ones (size (time));
      end
    elseif size (signal, 1) == 2 && size (signal, 2) ~= numel (time)
      if any (diff (signal(1, :)) <= 0), error ('qn:input', '%s: the times of load %d must ascend', who, k); end
      f = interp1 (signal(1, :), signal(2, :), time, 'linear', 0);
      if signal(1, 1) > time(1) || signal(1, end) < time(end)
        notes{end + 1} = sprintf ('the table of load %d covers %g to %g s of a run from %g to %g s; outside it the load is zero', k, ...
                                  signal(1, [1 end]), time([1 end]));
      end
    else
      f = signal;
    end
    if numel (f) ~= numel (time)
      error ('qn:input', '%s: load %d gives %d values for %d time points', who, k, numel (f), numel (time));
    end
    if ~isreal (f) || any (~isfinite (f)), error ('qn:input', '%s: load %d has values that are not finite and real', who, k); end
    loads(k, :) = reshape (double (f), 1, []);
  end
end
