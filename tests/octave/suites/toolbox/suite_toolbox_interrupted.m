% Ctrl-C in a run: in a batch session, at the prompt, and an error in a function of the user, which ends a run in the same way.
function tests = suite_toolbox_interrupted ()
  use_toolbox ();
  tests = localfunctions ();
end

% A run of some seconds, as text.
function text = slow_run (extra)
  text = ['list = {qn.slider(''slip'', 5, ''stiffness'', 1e4), 1}; ' ...
          'sim = qn.simulation (qn.modal (1e4, 1), ''step'', 1e-3, ''steps'', 1000, ''v0'', 1, ''elements'', list); ' ...
          'res = qn.run (sim, ''progress'', false, ''piece'', 10, ''stop'', @slow_stop' extra ');'];
end

function res = whole_run ()
  eval (strrep (slow_run (''), ', ''stop'', @slow_stop', ''));
end

% The same with a law that is a function, in which the time passes.
function text = slow_law_run ()
  text = ['sim = qn.simulation (qn.modal (1e4, 1), ''step'', 1e-3, ''steps'', 1000, ''v0'', 1, ''elements'', ' ...
          '{qn.law(''function'', @(x, v, s, t) slow_law (x, t)), 1}); res = qn.run (sim, ''progress'', false, ''piece'', 10);'];
end

function gone (file)
  if exist (file, 'file'), delete (file); end
end

function part_of_the_whole (part, whole)
  expect_equal (part.complete, false);
  expect_equal (part.time_end > 0.05 && part.time_end < 0.9, true);
  expect_equal (part.time(end), part.time_end);
  expect_equal (part.q, whole.q(:, 1:size (part.q, 2)));
  expect_equal (getfield (qn.resume (part, 'progress', false), 'q'), whole.q);
end

function test_a_run_that_saves_is_saved_when_it_is_interrupted_in_a_batch_session ()
  file = [tempname() '.mat'];
  mark = [file '.mark'];
  clean = onCleanup (@() cellfun (@gone, {file, mark}));
  reached = sprintf ('for i in $(seq 200); do test -e %s && break; sleep 0.1; done', mark);
  command = octave_command (slow_run (sprintf (', ''save'', ''%s''', file)));
  [~, text] = system (sprintf ('{ export SLOW_STOP_MARK=%s; %s & p=$!; %s; kill -INT $p; wait $p; } 2>&1', mark, command, reached));
  said = 'the run ended early; its state at 0\.\d+ s \(\d+ %\) is saved: res = qn.resume \(''.*''\) goes on';
  if isempty (regexp (text, said, 'once'))
    error ('it said "%s"', text);
  end
  part_of_the_whole (qn.impl.files.read_run ('test', file), whole_run ());
end

