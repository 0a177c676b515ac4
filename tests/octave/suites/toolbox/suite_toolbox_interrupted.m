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

function gone (file)
  if exist (file, 'file'), delete (file); end
end

function part_of_the_whole (part)
  whole = whole_run ();
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
  part_of_the_whole (qn.impl.files.read_run ('test', file));
end

function test_a_run_interrupted_at_the_prompt_leaves_what_it_reached ()
  if system ('command -v script > /dev/null') ~= 0, error ('this test needs the program script (util-linux)'); end
  if system ('script -qec true /dev/null > /dev/null 2>&1') ~= 0, skip_test ('this system makes no pseudo-terminal (/dev/pts)'); end
  file = [tempname() '.mat'];
  mark = [file '.mark'];
  clean = onCleanup (@() cellfun (@gone, {file, mark}));
  reached = sprintf ('for i in $(seq 200); do test -e %s && break; sleep 0.1; done', mark);
  shell = strrep (octave_command (''), ' --eval "', ' --interactive --persist --eval "');
  say = @(text) sprintf ('printf ''%%s\\n'' "%s"; ', text);
  keys = [say(slow_run ('')), reached, '; printf ''\003''; sleep 1; ', ...
          say(sprintf ('part = qn.interrupted (); save (''-binary'', ''%s'', ''part'')', file)), say('exit'), 'sleep 0.5'];
  inner = strrep (shell, '''', '''\''''');
  [~, text] = system (sprintf ('export SLOW_STOP_MARK=%s; { sleep 1; %s; } | script -qec ''%s'' /dev/null 2>&1', mark, keys, inner));
  if isempty (strfind (text, 'the run ended early; part = qn.interrupted () gives what it reached')), error ('it said "%s"', text); end
  part_of_the_whole (getfield (load (file), 'part'));
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
