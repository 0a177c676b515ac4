% V = HOSTILE_SHARE ()  every sixth of hostile_values, the next sixth at each call: a sweep over many places tries all of them somewhere. With
% QUARN_FULL=1 in the environment all of them at every call; under sanitizers, and where a suite runs others once more
% (QUARN_REPEATED=1), every twenty-fourth else.
function v = hostile_share ()
  persistent call
  if isempty (call), call = 0; end
  v = hostile_values ();
  if ~isempty (getenv ('QUARN_FULL')), return, end
  apart = 6;
  if ~isempty (getenv ('QUARN_SANITIZED')) || ~isempty (getenv ('QUARN_REPEATED')), apart = 24; end
  v = v(1 + mod (call, apart):apart:end);
  call = call + 1;
end
