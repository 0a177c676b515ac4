% RUN_CASE (JOB, K)  runs case K and leaves the file of its result or of its error, unless another process has left one meanwhile
function run_case (job, k)
  if exist (qn.impl.sweep.file (job, 'case', k), 'file') || exist (qn.impl.sweep.file (job, 'failed', k), 'file'), return, end
  if job.mark, qn.impl.sweep.keep (qn.impl.sweep.file (job, 'begun', k), struct ('case', k)); end
  p = qn.impl.sweep.parameters (job, k);
  before = seeded (k);
  back = onCleanup (@() put_back (before));
  begun = tic ();
  why = [];
  try
    result = job.f (p);
  catch why
  end
  seconds = toc (begun);
  % A file that cannot be written is no failure of the case: it ends the sweep, and the case runs again.
  if isempty (why)
    qn.impl.sweep.keep (qn.impl.sweep.file (job, 'case', k), struct ('result', {result}, 'seconds', seconds));
  else
    qn.impl.sweep.keep (qn.impl.sweep.file (job, 'failed', k), struct ('identifier', why.identifier, 'message', why.message));
  end
  if job.mark, qn.impl.files.remove_file (qn.impl.sweep.file (job, 'begun', k)); end
end

% Random numbers that depend on the case alone, not on the cases that the process ran before. Gives the state until now.
function before = seeded (k)
  if exist ('OCTAVE_VERSION', 'builtin')
    kinds = {@rand, @randn, @rande, @randg, @randp};
    before = cellfun (@(kind) kind ('twister'), kinds, 'UniformOutput', false);
    for j = 1:numel (kinds), kinds{j} ('twister', k); end
  else
    before = rng ();
    rng (k, 'twister');
  end
end

function put_back (before)
  if exist ('OCTAVE_VERSION', 'builtin')
    kinds = {@rand, @randn, @rande, @randg, @randp};
    for j = 1:numel (kinds), kinds{j} ('twister', before{j}); end
  else
    rng (before);
  end
end
