% FOUND = CHECK_ARRAYS (SIM)  classes, lengths and values of what will be handed to the module
function found = check_arrays (sim)
  found = struct ('level', {}, 'text', {});
  m = numel (sim.model.w);
  k = numel (sim.time);
  expect (isa (sim.time, 'double') && k > 1 && all (diff (sim.time) > 0), ...
          'the times must be doubles that ascend; make the set-up anew with qn.simulation');
  numbers = isa (sim.saved, 'double') && all (sim.saved >= 1 & sim.saved <= k & sim.saved == fix (sim.saved));
  expect (numbers && all (diff (sim.saved) > 0), ...
          '"saved" must be ascending numbers of time points from 1 to %d', k);
  expect (isa (sim.loads, 'double') && isequal (size (sim.loads), [size(sim.shapes, 2), k]) && size (sim.shapes, 1) == m, ...
          'there must be one row of %d loads for each of the %d shapes of %d modal values', k, size (sim.shapes, 2), m);
  expect (all (isfinite (sim.loads(:))) && isreal (sim.loads) && all (isfinite (sim.shapes(:))), 'the loads must be finite and real');
  expect (numel (sim.model.stiffness) == m && any (numel (sim.model.damping) == [m, m ^ 2]), ...
          'the model must have as many stiffnesses and dampings as modes, %d', m);
  expect (isreal (sim.model.stiffness) && all (isfinite (sim.model.stiffness)) && all (sim.model.stiffness >= 0), ...
          'the modal stiffnesses must be finite and not negative');
  names = {'u', 'v', 'a'};
  for j = 1:3
    x = sim.start.(names{j});
    expect (isa (x, 'double') && isreal (x) && numel (x) == m + sim.states && all (isfinite (x)), ...
            'the initial "%s" must be %d finite real doubles', names{j}, m + sim.states);
  end
  for j = 1:numel (sim.elements)
    e = sim.elements(j);
    expect (size (e.observe, 2) == m && isequal (size (e.observe), size (e.command)), ...
            'element %d must observe and act through rows of %d modal values', e.item, m);
    expect (all (isfinite ([e.observe(:); e.command(:)])), 'the rows of element %d must be finite', e.item);
    if isfield (e.law.parameters, 'displacement')
      expect (all (diff (e.law.parameters.displacement) >= 0), 'the table of element %d must ascend; sort it', e.item);
    end
  end

  function expect (good, varargin)
    if ~good, found(end + 1) = struct ('level', 'error', 'text', sprintf (varargin{:})); end
  end
end
