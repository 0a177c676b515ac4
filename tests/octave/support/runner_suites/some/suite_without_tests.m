% A suite for the test of the runner: it has no test.
function tests = suite_without_tests ()
  tests = localfunctions ();
end

function helper ()
end
