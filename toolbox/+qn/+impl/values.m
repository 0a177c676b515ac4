% V = VALUES (SIM, STEP)  values of the force handles: {1, stiffness}, {3, damping}, {1003, element} ..., one row a handle
function v = values (sim, step)
  n = numel (sim.model.w) + sim.states;
  stiffness = zeros (n, 1);
  stiffness(1:numel (sim.model.w)) = sim.model.stiffness;
  v = {1, diagonal(stiffness)};
  c = sim.model.damping;
  if size (c, 2) == 1
    damping = zeros (n, 1);
    damping(1:numel (c)) = c;
    v(2, :) = {3, diagonal(damping)};
  else
    padded = zeros (n, n);
    padded(1:size (c, 1), 1:size (c, 1)) = c;
    v(2, :) = {3, every_entry(padded.')};
  end
  for k = 1:numel (sim.elements)
    e = sim.elements(k);
    more = zeros (size (e.observe, 1), sim.states);
    state = e.state;
    if state == 0, state = []; end
    v(2 + k, :) = {1003, qn.element(e.law, [e.observe, more], 'command', [e.command, more], 'step', step, 'state', state, 'slot', e.slot)};
  end
end

% As many stored values as columns, zeros included: the module then takes the matrix as diagonal.
function s = diagonal (d)
  n = numel (d);
  s = struct ('ir', int32 ((0:n - 1).'), 'jc', int32 ((0:n).'), 'pr', d, 'dims', [n n], 'trans', 0);
end

% Every entry is stored, so that no matrix beside a diagonal one is taken as diagonal. The lines are the rows of C.
function s = every_entry (c)
  n = size (c, 1);
  s = struct ('ir', int32 (repmat ((0:n - 1).', n, 1)), 'jc', int32 (n * (0:n).'), 'pr', c(:), 'dims', [n n], 'trans', 0);
end
