% A suite for the test of the runner: one test passes, two fail, one is skipped.
function tests = suite_with_every_outcome ()
  tests = localfunctions ();
end

function test_that_passes ()
  helper (1);
end

function test_that_fails ()
  expect_equal (helper (1), 2);
end

function test_that_is_skipped ()
  skip_test ('no "licence" & no <server> here');
end

function test_that_stops_with_an_error ()
  error ('own:id', 'first <line> & "more"\nsecond line%s', char (1));
end

function y = helper (x)
  y = x;
end
