% N = ROUNDS (N)  number of random set-ups to run: a fifth of N under sanitizers, where the host is many times slower
function n = rounds (n)
  if ~isempty (getenv ('QUARN_SANITIZED')), n = ceil (n / 5); end
end
