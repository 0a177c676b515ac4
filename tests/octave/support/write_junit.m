% WRITE_JUNIT (FILE, TESTS)  report of the TESTS of RUN_SUITES in the XML of JUnit, which build servers read
function write_junit (file, tests)
  id = fopen (file, 'w', 'n', 'UTF-8');
  if id < 0, error ('the report "%s" cannot be written', file); end
  close_it = onCleanup (@() fclose (id));
  fprintf (id, '<?xml version="1.0" encoding="UTF-8"?>\n<testsuites%s>\n', totals (tests));
  suites = unique ({tests.suite});
  for k = 1:numel (suites)
    of_suite = tests(strcmp ({tests.suite}, suites{k}));
    fprintf (id, '  <testsuite name="%s"%s>\n', escaped (suites{k}), totals (of_suite));
    for test = of_suite, write_test (id, test); end
    fprintf (id, '  </testsuite>\n');
  end
  fprintf (id, '</testsuites>\n');
end

function text = totals (tests)
  of = @(outcome) sum (strcmp ({tests.outcome}, outcome));
  text = sprintf (' tests="%d" failures="%d" skipped="%d" time="%.3f"', numel (tests), of ('failed'), of ('skipped'), sum ([tests.seconds]));
end

function write_test (id, test)
  fprintf (id, '    <testcase classname="%s" name="%s" time="%.3f"', escaped (test.suite), escaped (test.name), test.seconds);
  lines = regexp (test.text, '\n', 'split');
  switch test.outcome
    case 'passed'
      fprintf (id, '/>\n');
    case 'skipped'
      fprintf (id, '><skipped message="%s"/></testcase>\n', escaped (test.text));
    case 'failed'
      fprintf (id, '><failure message="%s">%s</failure></testcase>\n', escaped (lines{1}), escaped (test.text));
  end
end

% XML holds no control characters but line ends and tabs.
function text = escaped (text)
  text(text < 32 & text ~= 9 & text ~= 10 & text ~= 13) = '?';
  pairs = {'&', '&amp;'; '<', '&lt;'; '>', '&gt;'; '"', '&quot;'};
  for k = 1:4, text = strrep (text, pairs{k, 1}, pairs{k, 2}); end
end
