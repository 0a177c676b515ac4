% FACTS = SET_UP (SIM)  model, scheme, steps, initial state and what is kept, rows of a name and what is said
function facts = set_up (sim)
  speeds = [];
  if qn.impl.runs_up (sim), speeds = qn.impl.speed_at (sim, sim.time); end
  scheme = sprintf ('Newmark, beta %.6g, gamma %.6g', sim.scheme.beta, sim.scheme.gamma);
  if isfield (sim.scheme, 'name'), scheme = sprintf ('%s (%s)', scheme, sim.scheme.name); end
  steps = sprintf ('%.6g s, %s from %.6g to %.6g s', sim.step, qn.impl.words.count (numel (sim.time) - 1, 'step', 'steps'), ...
                   sim.time([1 end]));
  n = numel (sim.model.w);
  v = norm (sim.start.v(1:n)) ^ 2 / 2;
  start = 'at rest';
  if any (sim.start.u(1:n)) || v > 0, start = sprintf ('in motion or displaced; kinetic energy %.4g J', v); end
  facts = [qn.impl.words.model(sim.model, speeds)
           {'Changes with time', tables_of(sim); 'Scheme', scheme; 'Step', steps; 'Start', start; 'Kept', kept_of(sim)}];
end

function text = tables_of (sim)
  text = '';
  if ~isfield (sim, 'varying') || isempty (sim.varying), return, end
  count = @qn.impl.words.count;
  k = sum ([sim.varying.type] == 1);
  c = sum ([sim.varying.type] == 3);
  parts = {count(k, 'matrix of stiffness', 'matrices of stiffness'), count(c, 'matrix of damping', 'matrices of damping')};
  text = [strjoin(parts([k > 0, c > 0]), ' and '), ', by tables'];
end

% The times at which results are kept, and what of each.
function text = kept_of (sim)
  count = @qn.impl.words.count;
  gaps = unique (diff (sim.saved));
  how = 'at chosen steps';
  if isequal (gaps, 1), how = 'at every step'; end
  if numel (gaps) == 1 && gaps > 1, how = sprintf ('at one step of %d', gaps); end
  what = {count(numel (sim.model.w), 'modal coordinate', 'modal coordinates')};
  forces = numel ([sim.elements.forces]);
  if forces > 0, what{end + 1} = count (forces, 'force of elements', 'forces of elements'); end
  if sim.states > 0, what{end + 1} = count (sim.states, 'value of memory', 'values of memory'); end
  text = sprintf ('%s, %s: %s', count (numel (sim.saved), 'time', 'times'), how, strjoin (what, ', '));
end
