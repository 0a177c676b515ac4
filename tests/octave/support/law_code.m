% CODE = LAW_CODE (WORD)  number that selects a force law: the characters of WORD, the first in the lowest byte
function code = law_code (word)
  code = sum (double (word) .* 256 .^ (0:numel (word) - 1));
end
