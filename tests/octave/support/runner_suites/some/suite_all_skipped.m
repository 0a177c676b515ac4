% A suite for the test of the runner: its one test is skipped.
function tests = suite_all_skipped ()
  tests = localfunctions ();
end

function test_that_is_skipped ()
  skip_test ('never here');
end
