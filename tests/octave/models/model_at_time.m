% Y = MODEL_AT_TIME (TIMES, VALUES, T)  a row of values at ascending times, linear in between; at two equal times the mean
function y = model_at_time (times, values, t)
  [at, w] = place_of_time (times, t);
  y = values(at);
  if w > 0, y = y + (values(at + 1) - y) * w; end
end
