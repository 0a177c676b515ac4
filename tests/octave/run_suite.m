% Runs one suite: octave-cli --no-history -qf run_suite.m SUITE MODULE_DIR [PATTERN]
%
% A suite is a function file suites/FOLDER/SUITE.m that returns localfunctions(); its local functions named test_... are the tests, each
% named after the behaviour that it shows. A test fails by raising an error.
args = argv ();
suite = args{1};
here = fileparts (mfilename ('fullpath'));
module = make_absolute_filename (args{2});
addpath (module);
% What the tests need compiled lies in the build directory, beside the module's folder.
compiled = fullfile (module, '..', 'tests', 'octave');
if exist (compiled, 'dir'), addpath (compiled); end
addpath (fullfile (here, 'support'));
addpath (fullfile (here, 'models'));
addpath (genpath (fullfile (here, 'suites')));
pattern = '';
if numel (args) > 2, pattern = args{3}; end
warning ('off', 'Octave:classdef-to-struct');
tests = feval (suite);
passed = 0;
failed = 0;
for k = 1:numel (tests)
  name = func2str (tests{k});
  name = regexprep (name, '^@', '');
  if isempty (regexp (name, '^test_', 'once')) || (~isempty (pattern) && isempty (strfind (name, pattern)))
    continue
  end
  try
    quarn ('chandleclear');
    feval (tests{k});
    passed = passed + 1;
    fprintf ('ok      %s\n', name);
  catch err
    failed = failed + 1;
    fprintf ('FAILED  %s\n        %s\n', name, strrep (err.message, "\n", "\n        "));
    for s = 1:numel (err.stack)
      fprintf ('        at %s:%d\n', err.stack(s).name, err.stack(s).line);
    end
  end
end
fprintf ('%d passed, %d failed\n', passed, failed);
if failed > 0 || passed == 0, exit (1); end
