% SKIP_TEST (REASON)  ends the test that calls it: it cannot show anything here, for this REASON, and counts as skipped
function skip_test (reason)
  error ('tests:skipped', '%s', reason);
end
