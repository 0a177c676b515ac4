% The module is unloaded, and the host ends, at any moment: after every command, in every way. A few of the cases by default; with the
% environment variable QUARN_FULL set, all commands with all ways to end the process and 1,000 rounds of "clear".
function tests = suite_leaving ()
  tests = localfunctions ();
end

function n = scaled (n, few)
  if isempty (getenv ('QUARN_FULL')), n = few; end
end

function test_clear_after_any_command ()
  rand ('twister', 42);
  commands = every_command ();
  count = scaled (1000, 60);
  for k = 1:count
    last = commands(randi (numel (commands), 1, randi (3)));
    clear ('quarn');
    for command = last(:).', run_one (command, k); end
    clear ('quarn');
    expect_equal (mislocked ('quarn'), false);
    expect_equal (quarn ('chandleget'), zeros (0, 1));
  end
  fprintf ('        %d rounds\n', count);
end

function run_one (command, k)
  try
    command.run ();
  catch err
    error ('round %d, %s: %s', k, command.name, err.message);
  end
end

% With one processor the workers are seldom there when a product ends: their arena must not keep the scheduler from ending.
function test_worker_threads_end_on_one_processor ()
  code = {sprintf('addpath (''%s''); addpath (''%s'');', fileparts (which ('quarn')), fileparts (which ('fresh'))), ...
          'for k = 1:200', 'for j = 1:mod (k, 4) + 1, worker_product (); end', 'clear quarn', 'end', 'worker_product ();'};
  first_one = '$(taskset -cp $$ | sed ''s/.*: *\([0-9]*\).*/\1/'')';
  [status, text] = octave_says (sprintf ('%s\n', code{:}), ['timeout -s KILL 200 taskset -c ' first_one]);
  expect_equal (text, '');
  expect_equal (status, 0);
end

% Name of each way, the code that ends the process, its exit status and what it must print (a regular expression).
function w = ways ()
  rows = {'end of the script', '', 0, ''; ...
          'exit', 'exit', 0, ''; ...
          'exit with a status', 'exit (7)', 7, ''; ...
          'quit in a function', 'f = @() quit (); cellfun (f, {}); f ()', 0, ''; ...
          'error', 'error (''own:id'', ''own text'')', 1, 'error: own text\serror: called from\s+script at line \d+ column \d+\s*'; ...
          'error of the module', 'quarn (''tbbp'', 1)', 1, 'error: quarn: quarn tbbp : .*'; ...
          'clear and exit', 'clear quarn; exit', 0, ''; ...
          'clear all', 'clear all', 0, ''; ...
          'clear, load again, exit', 'clear quarn; quarn (''ismex''); exit', 0, ''; ...
          'exit in a callback', 'h = quarn (''chandleset'', 1, 5); quarn (''chandleget'', @(x) exit (x), h)', 5, ''; ...
          'the module called at exit', 'function last_call (), quarn (''chandleset'', 1, 1); end, atexit (''last_call''); exit', 0, ''; ...
          'the module called by a clean-up', 'kept = onCleanup (@() quarn (''chandleget''));', 0, ''; ...
          'signal', 'kill (getpid (), SIG ().TERM); pause (60)', 1, '(?s).*stopping myself.*'};
  w = cell2struct (rows, {'name', 'code', 'status', 'text'}, 2);
end

function test_host_ends_in_any_way_after_any_command ()
  rand ('twister', 42);
  commands = every_command ();
  all = ways ();
  [command, way] = ndgrid (1:numel (commands), 1:numel (all));
  order = randperm (numel (command));
  order = order(1:scaled (numel (order), 12));
  folders = {fileparts(which ('quarn')), fileparts(which ('fresh'))};
  start = sprintf ('addpath (''%s''); ', folders{:});
  faults = {};
  for k = order
    w = all(way(k));
    code = sprintf ('%scommands = every_command (); commands(%d).run ();\n%s', start, command(k), w.code);
    [status, text] = octave_says (code);
    printed = strcmp (text, w.text) || (~isempty (w.text) && ~isempty (regexp (text, ['^' w.text '$'], 'once')));
    if status ~= w.status || ~printed
      faults{end + 1} = sprintf ('%s, then %s: status %d, printed "%s"\n', commands(command(k)).name, w.name, status, text);
    end
  end
  fprintf ('        %d ends of a process\n', numel (order));
  if ~isempty (faults), error ('%d of %d ended otherwise:\n%s', numel (faults), numel (order), [faults{:}]); end
end

function test_a_child_of_a_process_with_worker_threads_multiplies_and_ends ()
  folders = {fileparts(which ('quarn')), fileparts(which ('fresh'))};
  code = {sprintf('addpath (''%s''); ', folders{:}), ...
          'worker_product ();', ...
          'pid = fork ();', ...
          'if pid == 0, worker_product (); exit (3); end', ...
          '[pid, status] = waitpid (pid);', ...
          'worker_product ();', ...
          'fprintf (''%d\n'', WEXITSTATUS (status));'};
  [status, text] = octave_says (sprintf ('%s\n', code{:}), 'timeout -s KILL 100');
  expect_equal ({status, text}, {0, sprintf('3\n')});
end
