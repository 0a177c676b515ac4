% E = SERIAL_ENGINE ()  one case after another in this process; the fields are those of engine_list
function e = serial_engine ()
  e = struct ('name', 'serial', 'word', 'serial', 'host', '', 'lacking', @() '', 'instead', '', 'run', @run);
end

function waiting = run (job, pending, workers, o)
  waiting = false;
  qn.impl.sweep.run_cases (job, pending, Inf, @(k) 0, @(ended, failed) qn.impl.sweep.tell (job, ended, failed));
end
