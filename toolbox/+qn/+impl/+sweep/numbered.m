% IS = NUMBERED (TEXT, N)  which of the cases 1 to N are among those of TEXT, lists in the form of spelt with commas between
function is = numbered (text, n)
  is = false (1, n);
  pairs = sscanf (regexprep (text, '(?<![-\d])(\d+)(?![-\d])', '$1-$1'), '%f-%f,', [2, Inf]);
  if isempty (pairs), return, end
  pairs = pairs(:, pairs(1, :) >= 1 & pairs(2, :) <= n & pairs(1, :) <= pairs(2, :));
  steps = accumarray ([pairs(1, :).'; pairs(2, :).' + 1], [ones(size (pairs, 2), 1); -ones(size (pairs, 2), 1)], [n + 1, 1]);
  is = cumsum (steps(1:n)).' > 0;
end
