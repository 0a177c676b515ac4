% A suite for the test of the runner: calling it raises an error.
function tests = suite_that_cannot_start ()
  error ('broken at the start');
end
