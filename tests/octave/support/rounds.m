% N = ROUNDS (N)  number of random set-ups to run: N with QUARN_FULL=1 in the environment, a third of it else; of that a fifth under
% sanitizers, where the host is many times slower, and where a suite runs others once more (QUARN_REPEATED=1)
function n = rounds (n)
  if isempty (getenv ('QUARN_FULL')), n = n / 3; end
  if ~isempty (getenv ('QUARN_SANITIZED')) || ~isempty (getenv ('QUARN_REPEATED')), n = n / 5; end
  n = ceil (n);
end
