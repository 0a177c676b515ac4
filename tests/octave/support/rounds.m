% N = ROUNDS (N)  number of random set-ups to run: N with QUARN_FULL=1 in the environment, a tenth of it else; under sanitizers, where the host
% is many times slower, and where a suite runs others once more (QUARN_REPEATED=1), a fifth of N with it and a thirtieth else
function n = rounds (n)
  short = isempty (getenv ('QUARN_FULL'));
  if ~isempty (getenv ('QUARN_SANITIZED')) || ~isempty (getenv ('QUARN_REPEATED'))
    n = n / 5;
    if short, n = n / 6; end
  elseif short
    n = n / 10;
  end
  n = ceil (n);
end
