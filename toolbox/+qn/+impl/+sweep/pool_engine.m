% E = POOL_ENGINE ()  cases on MATLAB's pool of workers; the fields are those of engine_list
function e = pool_engine ()
  e = struct ('name', 'pool', 'word', 'parallel', 'host', 'matlab', 'lacking', @lacking, 'instead', 'serial', 'run', @run);
end

function why = lacking ()
  why = '';
  if ~exist ('parpool', 'file'), why = 'there is no Parallel Computing Toolbox here: the cases run one after another'; end
end

% At most WORKERS at a time, in rounds: cases in parts of about half a second, as the round before tells. Octave, where this is tested, has no
% pool: its parfor is a loop.
function waiting = run (job, pending, workers, o)
  waiting = false;
  if isempty (workers), workers = Inf; end
  tell = @() qn.impl.sweep.tell (job);
  if ~exist ('OCTAVE_VERSION', 'builtin')
    queue = parallel.pool.DataQueue ();
    afterEach (queue, @(k) qn.impl.sweep.tell (job));
    tell = @() send (queue, 0);
  end
  size = 1;
  parts = 16;
  while ~isempty (pending)
    count = min (size * parts, numel (pending));
    first = 1:size:count;
    begun = tic ();
    parfor (j = 1:numel (first), workers)
      qn.impl.sweep.run_cases (job, pending(first(j):min (first(j) + size - 1, count)), Inf, @(k) 0, @(ended, failed) 0);
      tell ();
    end
    each = toc (begun) / count;
    pending = pending(count + 1:end);
    size = max (1, min (floor (0.5 / each), ceil (numel (pending) / 64)));
    parts = 1000;
  end
end
