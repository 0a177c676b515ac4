% docs/validation.md says what the tests compare.
function tests = suite_validation ()
  use_toolbox ();
  tests = localfunctions ();
end

% Lines of the page that are not blank, without what a machine computes: quarn's value and its difference.
function lines = given (lines)
  lines = lines(~cellfun (@isempty, lines));
  lines = regexprep (lines(:), '^(\| .* \| [^|]+ \|) [^|]+ \| [^|]+ (\| [^|]+ \|)$', '$1$2');
end

% What is wrong with a page of the lines GOT. A new case changes the lists of its beginning as well: a missing case is said first.
function text = difference (got, wanted)
  text = '';
  lacks = wanted(~ismember (wanted, got));
  more = got(~ismember (got, wanted));
  titles = [lacks(strncmp (lacks, '## ', 3)); lacks];
  if ~isempty (lacks)
    text = sprintf ('docs/validation.md lacks what the tests compare, make it by scripts/validation: %s', titles{1});
  elseif ~isempty (more)
    text = sprintf ('docs/validation.md has what no test compares, make it by scripts/validation: %s', more{1});
  elseif numel (got) ~= numel (wanted)
    text = sprintf ('docs/validation.md has %d lines, the tests make %d: make it by scripts/validation', numel (got), numel (wanted));
  end
end

function test_the_page_has_the_cases_of_the_tests ()
  records = validation_records ();
  wanted = given (validation_text (records));
  page = strsplit (fileread (fullfile (project_folder (), 'docs', 'validation.md')), sprintf ('\n'));
  got = given (page(1:end - 1));
  text = difference (got, wanted);
  if ~isempty (text), error ('%s', text); end
  cases = [records.case];
  titles = unique ({cases.title});
  if numel (titles) < 25, error ('only %d cases', numel (titles)); end
  parts = validation_parts ();
  missing = setdiff (parts(:, 1), [cases.shows]);
  if ~isempty (missing), error ('no case shows %s', strjoin (missing.', ', ')); end
  unknown = setdiff ([cases.shows], parts(:, 1));
  if ~isempty (unknown), error ('not in the list of parts: %s', strjoin (unknown, ', ')); end
end

% A changed tolerance, reference or source, and a case that is not there, show; another last digit of a value does not.
function test_what_is_out_of_date_shows ()
  line = '| u at 0.1 s [in] | 0.0437 | 0.04367 | 2.9e-05 | 0.0001 |';
  expect_equal (given ({line}), given ({strrep(line, '0.04367 | 2.9e-05', '0.04368 | 3e-05')}));
  for change = {'0.0437 ', '0.0438 '; '0.0001', '0.0002'; 'u at', 'v at'}.'
    if isequal (given ({line}), given ({strrep(line, change{:})})), error ('%s is not compared', change{1}); end
  end
end

function test_a_page_without_a_case_and_one_with_a_case_too_many_say_which ()
  both = {'2 cases, 4 values.'; '## 1. A beam'; '| u [m] |'; '## 2. A rotor'; '| v [m/s] |'};
  one = [{'1 cases, 2 values.'}; both(2:3)];
  expect_equal (difference (both, both), '');
  expect_in (difference (one, both), 'lacks what the tests compare, make it by scripts/validation: ## 2. A rotor');
  expect_in (difference (both(1:4), both), 'lacks what the tests compare, make it by scripts/validation: | v [m/s] |');
  expect_in (difference (both, both(1:3)), 'has what no test compares, make it by scripts/validation: ## 2. A rotor');
  expect_in (difference (both([1:5 3]), both), 'has 6 lines, the tests make 5');
end

function test_a_value_beyond_its_tolerance_fails ()
  c = published ('none', 'none', {});
  expect_published (c, 'x', [1 2], [1.05 2], 0.1);
  expect_error (@() expect_published (c, 'x', [1 2], [1 2.2], 0.1), '', '~x, 2 is 2.2, published 2, off by 0.2');
  expect_error (@() expect_published (c, 'x', 1, NaN, 0.1), '', '~x is NaN');
  expect_error (@() expect_published (c, 'x', [1 2], 1, 0.1), '', '~2 references, 1 values');
end
