% E = SERIAL_ENGINE ()  one case after another in this process; the fields are those of engine_list
function e = serial_engine ()
  e = struct ('name', 'serial', 'word', 'serial', 'host', '', 'lacking', @() '', 'instead', '', 'run', @run);
end

function waiting = run (job, pending, workers, o)
  waiting = false;
  for k = pending
    qn.impl.sweep.run_case (job, k);
    qn.impl.sweep.tell (job);
  end
end
