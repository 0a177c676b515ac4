% Y = MODEL_FULL_LINE (VALUES, X)  sum of a line whose indices run consecutively, eight entries or more, in the order that quarn sums it
%
% Eight partial sums: entry k (from 0) goes to sum mod (k, 8), in ascending k. Then t_j = s_j + s_(j+4), and (t_0 + t_2) + (t_1 + t_3).
function y = model_full_line (values, x)
  s = zeros (8, 1);
  [values, x] = deal (values(:), x(:));
  for k = 1:8:numel (values)
    at = k:min (k + 7, numel (values));
    s(1:numel (at)) = s(1:numel (at)) + values(at) .* x(at);
  end
  t = s(1:4) + s(5:8);
  y = (t(1) + t(3)) + (t(2) + t(4));
end
