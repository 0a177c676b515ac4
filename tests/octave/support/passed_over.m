% YES = PASSED_OVER (K, APART)  whether a test leaves out its K-th combination: under sanitizers, where the host is many times slower, all but
% every APART-th, with QUARN_FULL=1 none
function yes = passed_over (k, apart)
  yes = ~isempty (getenv ('QUARN_SANITIZED')) && isempty (getenv ('QUARN_FULL')) && mod (k, apart) ~= 0;
end