% What a session says that runs the statement SLOW, gets Ctrl-C when that is under way, and then the statement REST.
function text = interrupted_session (slow, rest)
  if system ('command -v script > /dev/null') ~= 0, error ('this test needs the program script (util-linux)'); end
  if system ('script -qec true /dev/null > /dev/null 2>&1') ~= 0, skip_test ('this system makes no pseudo-terminal (/dev/pts)'); end
  mark = [tempname() '.mark'];
  clean = onCleanup (@() gone (mark));
  reached = sprintf ('for i in $(seq 200); do test -e %s && break; sleep 0.1; done', mark);
  shell = strrep (octave_command (''), ' --eval "', ' --interactive --persist --eval "');
  say = @(text) sprintf ('printf ''%%s\n'' "%s"; ', text);
  keys = [say(slow), reached, '; printf ''\003''; sleep 1; ', say(rest), say('exit'), 'sleep 0.5'];
  inner = strrep (shell, '''', '''\''''');
  [~, text] = system (sprintf ('export SLOW_STOP_MARK=%s; { sleep 1; %s; } | script -qec ''%s'' /dev/null 2>&1', mark, keys, inner));
end

function test_a_run_interrupted_at_the_prompt_leaves_what_it_reached ()
  file = [tempname() '.mat'];
  clean = onCleanup (@() gone (file));
  text = interrupted_session (slow_run (''), sprintf ('part = qn.interrupted (); save (''-binary'', ''%s'', ''part'')', file));
  if isempty (strfind (text, 'the run ended early; part = qn.interrupted () gives what it reached')), error ('it said "%s"', text); end
  part_of_the_whole (getfield (load (file), 'part'), whole_run ());
end

% The interrupt comes in the middle of a step, within the function that the integrator waits for.
function test_a_run_interrupted_in_a_law_that_is_a_function_leaves_session_and_handles_whole ()
  file = [tempname() '.mat'];
  clean = onCleanup (@() gone (file));
  first = 'value = struct (''type'', 1, ''kept'', magic (4)); i = quarn (''chandleset'', 1, value); ';
  last = sprintf (['part = qn.interrupted (); rest = qn.resume (part, ''progress'', false); same = isequal (quarn (''chandleget'', i), value); ' ...
                   'left = quarn (''chandleget''); save (''-binary'', ''%s'', ''part'', ''rest'', ''same'', ''left'', ''i'')'], file);
  text = interrupted_session ([first, slow_law_run()], ['setenv (''SLOW_STOP_MARK'', ''''); ' last]);
  if ~exist (file, 'file'), error ('it said "%s"', text); end
  got = load (file);
  eval (slow_law_run ());
  expect_equal (got.rest.q, res.q);
  expect_equal (got.same, true);
  expect_equal (got.left(:), got.i);                        % those of the run were freed
  expect_equal (got.part.complete, false);
  expect_equal (got.part.time_end > 0.05 && got.part.time_end < 0.95, true);
  expect_equal (got.part.q, res.q(:, 1:size (got.part.q, 2)));
end

% qn.interrupted gave the run that had been interrupted before.
function test_a_run_ended_in_its_first_piece_leaves_the_state_that_it_began_with ()
  spring = @(x, v, s, t, last) 50 * x + 0 * dry (t, last);
  sim = @(last) qn.simulation (qn.modal (100, 1), 'step', 1e-3, 'steps', 1000, 'v0', 1, ...
                               'elements', {qn.law('function', @(x, v, s, t) spring (x, v, s, t, last)), 1});
  silently = @(sim, varargin) evalc ('expect_error (@() qn.run (sim, ''piece'', 100, ''progress'', false, varargin{:}), ''test:dry'', ''~no oil'')');
  silently (sim (0.55));
  before = getfield (qn.interrupted (), 'time_end');        % which of the pieces was noted last is a matter of time
  expect_equal (before > 0.09 && before < 0.51, true);
  other = sim (0.05);
  silently (other);
  part = qn.interrupted ();
  expect_equal (part.time_end, 0);
  expect_equal (part.q, 0);
  expect_equal (part.complete, false);
  expect_equal (part.sim.elements.law.parameters.call, other.elements.law.parameters.call);
end

function y = dry (t, last)
  y = 0;
  if t > last, error ('test:dry', 'no oil'); end
end

function test_a_run_ended_by_an_error_of_the_user_leaves_what_it_reached ()
  sim = qn.simulation (qn.modal (100, 1), 'step', 1e-3, 'steps', 1000, 'v0', 1);
  text = evalc ('expect_error (@() qn.run (sim, ''piece'', 100, ''stop'', @failing), '''', ''a mistake here'');');
  said = '^  the run ended early; part = qn.interrupted \(\) gives what it reached, 0\.\d s \(\d+ %\), qn.resume \(part\) goes on\n$';
  if isempty (regexp (text, said))
    error ('it said "%s"', text);
  end
  expect_equal (getfield (qn.resume (qn.interrupted ()), 'q'), getfield (qn.run (sim), 'q'));
end

function stop = failing (res)
  stop = false;
  if res.time_end > 0.45, error ('a mistake here'); end
end
