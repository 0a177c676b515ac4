% [TIME, X, Y] = ACROSS_AND_UP (WHO, TIME, X, Y)  two displacements as rows, from arrays or from a result and two observation rows
function [time, x, y] = across_and_up (who, time, x, y)
  if isstruct (time)
    res = time;
    qn.impl.expect_result_of (who, res, 'qn.run');
    x = one_row (who, res, x, 'CX');
    y = one_row (who, res, y, 'CY');
    time = res.time;
    return
  end
  [unused, time] = qn.impl.spacing (who, time);
  n = numel (time);
  x = reshape (qn.impl.numbers (who, 'X', x, n, 'each', 'one a time'), 1, []);
  y = reshape (qn.impl.numbers (who, 'Y', y, n, 'each', 'one a time'), 1, []);
end

function x = one_row (who, res, c, name)
  row = qn.impl.observation_rows (res.sim.model, c, [who ': '], name);
  if size (row, 1) ~= 1, error ('qn:input', '%s: "%s" must be one observation row, got %d', who, name, size (row, 1)); end
  x = row * res.q;
end
