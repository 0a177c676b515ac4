% Y = MODEL_LINE (V, I, X)  dot product of line I (from 1) of the view V with X
function y = model_line (v, i, x)
  k = v.jc(i) + 1:v.jc(i + 1);
  y = 0;
  if ~isempty (k), y = v.pr(k)' * x(v.ir(k) + 1); end
end
