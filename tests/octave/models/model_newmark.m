% S = MODEL_NEWMARK (LIST, MODEL, U, V, A, OPT, MEM, OUT)
%
% A whole run of the diagonal Newmark integrator in plain Octave. The arguments are those of the command, LIST a cell with the
% integrator first. S holds every array after the run: list, model, u, v, a, mem, out.
function s = model_newmark (list, model, u, v, a, opt, mem, out)
  for k = 2:numel (list)
    if any (list{k}.type == [1 2 3]), list{k} = model_linear_init (list{k}); end
  end
  s = struct ('model', model, 'mem', mem, 'out', out);
  s.list = list;
  ctx = context (model, u, v, a, opt);
  run = plan (list{1}, s, ctx);
  for j = 0:size (list{1}.tft, 2) - 2
    [s, ctx, run] = one_step (s, ctx, run, j);
  end
  s.u = ctx.u;
  s.v = ctx.v;
  s.a = ctx.a;
  if ~isempty (ctx.FNL), s.model.FNL = reshape (ctx.FNL, size (model.FNL)); end
end

function ctx = context (model, u, v, a, opt)
  rayleigh = opt;
  if isstruct (opt)
    rayleigh = [];
    if isfield (opt, 'Rayleigh'), rayleigh = opt.Rayleigh; end
  end
  rayleigh = [rayleigh(:); 0; 0];
  ctx = struct ('u', u, 'v', v, 'a', a, 'alpha', rayleigh(1), 'beta', rayleigh(2), 'FNL', []);
  if isstruct (model) && isfield (model, 'FNL'), ctx.FNL = model.FNL(:); end
end

function run = plan (integrator, s, ctx)
  run = struct ('N', size (integrator.r, 1), 'Nb', size (integrator.r, 2) - 2, 'jSave', 0, 'jFNLSave', 0);
  run.gain = integrator.r(:, min (3, size (integrator.r, 2)));
  run.NFNL = 0;
  if isfield (s.mem.uva, 'FNL') && ~isempty (ctx.FNL), run.NFNL = min (size (s.mem.uva.FNL, 1), size (s.model.FNL, 1)); end
  run.times = [];
  run.FNLtimes = [];
  run.Ndef = run.N;
  run.NSave = 0;
  if isfield (s.out, 'data'), run.times = s.out.data(1:size (s.out.data, 1)); end
  if isfield (s.out, 'def')
    run.Ndef = size (s.out.def, 1);
    run.NSave = min (numel (run.times), floor (numel (s.out.def) / run.N));
  end
  if isfield (s.out, 'FNL'), run.FNLtimes = s.out.FNL.data(1:size (s.out.FNL.data, 1)); end
end

function [s, ctx, run] = one_step (s, ctx, run, j)
  integrator = s.list{1};
  n = 1:run.N;
  d = integrator.data;
  t = integrator.tft(1, j + 2);
  s.list{1}.data(6) = t;
  uva = s.mem.uva.uva(:);
  uva(1:3 * run.Ndef) = [ctx.u(1:run.Ndef); ctx.v(1:run.Ndef); ctx.a(1:run.Ndef)];
  if run.NFNL > 0, s.mem.uva.FNL(1:run.NFNL) = ctx.FNL(1:run.NFNL); end
  f = integrator.tft(2:end, j + 1);
  if isfield (integrator, 'iopt') && ~isempty (ctx.FNL), ctx.FNL(double (integrator.iopt(1)) + (1:run.Nb)) = f; end
  ctx.u(n) = (d(2) * ctx.a(n) + d(1) * ctx.v(n)) + ctx.u(n);
  ctx.v(n) = d(3) * ctx.a(n) + ctx.v(n);
  ctx.a(n) = 0;
  % The handles see the work array from 3*Ndef on: one value per row of u.
  fmod = uva(3 * run.Ndef + 1:end);
  fmod(n) = 0;
  ctx.t = t;
  for k = 1:run.Nb, fmod(n) = fmod(n) + integrator.r(:, k + 1) * f(k); end
  for k = 2:numel (s.list)
    if s.list{k}.type == 1003
      [fmod, s.list{k}, ctx] = model_element_residual (s.list{k}, fmod, t, ctx);
    elseif s.list{k}.type < 1000
      fmod = model_linear_residual (s.list{k}, fmod, ctx);
    end
  end
  uva(3 * run.Ndef + 1:end) = fmod;
  s.mem.uva.uva = reshape (uva, size (s.mem.uva.uva));
  step = correction (integrator, fmod(n), run.gain, t);
  ctx.u(n) = ctx.u(n) - step;
  ctx.v(n) = ctx.v(n) - d(4) * step;
  ctx.a(n) = ctx.a(n) - step * d(5);
  for k = 2:numel (s.list)
    if s.list{k}.type == 1003, s.list{k} = model_element_end_step (s.list{k}); end
  end
  [s, run] = save_outputs (s, ctx, run, t);
end

% A matrix gain adds its columns times the residuals in ascending order; between two pages, those of both.
function step = correction (integrator, f, gain, t)
  if ~isfield (integrator, 'gain') || isempty (integrator.gain)
    step = f .* gain;
    return
  end
  step = zeros (numel (f), 1);
  page = integrator.gain;
  if isfield (integrator, 'gaint') && ~isempty (integrator.gaint)
    [at, w] = place_of_time (integrator.gaint(:).', t);
    page = integrator.gain(:, :, at);
    if w > 0
      page = [page, integrator.gain(:, :, at + 1)];
      f = [(1 - w) * f; w * f];
    end
  end
  for j = 1:numel (f), step = step + page(:, j) * f(j); end
end

function [s, run] = save_outputs (s, ctx, run, t)
  while run.jSave < run.NSave && t > run.times(run.jSave + 1), run.jSave = run.jSave + 1; end
  if run.jSave < run.NSave && t == run.times(run.jSave + 1) && (run.jSave + 1) * run.Ndef <= numel (s.out.def)
    s.out.def(run.jSave * run.Ndef + (1:run.Ndef)) = ctx.u(1:run.Ndef);
  end
  count = numel (run.FNLtimes);
  while run.jFNLSave < count && t > run.FNLtimes(run.jFNLSave + 1), run.jFNLSave = run.jFNLSave + 1; end
  % The FNL output compares with the output times at its own cursor.
  at = run.jFNLSave + 1;
  if at <= count && at <= numel (run.times) && t == run.times(at) && at * run.NFNL <= numel (s.out.FNL.def)
    s.out.FNL.def((at - 1) * run.NFNL + (1:run.NFNL)) = ctx.FNL(1:run.NFNL);
  end
end
