% DONE = SAVE_RUN (RES, FILE, PROGRESS)  stores a result; where that fails the last good file stays, and the warning qn:save says so
function done = save_run (res, file, progress)
  f = qn.impl.files.pack_run (res);
  millions = (numel (f.q) + numel (f.force) + numel (f.state) + numel (f.sim.load_values)) * 8e-6;
  if progress && millions > 50
    fprintf ('  saving %.0f MB in %s\n', millions, file);
    if exist ('OCTAVE_VERSION', 'builtin'), fflush (stdout ()); end
  end
  why = qn.impl.files.write_data (file, f);
  done = isempty (why);
  if done, return, end
  left = 'there is no earlier one';
  if exist (file, 'file'), left = 'the earlier one stays as it was'; end
  warning ('qn:save', 'the state at %g s could not be saved in %s: %s; %s', res.time_end, file, why, left);
end
