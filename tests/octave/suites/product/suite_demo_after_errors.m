% A process that has been given every malformed call of the suites in a row still runs the demo, to the bit like a fresh process.
function tests = suite_demo_after_errors ()
  tests = localfunctions ();
end

function test_every_suite_with_malformed_calls_then_the_demo ()
  [suites, count] = run_malformed (fullfile (project_folder (), 'tests', 'octave', 'suites'));
  fprintf ('        %d tests of %d suites\n', count, suites);
  if suites < 30 || count < 290, error ('too few: %d suites, %d tests', suites, count); end
  folders = {tempname(), tempname()};
  for k = 1:2, mkdir (folders{k}); end
  away = onCleanup (@() cellfun (@(f) system (['rm -r ' f]), folders));
  module = fileparts (which ('quarn'));
  demo = fullfile (project_folder (), 'demo', 'run_demo.m');

  [status, text] = octave_says (demo_code (demo, folders{1}, module));
  if status ~= 0, error ('in a fresh process: %s', text); end
  text = run_here (demo, folders{2}, module);
  expect_equal (numel (strfind (text, '  ok  ')), 7);
  fresh_one = load (fullfile (folders{1}, 'results.mat'));
  this_one = load (fullfile (folders{2}, 'results.mat'));
  expect_equal (fieldnames (this_one), fieldnames (fresh_one));
  expect_equal (size (this_one.roof_displacement_m), [1 20001]);
  for name = fieldnames (fresh_one).', expect_equal (bits (this_one.(name{1})), bits (fresh_one.(name{1}))); end
  expect_equal (fileread (fullfile (folders{2}, 'response.csv')), fileread (fullfile (folders{1}, 'response.csv')));
end

% Every test of the module that checks an error, but not those of the toolbox, those that test other processes and those that test the
% tests; with QUARN_FULL=1 the other tests of their suites between them. No reload between them; keys that an error left in the registry are
% taken out, so that each suite finds it empty, as in a process of its own. Each has its full number of random calls where it runs alone;
% here it makes fewer.
function [suites, count] = run_malformed (folder)
  suites = 0;
  count = 0;
  setenv ('QUARN_REPEATED', '1');
  back = onCleanup (@() setenv ('QUARN_REPEATED', ''));
  for file = glob (fullfile (folder, '*', 'suite_*.m')).'
    [within, name] = fileparts (file{1});
    others = ~isempty (regexp (file{1}, '/toolbox/|install|document|leaving|reload|validation|suite_test_|demo_after_errors', 'once'));
    tests = malformed_tests (fileread (file{1}));
    if others || isempty (tests), continue; end
    if ~isempty (getenv ('QUARN_FULL')), tests = {}; end
    suites = suites + 1;
    for key = quarn ('chandleget').', quarn ('chandleclear', key); end
    done = run_suites (name, struct ('quiet', true, 'only', {tests}));
    for test = done.tests
      if strcmp (test.outcome, 'failed'), error ('%s, %s: %s', name, test.name, test.text); end
    end
    count = count + done.passed;
  end
end

% Names of the tests in the code of a suite that check an error, by themselves or by a function of the suite that they call.
function names = malformed_tests (code)
  parts = regexp (code, '\nfunction ', 'split');
  parts = parts(2:end);
  names = regexp (parts, '\w+(?= \()', 'match', 'once');
  wrong = ~cellfun (@isempty, regexp (parts, 'expect_error|expect_refused|own_answer|refused_cleanly', 'once'));
  before = [];
  while ~isequal (wrong, before)
    before = wrong;
    wrong = wrong | ~cellfun (@isempty, regexp (parts, ['\<(' strjoin([names(wrong), {'none of them'}], '|') ')\>'], 'once'));
  end
  names = names(wrong & strncmp (names, 'test_', 5));
end

function test_a_test_that_checks_an_error_is_known_by_what_it_calls ()
  code = sprintf (['function tests = suite_x ()\nend\nfunction test_a ()\n  expect_error (1);\nend\nfunction test_b ()\n  c (2);\nend\n' ...
                   'function test_d ()\n  e = 3;\nend\nfunction c (x)\n  own_answer (x);\nend\n']);
  expect_equal (malformed_tests (code), {'test_a', 'test_b'});
end

function code = demo_code (demo, folder, module)
  code = sprintf ('setenv (''QUARN_DEMO_QUICK'', ''1''); setenv (''QUARN_DEMO_OUT'', ''%s''); addpath (''%s''); source (''%s'');', ...
                  folder, module, demo);
end

function text = run_here (demo, folder, module)
  text = evalc (demo_code (demo, folder, module));
end

function b = bits (x)
  if isstruct (x)
    b = cellfun (@bits, struct2cell (x(:)), 'UniformOutput', false);
  else
    b = typecast (double (x(:)), 'uint64');
  end
end
