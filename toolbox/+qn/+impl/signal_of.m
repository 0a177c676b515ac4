% [TIME, X, H] = SIGNAL_OF (WHO, TIME, X)  one signal as a row, evenly spaced by H, from arrays or from a result and an observation row
function [time, x, h] = signal_of (who, time, x)
  if isstruct (time)
    res = time;
    qn.impl.expect_result_of (who, res, 'qn.run');
    row = qn.impl.observation_rows (res.sim.model, x, [who ': ']);
    if size (row, 1) ~= 1, error ('qn:input', '%s: "C" must be one observation row, got %d', who, size (row, 1)); end
    x = row * res.q;
    time = res.time;
  end
  [h, time] = qn.impl.spacing (who, time);
  time = reshape (time, 1, []);
  x = reshape (qn.impl.numbers (who, 'SIGNAL', x, numel (time), 'each', 'one a time'), 1, []);
end
