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

function test_the_page_has_the_cases_of_the_tests ()
  records = validation_records ();
  wanted = given (validation_text (records));
  page = strsplit (fileread (fullfile (project_folder (), 'docs', 'validation.md')), sprintf ('\n'));
  got = given (page(1:end - 1));
  differs = ~ismember (got, wanted);
  if any (differs), error ('docs/validation.md has what no test compares (make it by scripts/validation): %s', got{find (differs, 1)}); end
  differs = ~ismember (wanted, got);
  if any (differs), error ('docs/validation.md lacks a case (make it by scripts/validation): %s', wanted{find (differs, 1)}); end
  expect_equal (numel (got), numel (wanted));
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

function test_a_value_beyond_its_tolerance_fails ()
  c = published ('none', 'none', {});
  expect_published (c, 'x', [1 2], [1.05 2], 0.1);
  expect_error (@() expect_published (c, 'x', [1 2], [1 2.2], 0.1), '', '~x, 2 is 2.2, published 2, off by 0.2');
  expect_error (@() expect_published (c, 'x', 1, NaN, 0.1), '', '~x is NaN');
  expect_error (@() expect_published (c, 'x', [1 2], 1, 0.1), '', '~2 references, 1 values');
end
