% [ENDED, FAILED] = RUN_CASES (JOB, CASES, LIMIT, MARK, SAID)  runs these cases, one after another, and leaves the files of their results and errors
%
% Cases that another process has done meanwhile are passed over. After LIMIT seconds no further case is begun. MARK (K) is called before
% each case, SAID (ENDED, FAILED) after it. However the function ends, by Ctrl-C too, what was done by then is written.
function [ended, failed] = run_cases (job, cases, limit, mark, said)
  [ended, failed] = deal (0, 0);
  before = random_state ();
  back = onCleanup (@() put_back (before));
  number = qn.impl.sweep.bundle ('open', job);
  close = onCleanup (@() qn.impl.sweep.bundle ('close', number));
  begun = tic ();
  looked = tic ();
  wait = 0.3;
  others = false (1, job.n);
  for k = cases
    if toc (looked) > wait
      % Looking takes at most a twentieth of the time.
      before_looking = cputime ();
      [done, not_done] = qn.impl.sweep.state (job);
      others = done | not_done;
      wait = max (0.3, 20 * (cputime () - before_looking));
      looked = tic ();
    end
    if others(k), continue, end
    mark (k);
    result = run_case (job, k);
    if qn.impl.sweep.bundle ('add', number, k, result), qn.impl.sweep.bundle ('write', number); end
    ended = ended + 1;
    failed = failed + (numel (result) == 3);
    said (ended, failed);
    if toc (begun) > limit, break, end
  end
  qn.impl.sweep.bundle ('write', number);
end

% Random numbers depend on the case alone, not on the cases that the process ran before.
function result = run_case (job, k)
  p = qn.impl.sweep.parameters (job, k);
  seed (k);
  begun = tic ();
  try
    result = {job.f(p), toc(begun)};
  catch why
    result = {why.identifier, why.message, toc(begun)};
  end
end

function seed (k)
  if exist ('OCTAVE_VERSION', 'builtin')
    for kind = {@rand, @randn, @rande, @randg, @randp}, kind{1} ('twister', k); end
  else
    rng (k, 'twister');
  end
end

function state = random_state ()
  if exist ('OCTAVE_VERSION', 'builtin')
    state = cellfun (@(kind) kind ('twister'), {@rand, @randn, @rande, @randg, @randp}, 'UniformOutput', false);
  else
    state = rng ();
  end
end

function put_back (state)
  if exist ('OCTAVE_VERSION', 'builtin')
    kinds = {@rand, @randn, @rande, @randg, @randp};
    for j = 1:numel (kinds), kinds{j} ('twister', state{j}); end
  else
    rng (state);
  end
end
