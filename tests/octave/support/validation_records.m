% RECORDS = VALIDATION_RECORDS ()  runs every test that calls expect_published, and returns what they compared
%
% A test is run when the call is in the test itself.
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
    tests = feval (suite);
    for k = 1:numel (tests)
      if ~any (strcmp (regexprep (func2str (tests{k}), '^@', ''), recording)), continue, end
      quarn ('chandleclear');
      feval (tests{k});
    end
  end
  records = expect_published ('record');
end
