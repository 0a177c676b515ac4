% RES = ADVANCE (RES, O)  integrates from the last state of RES to its end, piece by piece
function res = advance (res, o)
  sim = res.sim;
  last = numel (sim.time);
  kept = sum (sim.saved <= res.final.column);
  if ~isempty (o.save)
    qn.impl.savable ('qn.run', sim);
    o.save = can_write (o.save);
  end
  h = qn.impl.register ([res.final.values; qn.impl.turning_values(sim)]);
  free = onCleanup (@() delete (h));
  limit = qn.impl.energy_limit (sim, res.final);
  begun = tic ();
  before = res.seconds;
  from = res.final.column;
  key = qn.impl.reached (qn.impl.sized (res, numel (sim.saved)));
  res = rmfield (res, {'q', 'state', 'force', 'time'});
  qn.impl.reached (key, res, kept);
  watch = onCleanup (@() ended_early (key, from, o));
  told = 0;
  written = 0;
  noting = 0;
  chunk = 1000;
  if ~isempty (o.piece), chunk = o.piece; end
  most = max (100, ceil (4e6 / numel (res.final.u) * last / numel (sim.saved)));  % 32 MB of results: they are in memory twice for a moment
  while res.final.column < last
    piece_begun = tic ();
    [next, part, wanted] = qn.impl.piece (sim, res.final, h, min (res.final.column + chunk, last), kept);
    qn.impl.reached (key, wanted, part);
    res.diverged = ~within_numbers ([next.u; next.v; next.a]);
    if res.diverged
      good = find (~within_numbers ([part.q; part.state; part.force]), 1) - 1;
      if isempty (good), good = numel (wanted); end
      kept = kept + good;
      if good > 0, res.time_end = sim.time(sim.saved(kept)); end
    else
      if isfinite (limit)
        limit = limit + qn.impl.pushed (sim, res.final.column, next.column);
        limit = judged (sim, next, limit);
      end
      res.final = next;
      kept = kept + numel (wanted);
      res.time_end = sim.time(next.column);
    end
    if isempty (o.piece)
      chunk = max (100, min ([10 * chunk, most, round(chunk * 0.5 / max (toc (piece_begun), 1e-3))]));
    end
    res.seconds = before + toc (begun);
    res.complete = res.final.column == last;
    if o.progress && ~res.diverged && toc (begun) - told > 1
      told = toc (begun);
      done = res.final.column - 1;
      fprintf ('  %3.0f %%  step %d of %d, %.0f s, %.0f s left\n', 100 * done / (last - 1), done, last - 1, told, ...
               told * (last - res.final.column) / (res.final.column - from));
      if exist ('OCTAVE_VERSION', 'builtin'), fflush (stdout ()); end
    end
    if ~res.diverged && ~res.complete && toc (begun) >= noting
      % Until the copies of the elements that this takes have cost a twentieth of the time.
      noted = cputime ();
      res.final.values = current (res.final.values, h);
      qn.impl.reached (key, res, kept);
      noting = toc (begun) + 20 * (cputime () - noted);
    end
    stop = res.diverged || (~isempty (o.stop) && o.stop (with_history (res, key, numel (sim.saved))));
    due = ~isempty (o.save) && toc (begun) - written >= o.interval;
    if stop || res.complete || due, res.final.values = current (res.final.values, h); end
    if ~isempty (o.save) && (stop || res.complete || due)
      qn.impl.files.save_run (with_history (res, key, kept), o.save, o.progress);
      written = toc (begun);
    end
    if res.diverged
      warning ('qn:diverged', ['the motion grew beyond all numbers before %g s; the results end at %g s. qn.check names what the ' ...
                               'step is too long for, qn.advise finds a better one'], sim.time(next.column), res.time_end);
    end
    if stop, break, end
  end
  res = with_history (res, key, kept);
  qn.impl.reached (key);
end

% The result with the first K columns of its histories, and its fields in their order.
function res = with_history (res, key, k)
  so_far = qn.impl.reached (key, 'so far');
  for name = fieldnames (res).', so_far.(name{1}) = res.(name{1}); end
  res = qn.impl.sized (so_far, k);
end

% What qn.run says about the motion S at a time, once: LIMIT is then infinite.
function limit = judged (sim, s, limit)
  times = qn.impl.motion (sim, s) / limit;
  if ~(times > 3), return, end
  warning ('qn:growth', ['at %g s the motion has %.2g times the energy that the initial state and the loads can have given it: the ' ...
                         'time steps feed it, and the results are wrong. qn.check names what the step is too long for, qn.advise ' ...
                         'finds a better one'], sim.time(s.column), times ^ 2);
  limit = Inf;
end

% One answer a column. Squares of what is let pass are numbers still.
function good = within_numbers (x)
  good = all (abs (x) < 1e150, 1);
end

% The elements with their present memory.
function values = current (values, h)
  for k = 3:size (values, 1), values{k, 2} = quarn ('chandleget', remi (h, k)); end
end

% Asked before the run, not after it. FILE comes back with its whole path: a function of the user may change the folder.
function file = can_write (file)
  [folder, whole, why] = qn.impl.files.beside (file);
  if isempty (folder), error ('qn:input', 'qn.run: cannot write %s: %s', file, why); end
  [~, ~] = rmdir (folder);
  file = whole;
end

% A run that is ended from outside, by Ctrl-C or by an error in the function of 'stop': what it has reached is not lost.
function ended_early (key, from, o)
  res = qn.impl.reached (key);
  if isempty (res), return, end
  if res.final.column == from
    qn.impl.interrupted (res);
    return
  end
  share = 100 * (res.final.column - 1) / (numel (res.sim.time) - 1);
  if ~isempty (o.save) && qn.impl.files.save_run (res, o.save, o.progress)
    fprintf ('  the run ended early; its state at %g s (%.0f %%) is saved: res = qn.resume (''%s'') goes on\n', res.time_end, share, ...
             strrep (o.save, '''', ''''''));
  else
    qn.impl.interrupted (res);
    fprintf ('  the run ended early; part = qn.interrupted () gives what it reached, %g s (%.0f %%), qn.resume (part) goes on\n', ...
             res.time_end, share);
  end
end
