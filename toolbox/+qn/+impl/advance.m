% RES = ADVANCE (RES, O)  integrates from the last state of RES to its end, piece by piece
function res = advance (res, o)
  sim = res.sim;
  last = numel (sim.time);
  h = qn.impl.register (res.final.values);
  free = onCleanup (@() delete (h));
  begun = tic ();
  before = res.seconds;
  from = res.final.column;
  told = 0;
  written = 0;
  chunk = 1000;
  if ~isempty (o.piece), chunk = o.piece; end
  while res.final.column < last
    piece_begun = tic ();
    res = qn.impl.piece (res, h, min (res.final.column + chunk, last));
    if isempty (o.piece)
      chunk = max (100, min (10 * chunk, round (chunk * 0.5 / max (toc (piece_begun), 1e-3))));
    end
    res.seconds = before + toc (begun);
    res.complete = res.final.column == last;
    res.time_end = sim.time(res.final.column);
    if o.progress && toc (begun) - told > 1
      told = toc (begun);
      done = res.final.column - 1;
      fprintf ('  %3.0f %%  step %d of %d, %.0f s, %.0f s left\n', 100 * done / (last - 1), done, last - 1, told, ...
               told * (last - res.final.column) / (res.final.column - from));
    end
    lost = any (~isfinite (res.final.u));
    stop = lost || (~isempty (o.stop) && o.stop (res));
    if stop || res.complete || ~isempty (o.save) && toc (begun) - written >= o.interval
      res.final.values = current (res.final.values, h);
      if ~isempty (o.save), keep (res, o.save); end
      written = toc (begun);
    end
    if lost
      warning ('qn:diverged', ['the motion grew beyond all numbers before %g s; qn.check names what the step is too long for, ' ...
                               'qn.advise finds a better one'], res.time_end);
    end
    if stop, break, end
  end
end

% The elements with their present memory.
function values = current (values, h)
  for k = 3:size (values, 1), values{k, 2} = quarn ('chandleget', remi (h, k)); end
end

% Functions do not survive in a file, and a file half written is no use.
function keep (res, file)
  res.sim.options = [];
  part = [file '.part'];
  save ('-v7', part, '-struct', 'res');
  [done, why] = movefile (part, file, 'f');
  if ~done, error ('qn:input', 'qn.run: cannot write %s: %s', file, why); end
end
