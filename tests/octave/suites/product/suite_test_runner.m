% The runner of the suites: what it counts, says, writes and ends with.
function tests = suite_test_runner ()
  tests = localfunctions ();
end

function [counts, said] = run (names, varargin)
  options = struct ('suites', folder (), varargin{:});
  [said, counts] = evalc ('run_suites (names, options)');
end

function f = folder ()
  f = fullfile (project_folder (), 'tests', 'octave', 'support', 'runner_suites');
end

% A module that was built before the last change of the sources, whose results say nothing about it.
function test_a_source_that_is_newer_than_the_module_is_named ()
  [root, away] = new_folder ();
  at = @(file, time) system (sprintf ('mkdir -p "$(dirname "%s/%s")" && touch -d "2024-05-06 07:0%d:00" "%s/%s"', root, file, time, root, file));
  cellfun (at, {'src/base/a.h', 'src/b.cpp', 'src/text.md', 'module/quarn.mex'}, {1, 3, 9, 4});
  [src, module] = deal (fullfile (root, 'src'), fullfile (root, 'module'));
  expect_equal (newer_source (src, module), '');
  at ('src/base/a.h', 5);
  expect_equal (newer_source (src, module), fullfile (src, 'base', 'a.h'));
  at ('module/quarn.mex', 6);
  expect_equal (newer_source (src, module), '');
  delete (fullfile (module, 'quarn.mex'));
  expect_equal (newer_source (src, module), '');
end

function test_every_outcome_is_counted_and_said ()
  [counts, said] = run ('suite_with_every_outcome');
  expect_equal ([counts.passed, counts.failed, counts.skipped], [1 2 1]);
  expect_equal ({counts.tests.name}, {'test_that_passes', 'test_that_fails', 'test_that_is_skipped', 'test_that_stops_with_an_error'});
  expect_equal ({counts.tests.outcome}, {'passed', 'failed', 'skipped', 'failed'});
  lines = regexp (said, '\n', 'split');
  expect_equal (lines(1:3), {'ok      test_that_passes', 'FAILED  test_that_fails', '        expected 2, got 1'});
  expect_equal (any (strcmp (lines, '        no "licence" & no <server> here')), true);
  expect_equal (any (strcmp (lines, '        second line')), false);
  expect_equal (any (strcmp (lines, ['        second line' char(1)])), true);
  expect_equal (lines(end - 1:end), {'1 passed, 2 failed, 1 skipped', ''});
  expect_equal (isempty (regexp (said, 'at .*test_that_fails:11', 'once')), false);
end

function test_a_suite_without_tests_and_one_that_cannot_start_have_failed ()
  counts = run ({'suite_without_tests', 'suite_that_cannot_start', 'suite_that_does_not_exist'});
  expect_equal ([counts.passed, counts.failed, counts.skipped], [0 3 0]);
  expect_equal ({counts.tests(1:2).text}, {'the suite has no test', 'the suite cannot be started: broken at the start'});
  expect_equal (isempty (strfind (counts.tests(3).text, 'suite_that_does_not_exist')), false);
end

function test_a_pattern_takes_some_tests ()
  counts = run ('suite_with_every_outcome', 'pattern', 'that_pass');
  expect_equal ([counts.passed, counts.failed, counts.skipped], [1 0 0]);
  counts = run ('suite_with_every_outcome', 'pattern', 'no_such_test');
  expect_equal ([counts.passed, counts.failed, counts.skipped], [0 0 0]);
  expect_equal (numel (counts.tests), 0);
end

function test_a_run_may_stop_at_the_first_test_that_fails ()
  counts = run ({'suite_all_skipped', 'suite_with_every_outcome', 'suite_without_tests'}, 'stop', true);
  expect_equal ({counts.tests.name}, {'test_that_is_skipped', 'test_that_passes', 'test_that_fails'});
end

function test_without_names_every_suite_is_run ()
  counts = run ({});
  expect_equal (numel (unique ({counts.tests.suite})), 4);
  expect_equal ([counts.passed, counts.failed, counts.skipped], [1 4 2]);
end

function test_without_a_result_what_fails_is_an_error ()
  options = struct ('suites', folder (), 'quiet', true);
  expect_error (@() run_suites ('suite_with_every_outcome', options), 'tests:failed', '2 tests failed');
  options.pattern = 'no_such_test';
  expect_error (@() run_suites ('suite_with_every_outcome', options), 'tests:none', 'no test was run');
  options.pattern = 'that_passes';
  run_suites ('suite_with_every_outcome', options);
end

function test_the_report_is_valid_and_complete ()
  [here, clean] = new_folder ();
  file = fullfile (here, 'report.xml');
  run ({'suite_with_every_outcome', 'suite_all_skipped'}, 'junit', file);
  text = regexprep (fileread (file), ' time="[0-9.]+"', '');
  expect_equal (numel (regexp (fileread (file), ' time="\d+\.\d{3}"')), 8);
  lines = regexp (text, '\n', 'split');
  expect_equal (lines([1 2]), {'<?xml version="1.0" encoding="UTF-8"?>', '<testsuites tests="5" failures="2" skipped="2">'});
  suite = 'classname="suite_with_every_outcome"';
  wanted = {'  <testsuite name="suite_all_skipped" tests="1" failures="0" skipped="1">', ...
            '  <testsuite name="suite_with_every_outcome" tests="4" failures="2" skipped="1">', ...
            ['    <testcase ' suite ' name="test_that_passes"/>'], ...
            ['    <testcase ' suite ' name="test_that_is_skipped">' ...
             '<skipped message="no &quot;licence&quot; &amp; no &lt;server&gt; here"/></testcase>']};
  for k = 1:numel (wanted), expect_equal (sum (strcmp (lines, wanted{k})), 1); end
  expect_equal (isempty (strfind (text, '<failure message="first &lt;line&gt; &amp; &quot;more&quot;">first &lt;line&gt;')), false);
  expect_equal (isempty (strfind (text, 'second line?')), false);
  % Well-formed: outside of tags no bracket, every ampersand an entity, and every element closed.
  bare = regexprep (regexprep (text, '<[^<>]*>', ''), '&(amp|lt|gt|quot);', '');
  expect_equal (any (ismember ('<>&', bare)), false);
  expect_equal (numel (regexp (text, '<\w+[^<>/]*>')), numel (regexp (text, '</\w+>')));
end

function test_the_script_ends_with_a_status ()
  expect_equal (status_of ('suite_with_every_outcome'), 1);
  expect_equal (status_of ('suite_with_every_outcome', 'that_passes'), 0);
  expect_equal (status_of ('suite_with_every_outcome', 'no_such_test'), 1);
  expect_equal (status_of ('suite_without_tests'), 1);
  expect_equal (status_of ('suite_that_cannot_start'), 1);
  [status, said] = status_of ('suite_all_skipped');
  expect_equal (status, 0);
  expect_equal (isempty (regexp (said, '\n0 passed, 0 failed, 1 skipped\n$', 'once')), false);
end

function [status, said] = status_of (suite, pattern)
  if nargin < 2, pattern = ''; end
  script = fullfile (project_folder (), 'tests', 'octave', 'run_suite.m');
  [status, said] = system (sprintf ('octave-cli --no-history -qf %s %s %s %s --suites %s 2>&1', ...
                                    script, suite, fileparts (which ('quarn')), pattern, folder ()));
end
