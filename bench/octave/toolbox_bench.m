% What the toolbox takes around the module's own time, in processor time of the process.
%
%   octave-cli --no-history -qf --path toolbox --path build/release/module --path bench/octave --eval "toolbox_bench (false);"
%
% "toolbox parts": setting up, findings, run, saving and what is computed of a result, of the strip of the tutorial and of a chain of 60 modes
% with five elements; "module" is the call of the module alone, for all steps. "toolbox sweep": a case of a sweep that does nothing.
% "toolbox calls": one call of what a script calls most.
function notes = toolbox_bench (quick, only_cases)
  state = warning ('off', 'all');
  back = onCleanup (@() warning (state));
  if nargin > 1
    notes = sweep_of (only_cases, quick);
  elseif quick
    notes = [parts('strip', 100, quick), parts('chain', 100, quick), sweep_of(20, quick), calls(quick)];
  else
    notes = [parts('strip', 4e4, quick), parts('chain', 1e4, quick), parts('chain', 1e5, quick), parts('chain', 1e6, quick), ...
             sweep_of(2e4, quick), calls(quick)];
  end
end

function notes = parts (which, steps, quick)
  [model, set_up, place] = toolbox_bench_model (which);
  sim = set_up (steps);
  res = qn.run (sim, 'progress', false, 'check', false);
  folder = tempname ();
  mkdir (folder);
  tidy = onCleanup (@() removed (folder));
  file = fullfile (folder, 'run.mat');
  works = {'simulation', @() set_up (steps); 'whole', @() qn.run (sim, 'progress', false); 'module', []; 'check before', @() found (sim); ...
           'run, unchecked', @() qn.run (sim, 'progress', false, 'check', false); ...
           'check after', @() qn.impl.check_motion (res, qn.impl.finding ()); ...
           'saving', @() qn.impl.files.save_run (res, file, false); 'reading', @() qn.impl.files.read_run ('qn.resume', file); ...
           'displacement', @() qn.displacement (res, place); 'velocity', @() qn.velocity (res, place); 'energies', @() qn.energies (res); ...
           'dissipated', @() outputs (res)};
  notes = [];
  for k = 1:size (works, 1)
    if isempty (works{k, 2}), s = module_time (sim, quick); else, s = best_time (works{k, 2}, quick); end
    notes = [notes, note('toolbox parts', which, steps, works{k, 1}, s, 1, 0, 0)];
  end
end

function f = found (sim)
  f = qn.check (sim);
end

function d = outputs (res)
  d = qn.dissipated (res);
end

function removed (folder)
  delete (fullfile (folder, '*'));
  rmdir (folder);
end

% The call of the module alone, with everything laid out for it.
function s = module_time (sim, quick)
  s = Inf;
  last = numel (sim.time);
  n = numel (sim.start.u);
  slots = numel (sim.start.FNL);
  value = qn.impl.integrator (sim, 1, last);
  times = sim.time(sim.saved(2:end)).';
  for round = 1:(1 + 2 * ~quick)
    h = qn.impl.register (sim.start.values);
    newmark = chandle (quarn ('chandleset', 2000, value));
    [u, v, a, forces] = deal (qn.impl.fresh (sim.start.u), qn.impl.fresh (sim.start.v), qn.impl.fresh (sim.start.a), qn.impl.fresh (sim.start.FNL));
    mem = struct ('uva', struct ('uva', zeros (4 * n, 1), 'FNL', zeros (slots, 1)));
    out = struct ('data', times, 'def', zeros (n, numel (times)), ...
                  'FNL', struct ('data', times, 'def', zeros (slots, numel (times))));
    begun = cputime ();
    quarn ('chandlediagnewmark', [newmark, h], struct ('FNL', forces), u, v, a, zeros (1, 2), mem, out);
    s = min (s, cputime () - begun);
    delete (newmark);
    delete (h);
  end
end

% No function inside of another one here: in one that has some an anonymous function keeps all of its variables.
function notes = sweep_of (n, quick)
  axis = 1:round (sqrt (n / 2));
  make = @() qn.grid ('a', axis, 'b', 2 * axis, 'kind', {'one', 'two'});
  cases = make ();
  turned = orderfields (cases, {'kind', 'b', 'a'});
  f = @(p) p.a * p.b;
  folder = tempname ();
  o = {'engine', 'serial', 'progress', false, 'folder', folder};
  tidy = onCleanup (@() removed (folder));
  notes = of_sweep ([], cases, 'grid', best_time (make, quick));
  begun = cputime ();
  results = qn.sweep (f, cases, o{:});
  notes = of_sweep (notes, cases, 'whole', cputime () - begun);
  notes(end).difference = double (~isequal (cell2mat (results), reshape ([cases.a] .* [cases.b], size (cases))));
  notes = of_sweep (notes, cases, 'the same call again', best_time (@() qn.sweep (f, cases, o{:}), true));
  notes = of_sweep (notes, cases, 'again, fields in another order', best_time (@() qn.sweep (f, turned, o{:}), true));
end

function notes = of_sweep (notes, cases, part, s)
  notes = [notes, note('toolbox sweep', 'cases', numel (cases), part, s, numel (cases), 0, 0)];
end

function notes = calls (quick)
  notes = [];
  K = 1e6 * toeplitz ([2 -1 zeros(1, 8)]);
  model = qn.modal (K, eye (10), 'modes', 4, 'damping', 0.01);
  row = qn.observe (model, 3);
  law = qn.law ('power', 'stiffness', 1e8, 'exponent', 3);
  set_up = @() qn.simulation (model, 'step', 1e-5, 'steps', 10, 'load', {row.', @(t) sin(t)}, 'elements', {law, row});
  sim = set_up ();
  res = qn.run (sim, 'progress', false, 'check', false);
  film = qn.journal ('viscosity', 0.1, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', 50 * pi);
  works = {'law', @() qn.law ('power', 'stiffness', 1e8, 'exponent', 3); ...
           'gap', @() qn.gap ('gap', 1e-3, 'stiffness', 1e6); ...
           'element', @() qn.element (law, row); ...
           'force', @() qn.force (law, 1e-3); ...
           'observe', @() qn.observe (model, 3); ...
           'load_at', @() qn.load_at (model, 3); ...
           'modal, 10 degrees of freedom', @() qn.modal (K, eye (10), 'modes', 4, 'damping', 0.01); ...
           'scheme', @() qn.scheme ('average'); ...
           'simulation, 10 steps', set_up; ...
           'check, 10 steps', @() found (sim); ...
           'run, 10 steps', @() qn.run (sim, 'progress', false); ...
           'displacement', @() qn.displacement (res, row); ...
           'velocity', @() qn.velocity (res, row); ...
           'energies', @() qn.energies (res); ...
           'describe', @() described (law); ...
           'journal_coefficients', @() qn.journal_coefficients (film, [0 -525])};
  for k = 1:size (works, 1)
    notes = [notes, note('toolbox calls', works{k, 1}, 1, 'whole', best_time (works{k, 2}, quick), 1, 0, 0)];
  end
end

function text = described (law)
  text = qn.describe (law);
end
