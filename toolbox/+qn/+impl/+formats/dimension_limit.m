% N = DIMENSION_LIMIT (T)  how many columns a sparse matrix from the file T may have: as many as bytes, and a million in any case
%
% A column without an entry takes no room in a file, but eight bytes in memory.
function n = dimension_limit (t)
  n = max (1e6, numel (t.text));
end
