% COUNTS = RUN_SUITES (NAMES, OPTIONS)  runs suites of tests, in Octave and in MATLAB
%
%   run_suites ('suite_newmark', struct ('module', '../../build/release/module'))
%   run_suites ({'suite_tbbp', 'suite_views'}, struct ('pattern', 'refused', 'junit', 'report.xml'))
%   run_suites ()                                     every suite
%
% A suite is a function file suites/FOLDER/SUITE.m that returns localfunctions (); its local functions named test_... are the tests, each
% named after the behaviour that it shows. A test fails by raising an error, and is skipped by calling SKIP_TEST (REASON). A suite that
% cannot be started, and one without a test, count as a failed test.
%
% NAMES    the suites: text or cell of texts (all when empty or left out)
% OPTIONS  structure, every field may be left out:
%          module   folder of the compiled module, put on the path (without it the module must be there)
%          pattern  part of a test's name: only the tests that have it
%          only     cell of names: only these tests
%          suites   folder of the folders of suites
%          junit    file for a report in the XML of JUnit
%          quiet    true prints nothing
%          stop     true ends with the first test that fails
% COUNTS   structure with the numbers passed, failed and skipped, and the fields tests (a structure a test: suite, name, outcome 'passed',
%          'failed' or 'skipped', text, seconds). Without COUNTS an error is raised when a test failed or when there was none to run, so
%          that "matlab -batch run_suites" ends with a non-zero status.
function counts = run_suites (names, options)
  if nargin < 1, names = {}; end
  if nargin < 2, options = struct (); end
  here = fileparts (mfilename ('fullpath'));
  defaults = struct ('module', '', 'pattern', '', 'only', {{}}, 'suites', fullfile (here, 'suites'), 'junit', '', 'quiet', false, 'stop', false);
  for field = fieldnames (defaults).'
    if ~isfield (options, field{1}), options.(field{1}) = defaults.(field{1}); end
  end
  put_on_path (here, options);
  if ~isempty (options.module) && ~options.quiet
    newer = newer_source (fullfile (project_folder (), 'src'), options.module);
    if ~isempty (newer), fprintf ('note: %s is newer than the module (scripts/build release quarn)\n', newer); end
  end
  if isempty (names), names = every_suite (options.suites); end
  if ischar (names), names = {names}; end
  tests = struct ('suite', {}, 'name', {}, 'outcome', {}, 'text', {}, 'seconds', {});
  for k = 1:numel (names)
    if k > 1, empty_registry (); end
    for test = run_one (names{k}, options), tests(end + 1) = test; end
    if stops (tests, options), break, end
  end
  of = @(outcome) sum (strcmp ({tests.outcome}, outcome));
  counts = struct ('passed', of ('passed'), 'failed', of ('failed'), 'skipped', of ('skipped'), 'tests', {tests});
  if ~options.quiet, fprintf ('%d passed, %d failed, %d skipped\n', counts.passed, counts.failed, counts.skipped); end
  if ~isempty (options.junit), write_junit (options.junit, tests); end
  if nargout == 0
    if counts.failed > 0, error ('tests:failed', '%d tests failed', counts.failed); end
    if isempty (tests), error ('tests:none', 'no test was run'); end
    clear counts
  end
end

function put_on_path (here, options)
  if ~isempty (options.module)
    module = absolute (options.module);
    addpath (module);
    % What the tests need compiled is in the build directory, beside the module's folder.
    compiled = fullfile (fileparts (module), 'tests', 'octave');
    if exist (compiled, 'dir'), addpath (compiled); end
  end
  addpath (here);
  addpath (fullfile (here, 'support'));
  addpath (fullfile (here, 'models'));
  addpath (genpath (absolute (options.suites)));
  warning ('off', 'Octave:classdef-to-struct');
end

function folder = absolute (folder)
  [found, place] = fileattrib (folder);
  if ~found, error ('tests:folder', 'there is no folder "%s"', folder); end
  folder = place.Name;
end

function names = every_suite (folder)
  names = {};
  within = dir (folder);
  for k = find ([within.isdir])
    if within(k).name(1) == '.', continue, end
    files = dir (fullfile (folder, within(k).name, 'suite_*.m'));
    for file = {files.name}, names{end + 1} = file{1}(1:end - 2); end
  end
end

% A suite finds no handle of the suite before, as in a process of its own. Clearing all leaves the keys, clearing one removes it.
function empty_registry ()
  try
    for key = quarn ('chandleget').', quarn ('chandleclear', key); end
  catch
    % Without the module every test says so.
  end
end

function done = run_one (suite, options)
  done = struct ('suite', {}, 'name', {}, 'outcome', {}, 'text', {}, 'seconds', {});
  found = 0;
  try
    functions = feval (suite);
  catch err
    done = tell (suite, suite, 'failed', ['the suite cannot be started: ' err.message], 0, options);
    return
  end
  for k = 1:numel (functions)
    name = regexprep (func2str (functions{k}), '^@', '');
    if isempty (regexp (name, '^test_', 'once')), continue, end
    found = found + 1;
    if ~isempty (options.pattern) && isempty (strfind (name, options.pattern)), continue, end
    if ~isempty (options.only) && ~any (strcmp (name, options.only)), continue, end
    done(end + 1) = run_test (suite, name, functions{k}, options);
    if stops (done, options), break, end
  end
  if found == 0, done = tell (suite, suite, 'failed', 'the suite has no test', 0, options); end
end

function yes = stops (tests, options)
  yes = options.stop && any (strcmp ({tests.outcome}, 'failed'));
end

function test = run_test (suite, name, fn, options)
  started = tic ();
  outcome = 'passed';
  text = '';
  try
    quarn ('chandleclear');
    fn ();
  catch err
    text = err.message;
    outcome = 'failed';
    if strcmp (err.identifier, 'tests:skipped')
      outcome = 'skipped';
    else
      for s = 1:numel (err.stack), text = sprintf ('%s\nat %s:%d', text, err.stack(s).name, err.stack(s).line); end
    end
  end
  test = tell (suite, name, outcome, text, toc (started), options);
end

function test = tell (suite, name, outcome, text, seconds, options)
  test = struct ('suite', suite, 'name', name, 'outcome', outcome, 'text', text, 'seconds', seconds);
  if options.quiet, return, end
  said = struct ('passed', 'ok     ', 'failed', 'FAILED ', 'skipped', 'skipped');
  fprintf ('%s %s\n', said.(outcome), name);
  if ~isempty (text), fprintf ('        %s\n', strrep (text, char (10), [char(10) '        '])); end
end
