% [TEXTS, COUNT] = SOAK_ERRORS (K, COUNT, REAL)  malformed calls: the texts of their errors, one character after the other
%
% Calls with an error that is known, each several times, then arrays of every kind in one place of two commands, whose answers must be in
% the module's own words. K says which place.
function [texts, count] = soak_errors (round, count, real)
  k = matrix_lines (eye (3));
  x = ones (3, 1);
  run = small_run ();
  other = run;
  other.list{2}.type = 77;
  far = fresh (run);
  far.list{2}.ir(1) = int32 (3);
  wrong = {{'nothing'}, {'residual'}, {'residual', x}, {'residual', x, {k}, x, x, x}, {'residual', x, {k, k, eye(3)}, x, x, x}, ...
           {'residual', ones(2, 1), {k, k, k}, x, x, x}, {'residual', x * 1i, {k, k, k}, x, x, x}, ...
           {'residual', x, chandle([1 2 3]), x, x, x}, {'residual', x, {speye(3), k, k}, x, x, x}, ...
           {'chandleset', 5, k}, {'chandleset'}, {'chandleget', 1e9}, {'chandleget', @sin, 1, 2}, {'chandleclear', 'x', 'y'}, ...
           {'tbbp', k, x, ones(2, 1)}, {'tbbp', eye(3), x, x}, {'abc', x, k, x, [1 0 0]}, {'abc', ones(2, 1), k, x, int32([1 0 0])}, ...
           {'setsparse', k}, {'c<-a''*b', eye(2), k}, {'dtkt', x}, {'ta''*k*tb', x, x, x}, {'igsm'}, {'directzr', x, {1}, x, x}, ...
           {'energies', x, x}, {'energies', x, x, x, [1 0.5], x, x, x, ones(1, 2)}, ...
           {'chandlediagnewmark', x}, {'chandlediagnewmark', 1, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, ...
           {'chandlediagnewmark', other.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, ...
           {'chandlediagnewmark', far.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}, ...
           {'chandlediagnewmark', run.list, run.model, run.u, run.v, run.u, run.opt, run.mem, run.out}};
  texts = '';
  for j = 1:numel (wrong)
    for again = 1:5, text = text_of (wrong{j}); end
    texts = [texts text];
  end
  count.errors = count.errors + 5 * numel (wrong);
  texts = double (texts(:));

  values = hostile_values ();
  calls = {{'residual', zeros(3, 1), {k, k, k}, x, x, x, [0.5 0.5], []}, ...
           {'chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out}};
  for c = 1:2
    place = 2 + mod (round, numel (calls{c}) - 1);
    for j = 1:numel (values)
      bad = calls{c};
      bad{place} = values{j};
      if real
        own_answer (@() quarn (bad{:}));
      else
        text_of (bad);
      end
    end
    count.errors = count.errors + numel (values);
  end
  for key = quarn ('chandleget').', quarn ('chandleclear', key); end   % keys that were asked for stay listed
end

function text = text_of (call)
  try
    quarn (call{:});
    error ('%s', 'no error');
  catch err
    text = [err.identifier ' ' err.message];
  end
end
