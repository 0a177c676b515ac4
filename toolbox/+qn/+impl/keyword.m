% CODE = KEYWORD (WORD)  number by which the module knows a law: its characters, the first in the lowest byte
function code = keyword (word)
  code = sum (double (word) .* 256 .^ (0:numel (word) - 1));
end
