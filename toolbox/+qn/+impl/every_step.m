% EVERY_STEP (WHO, RES)  refuses a result of which only some of the steps are kept
function every_step (who, res)
  [kept, all_of_them] = deal (numel (res.sim.saved), numel (res.sim.time));
  if kept == all_of_them, return, end
  error ('qn:input', ['%s: the result keeps %d of %d steps ("every" or "times" of qn.simulation), and velocities and energies follow ' ...
                      'from one step to the next. Run it anew without "every" and "times", a long one in parts that go on with ' ...
                      '"start"; displacements and forces at the kept steps are those of the run'], who, kept, all_of_them);
end
