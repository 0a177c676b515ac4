% E = POOL_ENGINE ()  cases on MATLAB's pool of workers; the fields are those of engine_list
function e = pool_engine ()
  e = struct ('name', 'pool', 'word', 'parallel', 'host', 'matlab', 'lacking', @lacking, 'instead', 'serial', 'run', @run);
end

function why = lacking ()
  why = '';
  if ~exist ('parpool', 'file'), why = 'there is no Parallel Computing Toolbox here: the cases run one after another'; end
end

% At most WORKERS at a time. Octave, where this is tested, has no pool: its parfor is a loop.
function waiting = run (job, pending, workers, o)
  waiting = false;
  if isempty (workers), workers = Inf; end
  if exist ('OCTAVE_VERSION', 'builtin')
    tell = @() qn.impl.sweep.tell (job);
  else
    queue = parallel.pool.DataQueue ();
    afterEach (queue, @(k) qn.impl.sweep.tell (job));
    tell = @() send (queue, 0);
  end
  parfor (j = 1:numel (pending), workers)
    qn.impl.sweep.run_case (job, pending(j));
    tell ();
  end
end
