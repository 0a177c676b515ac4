% RECORDS = VALIDATION_RECORDS ()  runs every test that calls expect_published, and returns what they compared
%
% A test is run when the call is in the test itself; of the suites published_... of the toolbox, which are no tests of CTest of their own, all
% are.
function records = validation_records ()
  folder = fullfile (project_folder (), 'tests', 'octave', 'suites');
  files = dir (fullfile (folder, '*', 'suite_*.m'));
  names = sort ({files.name});
  expect_published ('record');
  for name = names
    suite = name{1}(1:end - 2);
    code = fileread (which (suite));
    if isempty (strfind (code, 'expect_published (')) || strcmp (suite, 'suite_validation'), continue, end
    code = regexp (code, '\nfunction ', 'split');
    recording = code(~cellfun (@isempty, strfind (code, 'expect_published (')));
    recording = regexp (recording, '^test_\w+', 'match', 'once');
    whole = ~isempty (regexp (which (suite), '/toolbox/suite_published_\w+\.m$', 'once'));
    tests = feval (suite);
    for k = 1:numel (tests)
      test = regexprep (func2str (tests{k}), '^@', '');
      if ~any (strcmp (test, recording)) && ~(whole && strncmp (test, 'test_', 5)), continue, end
      quarn ('chandleclear');
      try
        feval (tests{k});
      catch err
        error ('%s, %s: %s', suite, test, err.message);
      end
    end
  end
  records = expect_published ('record');
end
