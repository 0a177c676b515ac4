% TEXT = SPELT (CASES)  ascending numbers of cases as a file's name has them: [3 4 5 9] is 3-5,9
function text = spelt (cases)
  first = [true, diff(cases) ~= 1];
  last = [first(2:end), true];
  pairs = [cases(first(1:numel (cases))); cases(last)];
  parts = cell (1, size (pairs, 2));
  for k = 1:numel (parts)
    if pairs(1, k) == pairs(2, k), parts{k} = sprintf ('%d', pairs(1, k)); else parts{k} = sprintf ('%d-%d', pairs(:, k)); end
  end
  text = strjoin (parts, ',');
end
